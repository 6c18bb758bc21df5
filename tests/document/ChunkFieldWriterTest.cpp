#include "document/ChunkFieldWriter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace veltrix {
namespace {

/// A stream of which all that was written is kept.
class WrittenBytes : public ChunkFieldWriter<WrittenBytes> {
public:
    std::string bytes;

private:
    friend ChunkFieldWriter<WrittenBytes>;

    void putByte(std::uint8_t byte) {
        const auto at = static_cast<std::size_t>(position_);
        if (at == bytes.size())
            bytes.push_back('\0');
        bytes.at(at) = static_cast<char>(byte);
        ++position_;
    }
};

TEST(ChunkFieldWriter, NumbersAreWrittenLowByteFirst) {
    WrittenBytes stream;
    stream.writeInt(0x4241);
    stream.writeLong(0x46454443);
    stream.writeSingle(1.5F);
    EXPECT_EQ(stream.bytes, std::string("ABCDEF\x00\x00\xC0\x3F", 10));
}

TEST(ChunkFieldWriter, TrueIsWrittenAsAllBits) {
    WrittenBytes stream;
    stream.writeBool(true);
    stream.writeBool(false);
    EXPECT_EQ(stream.bytes, std::string("\xFF\0", 2));
}

TEST(ChunkFieldWriter, StringsAreOneByteACharacterAndAZero) {
    WrittenBytes stream;
    EXPECT_EQ(stream.writeString("A\u20AC\u00EB"), "");
    EXPECT_EQ(stream.writeString(""), "");
    EXPECT_EQ(stream.bytes, std::string("A\x80\xEB\0\0", 5));
}

TEST(ChunkFieldWriter, ACharacterWithoutAByteIsAnErrorAfterThoseBeforeIt) {
    WrittenBytes stream;
    EXPECT_THROW(stream.writeString("ab\u2603c"), std::overflow_error);
    EXPECT_EQ(stream.bytes, "ab");
}

TEST(ChunkFieldWriter, AChunkWithAnEmptyBodyHasLengthZero) {
    WrittenBytes stream;
    stream.BeginChunk(7);
    stream.EndChunk();
    EXPECT_EQ(stream.bytes, std::string("\7\0\0\0\0\0", 6));
}

TEST(ChunkFieldWriter, TheLengthOfAnOuterChunkCountsTheChunksInside) {
    WrittenBytes stream;
    stream.BeginChunk(1);
    for (int inner = 0; inner < 2; ++inner) {
        stream.BeginChunk(2);
        stream.writeLong(5);
        stream.EndChunk();
    }
    stream.EndChunk();
    const std::string inner("\2\0\4\0\0\0\5\0\0\0", 10);
    EXPECT_EQ(stream.bytes, std::string("\1\0\x14\0\0\0", 6) + inner + inner);
}

TEST(ChunkFieldWriter, OneMoreThanAHundredOpenChunksFailAfterTheTypeIsWritten) {
    WrittenBytes stream;
    for (int depth = 0; depth < 100; ++depth)
        stream.BeginChunk(5);
    EXPECT_THROW(stream.BeginChunk(6), std::out_of_range);
    EXPECT_EQ(stream.bytes.substr(600), std::string("\6\0", 2));
}

TEST(ChunkFieldWriter, EndingOneChunkTooManyOverwritesTheStart) {
    WrittenBytes stream;
    stream.writeInt(0x1111);
    stream.writeLong(0x22222222);
    stream.EndChunk();
    EXPECT_EQ(stream.bytes, std::string("\2\0\0\0\x22\x22", 6));
    EXPECT_THROW(stream.EndChunk(), std::out_of_range);
    stream.writeInt(0x3333);
    EXPECT_EQ(stream.bytes, std::string("\2\0\0\0\x22\x22\x33\x33", 8)) << "the position stays";
}

TEST(ChunkFieldWriter, AChunkBegunAfterOneEndTooManyIsEndedLikeAnyOther) {
    WrittenBytes stream;
    stream.EndChunk(); // leaves one chunk fewer open than there are
    stream.BeginChunk(3);
    stream.EndChunk();
    EXPECT_EQ(stream.bytes, std::string("\3\0\0\0\0\0", 6));
}

} // namespace
} // namespace veltrix
