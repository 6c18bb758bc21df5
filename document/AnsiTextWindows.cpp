#include "document/AnsiText.h"

#include <windows.h>

namespace veltrix {

std::string AnsiText(std::string_view text) {
    const int units = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // no text has more characters than bytes
    wide.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(CP_UTF8, 0, text.data(), units, wide.data(), units)));
    const int characters = static_cast<int>(wide.size());
    const int bytes =
        ::WideCharToMultiByte(CP_ACP, 0, wide.data(), characters, nullptr, 0, nullptr, nullptr);
    std::string ansi(static_cast<std::size_t>(bytes), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, wide.data(), characters, ansi.data(), bytes, nullptr, nullptr);
    return ansi;
}

} // namespace veltrix
