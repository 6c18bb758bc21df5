#include "editing/clsCursor.h"

#include "tests/support/SurfaceFixture.h"
#include "tests/support/TempFolder.h"

namespace veltrix::test {
namespace {

struct clsCursorTest : SurfaceFixture {
    clsCursorTest() { cursor.Constructor(surface); }

    /// Whether the ring is seen around a point, and nowhere else.
    bool seenAround(const Point& point) {
        return colourIn({point.x - 16, point.y - 16, 32, 32}) == boardColours::Ring;
    }

    clsCursor cursor;
};

TEST_F(clsCursorTest, ANewRingIsHidden) {
    expectNothingMissed();
    EXPECT_FALSE(seenAround({16, 16}));
}

TEST_F(clsCursorTest, TheRingLiesAroundItsPoint) {
    cursor.ShowPoint(50, 40);
    EXPECT_TRUE(seenAround({50, 40}));
}

TEST_F(clsCursorTest, TheRingLeavesWhereItWasWhenItMovesOrHides) {
    cursor.ShowPoint(20, 20);
    EXPECT_TRUE(seenAround({20, 20}));
    cursor.ShowPoint(70, 70);
    EXPECT_TRUE(seenAround({70, 70}));
    cursor.Hide();
    EXPECT_FALSE(seenAround({70, 70}));
}

TEST_F(clsCursorTest, ARingShownAtTheSamePointInEveryTickCostsNoPixel) {
    cursor.ShowPoint(50, 40);
    surface.Refresh();
    cursor.ShowPoint(50, 40);
    surface.Refresh();
    EXPECT_TRUE(surface.Changed().empty());
}

TEST(clsCursor, TheRingIsSeenOnlyWhereItsMaskIsWhite) {
    const TempFolder folder;
    writePicture(folder.Path(), "\\images2\\Cursor.bmp", plain(32, 32, boardColours::Ring));
    Picture mask = plain(32, 32, white);
    mask.Row(0)[0] = nothing;
    writePicture(folder.Path(), "\\images2\\CursorMask.bmp", mask);
    KeptLog log;
    PictorATL surface;
    ASSERT_TRUE(surface.Start(folder.Path(), 100, 100, 1, log));
    clsCursor cursor;
    cursor.Constructor(surface);
    cursor.ShowPoint(50, 40);
    surface.Refresh();
    EXPECT_EQ(surface.Frame().Row(24)[34], nothing);
    EXPECT_EQ(surface.Frame().Row(24)[35], boardColours::Ring);
}

} // namespace
} // namespace veltrix::test
