#include "tests/board/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace veltrix::test {
namespace {

/// A canvas that tells what each refresh paints.
struct Painted : Canvas {
    using Canvas::Canvas;

    /// A new sprite of a bitmap that is there, as one that was deleted is made again.
    std::int32_t again(std::int32_t bitmap, std::int32_t x, std::int32_t y) {
        const std::int32_t sprite = surface.CreateSprite(bitmap);
        surface.PlaceSprite(sprite, x, y);
        return sprite;
    }

    /// What a refresh paints now.
    const std::vector<Rect>& painted() {
        surface.Refresh();
        return surface.Changed();
    }
};

using Rects = std::vector<Rect>;
using testing::UnorderedElementsAre;

TEST(FrameComposer, TheFirstRefreshAndOneAtAnotherScalePaintAll) {
    Painted canvas;
    EXPECT_EQ(canvas.painted(), Rects({{0, 0, 40, 30}}));
    canvas.surface.Restart(1.25);
    EXPECT_EQ(canvas.painted(), Rects({{0, 0, 50, 38}}));
}

TEST(FrameComposer, WhereNothingChangedNothingIsPainted) {
    Painted canvas;
    const std::int32_t sprite = canvas.sprite(red, {3, 4, 5, 6});
    canvas.surface.Refresh();
    EXPECT_EQ(canvas.painted(), Rects());
    canvas.surface.RedrawSprite(sprite);
    canvas.surface.PlaceSprite(sprite, 3, 4);
    canvas.surface.SetSpriteSize(sprite, 5, 6);
    canvas.surface.SetSpriteSource(sprite, 0, 0);
    canvas.surface.SetSpriteFlags(sprite, spriteFlags::ReportsMouse);
    canvas.surface.SetLevel(sprite, 0);
    canvas.surface.SetSpriteState(sprite, spriteState::Shown);
    EXPECT_EQ(canvas.painted(), Rects());
}

TEST(FrameComposer, WhatChangesBackBeforeARefreshIsNotPainted) {
    Painted canvas;
    const std::int32_t sprite = canvas.sprite(red, {3, 4, 5, 6});
    canvas.surface.Refresh();
    canvas.surface.PlaceSprite(sprite, 20, 20);
    canvas.surface.SetSpriteState(sprite, spriteState::Hidden);
    canvas.surface.PlaceSprite(sprite, 3, 4);
    canvas.surface.SetSpriteState(sprite, spriteState::Shown);
    EXPECT_EQ(canvas.painted(), Rects());
}

TEST(FrameComposer, WhatIsNotSeenIsNotPainted) {
    Painted canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    canvas.surface.SetSpriteState(group, spriteState::Hidden);
    canvas.surface.Refresh();
    const std::int32_t hidden = canvas.sprite(red, {3, 4, 5, 6}, group);
    canvas.sprite(red, {-5, 0, 5, 5});
    canvas.sprite(red, {40, 0, 5, 5});
    canvas.surface.CreateSprite(0);
    EXPECT_EQ(canvas.painted(), Rects());
    canvas.surface.PlaceSprite(hidden, 10, 10);
    canvas.surface.DeleteSprite(hidden);
    EXPECT_EQ(canvas.painted(), Rects());
}

TEST(FrameComposer, ASpriteThatMovesIsPaintedAtBothPlaces) {
    Painted canvas;
    const std::int32_t sprite = canvas.sprite(red, {3, 4, 5, 6});
    canvas.surface.Refresh();
    canvas.surface.PlaceSprite(sprite, 20, 10);
    EXPECT_THAT(canvas.painted(), UnorderedElementsAre(Rect{3, 4, 5, 6}, Rect{20, 10, 5, 6}));
    EXPECT_EQ(canvas.pixel(3, 4), nothing);
    EXPECT_EQ(canvas.pixel(24, 15), red);
}

TEST(FrameComposer, PlacesThatOverlapArePaintedAsOne) {
    Painted canvas;
    const std::int32_t sprite = canvas.sprite(red, {3, 4, 5, 6});
    canvas.surface.Refresh();
    canvas.surface.PlaceSprite(sprite, 5, 5);
    EXPECT_EQ(canvas.painted(), Rects({{3, 4, 7, 7}}));
}

TEST(FrameComposer, OnlyThePartOnTheBoardIsPainted) {
    Painted canvas(2);
    const std::int32_t sprite = canvas.sprite(red, {3, 4, 5, 6});
    canvas.surface.Refresh();
    canvas.surface.PlaceSprite(sprite, 38, -2);
    EXPECT_THAT(canvas.painted(), UnorderedElementsAre(Rect{6, 8, 10, 12}, Rect{76, 0, 4, 8}));
}

TEST(FrameComposer, ASpriteMadeAgainAlikeIsNotPainted) {
    Painted canvas;
    canvas.sprite(blue, {0, 0, 40, 30});
    const std::int32_t bitmap = canvas.bitmap(plain(5, 5, red));
    std::int32_t sprite = canvas.again(bitmap, 10, 10);
    canvas.surface.Refresh();
    const std::vector<std::uint32_t> before = canvas.surface.Frame().pixels;
    for (int i = 0; i < 3; ++i) {
        canvas.surface.SetSpriteState(sprite, spriteState::Leaving);
        canvas.surface.RedrawSprite(sprite);
        canvas.surface.DeleteSprite(sprite);
        sprite = canvas.again(bitmap, 10, 10);
        EXPECT_EQ(canvas.painted(), Rects());
    }
    EXPECT_EQ(canvas.surface.Frame().pixels, before);
    canvas.surface.DeleteSprite(sprite);
    EXPECT_EQ(canvas.painted(), Rects({{10, 10, 5, 5}}));
    EXPECT_EQ(canvas.pixel(10, 10), blue);
}

TEST(FrameComposer, ASpriteMadeAgainUnlikeIsPainted) {
    Painted canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(5, 5, red));
    const std::int32_t other = canvas.bitmap(plain(5, 5, green));
    std::int32_t sprite = canvas.again(bitmap, 10, 10);
    canvas.surface.Refresh();
    canvas.surface.DeleteSprite(sprite);
    sprite = canvas.again(other, 10, 10);
    EXPECT_EQ(canvas.painted(), Rects({{10, 10, 5, 5}}));
    EXPECT_EQ(canvas.pixel(10, 10), green);
    canvas.surface.DeleteSprite(sprite);
    sprite = canvas.again(other, 10, 10);
    canvas.surface.SetSpriteSize(sprite, 5, 4);
    EXPECT_EQ(canvas.painted(), Rects({{10, 10, 5, 5}}));
    EXPECT_EQ(canvas.pixel(10, 14), nothing);
}

