#include "cli/Platform.h"

#include "board/Picture.h"
#include "instruments/Board.h"
#include "tests/cli/Documents.h"
#include "tests/cli/Process.h"

#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

TEST(Platform, PicturesAreFoundBesideTheProgram) {
    test::Files files;
    const std::string board = files.Add("één.vtx", test::Document{}.Bytes());
    const std::string picture = files.Path("één.png");
    const test::Outcome outcome =
        test::runVeltrixCli({"render", board, "--scale", "2", "--out", picture});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors, "");
    const Picture found = ReadPicture(PathFromUtf8(picture));
    EXPECT_EQ(found.width, Board::Width * 2);
    std::size_t black = 0;
    for (const std::uint32_t pixel : found.pixels)
        black += pixel == 0xFF000000U ? 1 : 0;
    EXPECT_LT(black, found.pixels.size() / 2) << "a board without pictures is black";
}

} // namespace
} // namespace veltrix::cli
