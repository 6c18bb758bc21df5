#pragma once

#include "board/AppPath.h"
#include "board/Picture.h"
#include "tests/support/Folders.h"

#include <array>
#include <string>

namespace veltrix::test {

/// A picture as the build rendered it for 1, 2 or 3 pixels to a board pixel.
inline Picture rendered(std::string name, int scale) {
    if (scale > 1)
        name.insert(name.rfind('.'), "@" + std::to_string(scale) + "x");
    return ReadPicture(AppPath(ApplicationFolder(), name));
}

/// Red, green and blue, 0 to 255.
using Colour = std::array<double, 3>;

inline Colour colourOf(std::uint32_t pixel) {
    return {static_cast<double>(pixel >> 16 & 0xFF), static_cast<double>(pixel >> 8 & 0xFF),
            static_cast<double>(pixel & 0xFF)};
}

} // namespace veltrix::test
