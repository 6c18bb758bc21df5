#pragma once

#include <cstdint>
#include <limits>

namespace veltrix::test {

/// The ends of the range of levels, coordinates and every other whole number of the program.
inline constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
inline constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();

} // namespace veltrix::test
