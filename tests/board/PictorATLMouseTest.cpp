#include "tests/board/Canvas.h"

#include <gtest/gtest.h>

namespace veltrix::test {
namespace {

/// Keeps what it hears; `heard` says it in the order down/up/move, sprite, button, x, y.
struct Listener : SurfaceEvents {
    void MouseDown(std::int32_t sprite, MouseButton button, std::int32_t x,
                   std::int32_t y) override {
        heard.push_back({'d', sprite, static_cast<std::int32_t>(button), x, y});
    }

    void MouseUp(std::int32_t sprite, MouseButton button, std::int32_t x, std::int32_t y) override {
        heard.push_back({'u', sprite, static_cast<std::int32_t>(button), x, y});
    }

    void MouseMove(std::int32_t sprite, std::int32_t x, std::int32_t y) override {
        heard.push_back({'m', sprite, 0, x, y});
    }

    std::vector<std::vector<std::int32_t>> heard;
};

struct PictorATLMouse : testing::Test {
    PictorATLMouse() { canvas.surface.AddListener(listener); }

    /// The sprite that an event at a place names.
    std::int32_t hit(std::int32_t x, std::int32_t y) {
        canvas.surface.MouseMove(x, y);
        return listener.heard.back()[1];
    }

    std::int32_t reporting(const Rect& place, std::int32_t parent = 0) {
        const std::int32_t sprite = canvas.sprite(red, place, parent);
        canvas.surface.SetSpriteFlags(sprite, spriteFlags::ReportsMouse);
        return sprite;
    }

