#pragma once

#include <cstdint>

namespace veltrix {

/// `a + b` and `a - b` in 32 bits. Throws std::overflow_error when the result does not fit.
[[nodiscard]] std::int32_t CheckedAdd(std::int32_t a, std::int32_t b);
[[nodiscard]] std::int32_t CheckedSubtract(std::int32_t a, std::int32_t b);

/// The whole number nearest to `value`, halves to the even one (4.5 gives 4, 5.5 gives 6).
/// Throws std::overflow_error when it does not fit in 32 bits or `value` is not a number.
[[nodiscard]] std::int32_t RoundToLong(double value);

} // namespace veltrix
