#include "document/CodePage1252.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace veltrix {

namespace {

/// The characters of bytes 0x80 to 0x9F; every other byte is the character of its own number.
constexpr std::array<std::uint16_t, 32> middle{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::uint32_t middleBegin = 0x80;
constexpr std::uint32_t middleEnd = 0xA0;

constexpr bool isMiddle(std::uint32_t code) {
    return code >= middleBegin && code < middleEnd;
}

struct Character {
    std::uint32_t code = 0;
    std::size_t length = 0; // bytes of UTF-8; 0 when they are broken
};

/// No character of three bytes or fewer is left out; longer ones are not in the code page anyway.
Character firstCharacter(std::string_view text) {
    const auto at = [text](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint32_t lead = at(0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xE0 ? 3 : 2;
    const std::uint32_t least = length == 3 ? 0x800 : 0x80; // a longer form than needed is broken
    if (lead < 0xC0 || lead >= 0xF0 || text.size() < length)
        return {};
    std::uint32_t code = lead & (length == 3 ? 0x0Fu : 0x1Fu);
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80)
            return {};
        code = code << 6 | (at(i) & 0x3Fu);
    }
    return {code, code >= least ? length : 0};
}

} // namespace

void AppendCharacter(std::string& text, std::uint8_t byte) {
    const std::uint32_t code = isMiddle(byte) ? middle[byte - middleBegin] : byte;
    const auto append = [&text](std::uint32_t part) { text += static_cast<char>(part); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | code >> 6);
        append(0x80 | (code & 0x3F));
    } else {
        append(0xE0 | code >> 12);
        append(0x80 | (code >> 6 & 0x3F));
        append(0x80 | (code & 0x3F));
    }
}

std::uint8_t TakeByte(std::string_view& text) {
    const Character character = firstCharacter(text);
    std::uint32_t byte = character.code;
    if (const auto* const found = std::find(middle.begin(), middle.end(), character.code);
        found != middle.end())
        byte = middleBegin + static_cast<std::uint32_t>(found - middle.begin());
    else if (isMiddle(byte) || byte > 0xFF || character.length == 0)
        throw std::overflow_error("a character has no byte in code page 1252");
    text.remove_prefix(character.length);
    return static_cast<std::uint8_t>(byte);
}

} // namespace veltrix