TEST(FrameComposer, TwoMadeAgainInTheSameOrderAreNotPaintedAndInTheOtherOrderAre) {
    Painted canvas;
    const std::int32_t redBitmap = canvas.bitmap(plain(8, 8, red));
    const std::int32_t greenBitmap = canvas.bitmap(plain(8, 8, green));
    std::int32_t lower = canvas.again(redBitmap, 0, 0);
    std::int32_t upper = canvas.again(greenBitmap, 4, 4);
    canvas.surface.Refresh();
    canvas.surface.DeleteSprite(upper);
    canvas.surface.DeleteSprite(lower);
    lower = canvas.again(redBitmap, 0, 0);
    upper = canvas.again(greenBitmap, 4, 4);
    EXPECT_EQ(canvas.painted(), Rects());
    canvas.surface.DeleteSprite(lower);
    canvas.surface.DeleteSprite(upper);
    canvas.again(greenBitmap, 4, 4);
    canvas.again(redBitmap, 0, 0);
    EXPECT_FALSE(canvas.painted().empty());
    EXPECT_EQ(canvas.pixel(5, 5), red);
    EXPECT_EQ(canvas.pixel(11, 11), green);
}

TEST(FrameComposer, ASpriteMadeAgainAboveAnotherOneIsPainted) {
    Painted canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(8, 8, red));
    const std::int32_t sprite = canvas.again(bitmap, 0, 0);
    canvas.sprite(green, {4, 4, 8, 8});
    canvas.surface.Refresh();
    EXPECT_EQ(canvas.pixel(5, 5), green);
    canvas.surface.DeleteSprite(sprite);
    canvas.again(bitmap, 0, 0);
    EXPECT_EQ(canvas.painted(), Rects({{0, 0, 8, 8}}));
    EXPECT_EQ(canvas.pixel(5, 5), red);
}

