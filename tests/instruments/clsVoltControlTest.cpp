#include "instruments/clsVoltControl.h"

#include "tests/support/NumberRange.h"
#include "tests/support/SurfaceFixture.h"

namespace veltrix::test {
namespace {

namespace colours = boardColours;

struct clsVoltControlTest : SurfaceFixture {
    explicit clsVoltControlTest(double scale = 1) : SurfaceFixture(scale) {
        knob.Constructor(surface);
        knob.Hide();
        knob.SetValue(0);
    }

    /// The left edge of the pointer on the scale, which must be 5 below the scale's upper edge.
    std::int32_t pointerOnScale(Point scale) {
        for (std::int32_t x = scale.x - 1; x < scale.x + 213; ++x)
            if (pixel(x, scale.y + 5) == colours::VPointer) {
                EXPECT_NE(pixel(x, scale.y + 4), colours::VPointer);
                EXPECT_EQ(pixel(x + 14, scale.y + 5 + 17), colours::VPointer);
                return x - scale.x;
            }
        return -1000;
    }

    void down(std::int32_t x, std::int32_t y) { surface.MouseDown(MouseButton::Left, x, y); }

    void up(std::int32_t x, std::int32_t y) { surface.MouseUp(MouseButton::Left, x, y); }

    clsVoltControl knob;
};

// Where the knob is opened in these tests, and where its close zone lies then.
constexpr Point place{100, 200};
constexpr Point inScale{150, 240};
constexpr Point inCloseZone{100 + 197 + 8, 200 + 20};

TEST_F(clsVoltControlTest, AHiddenKnobIsNotSeenAndHearsNothing) {
    expectNothingMissed();
    EXPECT_FALSE(knob.Visible());
    for (std::int32_t y = 0; y < 60; ++y)
        EXPECT_EQ(pixel(3 * y, y), nothing);
    down(20, 20);
    surface.MouseMove(60, 20);
    EXPECT_EQ(knob.Value(), 0);
    EXPECT_FALSE(knob.InBound());
}

TEST_F(clsVoltControlTest, TheKnobOpensWithItsScaleAtThePlace) {
    knob.Move(place.x, place.y);
    EXPECT_TRUE(knob.Visible());
    EXPECT_EQ(pixel(place.x, place.y), colours::Scale);
    EXPECT_EQ(pixel(place.x + 212, place.y + 47), colours::Scale);
    EXPECT_EQ(pixel(place.x - 1, place.y), nothing);
    EXPECT_EQ(pixel(place.x + 212, place.y + 48), nothing);
    knob.Move(0, 0);
    EXPECT_EQ(pixel(place.x + 212, place.y + 47), nothing);
    EXPECT_EQ(pixel(0, 47), colours::Scale);
    knob.Hide();
    EXPECT_FALSE(knob.Visible());
    EXPECT_EQ(pixel(0, 47), nothing);
}

TEST_F(clsVoltControlTest, TheScaleHasAMarkForEveryTenthOfAVoltAndLongOnesForWholeVolts) {
    knob.Move(0, 0);
    knob.SetValue(50); // the pointer covers only the last mark's neighbourhood
    surface.Refresh();
    for (std::int32_t y = 0; y < 48; ++y)
        for (std::int32_t x = 0; x < 199; ++x) {
            const bool mark = x >= 6 && (x - 6) % 4 == 0;
            const std::int32_t length = (x - 6) % 40 == 0 ? 10 : 5;
            const bool marked = mark && y <= 32 && y > 32 - length;
            ASSERT_EQ(surface.Frame().Row(y)[x], marked ? white : colours::Scale) << x << ' ' << y;
        }
    knob.SetValue(0);
    surface.Refresh();
    for (std::int32_t y = 0; y < 48; ++y)
        for (std::int32_t x = 20; x < 213; ++x) {
            const bool mark = (x - 6) % 4 == 0 && x <= 206;
            const std::int32_t length = (x - 6) % 40 == 0 ? 10 : 5;
            ASSERT_EQ(surface.Frame().Row(y)[x] == white, mark && y <= 32 && y > 32 - length);
        }
}

TEST_F(clsVoltControlTest, ThePointerStandsFourPixelsATenthFurther) {
    knob.Move(place.x, place.y);
    const auto check = [&](double value, std::int32_t x) {
        knob.SetValue(value);
        EXPECT_EQ(pointerOnScale(place), x) << value;
    };
    check(0, -1);
    check(1, 3);
    check(25, 99);
    check(50, 199);
    check(10.25, 40);
    check(10.3, 40);   // 40.2
    check(10.45, 41);  // 40.8
    check(12.375, 48); // 48.5, to the even pixel
    check(12.625, 50); // 49.5
}

TEST_F(clsVoltControlTest, AValueStaysWithinTheScale) {
    const auto check = [&](double value, double kept) {
        knob.SetValue(value);
        EXPECT_EQ(knob.Value(), kept) << value;
    };
    check(-0.001, 0);
    check(-1e300, 0);
    check(50.001, 50);
    check(1e300, 50);
    check(49.999, 49.999);
    check(0.25, 0.25);
}

TEST_F(clsVoltControlTest, DraggingFollowsTheMouseAndKeepsTheFraction) {
    knob.Move(place.x, place.y);
    down(place.x + 6, place.y + 40);
    EXPECT_EQ(knob.Value(), 0);
    surface.MouseMove(place.x + 6 + 4 * 20, place.y + 40);
    EXPECT_EQ(knob.Value(), 20);
    surface.MouseMove(place.x + 6 + 4 * 20 + 1, place.y + 40);
    EXPECT_EQ(knob.Value(), 20.25);
    surface.MouseMove(place.x + 6 + 4 * 20 + 3, 0); // far above the scale
    EXPECT_EQ(knob.Value(), 20.75);
}

TEST_F(clsVoltControlTest, DraggingPastTheEndsGivesZeroAndFiveVolts) {
    knob.Move(place.x, place.y);
    down(inScale.x, inScale.y);
    surface.MouseMove(place.x - 50, inScale.y);
    EXPECT_EQ(knob.Value(), 0);
    surface.MouseMove(400, inScale.y);
    EXPECT_EQ(knob.Value(), 50);
    surface.MouseMove(most, 0);
    EXPECT_EQ(knob.Value(), 50);
    surface.MouseMove(least, 0);
    EXPECT_EQ(knob.Value(), 0);
}

TEST_F(clsVoltControlTest, AClickOnTheScaleSetsTheValueAtOnce) {
    knob.Move(place.x, place.y);
    down(place.x + 6 + 4 * 31, place.y + 1);
    EXPECT_EQ(knob.Value(), 31);
}

TEST_F(clsVoltControlTest, ThePointerOnTheScaleDoesNotStandInTheWay) {
    knob.Move(place.x, place.y);
    knob.SetValue(25);
    down(place.x + 99 + 7, place.y + 10);
    EXPECT_EQ(knob.Value(), 25);
    surface.MouseMove(place.x + 99 + 7 + 8, place.y + 10);
    EXPECT_EQ(knob.Value(), 27);
}

TEST_F(clsVoltControlTest, AfterTheButtonIsUpTheMouseMovesFreely) {
    knob.Move(place.x, place.y);
    down(inScale.x, inScale.y);
    up(place.x + 6, inScale.y);
    EXPECT_EQ(knob.Value(), 11); // where it was pressed: (50 - 6) / 4
    surface.MouseMove(place.x + 6, inScale.y);
    EXPECT_EQ(knob.Value(), 11);
}

TEST_F(clsVoltControlTest, AButtonThatGoesUpWhileTheKnobIsHiddenEndsTheDragging) {
    knob.Move(place.x, place.y);
    down(inScale.x, inScale.y);
    knob.Hide();
    surface.MouseMove(place.x + 6, inScale.y);
    up(inScale.x, inScale.y);
    knob.Move(place.x, place.y);
    surface.MouseMove(place.x + 6, inScale.y);
    EXPECT_EQ(knob.Value(), 11);
}

TEST_F(clsVoltControlTest, APressBesideTheScaleDragsNothing) {
    knob.Move(place.x, place.y);
    down(place.x - 1, inScale.y);
    surface.MouseMove(inScale.x, inScale.y);
    EXPECT_EQ(knob.Value(), 0);
}

TEST_F(clsVoltControlTest, TheCrossClosesTheKnobAtTheNextUpdateAndNotAtOnce) {
    knob.Move(place.x, place.y);
    knob.Update();
    EXPECT_TRUE(knob.Visible());
    down(inCloseZone.x, inCloseZone.y);
    up(inCloseZone.x, inCloseZone.y);
    EXPECT_TRUE(knob.Visible());
    EXPECT_EQ(pixel(inCloseZone.x, inCloseZone.y), colours::Scale);
    EXPECT_EQ(knob.Value(), 0);
    knob.Update();
    EXPECT_FALSE(knob.Visible());
    EXPECT_EQ(pixel(inCloseZone.x, inCloseZone.y), nothing);
}

TEST_F(clsVoltControlTest, TheCloseZoneIsSixteenWideFromTheNinetySeventhPixelOnTheRight) {
    const auto closes = [&](std::int32_t x) {
        knob.Move(place.x, place.y);
        down(place.x + x, inCloseZone.y);
        up(place.x + x, inCloseZone.y);
        knob.Update();
        return !knob.Visible();
    };
    EXPECT_FALSE(closes(196));
    EXPECT_TRUE(closes(197));
    EXPECT_TRUE(closes(212));
    EXPECT_FALSE(closes(213));
}

TEST_F(clsVoltControlTest, OpeningTakesBackTheWishToClose) {
    knob.Move(place.x, place.y);
    down(inCloseZone.x, inCloseZone.y);
    knob.Move(place.x, place.y);
    knob.Update();
    EXPECT_TRUE(knob.Visible());
}

TEST_F(clsVoltControlTest, TheKnobIsInBoundWhileThePointerIsOverItsOpenScale) {
    knob.Move(place.x, place.y);
    surface.MouseMove(inScale.x, inScale.y);
    EXPECT_TRUE(knob.InBound());
    surface.MouseMove(inCloseZone.x, inCloseZone.y);
    EXPECT_TRUE(knob.InBound());
    surface.MouseMove(place.x - 1, place.y);
    EXPECT_FALSE(knob.InBound());
    surface.MouseMove(inScale.x, inScale.y);
    knob.Hide();
    EXPECT_FALSE(knob.InBound());
}

TEST_F(clsVoltControlTest, AValueSetWhileHiddenDoesNotShowThePointer) {
    knob.Move(place.x, place.y);
    knob.Hide();
    knob.SetValue(25);
    EXPECT_EQ(pixel(place.x + 99, place.y + 5), nothing);
    knob.Move(place.x, place.y);
    EXPECT_EQ(pointerOnScale(place), 99);
}

TEST_F(clsVoltControlTest, TheKnobLiesOnLevelTenAboveTheWires) {
    // Younger than the knob: what shares its level lies above it.
    const std::int32_t other = surface.CreateSprite(surface.LoadBitmap("\\images2\\Bord.bmp"));
    surface.SetLevel(other, 9);
    knob.Move(place.x, place.y);
    EXPECT_EQ(pixel(place.x, place.y), colours::Scale);
    surface.SetLevel(other, 10);
    EXPECT_EQ(pixel(place.x, place.y), colours::Board);
}

TEST_F(clsVoltControlTest, AKnobThatIsGoneListensNoMore) {
    {
        clsVoltControl other;
        other.Constructor(surface);
        other.Move(0, 0);
    }
    // The sanitizers see a call of a listener that is gone.
    down(20, 20);
    up(20, 20);
}

struct clsVoltControlAtTwice : clsVoltControlTest {
    clsVoltControlAtTwice() : clsVoltControlTest(2) {}
};

TEST_F(clsVoltControlAtTwice, TheMarksAreTwoPixelsWide) {
    knob.Move(0, 0);
    knob.SetValue(50);
    EXPECT_EQ(pixel(2 * 10 - 1, 64), colours::Scale);
    EXPECT_EQ(pixel(2 * 10, 64), white);
    EXPECT_EQ(pixel(2 * 10 + 1, 65), white);
    EXPECT_EQ(pixel(2 * 10 + 2, 65), colours::Scale);
    EXPECT_EQ(pixel(2 * 10, 66), colours::Scale);
    EXPECT_EQ(pixel(2 * 10, 2 * 28), white);
    EXPECT_EQ(pixel(2 * 10, 2 * 28 - 1), colours::Scale);
}

TEST_F(clsVoltControlTest, EitherButtonDragsAndAPressBesideTheScaleMovesADragOn) {
    knob.Move(place.x, place.y);
    surface.MouseDown(MouseButton::Right, place.x + 6 + 4 * 31, inScale.y);
    EXPECT_EQ(knob.Value(), 31);
    down(place.x + 6 + 4 * 12, place.y - 100);
    EXPECT_EQ(knob.Value(), 12);
}

} // namespace
} // namespace veltrix::test
