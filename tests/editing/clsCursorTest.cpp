#include "editing/clsCursor.h"
#include "board/PictorATL.h"
#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

constexpr std::uint32_t ring = 0xFF00C080;

struct CursorTest : testing::Test {
    CursorTest() {
        writePicture(folder.Path(), "\\images2\\Cursor.bmp", plain(32, 32, ring));
        writePicture(folder.Path(), "\\images2\\CursorMask.bmp", plain(32, 32, 0xFFFFFFFF));
        EXPECT_TRUE(surface.Start(folder.Path(), 100, 100, 1, log));
        cursor.Constructor(surface);
    }

    /// The colour at a board position after the next refresh.
    std::uint32_t at(std::int32_t x, std::int32_t y) {
        surface.Refresh();
        return surface.Frame().Row(y)[x];
    }

    TempFolder folder;
    NullLog log;
    PictorATL surface;
    clsCursor cursor;
};

TEST_F(CursorTest, IsHiddenAtFirst) {
    EXPECT_NE(at(0, 0), ring);
    EXPECT_NE(at(16, 16), ring);
}

TEST_F(CursorTest, LiesAroundItsPoint) {
    cursor.ShowPoint(50, 40);
    EXPECT_EQ(at(50 - 16, 40 - 16), ring);
    EXPECT_EQ(at(50 + 15, 40 + 15), ring);
    EXPECT_NE(at(50 + 16, 40), ring);
}

TEST_F(CursorTest, LeavesWhereItWasWhenItMovesOrHides) {
    cursor.ShowPoint(20, 20);
    surface.Refresh();
    cursor.ShowPoint(70, 70);
    EXPECT_NE(at(20, 20), ring);
    EXPECT_EQ(at(70, 70), ring);
    cursor.Hide();
    EXPECT_NE(at(70, 70), ring);
}

TEST_F(CursorTest, ShownAtTheSamePointInEveryTickCostsNoPixel) {
    cursor.ShowPoint(50, 40);
    surface.Refresh();
    cursor.ShowPoint(50, 40);
    surface.Refresh();
    EXPECT_TRUE(surface.Changed().empty());
}

} // namespace

} // namespace veltrix::test
