#include "instruments/clsSensor.h"

#include "tests/support/NumberRange.h"
#include "tests/support/SurfaceFixture.h"

#include <stdexcept>

namespace veltrix::test {
namespace {

namespace colours = boardColours;

struct clsSensorTest : SurfaceFixture {
    clsSensorTest() { sensor.Constructor(surface, 20, 30); }

    /// The mode whose picture is seen, -1 when there is none.
    std::int32_t seen() { return pictureIn({20, 30, 48, 48}, 3, colours::sensor); }

    clsSensor sensor;
};

TEST_F(clsSensorTest, ANewSensorIsDarkAndShowsTheFirstPicture) {
    expectNothingMissed();
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
    for (const std::int32_t mode : {3, -1, 1000, least, most}) {
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
    sensor.SetValue(most);
    EXPECT_THROW(sensor.NextValue(), std::overflow_error);
    EXPECT_EQ(sensor.Value(), most);
}

TEST_F(clsSensorTest, ASensorLiesOnLevelEight) {
    // Younger than the sensor: what shares its level lies above it.
    const std::int32_t other = surface.CreateSprite(surface.LoadBitmap("\\images2\\RedLight.bmp"));
    surface.PlaceSprite(other, 20, 30);
    surface.SetLevel(other, 7);
    EXPECT_EQ(seen(), 0);
    surface.SetLevel(other, 8);
    EXPECT_EQ(pixel(20, 30), colours::RedLight);
}

} // namespace
} // namespace veltrix::test
