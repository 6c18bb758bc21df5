#include "board/Picture.h"

#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace veltrix::test {
namespace {

TEST(Picture, APngIsReadBackToTheLastBit) {
    const TempFolder folder;
    Picture picture{3, 2, {0xFF123456, 0x00ABCDEF, 0x80FF00FF, white, 0xFF000000, 0x01020304}};
    WritePng(picture, folder.Path() / "picture.bmp");
    const Picture read = ReadPicture(folder.Path() / "picture.bmp");
    EXPECT_EQ(read.width, 3);
    EXPECT_EQ(read.height, 2);
    EXPECT_EQ(read.pixels, picture.pixels);
}

TEST(Picture, ABmpIsReadFromItsLowestRowUp) {
    const TempFolder folder;
    // 2 by 2 pixels of 24 bits: rows from below, each filled up to 8 bytes, blue first.
    const unsigned char bytes[] = {
        'B', 'M', 70, 0, 0,  0, 0, 0, 0, 0, 54, 0, 0, 0, 40,   0,    0,  0, 2, 0, 0, 0, 2, 0,
        0,   0,   1,  0, 24, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0,    0,    0,  0, 0, 0, 0, 0, 0, 0,
        0,   0,   0,  0, 0,  0, 1, 2, 3, 4, 5,  6, 0, 0, 0x30, 0x20, 16, 9, 8, 7, 0, 0};
    std::ofstream(folder.Path() / "x.bmp", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), sizeof bytes);
    const Picture read = ReadPicture(folder.Path() / "x.bmp");
    EXPECT_EQ(read.width, 2);
    EXPECT_EQ(read.height, 2);
    EXPECT_EQ(read.pixels,
              (std::vector<std::uint32_t>{0xFF102030, 0xFF070809, 0xFF030201, 0xFF060504}));
}

TEST(Picture, AFileThatIsMissingEmptyOrNoPictureIsAnError) {
    const TempFolder folder;
    EXPECT_THROW((void)ReadPicture(folder.Path() / "missing.bmp"), std::runtime_error);
    std::ofstream(folder.Path() / "empty.bmp").close();
    EXPECT_THROW((void)ReadPicture(folder.Path() / "empty.bmp"), std::runtime_error);
    std::ofstream(folder.Path() / "text.bmp") << "BM, but no picture";
    EXPECT_THROW((void)ReadPicture(folder.Path() / "text.bmp"), std::runtime_error);
    EXPECT_THROW((void)ReadPicture(folder.Path()), std::runtime_error);
}

TEST(Picture, ACutOffPngIsAnError) {
    const TempFolder folder;
    WritePng(plain(20, 20, 0xFF123456), folder.Path() / "whole.png");
    std::filesystem::resize_file(folder.Path() / "whole.png",
                                 std::filesystem::file_size(folder.Path() / "whole.png") / 2);
    EXPECT_THROW((void)ReadPicture(folder.Path() / "whole.png"), std::runtime_error);
}

TEST(Picture, WritingWhereThereIsNoFolderIsAnError) {
    const TempFolder folder;
    EXPECT_THROW(WritePng(plain(1, 1, 0), folder.Path() / "no" / "x.png"), std::runtime_error);
}

TEST(ResampleFrames, TheSameSizeIsTheSamePicture) {
    const Picture strip = rowOf({1, 2, 3, 4});
    EXPECT_EQ(ResampleFrames(strip, 2, 2, 1).pixels, strip.pixels);
}

TEST(ResampleFrames, HalfTheSizeAveragesEachChannel) {
    const Picture small =
        ResampleFrames(rowOf({0xFF000000, 0xFF0000FF, 0xFF800000, 0xFF000080}), 1, 2, 1);
    EXPECT_EQ(small.pixels, (std::vector<std::uint32_t>{0xFF000080, 0xFF400040}));
}

TEST(ResampleFrames, APixelThatIsCutInTwoCountsByItsParts) {
    // Three pixels become two: each is the whole of one and half of the middle one.
    const Picture two = ResampleFrames(rowOf({0xFF000000, 0xFF000090, 0xFF000030}), 1, 2, 1);
    EXPECT_EQ(two.pixels, (std::vector<std::uint32_t>{0xFF000030, 0xFF000050}));
}

TEST(ResampleFrames, AnEnlargedPictureRepeatsItsPixels) {
    const Picture large = ResampleFrames(rowOf({0xFF000010, 0xFF000020}), 1, 4, 2);
    EXPECT_EQ(large.width, 4);
    EXPECT_EQ(large.height, 2);
    EXPECT_EQ(large.pixels,
              (std::vector<std::uint32_t>{0xFF000010, 0xFF000010, 0xFF000020, 0xFF000020,
                                          0xFF000010, 0xFF000010, 0xFF000020, 0xFF000020}));
}

TEST(ResampleFrames, NeighboursInAStripDoNotBleedIntoOneAnother) {
    Picture strip = plain(9, 3, 0xFFFF0000);
    for (std::int32_t y = 0; y < 3; ++y)
        for (std::int32_t x = 3; x < 6; ++x)
            strip.Row(y)[x] = 0xFF0000FF;
    for (const std::int32_t size : {1, 2, 4, 5}) {
        const Picture scaled = ResampleFrames(strip, 3, size, size);
        ASSERT_EQ(scaled.width, 3 * size);
        for (std::int32_t x = 0; x < scaled.width; ++x)
            EXPECT_EQ(scaled.Row(0)[x], x / size == 1 ? 0xFF0000FF : 0xFFFF0000) << size << x;
    }
}

} // namespace
} // namespace veltrix::test
