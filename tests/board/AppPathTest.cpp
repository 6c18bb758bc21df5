#include "board/AppPath.h"

#include <gtest/gtest.h>

namespace veltrix {
namespace {

TEST(AppPath, ANameBelowAFolderBecomesAPathOfThePlatform) {
    const std::filesystem::path folder = "program";
    EXPECT_EQ(AppPath(folder, "\\images1\\Line1.bmp"), folder / "images1" / "Line1.bmp");
    EXPECT_EQ(AppPath(folder, "\\Ringin.wav"), folder / "Ringin.wav");
}

TEST(AppPath, PathsCrossFromUtf8AndBackUnchanged) {
    const std::string name = "caf\xC3\xA9/\xE2\x82\xAC";
    EXPECT_EQ(Utf8FromPath(PathFromUtf8(name)), name);
    EXPECT_EQ(AppPath("map", "\\" + name), PathFromUtf8("map/" + name));
}

} // namespace
} // namespace veltrix
