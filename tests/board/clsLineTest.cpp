#include "tests/board/WireFixture.h"

namespace veltrix::test {
namespace {

using Beads = std::vector<Bead>;

struct clsLineTest : WireFixture {
    [[nodiscard]] std::int32_t beadCount() const { return surface.CountInGroup(line->GroupLID()); }

    std::shared_ptr<clsLine> line = bordLines.CreateLine();
};

TEST_F(clsLineTest, ANewWireHasNoEndsNoNamesAndTheColourOfFiveVolts) {
    EXPECT_EQ(line->Color(), 1);
    EXPECT_FALSE(line->Highlight());
    EXPECT_EQ(line->Valid1(), 0);
    EXPECT_EQ(line->Valid2(), 0);
    EXPECT_EQ(line->X1(), 0);
    EXPECT_EQ(line->Y2(), 0);
    EXPECT_TRUE(line->naam1.empty());
    EXPECT_TRUE(line->naam2.empty());
    EXPECT_FALSE(line->done);
    EXPECT_EQ(beads(), Beads());
}

TEST_F(clsLineTest, EachWireHasAGroupOfItsOwn) {
    const std::shared_ptr<clsLine> other = bordLines.CreateLine();
    EXPECT_NE(line->GroupLID(), 0);
    EXPECT_NE(line->GroupLID(), other->GroupLID());
}

TEST_F(clsLineTest, AWireWithOneEndIsInvisible) {
    line->SetCoords(1, 100, 100);
    EXPECT_EQ(line->Valid1(), -1);
    EXPECT_EQ(line->Valid2(), 0);
    EXPECT_EQ(beadCount(), 0);
    line->SetCoords(2, 120, 100);
    EXPECT_EQ(line->Valid2(), -1);
    EXPECT_EQ(beadCount(), 2);
    EXPECT_EQ(line->X1(), 100);
    EXPECT_EQ(line->Y1(), 100);
    EXPECT_EQ(line->X2(), 120);
    EXPECT_EQ(line->Y2(), 100);
}

TEST_F(clsLineTest, EndTwoAloneIsInvisibleToo) {
    line->SetCoords(2, 100, 100);
    EXPECT_EQ(line->Valid1(), 0);
    EXPECT_EQ(beadCount(), 0);
}

TEST_F(clsLineTest, EveryNumberButOneIsTheSecondEnd) {
    for (const std::int32_t end : {0, 5, -1, 2}) {
        line->SetCoords(end, 10 * end, 7);
        EXPECT_EQ(line->X2(), 10 * end);
        EXPECT_EQ(line->Y2(), 7);
        EXPECT_EQ(line->Valid1(), 0);
    }
}

TEST_F(clsLineTest, AMovedEndTakesTheBeadsAlong) {
    line->SetAll(100, 100, 110, 100, 2);
    line->SetCoords(2, 100, 120);
    EXPECT_EQ(beads(), (Beads{{84, 105 - 16, 8, 2}, {84, 115 - 16, 8, 2}}));
    line->SetCoords(1, 100, 115);
    EXPECT_EQ(beads(), Beads());
}

TEST_F(clsLineTest, SetAllPlacesBothEndsInAColour) {
    line->SetAll(100, 101, 110, 101, 7);
    EXPECT_EQ(line->Color(), 7);
    EXPECT_EQ(line->Valid1(), -1);
    EXPECT_EQ(line->Valid2(), -1);
    EXPECT_EQ(beads(), (Beads{{89, 85, 0, 7}}));
}

TEST_F(clsLineTest, AnotherColourRedrawsTheWire) {
    line->SetAll(100, 100, 110, 100, 1);
    line->SetColor(8);
    EXPECT_EQ(line->Color(), 8);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 8}}));
    EXPECT_EQ(beadCount(), 1);
}

TEST_F(clsLineTest, TheSameColourRedrawsNothing) {
    line->SetAll(100, 100, 110, 100, 3);
    surface.ClearGroup(line->GroupLID());
    line->SetColor(3);
    EXPECT_EQ(beadCount(), 0);
}

TEST_F(clsLineTest, AHighlightedWireShowsColourNineAndThenItsOwnAgain) {
    line->SetAll(100, 100, 110, 100, 3);
    line->SetHighlight(true);
    EXPECT_TRUE(line->Highlight());
    EXPECT_EQ(line->Color(), 3);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 9}}));
    line->SetColor(5);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 9}}));
    line->SetHighlight(false);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 5}}));
}

TEST_F(clsLineTest, HighlightingTwiceRedrawsOnce) {
    line->SetAll(100, 100, 110, 100, 3);
    line->SetHighlight(true);
    surface.ClearGroup(line->GroupLID());
    line->SetHighlight(true);
    EXPECT_EQ(beadCount(), 0);
    line->SetHighlight(false);
    EXPECT_EQ(beadCount(), 1);
}

TEST_F(clsLineTest, AColourWithoutAPictureIsAnErrorAndKept) {
    line->SetAll(100, 100, 110, 100, 3);
    EXPECT_THROW(line->SetColor(11), std::out_of_range);
    EXPECT_EQ(line->Color(), 11);
    EXPECT_EQ(beads(), Beads());
    line->SetColor(2);
    EXPECT_EQ(beads(), (Beads{{89, 84, 0, 2}}));
}

