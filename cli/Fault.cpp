#include "cli/Fault.h"

#include <ostream>
#include <string_view>
#include <system_error>

namespace veltrix::cli {

std::string OneLine(const std::string& text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string line;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 0x20 && code != 0x7F) {
            line += c;
            continue;
        }
        line += "\\x";
        line += digits[code >> 4];
        line += digits[code & 0xF];
    }
    return line;
}

std::string Quoted(const std::string& text) {
    return '"' + OneLine(text) + '"';
}

void Tell(std::ostream& stream, const Fault& fault) {
    stream << "veltrix-cli: " + OneLine(fault.what()) + '\n' << std::flush;
}

std::string ReasonOf(int errorNumber, const std::string& otherwise) {
    return errorNumber != 0 ? std::generic_category().message(errorNumber) : otherwise;
}

} // namespace veltrix::cli
