#include "document/ChunkEncoding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace veltrix {
namespace {

// What the encoding is does not depend on the machine: it is known before the program runs.
static_assert(chunk::FromInt(0x0102) == chunk::IntBytes{0x02, 0x01});
static_assert(chunk::FromInt(-9510) == chunk::IntBytes{0xDA, 0xDA});
static_assert(chunk::FromLong(0x01020304) == chunk::LongBytes{0x04, 0x03, 0x02, 0x01});
static_assert(chunk::FromLong(-2) == chunk::LongBytes{0xFE, 0xFF, 0xFF, 0xFF});
static_assert(chunk::ToInt({0xDA, 0xDA}) == -9510);
static_assert(chunk::ToLong({0x00, 0x00, 0x00, 0x80}) == std::numeric_limits<std::int32_t>::min());

TEST(ChunkEncoding, EveryIntComesBack) {
    for (std::int32_t value = -32768; value <= 32767; ++value)
        ASSERT_EQ(chunk::ToInt(chunk::FromInt(static_cast<std::int16_t>(value))), value);
}

TEST(ChunkEncoding, LongsComeBackWhicheverBitIsSet) {
    for (int bit = 0; bit < 32; ++bit) {
        const auto value = static_cast<std::int32_t>(std::uint32_t{1} << bit);
        EXPECT_EQ(chunk::ToLong(chunk::FromLong(value)), value);
        EXPECT_EQ(chunk::ToLong(chunk::FromLong(~value)), ~value);
    }
}

TEST(ChunkEncoding, SinglesAreTheirBitsLowByteFirst) {
    EXPECT_EQ(chunk::FromSingle(-3.25F), (chunk::LongBytes{0x00, 0x00, 0x50, 0xC0}));
    EXPECT_EQ(chunk::ToSingle({0x00, 0x00, 0x80, 0x3F}), 1.0F);
}

TEST(ChunkEncoding, ANotANumberKeepsItsBits) {
    const chunk::LongBytes bits{0x01, 0x02, 0xC3, 0xFF};
    EXPECT_EQ(chunk::FromSingle(chunk::ToSingle(bits)), bits);
}

} // namespace
} // namespace veltrix
