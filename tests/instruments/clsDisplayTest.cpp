#include "instruments/clsDisplay.h"

#include "tests/support/NumberRange.h"
#include "tests/support/SurfaceFixture.h"

#include <stdexcept>

namespace veltrix::test {
namespace {

namespace colours = boardColours;

struct clsDisplayTest : SurfaceFixture {
    clsDisplayTest() { display.Constructor(surface); }

    /// The digit that is seen, -1 when there is none.
    std::int32_t seen() { return pictureIn({266, 282, 20, 27}, 10, colours::digit); }

    clsDisplay display;
};

TEST_F(clsDisplayTest, ANewDisplayShowsZero) {
    expectNothingMissed();
    EXPECT_EQ(display.Value(), 0);
    EXPECT_EQ(seen(), 0);
}

TEST_F(clsDisplayTest, EveryDigitIsShownByOneSprite) {
    for (std::int32_t digit = 9; digit >= 0; --digit) {
        display.SetValue(digit);
        EXPECT_EQ(display.Value(), digit);
        EXPECT_EQ(seen(), digit);
        EXPECT_EQ(surface.CountAll(), 1);
    }
}

TEST_F(clsDisplayTest, TenStepsFromZeroLeadBackToZero) {
    for (std::int32_t digit = 1; digit <= 9; ++digit) {
        display.IncreaseValue();
        EXPECT_EQ(display.Value(), digit);
        EXPECT_EQ(seen(), digit);
    }
    display.IncreaseValue();
    EXPECT_EQ(display.Value(), 0);
    EXPECT_EQ(seen(), 0);
}

TEST_F(clsDisplayTest, ANumberThatIsNoDigitIsAnErrorAndNotTaken) {
    for (const std::int32_t number : {10, -1, least, most}) {
        display.SetValue(7);
        EXPECT_THROW(display.SetValue(number), std::out_of_range) << number;
        EXPECT_EQ(display.Value(), 7);
        EXPECT_EQ(seen(), -1);
    }
    display.IncreaseValue();
    EXPECT_EQ(seen(), 8);
}

TEST_F(clsDisplayTest, TheSameDigitAgainPaintsNothing) {
    display.SetValue(4);
    surface.Refresh();
    display.SetValue(4);
    surface.Refresh();
    EXPECT_TRUE(surface.Changed().empty());
}

} // namespace
} // namespace veltrix::test