TEST_F(clsLineTest, WiresLieOnLevelEight) {
    line->SetAll(100, 100, 110, 100, 3);
    // White, which no bead is, and younger than the wire: what shares its level lies above it.
    const std::int32_t sprite = surface.CreateSprite(surface.LoadBitmap("\\images1\\LineMask.bmp"));
    surface.PlaceSprite(sprite, 0, 84);
    surface.SetLevel(sprite, 7);
    surface.Refresh();
    EXPECT_NE(surface.Frame().Row(84)[89], white);
    surface.SetLevel(sprite, 8);
    surface.Refresh();
    EXPECT_EQ(surface.Frame().Row(84)[89], white);
}

TEST_F(clsLineTest, AWireLeavesTheSurfaceWithItsLastHolder) {
    const std::int32_t before = surface.CountAll();
    std::shared_ptr<clsLine> other = bordLines.CreateLine();
    other->SetAll(100, 100, 200, 100, 3);
    std::shared_ptr<clsLine> held = other;
    other.reset();
    EXPECT_EQ(surface.CountAll(), before + 11);
    EXPECT_EQ(beads().size(), 10U);
    held.reset();
    EXPECT_EQ(surface.CountAll(), before);
    EXPECT_EQ(beads(), Beads());
}

TEST_F(clsLineTest, ARecolouredWireIsPaintedWithinItsOwnRectangle) {
    line->SetAll(20, 20, 60, 20, 3);
    const std::shared_ptr<clsLine> other = bordLines.CreateLine();
    other->SetAll(200, 200, 260, 200, 3);
    surface.Refresh();
    other->SetColor(4);
    surface.Refresh();
    EXPECT_EQ(surface.Changed(), std::vector<Rect>({{205 - 16, 200 - 16, 50 + 32, 1}}));
}

TEST_F(clsLineTest, AWireDrawnAgainAlikePaintsNothing) {
    line->SetAll(20, 20, 60, 20, 3);
    surface.Refresh();
    line->SetAll(20, 20, 60, 20, 3);
    surface.Refresh();
    EXPECT_EQ(surface.Changed(), std::vector<Rect>());
}

TEST_F(clsLineTest, TheDistanceIsThatToTheNearestOfElevenPoints) {
    line->SetAll(0, 0, 100, 0, 1);
    const auto check = [&](std::int32_t x, std::int32_t y, std::int32_t distance) {
        EXPECT_EQ(line->Distance(x, y), distance) << x << ", " << y;
    };
    check(0, 0, 0);
    check(5, 0, 5); // half-way between two points, though on the wire
    check(50, 0, 0);
    check(52, 0, 2);
    check(100, 0, 0);
    check(50, 7, 7);
    check(103, 4, 5);
    check(-3, -4, 5);
    check(51, 1, 1);     // 1.41
    check(52, 2, 3);     // 2.83
    check(55, 100, 100); // 100.12
}

TEST_F(clsLineTest, ASlantingWireHasItsPointsOnTheSlope) {
    line->SetAll(10, 20, 45, 61, 1);
    EXPECT_EQ(line->Distance(10, 20), 0);
    EXPECT_EQ(line->Distance(45, 61), 0);
    EXPECT_EQ(line->Distance(24, 36), 0);  // from (24, 36.4)
    EXPECT_EQ(line->Distance(45, 20), 27); // from (24, 36.4) too: 26.64
}

TEST_F(clsLineTest, EndsThatAreNotPlacedCountAsTheOrigin) {
    EXPECT_EQ(line->Distance(30, 40), 50);
    line->SetCoords(1, 100, 0);
    EXPECT_EQ(line->Distance(50, 0), 0);
}

TEST_F(clsLineTest, VeryFarIsAHundredMillion) {
    line->SetAll(2000000000, 0, 2000000000, 5, 1);
    EXPECT_EQ(line->Distance(-2000000000, 0), 100000000);
}

TEST_F(clsLineTest, NamesAndTheMarkAreJustKept) {
    line->naam1 = "EN-poort Uit";
    line->naam2 = std::string("zomaar iets");
    line->done = true;
    line->SetAll(100, 100, 110, 100, 3);
    EXPECT_EQ(line->naam1, "EN-poort Uit");
    EXPECT_EQ(line->naam2, "zomaar iets");
    EXPECT_TRUE(line->done);
}

TEST_F(clsLineTest, ADistanceHalfWayBetweenTwoNumbersIsTheEvenOne) {
    line->SetAll(0, 0, 100, 5, 1);       // its second point is (10, 0.5)
    EXPECT_EQ(line->Distance(10, 2), 2); // 1.5
    EXPECT_EQ(line->Distance(10, 3), 2); // 2.5
}

TEST_F(clsLineTest, TakingAwayAHighlightThatIsNotThereRedrawsNothing) {
    line->SetAll(100, 100, 110, 100, 3);
    surface.ClearGroup(line->GroupLID());
    line->SetHighlight(false);
    EXPECT_EQ(beadCount(), 0);
}

} // namespace
} // namespace veltrix::test
