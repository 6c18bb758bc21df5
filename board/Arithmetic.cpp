#include "board/Arithmetic.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace veltrix {

namespace {

std::int32_t narrow(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max())
        throw std::overflow_error("a whole number left the 32-bit range");
    return static_cast<std::int32_t>(value);
}

} // namespace

std::int32_t CheckedAdd(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} + b);
}

std::int32_t CheckedSubtract(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} - b);
}

std::int32_t RoundToLong(double value) {
    // Not std::nearbyint: its rounding depends on a mode that a library may have changed.
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    if (!(value >= least - 0.5 && value < most + 0.5))
        throw std::overflow_error("a number left the 32-bit range when it was rounded");
    const auto towardsZero = static_cast<std::int64_t>(value);
    const double rest = std::abs(value - static_cast<double>(towardsZero));
    const bool further = rest > 0.5 || (rest == 0.5 && towardsZero % 2 != 0);
    const std::int64_t away = value < 0 ? -1 : 1;
    return static_cast<std::int32_t>(further ? towardsZero + away : towardsZero);
}

} // namespace veltrix
