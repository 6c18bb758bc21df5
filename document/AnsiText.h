#pragma once

#include <string>
#include <string_view>

namespace veltrix {

/// UTF-8 text in the ANSI code page of the system: 1252 on a western Windows, and on every system
/// that has no such thing. What has no place there becomes a question mark.
[[nodiscard]] std::string AnsiText(std::string_view text);

} // namespace veltrix
