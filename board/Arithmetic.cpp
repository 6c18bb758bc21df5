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

std::int32_t CheckedMultiply(std::int32_t a, std::int32_t b) {
    return narrow(std::int64_t{a} * b);
}

std::int32_t RoundToLong(double value) {
    // Not std::nearbyint: its rounding depends on a mode that a library may have changed.
    const double below = std::floor(value);
    const double fraction = value - below;
    const bool up = fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) != 0.0);
    const double rounded = up ? below + 1.0 : below;
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<std::int32_t>::max()))
        throw std::overflow_error("a number left the 32-bit range when it was rounded");
    return static_cast<std::int32_t>(rounded);
}

} // namespace veltrix
