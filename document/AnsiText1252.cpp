#include "document/AnsiText.h"
#include "document/CodePage1252.h"

#include <stdexcept>

namespace veltrix {

namespace {

bool continuesACharacter(char unit) {
    return (static_cast<unsigned char>(unit) & 0xC0) == 0x80;
}

} // namespace

std::string AnsiText(std::string_view text) {
    std::string ansi;
    while (!text.empty()) {
        try {
            ansi += static_cast<char>(TakeByte(text));
        } catch (const std::overflow_error&) {
            ansi += '?';
            do
                text.remove_prefix(1);
            while (!text.empty() && continuesACharacter(text.front()));
        }
    }
    return ansi;
}

} // namespace veltrix
