#include "tests/board/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

// Missing pictures

TEST(BitmapStore, AMissingPictureDrawsNothingAndIsLoggedOnce) {
    Canvas canvas;
    const std::int32_t first = canvas.surface.LoadBitmap("\\map\\weg.bmp");
    const std::int32_t second = canvas.surface.LoadBitmap("\\map\\weg.bmp");
    EXPECT_NE(first, 0);
    EXPECT_NE(first, second);
    const std::int32_t sprite = canvas.surface.CreateSprite(second);
    canvas.surface.SetSpriteSize(sprite, 5, 5);
    canvas.surface.SetSpriteSource(sprite, 1, 1);
    canvas.surface.SetBitmapPixel(first, 0, 0, 0xFFFFFF);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    canvas.surface.Restart(2);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    ASSERT_EQ(canvas.log.Lines.size(), 1U);
    EXPECT_THAT(canvas.log.Lines[0], testing::HasSubstr("weg.bmp"));
}

TEST(BitmapStore, WithoutAFolderNoPictureIsMissed) {
    KeptLog log;
    PictorATL surface;
    ASSERT_TRUE(surface.Start({}, 40, 30, 1, log));
    const std::int32_t bitmap = surface.LoadBitmap("\\map\\weg.bmp");
    surface.SetSpriteSize(surface.CreateMaskedSprite(bitmap, bitmap), 5, 5);
    surface.Restart(2);
    surface.Refresh();
    EXPECT_EQ(surface.Frame().Row(0)[0], nothing);
    EXPECT_EQ(log.Lines, std::vector<std::string>());
}

TEST(BitmapStore, ABrokenPictureDrawsNothingAndIsLoggedOnce) {
    Canvas canvas;
    std::ofstream(canvas.folder.Path() / "stuk.bmp") << "no picture";
    const std::int32_t sprite = canvas.surface.CreateMaskedSprite(
        canvas.bitmap(plain(5, 5, red)), canvas.surface.LoadBitmap("\\stuk.bmp"));
    canvas.surface.LoadBitmap("\\stuk.bmp");
    EXPECT_NE(sprite, 0);
    EXPECT_EQ(canvas.shown(0, 0), nothing);
    ASSERT_EQ(canvas.log.Lines.size(), 1U);
    EXPECT_THAT(canvas.log.Lines[0], testing::HasSubstr("stuk.bmp"));
}

TEST(BitmapStore, ALargerPictureWithoutOneWholeBoardPixelCountsAsBroken) {
    for (const Picture& small :
         {plain(1, 1, red), plain(1, 4, red), plain(4, 1, red), plain(3, 1, red)}) {
        Canvas canvas(2);
        writePicture(canvas.folder.Path(), "\\klein@2x.bmp", small);
        const std::int32_t sprite =
            canvas.surface.CreateSprite(canvas.surface.LoadBitmap("\\klein.bmp"));
        canvas.surface.SetSpriteSize(sprite, 5, 5);
        EXPECT_EQ(canvas.shown(0, 0), nothing) << small.width;
        EXPECT_EQ(canvas.log.Lines.size(), 1U);
    }
}

// Scales

/// Which of the three pictures of one name a scale shows.
std::uint32_t chosenAt(double scale, std::initializer_list<int> there) {
    Canvas canvas(scale);
    for (const int pixels : there) {
        const std::string name =
            pixels == 1 ? "\\x.bmp" : "\\x@" + std::to_string(pixels) + "x.bmp";
        const std::uint32_t colour = pixels == 1 ? red : pixels == 2 ? green : blue;
        writePicture(canvas.folder.Path(), name, plain(5 * pixels, 4 * pixels, colour));
    }
    canvas.surface.CreateSprite(canvas.surface.LoadBitmap("\\x.bmp"));
    EXPECT_TRUE(canvas.log.Lines.empty());
    return canvas.shown(0, 0);
}

