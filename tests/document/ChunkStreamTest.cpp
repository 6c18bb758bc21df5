#include "document/ChunkStream.h"

#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"

#include <gtest/gtest.h>

#include <string>

namespace veltrix {
namespace {

static_assert(ChunkReader<clsKorvelRFile> && !ChunkWriter<clsKorvelRFile>);
static_assert(ChunkWriter<clsKorvelWFile> && !ChunkReader<clsKorvelWFile>);
static_assert(ChunkReader<clsKorvelRWRam> && ChunkWriter<clsKorvelRWRam>);

template <ChunkWriter Writer>
void writeEverything(Writer& dest) {
    dest.BeginChunk(-9510);
    dest.writeInt(-2);
    dest.BeginChunk(4096);
    dest.writeLong(123456789);
    dest.writeBool(true);
    dest.writeBool(false);
    dest.EndChunk();
    dest.BeginChunk(8192);
    dest.writeString("EN-poort Ingang 1");
    dest.writeString("");
    dest.writeString("\u20AC \u00E9");
    dest.EndChunk();
    dest.writeSingle(-3.25F);
    dest.EndChunk();
}

template <ChunkReader Reader>
void expectEverything(Reader& src) {
    EXPECT_EQ(src.PeekChunkType(), -9510);
    src.GoIntoChunk();
    EXPECT_EQ(src.readInt(), -2);
    EXPECT_EQ(src.PeekChunkType(), 4096);
    src.GoIntoChunk();
    EXPECT_EQ(src.readLong(), 123456789);
    EXPECT_EQ(src.readBool(), -1);
    EXPECT_EQ(src.readBool(), 0);
    EXPECT_EQ(src.PeekChunkType(), 8192);
    EXPECT_EQ(src.PeekChunkType(), 8192);
    src.GoIntoChunk();
    EXPECT_EQ(src.readString(), "EN-poort Ingang 1");
    EXPECT_EQ(src.readString(), "");
    EXPECT_EQ(src.readString(), "\u20AC \u00E9");
    EXPECT_EQ(src.readSingle(), -3.25F);
}

std::string everythingInMemory() {
    clsKorvelRWRam ram;
    writeEverything(ram);
    const auto written = static_cast<std::ptrdiff_t>(clsKorvelRWRam::Size - ram.Remaining());
    return {ram.Data().begin(), ram.Data().begin() + written};
}

TEST(ChunkStream, AFileGetsTheBytesThatMemoryGetsAndGivesThemBack) {
    const test::OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writeEverything(writer);
    writer.CloseFile();
    EXPECT_EQ(test::bytesOf(file.path), everythingInMemory());
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    expectEverything(reader);
    EXPECT_EQ(reader.Remaining(), 0u);
}

TEST(ChunkStream, WhatWasWrittenToMemoryIsReadBack) {
    clsKorvelRWRam ram;
    writeEverything(ram);
    ram.ResetToStart();
    expectEverything(ram);
}

} // namespace
} // namespace veltrix
