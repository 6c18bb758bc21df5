#include "tests/board/Canvas.h"
#include "tests/support/NumberRange.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace veltrix::test {
namespace {

// Starting

TEST(PictorATL, DoesNotStartWithASizeOrScaleThatMakesNoFrame) {
    NullLog log;
    PictorATL surface;
    const auto starts = [&](std::int32_t width, std::int32_t height, double scale) {
        return surface.Start("here", width, height, scale, log);
    };
    EXPECT_FALSE(starts(0, 30, 1));
    EXPECT_FALSE(starts(40, 0, 1));
    EXPECT_FALSE(starts(-40, 30, 1));
    EXPECT_FALSE(starts(40, least, 1));
    EXPECT_FALSE(starts(40, 30, 0));
    EXPECT_FALSE(starts(40, 30, -1));
    EXPECT_FALSE(starts(40, 30, std::nan("")));
    EXPECT_FALSE(starts(40, 30, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(starts(most, 30, 1));
    EXPECT_FALSE(starts(16384, 30, 1.5));
    EXPECT_TRUE(starts(40, 30, 1));
}

TEST(PictorATL, TheFrameReachesToTheLastPixelThatTheBoardTouches) {
    const auto check = [](double scale, std::int32_t width, std::int32_t height) {
        const Canvas canvas(scale);
        EXPECT_EQ(canvas.surface.Frame().width, width) << scale;
        EXPECT_EQ(canvas.surface.Frame().height, height) << scale;
        EXPECT_EQ(canvas.surface.Scale(), scale);
    };
    check(1, 40, 30);
    check(1.25, 50, 38);
    check(1.5, 60, 45);
    check(2, 80, 60);
    check(0.33, 14, 10);
}

TEST(PictorATL, WhereNothingLiesTheFrameIsBlack) {
    Canvas canvas;
    canvas.surface.Refresh();
    for (const std::uint32_t pixel : canvas.surface.Frame().pixels)
        ASSERT_EQ(pixel, nothing);
}

TEST(PictorATL, OfTwoSpritesTheOneOfTheHigherLevelIsSeenAndElseTheYoungerOne) {
    Canvas canvas;
    const std::int32_t old = canvas.sprite(red, {0, 0, 10, 10});
    canvas.sprite(green, {5, 5, 10, 10});
    EXPECT_EQ(canvas.shown(4, 4), red);
    EXPECT_EQ(canvas.pixel(5, 5), green);
    EXPECT_EQ(canvas.pixel(14, 14), green);
    EXPECT_EQ(canvas.pixel(15, 14), nothing);
    canvas.surface.SetLevel(old, 1);
    EXPECT_EQ(canvas.shown(5, 5), red);
    EXPECT_EQ(canvas.pixel(14, 14), green);
}

// Groups and parents

TEST(PictorATL, WhatIsAttachedIsPlacedFromItsParentAndMovesWithIt) {
    Canvas canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    const std::int32_t parent = canvas.sprite(red, {1, 1, 5, 5}, group);
    const std::int32_t child = canvas.sprite(green, {2, 3, 1, 1}, parent);
    canvas.surface.PlaceSprite(group, 10, 10);
    EXPECT_EQ(canvas.shown(11, 11), red);
    EXPECT_EQ(canvas.pixel(13, 14), green);
    canvas.surface.PlaceSprite(parent, 20, 0);
    EXPECT_EQ(canvas.shown(32, 13), green);
    EXPECT_EQ(canvas.pixel(11, 11), nothing);
    EXPECT_EQ(canvas.surface.GetSpriteX(child), 2);
}

TEST(PictorATL, WhatIsAttachedIsHiddenWithItsParent) {
    Canvas canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    const std::int32_t parent = canvas.sprite(red, {0, 0, 5, 5}, group);
    const std::int32_t child = canvas.sprite(green, {0, 0, 1, 1}, parent);
    canvas.surface.SetSpriteState(group, spriteState::Hidden);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    EXPECT_EQ(canvas.pixel(4, 4), nothing);
    EXPECT_EQ(canvas.surface.GetSpriteState(child), spriteState::Shown);
    canvas.surface.SetSpriteState(group, spriteState::Shown);
    canvas.surface.SetSpriteState(parent, spriteState::Leaving);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    canvas.surface.SetSpriteState(parent, spriteState::Shown);
    EXPECT_EQ(canvas.shown(0, 0), green);
    EXPECT_EQ(canvas.pixel(4, 4), red);
}

TEST(PictorATL, WhatIsAttachedIsDeletedWithItsParent) {
    Canvas canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    const std::int32_t parent = canvas.sprite(red, {0, 0, 5, 5}, group);
    canvas.sprite(green, {0, 0, 1, 1}, parent);
    canvas.sprite(blue, {10, 10, 1, 1});
    EXPECT_EQ(canvas.surface.CountAll(), 4);
    canvas.surface.DeleteSprite(group);
    EXPECT_EQ(canvas.surface.CountAll(), 1);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    EXPECT_EQ(canvas.pixel(10, 10), blue);
}

TEST(PictorATL, AClearedGroupLosesEverythingAttachedButStays) {
    Canvas canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    const std::int32_t parent = canvas.sprite(red, {0, 0, 5, 5}, group);
    canvas.sprite(green, {0, 0, 1, 1}, parent);
    canvas.sprite(blue, {8, 0, 1, 1}, group);
    EXPECT_EQ(canvas.surface.CountInGroup(group), 2);
    canvas.surface.ClearGroup(group);
    EXPECT_EQ(canvas.surface.CountInGroup(group), 0);
    EXPECT_EQ(canvas.surface.CountAll(), 1);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    canvas.sprite(blue, {0, 0, 1, 1}, group);
    EXPECT_EQ(canvas.shown(0, 0), blue);
}

TEST(PictorATL, ASpriteChangesItsParentWithEverythingAttachedToIt) {
    Canvas canvas;
    const std::int32_t left = canvas.surface.NewGroup();
    const std::int32_t right = canvas.surface.NewGroup();
    canvas.surface.PlaceSprite(right, 20, 0);
    const std::int32_t sprite = canvas.sprite(red, {1, 1, 3, 3}, left);
    canvas.sprite(green, {0, 0, 1, 1}, sprite);
    canvas.surface.Refresh();
    canvas.surface.AddToGroup(sprite, right);
    EXPECT_EQ(canvas.shown(1, 1), nothing);
    EXPECT_EQ(canvas.pixel(21, 1), green);
    EXPECT_EQ(canvas.pixel(23, 3), red);
    EXPECT_EQ(canvas.surface.CountInGroup(left), 0);
    canvas.surface.ClearGroup(left);
    EXPECT_EQ(canvas.shown(23, 3), red);
}

// Masks and bitmaps

TEST(PictorATL, AMaskLetsWhiteThroughHidesBlackAndMixesGreys) {
    Canvas canvas;
    canvas.sprite(0xFF6496C8, {0, 0, 4, 1});                           // 100, 150, 200
    const std::int32_t above = canvas.bitmap(plain(4, 1, 0xFFC80064)); // 200, 0, 100
    const std::int32_t mask = canvas.bitmap(rowOf({white, 0xFF000000, 0xFF404040, 0xFFC0C0C0}));
    canvas.surface.CreateMaskedSprite(above, mask);
    EXPECT_EQ(canvas.shown(0, 0), 0xFFC80064);
    EXPECT_EQ(canvas.pixel(1, 0), 0xFF6496C8);
    // 64 of 255 parts of the upper and 191 of the lower, then 192 and 63.
    EXPECT_EQ(canvas.pixel(2, 0), 0xFF7D70AFU);
    EXPECT_EQ(canvas.pixel(3, 0), 0xFFAF257DU);
}

TEST(PictorATL, ATransparentPictureMixesWithWhatLiesBelow) {
    Canvas canvas;
    canvas.sprite(0xFF6496C8, {0, 0, 3, 1});
    canvas.surface.CreateSprite(canvas.bitmap(rowOf({0x40C80064, 0x00C80064, 0xFFC80064})));
    EXPECT_EQ(canvas.shown(0, 0), 0xFF7D70AFU);
    EXPECT_EQ(canvas.pixel(1, 0), 0xFF6496C8);
    EXPECT_EQ(canvas.pixel(2, 0), 0xFFC80064);
}

TEST(PictorATL, AMaskAndATransparentPictureWorkTogether) {
    Canvas canvas;
    const std::int32_t half = canvas.bitmap(plain(1, 1, 0x80FFFFFF));
    const std::int32_t mask = canvas.bitmap(plain(1, 1, 0xFF808080));
    canvas.surface.CreateMaskedSprite(half, mask);
    EXPECT_EQ(canvas.shown(0, 0), 0xFF404040U);
}

TEST(PictorATL, WhatTheMaskDoesNotReachIsNotDrawn) {
    Canvas canvas;
    const std::int32_t picture = canvas.bitmap(plain(7, 4, red));
    const std::int32_t mask = canvas.bitmap(plain(5, 3, white));
    canvas.surface.CreateMaskedSprite(picture, mask);
    EXPECT_EQ(canvas.shown(4, 2), red);
    EXPECT_EQ(canvas.pixel(5, 2), nothing);
    EXPECT_EQ(canvas.pixel(4, 3), nothing);
}

TEST(PictorATL, TheSourceChoosesAFrameOfAStrip) {
    Canvas canvas;
    Picture frames = plain(12, 4, red);
    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 4; x < 12; ++x)
            frames.Row(y)[x] = x < 8 ? green : blue;
    const std::int32_t sprite = canvas.surface.CreateSprite(canvas.bitmap(frames));
    canvas.surface.SetSpriteSize(sprite, 4, 4);
    EXPECT_EQ(canvas.shown(3, 3), red);
    EXPECT_EQ(canvas.pixel(4, 3), nothing);
    canvas.surface.SetSpriteSource(sprite, 8, 0);
    EXPECT_EQ(canvas.shown(0, 0), blue);
    canvas.surface.SetSpriteSource(sprite, 6, 2);
    EXPECT_EQ(canvas.shown(0, 0), green);
    EXPECT_EQ(canvas.pixel(2, 1), blue);
    EXPECT_EQ(canvas.pixel(0, 2), nothing);
}

TEST(PictorATL, WhatLiesOutsideTheBitmapIsNotDrawn) {
    Canvas canvas;
    const std::int32_t sprite = canvas.sprite(red, {10, 10, 5, 3});
    canvas.surface.SetSpriteSize(sprite, 20, 10);
    EXPECT_EQ(canvas.shown(14, 12), red);
    EXPECT_EQ(canvas.pixel(15, 12), nothing);
    EXPECT_EQ(canvas.pixel(14, 13), nothing);
    // What comes before the bitmap takes its place too.
    canvas.surface.SetSpriteSource(sprite, -2, -1);
    EXPECT_EQ(canvas.shown(11, 11), nothing);
    EXPECT_EQ(canvas.pixel(12, 11), red);
    EXPECT_EQ(canvas.pixel(16, 13), red);
    EXPECT_EQ(canvas.pixel(17, 13), nothing);
    canvas.surface.SetSpriteSource(sprite, 5, 0);
    EXPECT_EQ(canvas.shown(10, 10), nothing);
    canvas.surface.SetSpriteSource(sprite, -20, 0);
    EXPECT_EQ(canvas.shown(29, 10), nothing);
}

TEST(PictorATL, ASpriteWithoutASizeIsNotDrawn) {
    Canvas canvas;
    const std::int32_t sprite = canvas.sprite(red, {0, 0, 5, 5});
    for (const Rect& size :
         {Rect{0, 0, 0, 5}, Rect{0, 0, 5, 0}, Rect{0, 0, -5, -5}, Rect{0, 0, least, most}}) {
        canvas.surface.SetSpriteSize(sprite, size.width, size.height);
        EXPECT_EQ(canvas.shown(0, 0), nothing) << size.width;
    }
    canvas.surface.SetSpriteSize(sprite, 1, 1);
    EXPECT_EQ(canvas.shown(0, 0), red);
    EXPECT_EQ(canvas.pixel(1, 1), nothing);
}

TEST(PictorATL, ASpriteOfANumberThatNoBitmapHasIsNotDrawn) {
    Canvas canvas;
    const std::int32_t picture = canvas.bitmap(plain(5, 5, red));
    for (const std::int32_t none : {0, picture + 1, -1, least, most}) {
        const std::int32_t sprite = canvas.surface.CreateSprite(none);
        EXPECT_NE(sprite, 0);
        canvas.surface.SetSpriteSize(sprite, 5, 5);
        EXPECT_EQ(canvas.shown(0, 0), nothing) << none;
        if (none != 0) {
            canvas.surface.CreateMaskedSprite(picture, none);
            EXPECT_EQ(canvas.shown(0, 0), nothing) << none;
        }
    }
}

TEST(PictorATL, OnlyTheShownStateIsDrawn) {
    Canvas canvas;
    const std::int32_t sprite = canvas.sprite(red, {0, 0, 5, 5});
    for (const std::int32_t state : {spriteState::Leaving, 2, spriteState::Hidden, -1}) {
        canvas.surface.SetSpriteState(sprite, state);
        EXPECT_EQ(canvas.surface.GetSpriteState(sprite), state);
        EXPECT_EQ(canvas.shown(0, 0), nothing) << state;
        canvas.surface.SetSpriteState(sprite, spriteState::Shown);
        EXPECT_EQ(canvas.shown(0, 0), red);
    }
}

// What a caller may get wrong

TEST(PictorATL, ANumberThatBelongsToNothingIsIgnoredByEveryOperation) {
    Canvas canvas;
    const std::int32_t gone = canvas.sprite(green, {0, 0, 5, 5});
    canvas.surface.DeleteSprite(gone);
    const std::int32_t successor = canvas.sprite(red, {3, 3, 5, 5});
    const std::int32_t child = canvas.sprite(blue, {0, 0, 1, 1}, successor);
    ASSERT_NE(gone, successor);
    canvas.surface.MouseMove(3, 3);
    for (const std::int32_t none : {gone, 0, -1, least, most, successor + 4096}) {
        SCOPED_TRACE(none);
        canvas.surface.PlaceSprite(none, 20, 20);
        canvas.surface.SetSpriteSize(none, 1, 1);
        canvas.surface.SetSpriteSource(none, 4, 4);
        canvas.surface.SetSpriteFlags(none, spriteFlags::ReportsMouse);
        canvas.surface.SetLevel(none, 9);
        canvas.surface.SetSpriteState(none, spriteState::Hidden);
        canvas.surface.AddToGroup(none, successor);
        canvas.surface.AddToGroup(successor, none);
        canvas.surface.ClearGroup(none);
        canvas.surface.DeleteSprite(none);
        canvas.surface.RedrawSprite(none);
        EXPECT_EQ(canvas.surface.GetSpriteState(none), spriteState::Hidden);
        EXPECT_EQ(canvas.surface.GetSpriteX(none), 0);
        EXPECT_FALSE(canvas.surface.IsPointerOver(none));
        EXPECT_EQ(canvas.surface.CountInGroup(none), 0);
    }
    EXPECT_EQ(canvas.shown(3, 3), blue);
    EXPECT_EQ(canvas.pixel(7, 7), red);
    EXPECT_EQ(canvas.surface.CountInGroup(successor), 1);
    EXPECT_EQ(canvas.surface.GetSpriteState(child), spriteState::Shown);
    EXPECT_EQ(canvas.surface.CountAll(), 2);
}

TEST(PictorATL, PlacesAndSizesAtTheEndOfTheRangeDoNoHarm) {
    for (const double scale : {1.0, 3.0}) {
        Canvas canvas(scale);
        const std::int32_t outer = canvas.surface.NewGroup();
        const std::int32_t inner = canvas.surface.NewGroup();
        canvas.surface.AddToGroup(inner, outer);
        const std::int32_t masked = canvas.surface.CreateMaskedSprite(
            canvas.bitmap(plain(5, 5, red)), canvas.bitmap(plain(4, 4, white)));
        canvas.surface.AddToGroup(masked, inner);
        canvas.surface.SetSpriteFlags(masked, spriteFlags::ReportsMouse);
        for (const std::int32_t x : {least, -100, most})
            for (const std::int32_t source : {least, -1, most})
                for (const std::int32_t size : {least, 5, most}) {
                    canvas.surface.PlaceSprite(outer, x, -x / 2);
                    canvas.surface.PlaceSprite(inner, x, x);
                    canvas.surface.PlaceSprite(masked, x, x);
                    canvas.surface.SetSpriteSource(masked, source, source);
                    canvas.surface.SetSpriteSize(masked, size, size);
                    canvas.surface.SetSpriteSize(outer, size, size);
                    canvas.surface.MouseMove(x, source);
                    EXPECT_EQ(canvas.shown(0, 0), nothing);
                }
        // Two places far away may still add up to one on the board.
        canvas.surface.PlaceSprite(outer, most, most);
        canvas.surface.PlaceSprite(inner, -most, -most);
        canvas.surface.PlaceSprite(masked, 0, 0);
        canvas.surface.SetSpriteSource(masked, 0, 0);
        canvas.surface.SetSpriteSize(masked, most, most);
        EXPECT_EQ(canvas.shown(0, 0), red);
        EXPECT_TRUE([&] {
            canvas.surface.MouseMove(0, 0);
            return canvas.surface.IsPointerOver(masked);
        }());
    }
}

} // namespace
} // namespace veltrix::test
