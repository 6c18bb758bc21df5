#include "instruments/clsDisplay.h"

#include "tests/support/Pictures.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace veltrix {
namespace {

namespace colours = test::boardColours;

struct clsDisplayTest : testing::Test {
    clsDisplayTest() {
        started = surface.Start(folder.Path(), Board::Width, Board::Height, 1, log);
        display.Constructor(surface);
    }

    /// The digit that is seen, -1 when there is none.
    std::int32_t seen() {
        surface.Refresh();
        const std::uint32_t first = surface.Frame().Row(282)[266];
        EXPECT_EQ(surface.Frame().Row(282 + 26)[266 + 19], first);
        EXPECT_EQ(surface.Frame().Row(281)[266], 0xFF000000);
        EXPECT_EQ(surface.Frame().Row(282)[265], 0xFF000000);
        for (std::uint32_t digit = 0; digit <= 9; ++digit)
            if (first == colours::digit(digit))
                return static_cast<std::int32_t>(digit);
        return -1;
    }

    test::PictureFolder folder;
    test::KeptLog log;
    PictorATL surface;
    bool started = false;
    clsDisplay display;
};

TEST_F(clsDisplayTest, ANewDisplayShowsZero) {
    EXPECT_EQ(log.Lines, std::vector<std::string>());
    EXPECT_EQ(display.Value(), 0);
    EXPECT_EQ(seen(), 0);
}

TEST_F(clsDisplayTest, ShowsEveryDigitWithOneSprite) {
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
    for (const std::int32_t number : {10, -1, std::numeric_limits<std::int32_t>::min(),
                                      std::numeric_limits<std::int32_t>::max()}) {
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
} // namespace veltrix
