#include "document/AnsiText.h"

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

TEST(AnsiTextTest, EveryCharacterOfTheCodePageIsOneByte) {
    EXPECT_EQ(AnsiText("C:\\Apps\\Bord"), "C:\\Apps\\Bord");
    EXPECT_EQ(AnsiText("één € ƒ ß"), "\xE9\xE9n \x80 \x83 \xDF");
    EXPECT_EQ(AnsiText(""), "");
}

TEST(AnsiTextTest, ACharacterWithoutAByteIsOneQuestionMark) {
    EXPECT_EQ(AnsiText("Школа"), "?????");
    EXPECT_EQ(AnsiText("a😀b"), "a?b");
}

TEST(AnsiTextTest, BrokenTextLosesOnlyWhatIsBroken) {
    EXPECT_EQ(AnsiText("a\xFF"
                       "b"),
              "a?b");
    EXPECT_EQ(AnsiText("ab\xE2\x82"), "ab?");
}

} // namespace

} // namespace veltrix::test
