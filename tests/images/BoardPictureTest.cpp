#include "board/clsSnaps.h"
#include "tests/images/RenderedPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace veltrix::test {

namespace {

/// Distances from a socket's centre in board pixels: its hole, and the coloured collar around it.
constexpr double holeRadius = 4.1;
constexpr double collarInner = 4.8;
constexpr double collarOuter = 6.6;

struct Disc {
    Colour collar{};
    double holeX = 0; // the middle of the dark hole, board pixels
    double holeY = 0;
};

Disc discAt(const Picture& board, int scale, std::int32_t x, std::int32_t y) {
    Disc disc;
    double collarPixels = 0;
    double dark = 0;
    const int reach = static_cast<int>(collarOuter) + 1;
    for (std::int32_t py = (y - reach) * scale; py < (y + reach) * scale; ++py)
        for (std::int32_t px = (x - reach) * scale; px < (x + reach) * scale; ++px) {
            const double boardX = (px + 0.5) / scale;
            const double boardY = (py + 0.5) / scale;
            const double distance = std::hypot(boardX - x, boardY - y);
            const Colour colour = colourOf(board.Row(py)[px]);
            if (distance > collarInner && distance < collarOuter) {
                for (std::size_t c = 0; c < 3; ++c)
                    disc.collar[c] += colour[c];
                ++collarPixels;
            }
            if (distance < holeRadius) {
                const double weight =
                    std::clamp(1 - (colour[0] + colour[1] + colour[2]) / 3 / 90, 0.0, 1.0);
                disc.holeX += weight * boardX;
                disc.holeY += weight * boardY;
                dark += weight;
            }
        }
    for (double& c : disc.collar)
        c /= collarPixels;
    disc.holeX /= dark;
    disc.holeY /= dark;
    return disc;
}

std::string nameOf(const Colour& c) {
    if (c[0] > 180 && c[1] > 130 && c[2] < 110)
        return "yellow";
    if (c[2] > 140 && c[0] < 110)
        return "blue";
    if (*std::min_element(c.begin(), c.end()) > 195)
        return "white";
    if (*std::max_element(c.begin(), c.end()) < 110)
        return "black";
    return "no socket";
}

/// Outputs are yellow, inputs blue, relay contacts white; the zero terminal alone is black.
std::string expectedColour(std::int32_t soort) {
    switch (static_cast<Soort>(soort)) {
    case Soort::Input:
        return "blue";
    case Soort::Output:
        return "yellow";
    case Soort::Contact:
        return "white";
    case Soort::None:
        break;
    }
    return "black";
}

struct BoardPicture : testing::TestWithParam<int> {};

TEST_P(BoardPicture, HasADiscInTheRightColourCentredOnEverySocketOfTheCatalogue) {
    const int scale = GetParam();
    const Picture board = rendered("\\images2\\Bord.bmp", scale);
    ASSERT_EQ(board.width, 415 * scale);
    ASSERT_EQ(board.height, 376 * scale);
    const clsSnaps snaps;
    int sockets = 0;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i) {
        const std::string naam = snaps.GetSnapItemName(i);
        if (snaps.GetConnectablebyName(naam) == 0)
            continue;
        ++sockets;
        const std::int32_t x = snaps.GetXbyName(naam);
        const std::int32_t y = snaps.GetYbyName(naam);
        const Disc disc = discAt(board, scale, x, y);
        EXPECT_EQ(nameOf(disc.collar), expectedColour(snaps.GetSoortbyName(naam))) << naam;
        EXPECT_NEAR(disc.holeX, x, 0.25) << naam;
        EXPECT_NEAR(disc.holeY, y, 0.25) << naam;
    }
    EXPECT_EQ(sockets, 45);
}

INSTANTIATE_TEST_SUITE_P(Scale, BoardPicture, testing::Values(1, 2, 3));

} // namespace

} // namespace veltrix::test
