#include "document/clsKorvelRWRam.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace veltrix {
namespace {

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

TEST(clsKorvelRWRam, PeekingTwiceGivesTheSameTypeAndMovesNothing) {
    clsKorvelRWRam ram;
    ram.writeInt(-9510);
    ram.ResetToStart();
    EXPECT_EQ(ram.PeekChunkType(), -9510);
    EXPECT_EQ(ram.PeekChunkType(), -9510);
    EXPECT_EQ(ram.Remaining(), 64001u);
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
    EXPECT_EQ(std::string(ram.Data().begin(), ram.Data().begin() + 4), "yzCD");
    EXPECT_EQ(ram.Remaining(), 64001u - 2);
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

} // namespace
} // namespace veltrix
