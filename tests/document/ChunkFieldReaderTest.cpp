#include "document/ChunkFieldReader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace veltrix {
namespace {

/// A stream that fails behind its last byte.
class GivenBytes : public ChunkFieldReader<GivenBytes> {
public:
    explicit GivenBytes(std::string bytes) : left_(std::move(bytes)) {}

    [[nodiscard]] const std::string& Left() const { return left_; }

private:
    friend ChunkFieldReader<GivenBytes>;

    std::uint8_t takeByte() {
        const auto byte = static_cast<std::uint8_t>(left_.at(0));
        left_.erase(0, 1);
        return byte;
    }

    std::string left_;
};

TEST(ChunkFieldReader, NumbersAreReadLowByteFirst) {
    GivenBytes stream(std::string("ABCDEF\x00\x00\xC0\x3F", 10));
    EXPECT_EQ(stream.readInt(), 0x4241);
    EXPECT_EQ(stream.readLong(), 0x46454443);
    EXPECT_EQ(stream.readSingle(), 1.5F);
    EXPECT_EQ(stream.Left(), "");
}

TEST(ChunkFieldReader, OnlyAllBitsAreTrue) {
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(GivenBytes(std::string(1, static_cast<char>(byte))).readBool(),
                  byte == 255 ? -1 : 0)
            << byte;
}

TEST(ChunkFieldReader, AStringEndsAtItsZero) {
    GivenBytes stream(std::string("A\x80\xEB\0\0B", 6));
    EXPECT_EQ(stream.readString(), "A\u20AC\u00EB");
    EXPECT_EQ(stream.readString(), "");
    EXPECT_EQ(stream.Left(), "B");
}

TEST(ChunkFieldReader, GoingIntoAChunkPassesItsHeadAndChecksNothing) {
    GivenBytes stream(std::string("\3\0\xB3\xFF\xFF\xFFrest", 10)); // a length that cannot be
    stream.GoIntoChunk();
    EXPECT_EQ(stream.Left(), "rest");
}

TEST(ChunkFieldReader, WhatTheStreamThrowsComesThroughAfterTheBytesBeforeIt) {
    GivenBytes number("abc");
    EXPECT_THROW(number.readLong(), std::out_of_range);
    EXPECT_EQ(number.Left(), "");
    GivenBytes text("abc");
    EXPECT_THROW(text.readString(), std::out_of_range);
    EXPECT_EQ(text.Left(), "");
}

} // namespace
} // namespace veltrix
