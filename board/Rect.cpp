#include "board/Rect.h"

#include <algorithm>

namespace veltrix {

bool Rect::Overlaps(const Rect& other) const noexcept {
    return !Intersected(other).Empty();
}

Rect Rect::Intersected(const Rect& other) const noexcept {
    const auto right = std::min(std::int64_t{x} + width, std::int64_t{other.x} + other.width);
    const auto bottom = std::min(std::int64_t{y} + height, std::int64_t{other.y} + other.height);
    Rect both{std::max(x, other.x), std::max(y, other.y), 0, 0};
    if (right > both.x && bottom > both.y) {
        both.width = static_cast<std::int32_t>(right - both.x);
        both.height = static_cast<std::int32_t>(bottom - both.y);
    }
    return both;
}

Rect Rect::United(const Rect& other) const noexcept {
    const std::int32_t left = std::min(x, other.x);
    const std::int32_t top = std::min(y, other.y);
    return {left, top, std::max(x + width, other.x + other.width) - left,
            std::max(y + height, other.y + other.height) - top};
}

} // namespace veltrix
