#pragma once

#include <cstdint>

namespace veltrix {

/// A boolean as the board's records hold it: 16 bits wide, true is -1 and false is 0.
class Bool16 {
public:
    constexpr Bool16() noexcept = default;

    // Implicit both ways, so that a field of this type reads and writes like a bool.
    constexpr Bool16(bool value) noexcept : value_(value ? std::int16_t{-1} : std::int16_t{0}) {}

    constexpr operator bool() const noexcept { return value_ != 0; }

    /// -1 or 0, widened with its sign.
    [[nodiscard]] constexpr std::int32_t AsLong() const noexcept { return value_; }

private:
    std::int16_t value_ = 0;
};

/// A position in board pixels: x to the right, y downwards, the origin at the board's top left.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

/// The level of a socket in tenths of a volt; `High` is what every digital test asks for.
namespace level {
inline constexpr std::int32_t Low = 0;
inline constexpr std::int32_t High = 50;

/// The level of a digital output.
[[nodiscard]] constexpr std::int32_t Of(bool high) noexcept {
    return high ? High : Low;
}
} // namespace level

} // namespace veltrix