TEST(BitmapStore, TheNearestLargerPictureIsTaken) {
    EXPECT_EQ(chosenAt(1, {1, 2, 3}), red);
    EXPECT_EQ(chosenAt(1.25, {1, 2, 3}), green);
    EXPECT_EQ(chosenAt(1.5, {1, 2, 3}), green);
    EXPECT_EQ(chosenAt(2, {1, 2, 3}), green);
    EXPECT_EQ(chosenAt(2.5, {1, 2, 3}), blue);
    EXPECT_EQ(chosenAt(3, {1, 2, 3}), blue);
    EXPECT_EQ(chosenAt(4, {1, 2, 3}), blue);
}

TEST(BitmapStore, WhereTheNearestLargerPictureIsMissingAnotherOneServes) {
    EXPECT_EQ(chosenAt(1, {2}), green);
    EXPECT_EQ(chosenAt(1, {3}), blue);
    EXPECT_EQ(chosenAt(2, {1, 3}), blue);
    EXPECT_EQ(chosenAt(2, {1}), red);
    EXPECT_EQ(chosenAt(3, {1, 2}), green);
}

TEST(BitmapStore, APictureIsAsLargeOnTheBoardAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        Canvas canvas(scale);
        canvas.sprite(red, {4, 8, 12, 4});
        canvas.sprite(green, {16, 8, 8, 4});
        canvas.surface.Refresh();
        const auto frame = [&](std::int32_t board) {
            return static_cast<std::int32_t>(board * scale);
        };
        EXPECT_EQ(canvas.pixel(frame(4), frame(8)), red) << scale;
        EXPECT_EQ(canvas.pixel(frame(4) - 1, frame(8)), nothing) << scale;
        EXPECT_EQ(canvas.pixel(frame(16) - 1, frame(12) - 1), red) << scale;
        EXPECT_EQ(canvas.pixel(frame(16), frame(8)), green) << scale;
        EXPECT_EQ(canvas.pixel(frame(24) - 1, frame(12) - 1), green) << scale;
        EXPECT_EQ(canvas.pixel(frame(24), frame(8)), nothing) << scale;
        EXPECT_EQ(canvas.pixel(frame(4), frame(12)), nothing) << scale;
    }
}

TEST(BitmapStore, APlaceBetweenTwoPixelsOfTheFrameIsRounded) {
    Canvas canvas(1.25);
    const std::int32_t sprite = canvas.sprite(red, {0, 0, 4, 3});
    const auto leftAt = [&](std::int32_t x) {
        canvas.surface.PlaceSprite(sprite, x, 0);
        canvas.surface.Refresh();
        std::int32_t left = 0;
        while (canvas.pixel(left, 0) != red)
            ++left;
        return left;
    };
    EXPECT_EQ(leftAt(1), 1);   // 1.25
    EXPECT_EQ(leftAt(2), 3);   // 2.5
    EXPECT_EQ(leftAt(3), 4);   // 3.75
    EXPECT_EQ(leftAt(4), 5);   // 5
    EXPECT_EQ(leftAt(10), 13); // 12.5
}

