#include "tests/board/WireFixture.h"
#include "tests/support/NumberRange.h"

#include <cmath>
#include <stdexcept>

namespace veltrix::test {
namespace {

using Beads = std::vector<Bead>;

struct clsBordLinesTest : WireFixture {
    /// The beads that are seen of one segment; `count` tells how many there are.
    Beads drawn(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                std::int32_t ColorNr = 1) {
        const std::int32_t group = surface.NewGroup();
        bordLines.DrawLine(group, X1, Y1, X2, Y2, ColorNr);
        const Beads seen = beads();
        count = surface.CountInGroup(group);
        surface.DeleteSprite(group);
        return seen;
    }

    std::int32_t count = 0;
};

TEST_F(clsBordLinesTest, EachColourAndEachOfTheirMasksIsABitmapOfItsOwn) {
    EXPECT_EQ(log.Lines, std::vector<std::string>());
    EXPECT_EQ(surface.LoadBitmap("\\images1\\LineMask.bmp"), 2 * 9 + 1);
}

TEST_F(clsBordLinesTest, BeadsAreSpreadEvenlyHalfAStepInFromTheEnds) {
    // From a sensor to the transistor: 36.1 long, so three beads, whose middles lie at a sixth, a
    // half and five sixths; the corners are 16 up and to the left, rounded.
    EXPECT_EQ(drawn(98, 50, 133, 41), (Beads{{111, 26, 31, 1}, {100, 30, 31, 1}, {88, 32, 31, 1}}));
}

TEST_F(clsBordLinesTest, ASegmentHasABeadForEveryWholeTenPixels) {
    EXPECT_EQ(drawn(100, 100, 100, 100), Beads());
    EXPECT_EQ(drawn(100, 100, 109, 100), Beads());
    EXPECT_EQ(drawn(100, 100, 110, 100), (Beads{{105 - 16, 100 - 16, 0, 1}}));
    EXPECT_EQ(drawn(100, 100, 119, 100).size(), 1U);
    EXPECT_EQ(drawn(100, 100, 120, 100), (Beads{{105 - 16, 84, 0, 1}, {115 - 16, 84, 0, 1}}));
    EXPECT_EQ(drawn(100, 100, 106, 108).size(), 1U); // 10 along the slope
    EXPECT_EQ(drawn(20, 20, 320, 20).size(), 30U);
}

TEST_F(clsBordLinesTest, ColourNumbersChooseThePictures) {
    for (std::int32_t colour = 1; colour <= 9; ++colour)
        EXPECT_EQ(drawn(100, 100, 110, 100, colour), (Beads{{89, 84, 0, colour}}));
}

TEST_F(clsBordLinesTest, DirectionsCountClockwiseFromTheRight) {
    EXPECT_EQ(drawn(200, 200, 300, 200)[0].direction, 0);
    EXPECT_EQ(drawn(200, 200, 300, 300)[0].direction, 4);
    EXPECT_EQ(drawn(200, 200, 200, 300)[0].direction, 8);
    EXPECT_EQ(drawn(200, 200, 100, 200)[0].direction, 16);
    EXPECT_EQ(drawn(200, 200, 200, 100)[0].direction, 24);
    for (std::int32_t n = 0; n < 32; ++n) {
        const double angle = n * 0.19635; // a 32nd of a turn
        const auto x = static_cast<std::int32_t>(std::lround(200 + 150 * std::cos(angle)));
        const auto y = static_cast<std::int32_t>(std::lround(200 + 150 * std::sin(angle)));
        const Beads seen = drawn(200, 200, x, y);
        ASSERT_GE(seen.size(), 14U);
        for (const Bead& bead : seen)
            EXPECT_EQ(bead.direction, n);
    }
}

TEST_F(clsBordLinesTest, BetweenTwoDirectionsTheRoughPiOfTheStripsDecides) {
    // With an exact pi this wire would still be nearer to direction 31.
    EXPECT_EQ(drawn(10, 100, 402, 61)[0].direction, 0);
    EXPECT_EQ(drawn(10, 100, 402, 60)[0].direction, 31);
}

TEST_F(clsBordLinesTest, AColourNumberWithoutAPictureIsAnErrorOnceThereIsABead) {
    for (const std::int32_t colour : {10, 11, -1, least}) {
        EXPECT_THROW(drawn(100, 100, 110, 100, colour), std::out_of_range) << colour;
        EXPECT_NO_THROW(drawn(100, 100, 109, 100, colour)) << colour;
    }
}

TEST_F(clsBordLinesTest, ColourNumberZeroHasBeadsThatAreNotSeen) {
    EXPECT_EQ(drawn(100, 100, 120, 100, 0), Beads());
    EXPECT_EQ(count, 2);
}

TEST_F(clsBordLinesTest, EndsTooFarApartToSubtractAreAnError) {
    EXPECT_THROW(drawn(least, 0, 1, 0), std::overflow_error);
    EXPECT_THROW(drawn(0, 1, 0, least), std::overflow_error);
}

TEST_F(clsBordLinesTest, AWireFromItIsReadyToUse) {
    const std::shared_ptr<clsLine> line = bordLines.CreateLine();
    line->SetAll(100, 100, 110, 100, 4);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 4}}));
}

TEST_F(clsBordLinesTest, ABeadHalfWayBetweenTwoPixelsGoesToTheEvenOne) {
    EXPECT_EQ(drawn(101, 100, 112, 100), (Beads{{90, 84, 0, 1}})); // 90.5
    EXPECT_EQ(drawn(100, 101, 100, 112), (Beads{{84, 90, 8, 1}}));
}

} // namespace
} // namespace veltrix::test
