#pragma once

#include "board/PictorATL.h"
#include "instruments/Board.h"
#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace veltrix::test {

/// A surface as large as the board, with the board's pictures, for a test that puts one thing on
/// it.
struct SurfaceFixture : testing::Test {
    explicit SurfaceFixture(double scale = 1) {
        EXPECT_TRUE(surface.Start(boardPictures(), Board::Width, Board::Height, scale, log));
    }

    /// A pixel of the frame after everything that happened has been painted.
    [[nodiscard]] std::uint32_t pixel(std::int32_t x, std::int32_t y) {
        surface.Refresh();
        return surface.Frame().Row(y)[x];
    }

    /// The colour of the only thing on the surface, which must fill `place` and not a pixel more;
    /// `nothing` when it is not seen.
    [[nodiscard]] std::uint32_t colourIn(const Rect& place) {
        const std::uint32_t colour = pixel(place.x, place.y);
        Picture expected = plain(Board::Width, Board::Height, nothing);
        for (std::int32_t y = place.y; y < place.y + place.height; ++y)
            std::fill_n(expected.Row(y) + place.x, place.width, colour);
        EXPECT_TRUE(surface.Frame().pixels == expected.pixels);
        return colour;
    }

    /// Which of the first so many pictures is the only thing that is seen; -1 when nothing is.
    [[nodiscard]] std::int32_t pictureIn(const Rect& place, std::int32_t count,
                                         std::uint32_t (*colourOf)(std::uint32_t)) {
        const std::uint32_t colour = colourIn(place);
        for (std::int32_t i = 0; i < count; ++i)
            if (colour == colourOf(static_cast<std::uint32_t>(i)))
                return i;
        EXPECT_EQ(colour, nothing);
        return -1;
    }

    /// Every picture was found.
    void expectNothingMissed() const { EXPECT_EQ(log.Lines, std::vector<std::string>()); }

    KeptLog log;
    PictorATL surface;
};

} // namespace veltrix::test