TEST(BitmapStore, TheFramesOfAStripKeepTheirEdgesAtEveryScale) {
    Picture frames = plain(15, 5, red);
    for (std::int32_t y = 0; y < 5; ++y)
        for (std::int32_t x = 5; x < 10; ++x)
            frames.Row(y)[x] = green;
    for (const double scale : {0.7, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        Canvas canvas(scale);
        const std::int32_t sprite = canvas.surface.CreateSprite(canvas.bitmap(frames));
        canvas.surface.SetSpriteSize(sprite, 5, 5);
        canvas.surface.SetSpriteSource(sprite, 5, 0);
        canvas.surface.Refresh();
        int pixels = 0;
        for (const std::uint32_t pixel : canvas.surface.Frame().pixels) {
            EXPECT_TRUE(pixel == green || pixel == nothing) << scale;
            pixels += pixel == green ? 1 : 0;
        }
        const auto side = static_cast<int>(5 * scale + 0.5);
        EXPECT_EQ(pixels, side * side) << scale;
    }
}

TEST(BitmapStore, AnotherScaleChangesNothingButTheScale) {
    Canvas canvas;
    const std::int32_t group = canvas.surface.NewGroup();
    canvas.surface.PlaceSprite(group, 2, 2);
    const std::int32_t sprite = canvas.sprite(red, {2, 2, 4, 4}, group);
    const std::int32_t hidden = canvas.sprite(green, {20, 20, 4, 4});
    canvas.surface.SetSpriteState(hidden, spriteState::Hidden);
    canvas.surface.Refresh();
    canvas.surface.Restart(2);
    EXPECT_EQ(canvas.shown(8, 8), red);
    EXPECT_EQ(canvas.pixel(15, 15), red);
    EXPECT_EQ(canvas.pixel(7, 8), nothing);
    EXPECT_EQ(canvas.pixel(16, 15), nothing);
    EXPECT_EQ(canvas.pixel(40, 40), nothing);
    EXPECT_EQ(canvas.surface.GetSpriteX(sprite), 2);
    EXPECT_EQ(canvas.surface.CountInGroup(group), 1);
    canvas.surface.Restart(1);
    EXPECT_EQ(canvas.surface.Frame().width, Canvas::width);
    EXPECT_EQ(canvas.shown(4, 4), red);
    EXPECT_EQ(canvas.pixel(8, 8), nothing);
}

TEST(BitmapStore, AScaleThatMakesNoFrameIsIgnored) {
    Canvas canvas;
    canvas.sprite(red, {0, 0, 4, 4});
    for (const double scale : {0.0, -1.0, 1e9})
        canvas.surface.Restart(scale);
    EXPECT_EQ(canvas.surface.Scale(), 1);
    EXPECT_EQ(canvas.shown(3, 3), red);
}

// Pixels that are set

TEST(BitmapStore, ASetPixelCoversItsPartOfTheBoardAtEveryScale) {
    constexpr std::int32_t width = 8;
    constexpr std::int32_t height = 6;
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        SCOPED_TRACE(scale);
        Canvas canvas(scale);
        const std::int32_t bitmap = canvas.bitmap(plain(width, height, red));
        canvas.surface.CreateSprite(bitmap);
        for (std::int32_t y = 0; y < height; ++y)
            for (std::int32_t x = 0; x < width; ++x)
                canvas.surface.SetBitmapPixel(bitmap, x, y, 0x100 * y + x);
        canvas.surface.Refresh();
        std::vector<int> seen(width * height);
        for (std::int32_t fy = 0; fy < height * scale; ++fy)
            for (std::int32_t fx = 0; fx < width * scale; ++fx) {
                const std::uint32_t pixel = canvas.pixel(fx, fy);
                const auto x = static_cast<std::int32_t>(pixel & 0xFF);
                const auto y = static_cast<std::int32_t>(pixel >> 8 & 0xFF);
                ASSERT_EQ(pixel, 0xFF000000U + static_cast<std::uint32_t>(0x100 * y + x));
                // Its middle lies on the pixel that was set, give or take half a frame pixel.
                EXPECT_LE(std::abs((fx + 0.5) / scale - x - 0.5), 0.5 + 0.5 / scale);
                EXPECT_LE(std::abs((fy + 0.5) / scale - y - 0.5), 0.5 + 0.5 / scale);
                ++seen[static_cast<std::size_t>(y * width + x)];
            }
        const auto whole = static_cast<int>(scale);
        for (const int count : seen)
            EXPECT_GE(count, whole * whole);
    }
}

