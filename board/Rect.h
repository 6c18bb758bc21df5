#pragma once

#include <cstdint>

namespace veltrix {

/// A rectangle in pixels; empty when it has no width or no height.
struct Rect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    [[nodiscard]] constexpr bool Empty() const noexcept { return width <= 0 || height <= 0; }

    [[nodiscard]] bool Overlaps(const Rect& other) const noexcept;

    /// What both cover; empty when they do not overlap.
    [[nodiscard]] Rect Intersected(const Rect& other) const noexcept;

    /// The smallest rectangle that covers both, neither of which may be empty; they lie close
    /// enough together for its size to be a 32-bit number.
    [[nodiscard]] Rect United(const Rect& other) const noexcept;

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

} // namespace veltrix
