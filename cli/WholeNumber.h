#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace veltrix::cli {

/// The number that the whole of `text` spells in decimal digits, with a minus sign or none; nothing
/// when it spells anything else or a number that does not fit.
template <typename Number>
[[nodiscard]] std::optional<Number> WholeNumber(std::string_view text) noexcept {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

} // namespace veltrix::cli
