#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// Text in documents has one byte a character, in code page 1252; text in the program is UTF-8.
/// The five bytes that the code page leaves undefined stand for the control characters of the same
/// number, so that each of the 256 bytes comes back as it was.

/// Appends the character that `byte` stands for.
void AppendCharacter(std::string& text, std::uint8_t byte);

/// Takes the first character off a text that is not empty and gives its byte. Throws
/// std::overflow_error, the text untouched, when the character has no byte or is broken UTF-8.
[[nodiscard]] std::uint8_t TakeByte(std::string_view& text);

} // namespace veltrix
