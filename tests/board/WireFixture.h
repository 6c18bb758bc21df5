#pragma once

#include "board/clsBordLines.h"
#include "board/clsLine.h"
#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace veltrix::test {

/// A bead as the frame shows it: where its picture begins, and which frame of which strip it is.
struct Bead {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t direction = 0;
    std::int32_t colour = 0;

    friend bool operator==(const Bead&, const Bead&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const Bead& bead) {
    return out << '(' << bead.x << ", " << bead.y << ") direction " << bead.direction << " colour "
               << bead.colour;
}

/// A surface as large as the board, and wires whose beads are a single pixel each, the top left
/// one, which tells the direction and the colour number.
struct WireFixture : testing::Test {
    WireFixture() {
        for (std::int32_t colour = 1; colour <= 9; ++colour) {
            Picture strip = plain(1024, 1, 0);
            for (std::int32_t n = 0; n < 32; ++n)
                strip.Row(0)[32 * n] = 0xFF000000U | static_cast<std::uint32_t>(colour) << 16 |
                                       static_cast<std::uint32_t>(n) << 8 | 0xFFU;
            writePicture(folder.Path(), "\\images1\\Line" + std::to_string(colour) + ".bmp", strip);
        }
        writePicture(folder.Path(), "\\images1\\LineMask.bmp", plain(1024, 1, white));
        EXPECT_TRUE(surface.Start(folder.Path(), 415, 376, 1, log));
        bordLines.Constructor(surface);
    }

    /// The beads that are seen now, from the top down and from left to right.
    std::vector<Bead> beads() {
        surface.Refresh();
        std::vector<Bead> all;
        const Picture& frame = surface.Frame();
        for (std::int32_t y = 0; y < frame.height; ++y)
            for (std::int32_t x = 0; x < frame.width; ++x)
                if (const std::uint32_t pixel = frame.Row(y)[x]; (pixel & 0xFF) == 0xFF)
                    all.push_back({x, y, static_cast<std::int32_t>(pixel >> 8 & 0xFF),
                                   static_cast<std::int32_t>(pixel >> 16 & 0xFF)});
        return all;
    }

    TempFolder folder;
    KeptLog log;
    PictorATL surface;
    clsBordLines bordLines;
};

} // namespace veltrix::test