TEST(FrameComposer, AGroupMadeAgainAboveAnotherOneIsPainted) {
    Painted canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(8, 8, red));
    const auto groupAt = [&] {
        const std::int32_t group = canvas.surface.NewGroup();
        canvas.surface.AddToGroup(canvas.again(bitmap, 0, 0), group);
        return group;
    };
    const std::int32_t group = groupAt();
    canvas.sprite(green, {4, 4, 8, 8}, canvas.surface.NewGroup());
    canvas.surface.Refresh();
    EXPECT_EQ(canvas.pixel(5, 5), green);
    canvas.surface.DeleteSprite(group);
    groupAt();
    EXPECT_EQ(canvas.shown(5, 5), red);
}

TEST(FrameComposer, AClearedGroupThatIsFilledAlikeIsPaintedWhereItsLevelChanged) {
    Painted canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(8, 8, red));
    const std::int32_t group = canvas.surface.NewGroup();
    const auto fill = [&] {
        canvas.surface.ClearGroup(group);
        canvas.surface.AddToGroup(canvas.again(bitmap, 0, 0), group);
    };
    fill();
    canvas.sprite(green, {4, 4, 8, 8});
    canvas.surface.Refresh();
    fill();
    EXPECT_EQ(canvas.painted(), Rects());
    canvas.surface.ClearGroup(group);
    canvas.surface.SetLevel(group, 1);
    fill();
    EXPECT_EQ(canvas.shown(5, 5), red);
}

TEST(FrameComposer, WhatIsAttachedToAMovedGroupIsPaintedWhereItsOrderChanged) {
    Painted canvas;
    const std::int32_t high = canvas.surface.NewGroup();
    canvas.surface.SetLevel(high, 1);
    const std::int32_t group = canvas.surface.NewGroup();
    canvas.sprite(red, {0, 0, 8, 8}, group);
    canvas.sprite(green, {4, 4, 8, 8});
    canvas.surface.Refresh();
    canvas.surface.AddToGroup(group, high);
    EXPECT_EQ(canvas.shown(5, 5), red);
}

TEST(FrameComposer, APixelThatIsSetIsPaintedWhereverItIsShown) {
    Painted canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(4, 4, red));
    canvas.again(bitmap, 0, 0);
    const std::int32_t sprite = canvas.again(bitmap, 20, 0);
    canvas.again(bitmap, 0, 20);
    canvas.surface.Refresh();
    canvas.surface.DeleteSprite(sprite);
    canvas.surface.SetBitmapPixel(bitmap, 1, 1, 0x00FF00);
    canvas.again(bitmap, 20, 0);
    EXPECT_EQ(canvas.painted().size(), 3U);
    EXPECT_EQ(canvas.pixel(1, 1), green);
    EXPECT_EQ(canvas.pixel(21, 1), green);
    EXPECT_EQ(canvas.pixel(1, 21), green);
}

TEST(FrameComposer, WhatWaitedToBePaintedFitsTheFrameOfASmallerScale) {
    Painted canvas(3);
    const std::int32_t bitmap = canvas.bitmap(plain(4, 4, red));
    const std::int32_t sprite = canvas.again(bitmap, 36, 26);
    canvas.surface.Refresh();
    canvas.surface.SetBitmapPixel(bitmap, 1, 1, 0x00FF00);
    canvas.surface.SetLevel(sprite, 1);
    canvas.surface.Restart(1);
    EXPECT_EQ(canvas.painted(), Rects({{0, 0, 40, 30}}));
    EXPECT_EQ(canvas.pixel(37, 27), green);
}

TEST(FrameComposer, OnlyARefreshTouchesTheFrame) {
    Painted canvas;
    const std::int32_t sprite = canvas.sprite(red, {0, 0, 5, 5});
    canvas.surface.Refresh();
    canvas.surface.DeleteSprite(sprite);
    canvas.sprite(green, {10, 10, 5, 5});
    EXPECT_EQ(canvas.pixel(0, 0), red);
    EXPECT_EQ(canvas.pixel(10, 10), nothing);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    EXPECT_EQ(canvas.pixel(10, 10), green);
}

} // namespace
} // namespace veltrix::test
