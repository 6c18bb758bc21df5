#include "document/CodePage1252.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix {
namespace {

std::uint8_t byteOf(const std::string& character) {
    std::string_view text = character;
    const std::uint8_t byte = TakeByte(text);
    EXPECT_TRUE(text.empty()) << character;
    return byte;
}

std::string characterOf(int byte) {
    std::string text;
    AppendCharacter(text, static_cast<std::uint8_t>(byte));
    return text;
}

TEST(CodePage1252, EachOfThe256BytesComesBackAsItWas) {
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(byteOf(characterOf(byte)), byte);
}

TEST(CodePage1252, TheFirstHalfIsAscii) {
    for (int byte = 0; byte < 128; ++byte)
        EXPECT_EQ(characterOf(byte), std::string(1, static_cast<char>(byte)));
}

TEST(CodePage1252, KnowsTheEuroTheQuotesAndTheAccents) {
    EXPECT_EQ(byteOf("\u20AC"), 0x80);
    EXPECT_EQ(byteOf("\u2019"), 0x92);
    EXPECT_EQ(byteOf("\u0178"), 0x9F);
    EXPECT_EQ(byteOf("\u0192"), 0x83);
    EXPECT_EQ(byteOf("\u00E9"), 0xE9);
    EXPECT_EQ(byteOf("\u00FF"), 0xFF);
    EXPECT_EQ(characterOf(0x80), "\u20AC");
    EXPECT_EQ(characterOf(0xEB), "\u00EB");
}

TEST(CodePage1252, TheFiveUndefinedBytesAreTheControlsOfTheirNumber) {
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(characterOf(byte), std::string("\xC2") + static_cast<char>(byte));
}

TEST(CodePage1252, ACharacterWithoutAByteIsAnErrorAndLeavesTheText) {
    // Among them the controls in whose place the code page has other characters.
    for (const std::string character :
         {"\u0100", "\u0080", "\u0091", "\u03A9", "\u2603", "\uFFFD", "\U0001F50C"}) {
        const std::string whole = character + "a";
        std::string_view text = whole;
        EXPECT_THROW(static_cast<void>(TakeByte(text)), std::overflow_error) << character;
        EXPECT_EQ(text, whole);
    }
}

TEST(CodePage1252, BrokenUtf8IsAnError) {
    for (const std::string broken :
         {"\x80", "\xBF", "\xC3", "\xC3(", "\xC0\xAF", "\xE2\x82", "\xE2(\xAC", "\xE0\x80\xAF",
          "\xE0\x83\xA9", "\xF0\x9F\x94", "\xFF", "\xFE"}) {
        std::string_view text = broken;
        EXPECT_THROW(static_cast<void>(TakeByte(text)), std::overflow_error);
        EXPECT_EQ(text, broken);
    }
}

TEST(CodePage1252, TakesOneCharacterAtATime) {
    std::string_view text = "\u20ACx\u00E9";
    EXPECT_EQ(TakeByte(text), 0x80);
    EXPECT_EQ(TakeByte(text), 'x');
    EXPECT_EQ(TakeByte(text), 0xE9);
    EXPECT_TRUE(text.empty());
}

} // namespace
} // namespace veltrix
