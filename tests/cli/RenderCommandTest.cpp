#include "cli/RenderCommand.h"

#include "board/Picture.h"
#include "instruments/Board.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"
#include "tests/support/Pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct RenderCommandTest : testing::Test {
    RenderCommandTest() { test::writeBoardPictures(pictures.Path()); }

    test::Outcome render(const std::vector<std::string>& options) {
        std::vector<std::string> arguments{"render", board, "--out", picture};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return test::cli(arguments, pictures.Path());
    }

    /// The pixel in the middle of LED 1, at a scale.
    std::uint32_t led1(int scale = 1) const {
        return ReadPicture(PathFromUtf8(picture)).Row((61 - 18) * scale)[(373 + 16) * scale];
    }

    test::TempFolder pictures;
    test::Files files;
    std::string board = files.Add(
        "één.vtx", test::Document{.wires = {{"Invertor Uitgang", "LED 1 Ingang"}}}.Bytes());
    std::string picture = files.Path("één.png");
};

TEST_F(RenderCommandTest, WritesTheBoardAsTheWindowShowsIt) {
    const test::Outcome outcome = render({});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.output + outcome.errors, "");
    const Picture found = ReadPicture(PathFromUtf8(picture));
    EXPECT_EQ(found.width, Board::Width);
    EXPECT_EQ(found.height, Board::Height);
    EXPECT_EQ(found.Row(0)[0], test::boardColours::Board);
    EXPECT_EQ(led1(), test::boardColours::RedLight);
}

TEST_F(RenderCommandTest, RunsTheTicksFirst) {
    EXPECT_EQ(render({"--ticks", "0"}).code, 0);
    EXPECT_EQ(led1(), test::boardColours::Board);
    EXPECT_EQ(render({"--ticks", "1"}).code, 0);
    EXPECT_EQ(led1(), test::boardColours::RedLight);
}

TEST_F(RenderCommandTest, ScalesEveryPixelOfTheBoard) {
    for (const int scale : {1, 2, 3}) {
        EXPECT_EQ(render({"--scale", std::to_string(scale)}).code, 0);
        const Picture found = ReadPicture(PathFromUtf8(picture));
        EXPECT_EQ(found.width, Board::Width * scale);
        EXPECT_EQ(found.height, Board::Height * scale);
        EXPECT_EQ(led1(scale), test::boardColours::RedLight);
    }
}

TEST_F(RenderCommandTest, MissingPictureIsToldButNoFailure) {
    std::filesystem::remove(pictures.Path() / "images2" / "Bord.bmp");
    const test::Outcome outcome = render({});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.errors, StartsWith("veltrix-cli: "));
    EXPECT_THAT(outcome.errors, HasSubstr("Bord.bmp"));
    EXPECT_EQ(test::linesOf(outcome.errors).size(), 1U);
    EXPECT_EQ(led1(), test::boardColours::RedLight);
}

TEST_F(RenderCommandTest, FaultyBoardIsToldBeforePicturesAreMissed) {
    board = files.Add("leeg.vtx", "");
    const test::Outcome outcome =
        test::cli({"render", board, "--out", picture}, "no-pictures-here");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.errors, "veltrix-cli: " + board + ": the file is empty\n");
}

TEST_F(RenderCommandTest, PictureThatCannotBeWrittenIsAFault) {
    for (const std::string& path : {files.Path("weg/b.png"), std::string("/dev/full")}) {
        picture = path;
        const test::Outcome outcome = render({"--ticks", "1"});
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(outcome.errors, "veltrix-cli: " + path + ": cannot be written\n");
    }
}

TEST_F(RenderCommandTest, FailedTicksAreToldAndTheBoardIsDrawn) {
    board =
        files.Add("ver.vtx", test::Document{.wires = {{"Var. Spanning Uit Geel", "LED 1 Ingang"}},
                                            .voltage = INT32_MAX}
                                 .Bytes());
    const test::Outcome outcome = render({});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.errors, StartsWith("veltrix-cli: " + board + ": tick 1: "));
    EXPECT_EQ(test::linesOf(outcome.errors).size(), 1U);
    EXPECT_EQ(led1(), test::boardColours::Board);
}

} // namespace
} // namespace veltrix::cli
