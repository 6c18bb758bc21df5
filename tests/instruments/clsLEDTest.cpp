#include "instruments/clsLED.h"

#include "tests/support/SurfaceFixture.h"

namespace veltrix::test {
namespace {

namespace colours = boardColours;

struct clsLEDTest : SurfaceFixture {
    clsLEDTest() { lamp.Constructor(surface, 20, 30); }

    /// Whether the lamp is seen, and nothing else.
    bool seen() {
        const std::uint32_t colour = colourIn({20, 30, 32, 32});
        EXPECT_TRUE(colour == colours::RedLight || colour == nothing);
        return colour == colours::RedLight;
    }

    clsLED lamp;
};

TEST_F(clsLEDTest, ANewLampIsDark) {
    expectNothingMissed();
    EXPECT_FALSE(lamp.Value());
    EXPECT_FALSE(seen());
    EXPECT_EQ(surface.CountAll(), 0);
}

TEST_F(clsLEDTest, ALitLampShowsItsPictureAndADarkOneNothing) {
    lamp.SetValue(true);
    EXPECT_TRUE(lamp.Value());
    EXPECT_TRUE(seen());
    lamp.SetValue(false);
    EXPECT_FALSE(lamp.Value());
    EXPECT_FALSE(seen());
}

TEST_F(clsLEDTest, DarkTwiceInARowDrawsNothingAndDoesNotFail) {
    lamp.SetValue(false);
    lamp.SetValue(false);
    EXPECT_EQ(surface.CountAll(), 0);
    EXPECT_FALSE(seen());
}

TEST_F(clsLEDTest, LitAgainAndAgainItIsOneSpriteAndPaintsNothing) {
    lamp.SetValue(true);
    surface.Refresh();
    for (int i = 0; i < 1000; ++i) {
        lamp.SetValue(true);
        surface.Refresh();
        ASSERT_TRUE(surface.Changed().empty());
        ASSERT_EQ(surface.CountAll(), 1);
    }
    EXPECT_TRUE(seen());
    lamp.SetValue(false);
    surface.Refresh();
    EXPECT_EQ(surface.Changed(), std::vector<Rect>({{20, 30, 32, 32}}));
}

TEST_F(clsLEDTest, TheMouseLooksThroughALamp) {
    const std::int32_t below = surface.CreateSprite(surface.LoadBitmap("\\images2\\RedLight.bmp"));
    surface.PlaceSprite(below, 20, 30);
    surface.SetSpriteFlags(below, spriteFlags::ReportsMouse);

    struct Named : SurfaceEvents {
        void MouseDown(std::int32_t hit, MouseButton, std::int32_t, std::int32_t) override {
            sprite = hit;
        }

        void MouseUp(std::int32_t, MouseButton, std::int32_t, std::int32_t) override {}

        void MouseMove(std::int32_t, std::int32_t, std::int32_t) override {}

        std::int32_t sprite = 0;
    } named;

    surface.AddListener(named);
    lamp.SetValue(true);
    surface.MouseDown(MouseButton::Left, 25, 35);
    EXPECT_EQ(named.sprite, below);
}

} // namespace
} // namespace veltrix::test
