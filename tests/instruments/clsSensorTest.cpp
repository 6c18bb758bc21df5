#include "instruments/clsSensor.h"

#include "tests/support/Pictures.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace veltrix {
namespace {

namespace colours = test::boardColours;

struct clsSensorTest : testing::Test {
    clsSensorTest() {
        started = surface.Start(folder.Path(), 100, 100, 1, log);
        sensor.Constructor(surface, 20, 30);
    }

    /// The mode whose picture is seen, -1 when there is none.
    std::int32_t seen() {
        surface.Refresh();
        const std::uint32_t first = surface.Frame().Row(30)[20];
        EXPECT_EQ(surface.Frame().Row(30 + 47)[20 + 47], first);
        EXPECT_EQ(surface.Frame().Row(30)[19], 0xFF000000);
        EXPECT_EQ(surface.Frame().Row(30 + 48)[20 + 47], 0xFF000000);
        for (std::uint32_t mode = 0; mode <= 2; ++mode)
            if (first == colours::sensor(mode))
                return static_cast<std::int32_t>(mode);
        EXPECT_EQ(first, 0xFF000000);
        return -1;
    }

    test::PictureFolder folder;
    test::KeptLog log;
    PictorATL surface;
    bool started = false;
    clsSensor sensor;
};

TEST_F(clsSensorTest, ANewSensorIsDarkAndShowsTheFirstPicture) {
    EXPECT_EQ(log.Lines, std::vector<std::string>());
    EXPECT_EQ(sensor.Value(), 0);
    EXPECT_EQ(seen(), 0);
}

TEST_F(clsSensorTest, ThreeClicksLeadBackToTheFirstMode) {
    for (const std::int32_t mode : {1, 2, 0, 1}) {
        sensor.NextValue();
        EXPECT_EQ(sensor.Value(), mode);
        EXPECT_EQ(seen(), mode);
        EXPECT_EQ(surface.CountAll(), 1);
    }
}

TEST_F(clsSensorTest, AModeWithoutAPictureIsKeptAndShowsNone) {
    for (const std::int32_t mode : {3, -1, 1000, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()}) {
        sensor.SetValue(mode);
        EXPECT_EQ(sensor.Value(), mode);
        EXPECT_EQ(seen(), -1) << mode;
    }
    sensor.SetValue(2);
    EXPECT_EQ(seen(), 2);
}

TEST_F(clsSensorTest, AClickCountsOnFromAnyMode) {
    sensor.SetValue(3);
    sensor.NextValue();
    EXPECT_EQ(sensor.Value(), 4);
    sensor.SetValue(-1);
    sensor.NextValue();
    EXPECT_EQ(sensor.Value(), 0);
    EXPECT_EQ(seen(), 0);
    sensor.SetValue(std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(sensor.NextValue(), std::overflow_error);
    EXPECT_EQ(sensor.Value(), std::numeric_limits<std::int32_t>::max());
}

TEST_F(clsSensorTest, LiesOnLevelEight) {
    // Younger than the sensor: what shares its level lies above it.
    const std::int32_t other = surface.CreateSprite(surface.LoadBitmap("\\images2\\RedLight.bmp"));
    surface.PlaceSprite(other, 20, 30);
    surface.SetLevel(other, 7);
    EXPECT_EQ(seen(), 0);
    surface.SetLevel(other, 8);
    surface.Refresh();
    EXPECT_EQ(surface.Frame().Row(30)[20], colours::RedLight);
}

} // namespace
} // namespace veltrix
