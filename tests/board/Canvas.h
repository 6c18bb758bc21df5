#pragma once

#include "board/PictorATL.h"
#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace veltrix::test {

/// A surface of 40 by 30 board pixels and a folder for the pictures that a test makes for it.
struct Canvas {
    static constexpr std::int32_t width = 40;
    static constexpr std::int32_t height = 30;

    explicit Canvas(double scale = 1) {
        if (!surface.Start(folder.Path(), width, height, scale, log))
            throw std::runtime_error("the surface does not start");
    }

    /// Writes a picture and loads it.
    std::int32_t bitmap(const Picture& picture) {
        const std::string name = "\\picture" + std::to_string(++pictures) + ".bmp";
        writePicture(folder.Path(), name, picture);
        return surface.LoadBitmap(name);
    }

    /// A new sprite in one colour at a place.
    std::int32_t sprite(std::uint32_t colour, const Rect& place, std::int32_t parent = 0) {
        const std::int32_t sprite =
            surface.CreateSprite(bitmap(plain(place.width, place.height, colour)));
        surface.PlaceSprite(sprite, place.x, place.y);
        surface.AddToGroup(sprite, parent);
        return sprite;
    }

    [[nodiscard]] std::uint32_t pixel(std::int32_t x, std::int32_t y) const {
        return surface.Frame().Row(y)[x];
    }

    /// The pixel after everything that happened has been painted.
    [[nodiscard]] std::uint32_t shown(std::int32_t x, std::int32_t y) {
        surface.Refresh();
        return pixel(x, y);
    }

    TempFolder folder;
    KeptLog log;
    PictorATL surface;
    int pictures = 0; ///< so many have been made
};

} // namespace veltrix::test
