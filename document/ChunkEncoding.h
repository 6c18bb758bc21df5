#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace veltrix {

/// How values stand in a stream of chunks: low byte first, whatever the machine's own order.
namespace chunk {

/// What a boolean is written as. Every byte but True reads as false.
inline constexpr std::uint8_t True = 0xFF;
inline constexpr std::uint8_t False = 0x00;

using IntBytes = std::array<std::uint8_t, 2>;
using LongBytes = std::array<std::uint8_t, 4>;

[[nodiscard]] constexpr IntBytes FromInt(std::int16_t value) noexcept {
    const auto bits = static_cast<std::uint16_t>(value);
    return {static_cast<std::uint8_t>(bits & 0xFF), static_cast<std::uint8_t>(bits >> 8)};
}

[[nodiscard]] constexpr std::int16_t ToInt(const IntBytes& bytes) noexcept {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8));
}

[[nodiscard]] constexpr LongBytes FromLong(std::int32_t value) noexcept {
    const auto bits = static_cast<std::uint32_t>(value);
    return {static_cast<std::uint8_t>(bits & 0xFF), static_cast<std::uint8_t>(bits >> 8 & 0xFF),
            static_cast<std::uint8_t>(bits >> 16 & 0xFF), static_cast<std::uint8_t>(bits >> 24)};
}

[[nodiscard]] constexpr std::int32_t ToLong(const LongBytes& bytes) noexcept {
    return static_cast<std::int32_t>(std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 |
                                     std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[3]} << 24);
}

/// The bits of a single are moved as they are: not-a-numbers and negative zero come back the same.
[[nodiscard]] inline LongBytes FromSingle(float value) noexcept {
    static_assert(sizeof(float) == sizeof(std::int32_t));
    std::int32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return FromLong(bits);
}

[[nodiscard]] inline float ToSingle(const LongBytes& bytes) noexcept {
    const std::int32_t bits = ToLong(bytes);
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace chunk

} // namespace veltrix
