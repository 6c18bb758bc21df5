#include "document/clsKorvelRWRam.h"

#include "document/ChunkStream.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace veltrix {
namespace {

static_assert(ChunkReader<clsKorvelRWRam> && ChunkWriter<clsKorvelRWRam>);

/// The first `count` bytes in the block, as text.
std::string start(const clsKorvelRWRam& ram, std::size_t count) {
    return {ram.Data().begin(), ram.Data().begin() + static_cast<std::ptrdiff_t>(count)};
}

std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values)
        text += static_cast<char>(value);
    return text;
}

/// Writes bytes until only `left` are left in the block.
void fill(clsKorvelRWRam& ram, std::uint64_t left) {
    while (ram.Remaining() > left)
        ram.writeBool(true);
}

TEST(clsKorvelRWRam, IsBornEmptyAtItsStart) {
    clsKorvelRWRam ram;
    EXPECT_EQ(ram.Remaining(), 64001u);
    for (const std::uint8_t byte : ram.Data())
        ASSERT_EQ(byte, 0);
    EXPECT_EQ(ram.readLong(), 0);
    EXPECT_EQ(ram.readString(), "");
}

TEST(clsKorvelRWRam, AChunkWithAnEmptyBodyHasLengthZero) {
    clsKorvelRWRam ram;
    ram.BeginChunk(7);
    ram.EndChunk();
    EXPECT_EQ(start(ram, 8), bytes({7, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(ram.Remaining(), 64001u - 6);
}

TEST(clsKorvelRWRam, AChunkHoldingOneLongHasLengthFour) {
    clsKorvelRWRam ram;
    ram.BeginChunk(1);
    ram.writeLong(0x01020304);
    ram.EndChunk();
    EXPECT_EQ(start(ram, 10), bytes({1, 0, 4, 0, 0, 0, 4, 3, 2, 1}));
}

TEST(clsKorvelRWRam, TheLengthOfAnOuterChunkCountsTheChunksInside) {
    clsKorvelRWRam ram;
    ram.BeginChunk(1);
    for (int inner = 0; inner < 2; ++inner) {
        ram.BeginChunk(2);
        ram.writeLong(5);
        ram.EndChunk();
    }
    ram.EndChunk();
    ram.ResetToStart();
    EXPECT_EQ(ram.readInt(), 1);
    EXPECT_EQ(ram.readLong(), 2 * (6 + 4));
}

TEST(clsKorvelRWRam, NegativeTypesAreTwosComplementLowByteFirst) {
    clsKorvelRWRam ram;
    ram.writeInt(-9510);
    EXPECT_EQ(start(ram, 2), bytes({0xDA, 0xDA}));
    ram.ResetToStart();
    EXPECT_EQ(ram.readInt(), -9510);
}

TEST(clsKorvelRWRam, IntegersComeBackAtTheirLimits) {
    clsKorvelRWRam ram;
    ram.writeInt(std::numeric_limits<std::int16_t>::min());
    ram.writeInt(std::numeric_limits<std::int16_t>::max());
    ram.writeLong(std::numeric_limits<std::int32_t>::min());
    ram.writeLong(std::numeric_limits<std::int32_t>::max());
    ram.writeLong(-1);
    ram.ResetToStart();
    EXPECT_EQ(ram.readInt(), std::numeric_limits<std::int16_t>::min());
    EXPECT_EQ(ram.readInt(), std::numeric_limits<std::int16_t>::max());
    EXPECT_EQ(ram.readLong(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ram.readLong(), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(ram.readLong(), -1);
}

TEST(clsKorvelRWRam, SinglesKeepEveryBit) {
    clsKorvelRWRam ram;
    ram.writeSingle(1.5F);
    EXPECT_EQ(start(ram, 4), bytes({0x00, 0x00, 0xC0, 0x3F}));
    ram.writeSingle(-0.0F);
    ram.writeSingle(std::numeric_limits<float>::quiet_NaN());
    ram.writeSingle(std::numeric_limits<float>::denorm_min());
    ram.ResetToStart();
    EXPECT_EQ(ram.readSingle(), 1.5F);
    const float zero = ram.readSingle();
    EXPECT_EQ(zero, 0.0F);
    EXPECT_TRUE(std::signbit(zero));
    EXPECT_TRUE(std::isnan(ram.readSingle()));
    EXPECT_EQ(ram.readSingle(), std::numeric_limits<float>::denorm_min());
}

TEST(clsKorvelRWRam, TrueIsWrittenAsAllBits) {
    clsKorvelRWRam ram;
    ram.writeBool(true);
    ram.writeBool(false);
    EXPECT_EQ(start(ram, 2), bytes({0xFF, 0x00}));
    ram.ResetToStart();
    EXPECT_EQ(ram.readBool(), -1);
    EXPECT_EQ(ram.readBool(), 0);
}

TEST(clsKorvelRWRam, EveryByteButAllBitsReadsAsFalse) {
    clsKorvelRWRam ram;
    for (std::int16_t byte = 0; byte < 255; ++byte)
        ram.writeInt(byte);
    ram.ResetToStart();
    for (int i = 0; i < 2 * 255; ++i)
        EXPECT_EQ(ram.readBool(), 0);
}

TEST(clsKorvelRWRam, AnEmptyStringIsOneZero) {
    clsKorvelRWRam ram;
    ram.writeInt(-1);
    ram.ResetToStart();
    EXPECT_EQ(ram.writeString(""), "");
    EXPECT_EQ(ram.Remaining(), 64001u - 1);
    EXPECT_EQ(start(ram, 2), bytes({0x00, 0xFF}));
    ram.ResetToStart();
    EXPECT_EQ(ram.readString(), "");
}

TEST(clsKorvelRWRam, StringsAreOneByteACharacterAndAZero) {
    clsKorvelRWRam ram;
    EXPECT_EQ(ram.writeString("A\u20AC\u00EB"), "");
    EXPECT_EQ(start(ram, 4), bytes({'A', 0x80, 0xEB, 0}));
    EXPECT_EQ(ram.Remaining(), 64001u - 4);
    ram.ResetToStart();
    EXPECT_EQ(ram.readString(), "A\u20AC\u00EB");
}

TEST(clsKorvelRWRam, ACharacterWithoutAByteIsAnErrorAfterThoseBeforeIt) {
    clsKorvelRWRam ram;
    EXPECT_THROW(ram.writeString("ab\u2603c"), std::overflow_error);
    EXPECT_EQ(start(ram, 3), bytes({'a', 'b', 0}));
    EXPECT_EQ(ram.Remaining(), 64001u - 2);
}

TEST(clsKorvelRWRam, PeekingTwiceGivesTheSameTypeAndMovesNothing) {
    clsKorvelRWRam ram;
    ram.BeginChunk(-9510);
    ram.EndChunk();
    ram.ResetToStart();
    EXPECT_EQ(ram.PeekChunkType(), -9510);
    EXPECT_EQ(ram.PeekChunkType(), -9510);
    EXPECT_EQ(ram.Remaining(), 64001u);
}

TEST(clsKorvelRWRam, GoingIntoAChunkPassesItsHeadAndChecksNothing) {
    clsKorvelRWRam ram;
    ram.writeInt(3);
    ram.writeLong(-77); // a length that cannot be
    ram.writeInt(9);
    ram.ResetToStart();
    ram.GoIntoChunk();
    EXPECT_EQ(ram.readInt(), 9);
}

TEST(clsKorvelRWRam, GoingBackToTheStartKeepsTheDataAndTheOpenChunks) {
    clsKorvelRWRam ram;
    ram.BeginChunk(1);
    ram.ResetToStart();
    EXPECT_EQ(ram.PeekChunkType(), 1);
    ram.EndChunk(); // the chunk at 0 was still open: its length ends where the position was
    EXPECT_EQ(ram.Remaining(), 64001u);
    EXPECT_EQ(ram.readInt(), 1);
    EXPECT_EQ(ram.readLong(), -6);
}

TEST(clsKorvelRWRam, WhatAnEarlierWriteLeftIsStillThere) {
    clsKorvelRWRam ram;
    ram.writeLong(0x44434241);
    ram.ResetToStart();
    ram.writeInt(0x7A79);
    EXPECT_EQ(start(ram, 4), "yzCD");
}

TEST(clsKorvelRWRam, TheByteBehindTheLastOneFailsAndAllOthersStay) {
    const auto ram = std::make_unique<clsKorvelRWRam>();
    fill(*ram, 0);
    EXPECT_EQ(ram->Remaining(), 0u);
    EXPECT_THROW(ram->writeBool(false), std::out_of_range);
    EXPECT_THROW(ram->writeBool(false), std::out_of_range);
    EXPECT_EQ(ram->Remaining(), 0u);
    for (const std::uint8_t byte : ram->Data())
        ASSERT_EQ(byte, 0xFF);
    EXPECT_THROW(ram->readBool(), std::out_of_range);
    EXPECT_THROW(ram->readString(), std::out_of_range);
    EXPECT_THROW(static_cast<void>(ram->PeekChunkType()), std::out_of_range);
}

TEST(clsKorvelRWRam, AValueThatDoesNotFitIsWrittenAsFarAsItDoes) {
    clsKorvelRWRam ram;
    fill(ram, 3);
    EXPECT_THROW(ram.writeLong(0x04030201), std::out_of_range);
    EXPECT_EQ(ram.Remaining(), 0u);
    EXPECT_EQ(ram.Data()[63998], 1);
    EXPECT_EQ(ram.Data()[63999], 2);
    EXPECT_EQ(ram.Data()[64000], 3);
}

TEST(clsKorvelRWRam, AValueAtTheEndIsReadAsFarAsItGoesBeforeItFails) {
    clsKorvelRWRam ram;
    fill(ram, 1);
    EXPECT_THROW(ram.readInt(), std::out_of_range);
    EXPECT_EQ(ram.Remaining(), 0u);
}

TEST(clsKorvelRWRam, AHundredChunksCanBeOpen) {
    clsKorvelRWRam ram;
    for (int depth = 0; depth < 100; ++depth)
        ram.BeginChunk(5);
    for (int depth = 0; depth < 100; ++depth)
        ram.EndChunk();
    EXPECT_EQ(ram.Remaining(), 64001u - 600);
    ram.ResetToStart();
    ram.readInt();
    EXPECT_EQ(ram.readLong(), 600 - 6);
}

TEST(clsKorvelRWRam, OneMoreThanAHundredChunksFailsAfterItsTypeIsWritten) {
    clsKorvelRWRam ram;
    for (int depth = 0; depth < 100; ++depth)
        ram.BeginChunk(5);
    EXPECT_THROW(ram.BeginChunk(6), std::out_of_range);
    EXPECT_EQ(ram.Remaining(), 64001u - 602);
    EXPECT_EQ(ram.Data()[600], 6);
    EXPECT_EQ(ram.Data()[602], 0);
}

TEST(clsKorvelRWRam, EndingOneChunkTooManyOverwritesTheStart) {
    clsKorvelRWRam ram;
    ram.writeInt(0x1111);
    ram.writeLong(0x22222222);
    ram.EndChunk();
    EXPECT_EQ(ram.Remaining(), 64001u - 6);
    EXPECT_EQ(start(ram, 6), bytes({6 - 4, 0, 0, 0, 0x22, 0x22}));
    EXPECT_THROW(ram.EndChunk(), std::out_of_range);
    EXPECT_EQ(ram.Remaining(), 64001u - 6);
}

TEST(clsKorvelRWRam, AChunkBegunAfterOneEndTooManyIsEndedLikeAnyOther) {
    clsKorvelRWRam ram;
    ram.EndChunk(); // leaves one chunk fewer open than there are
    ram.BeginChunk(3);
    ram.EndChunk();
    EXPECT_EQ(ram.Remaining(), 64001u - 6);
    EXPECT_EQ(start(ram, 6), bytes({3, 0, 0, 0, 0, 0}));
}

} // namespace
} // namespace veltrix