TEST(BitmapStore, SetPixelsStayWhenTheScaleChanges) {
    Canvas canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(4, 3, red));
    canvas.surface.CreateSprite(bitmap);
    canvas.surface.SetBitmapPixel(bitmap, 1, 2, 0x00FF00);
    canvas.surface.SetBitmapPixel(bitmap, 3, 0, 0x00FF00);
    canvas.surface.SetBitmapPixel(bitmap, 3, 0, 0x0000FF);
    canvas.surface.Restart(3);
    EXPECT_EQ(canvas.shown(3, 6), green);
    EXPECT_EQ(canvas.pixel(5, 8), green);
    EXPECT_EQ(canvas.pixel(2, 8), red);
    EXPECT_EQ(canvas.pixel(6, 8), red);
    EXPECT_EQ(canvas.pixel(11, 2), blue);
    canvas.surface.Restart(1);
    EXPECT_EQ(canvas.shown(1, 2), green);
    EXPECT_EQ(canvas.pixel(3, 0), blue);
    EXPECT_EQ(canvas.pixel(2, 2), red);
}

TEST(BitmapStore, APixelOutsideThePictureIsIgnored) {
    Canvas canvas;
    const std::int32_t bitmap = canvas.bitmap(plain(4, 3, red));
    canvas.surface.CreateSprite(bitmap);
    for (const Point& outside : {Point{-1, 0}, Point{0, -1}, Point{4, 0}, Point{0, 3}})
        canvas.surface.SetBitmapPixel(bitmap, outside.x, outside.y, 0x00FF00);
    canvas.surface.SetBitmapPixel(bitmap + 1, 0, 0, 0x00FF00);
    canvas.surface.SetBitmapPixel(0, 0, 0, 0x00FF00);
    canvas.surface.Refresh();
    for (const std::uint32_t pixel : canvas.surface.Frame().pixels)
        ASSERT_NE(pixel, green);
}

TEST(BitmapStore, AFileThatIsLoadedAgainComesWithoutThePixelsThatWereSet) {
    Canvas canvas;
    writePicture(canvas.folder.Path(), "\\x.bmp", plain(4, 3, red));
    const std::int32_t edited = canvas.surface.LoadBitmap("\\x.bmp");
    canvas.surface.SetBitmapPixel(edited, 0, 0, 0x00FF00);
    canvas.surface.CreateSprite(edited);
    const std::int32_t again = canvas.surface.CreateSprite(canvas.surface.LoadBitmap("\\x.bmp"));
    canvas.surface.PlaceSprite(again, 10, 0);
    EXPECT_EQ(canvas.shown(0, 0), green);
    EXPECT_EQ(canvas.pixel(10, 0), red);
}

TEST(BitmapStore, BitmapsOfOneFileDoNotShareThePixelsThatAreSet) {
    Canvas canvas;
    writePicture(canvas.folder.Path(), "\\x.bmp", plain(4, 3, red));
    const std::int32_t before = canvas.surface.LoadBitmap("\\x.bmp");
    const std::int32_t edited = canvas.surface.LoadBitmap("\\x.bmp");
    canvas.surface.SetBitmapPixel(edited, 0, 0, 0x00FF00);
    const std::int32_t after = canvas.surface.LoadBitmap("\\x.bmp");
    std::int32_t x = 0;
    for (const std::int32_t bitmap : {before, edited, after})
        canvas.surface.PlaceSprite(canvas.surface.CreateSprite(bitmap), 10 * x++, 0);
    const auto check = [&](std::int32_t frameX) {
        EXPECT_EQ(canvas.shown(0, 0), red);
        EXPECT_EQ(canvas.pixel(frameX, 0), green);
        EXPECT_EQ(canvas.pixel(2 * frameX, 0), red);
    };
    check(10);
    canvas.surface.Restart(2);
    check(20);
    canvas.surface.SetBitmapPixel(before, 1, 1, 0x0000FF);
    EXPECT_EQ(canvas.shown(2, 2), blue);
    EXPECT_EQ(canvas.pixel(22, 2), red);
    EXPECT_EQ(canvas.pixel(42, 2), red);
}

} // namespace
} // namespace veltrix::test