    Canvas canvas;
    Listener listener;
};

TEST_F(PictorATLMouse, EventsCarryTheSpriteTheButtonAndThePlace) {
    const std::int32_t sprite = reporting({10, 10, 5, 5});
    canvas.surface.MouseDown(MouseButton::Left, 10, 10);
    canvas.surface.MouseUp(MouseButton::Right, 14, 14);
    canvas.surface.MouseMove(15, 14);
    canvas.surface.MouseDown(MouseButton::Right, -7, 1000);
    EXPECT_EQ(listener.heard, (std::vector<std::vector<std::int32_t>>{{'d', sprite, 1, 10, 10},
                                                                      {'u', sprite, 2, 14, 14},
                                                                      {'m', 0, 0, 15, 14},
                                                                      {'d', 0, 2, -7, 1000}}));
}

TEST_F(PictorATLMouse, EveryListenerHearsUntilItIsRemoved) {
    Listener second;
    canvas.surface.AddListener(second);
    canvas.surface.MouseMove(1, 1);
    canvas.surface.RemoveListener(listener);
    canvas.surface.MouseMove(2, 2);
    EXPECT_EQ(listener.heard.size(), 1U);
    EXPECT_EQ(second.heard.size(), 2U);
}

TEST_F(PictorATLMouse, OnlyASpriteThatReportsIsNamed) {
    canvas.sprite(red, {0, 0, 10, 10});
    EXPECT_EQ(hit(5, 5), 0);
    const std::int32_t sprite = reporting({0, 0, 10, 10});
    canvas.sprite(red, {0, 0, 10, 10});
    EXPECT_EQ(hit(5, 5), sprite);
    canvas.surface.SetSpriteFlags(sprite, 0);
    EXPECT_EQ(hit(5, 5), 0);
}

TEST_F(PictorATLMouse, TheMouseLooksThroughAnOverlay) {
    const std::int32_t sprite = reporting({0, 0, 10, 10});
    const std::int32_t overlay = canvas.sprite(red, {0, 0, 10, 10}, sprite);
    canvas.surface.SetSpriteFlags(overlay, spriteFlags::Overlay);
    EXPECT_EQ(hit(5, 5), sprite);
    EXPECT_TRUE(canvas.surface.IsPointerOver(overlay));
}

TEST_F(PictorATLMouse, TheUppermostOfTwoIsNamed) {
    const std::int32_t old = reporting({0, 0, 10, 10});
    const std::int32_t young = reporting({5, 0, 10, 10});
    EXPECT_EQ(hit(7, 5), young);
    canvas.surface.SetLevel(old, 1);
    EXPECT_EQ(hit(7, 5), old);
    EXPECT_EQ(hit(12, 5), young);
    canvas.surface.DeleteSprite(old);
    EXPECT_EQ(hit(7, 5), young);
}

TEST_F(PictorATLMouse, ASpriteIsHitWithinItsSizeWhateverItShows) {
    const std::int32_t sprite = canvas.surface.CreateSprite(0);
    canvas.surface.SetSpriteFlags(sprite, spriteFlags::ReportsMouse);
    canvas.surface.PlaceSprite(sprite, 10, 10);
    EXPECT_EQ(hit(10, 10), 0);
    canvas.surface.SetSpriteSize(sprite, 2, 2);
    EXPECT_EQ(hit(10, 10), sprite);
    EXPECT_EQ(hit(11, 11), sprite);
    EXPECT_EQ(hit(12, 11), 0);
    EXPECT_EQ(hit(9, 10), 0);
}

TEST_F(PictorATLMouse, WhatIsHiddenIsNotHit) {
    const std::int32_t group = canvas.surface.NewGroup();
    const std::int32_t sprite = reporting({0, 0, 10, 10}, group);
    EXPECT_EQ(hit(5, 5), sprite);
    EXPECT_TRUE(canvas.surface.IsPointerOver(sprite));
    for (const std::int32_t hidden : {group, sprite}) {
        canvas.surface.SetSpriteState(hidden, spriteState::Hidden);
        EXPECT_FALSE(canvas.surface.IsPointerOver(sprite));
        EXPECT_EQ(hit(5, 5), 0);
        canvas.surface.SetSpriteState(hidden, spriteState::Shown);
        EXPECT_TRUE(canvas.surface.IsPointerOver(sprite));
    }
}

TEST_F(PictorATLMouse, AGroupWithASizeShieldsWhatLiesBeneathIt) {
    const std::int32_t sprite = reporting({0, 0, 20, 10});
    const std::int32_t group = canvas.surface.NewGroup();
    canvas.surface.AddToGroup(group, sprite);
    canvas.surface.PlaceSprite(group, 10, 0);
    EXPECT_EQ(hit(12, 5), sprite);
    canvas.surface.SetSpriteSize(group, 5, 10);
    EXPECT_EQ(hit(9, 5), sprite);
    EXPECT_FALSE(canvas.surface.IsPointerOver(group));
    EXPECT_EQ(hit(10, 5), 0);
    EXPECT_TRUE(canvas.surface.IsPointerOver(group));
    EXPECT_TRUE(canvas.surface.IsPointerOver(sprite));
    EXPECT_EQ(hit(15, 5), sprite);
    const std::int32_t above = reporting({0, 0, 2, 2}, group);
    EXPECT_EQ(hit(11, 1), above);
}

TEST_F(PictorATLMouse, ThePointerIsWhereTheLastEventLeftIt) {
    const std::int32_t sprite = reporting({0, 0, 10, 10});
    EXPECT_FALSE(canvas.surface.IsPointerOver(sprite));
    canvas.surface.MouseDown(MouseButton::Left, 5, 5);
    EXPECT_TRUE(canvas.surface.IsPointerOver(sprite));
    canvas.surface.PlaceSprite(sprite, 20, 20);
    EXPECT_FALSE(canvas.surface.IsPointerOver(sprite));
    canvas.surface.MouseUp(MouseButton::Left, 29, 29);
    EXPECT_TRUE(canvas.surface.IsPointerOver(sprite));
}

TEST_F(PictorATLMouse, ThePlaceOfAHitIsTheBoardsAtEveryScale) {
    const std::int32_t sprite = reporting({10, 10, 5, 5});
    canvas.surface.Restart(2);
    EXPECT_EQ(hit(14, 14), sprite);
    EXPECT_EQ(hit(20, 20), 0);
}

} // namespace
} // namespace veltrix::test
