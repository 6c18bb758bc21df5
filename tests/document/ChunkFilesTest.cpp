#include "document/ChunkStream.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace veltrix {
namespace {

using test::bytesOf;
using test::OneFile;
using test::putBytes;

static_assert(ChunkReader<clsKorvelRFile> && ChunkWriter<clsKorvelWFile>);
static_assert(!ChunkWriter<clsKorvelRFile> && !ChunkReader<clsKorvelWFile>);

template <typename Call>
std::error_code codeOf(Call call) {
    try {
        call();
    } catch (const std::system_error& error) {
        return error.code();
    }
    return {};
}

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

void save(const std::string& path, std::int32_t values) {
    clsKorvelWFile file;
    file.OpenFile(path);
    for (std::int32_t value = 1; value <= values; ++value)
        file.writeLong(value);
    file.CloseFile();
}

TEST(ChunkFiles, AFileAndMemoryGetTheSameBytesFromTheSameCalls) {
    const OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writeEverything(writer);
    writer.CloseFile();
    clsKorvelRWRam ram;
    writeEverything(ram);
    const auto written = static_cast<std::ptrdiff_t>(clsKorvelRWRam::Size - ram.Remaining());
    EXPECT_EQ(bytesOf(file.path), std::string(ram.Data().begin(), ram.Data().begin() + written));
}

TEST(ChunkFiles, WhatWasWrittenIsReadBackFromBoth) {
    const OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writeEverything(writer);
    writer.CloseFile();
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    expectEverything(reader);
    EXPECT_EQ(reader.Remaining(), 0u);
    clsKorvelRWRam ram;
    writeEverything(ram);
    ram.ResetToStart();
    expectEverything(ram);
}

TEST(ChunkFiles, AShorterStreamLeavesTheTailOfALongerFile) {
    const OneFile file;
    save(file.text, 5);
    const std::string before = bytesOf(file.path);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeInt(0x4241);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "AB" + before.substr(2));
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.readInt(), 0x4241);
}

TEST(ChunkFiles, ATailLongerThanAnyBufferStaysWhole) {
    const OneFile file;
    std::string before(300001, 'x');
    for (std::size_t i = 0; i < before.size(); i += 97)
        before[i] = static_cast<char>(i % 251);
    putBytes(file.path, before);
    save(file.text, 1);
    EXPECT_EQ(bytesOf(file.path), std::string("\1\0\0\0", 4) + before.substr(4));
}

TEST(ChunkFiles, ALongerStreamMakesTheFileLonger) {
    const OneFile file;
    save(file.text, 1);
    save(file.text, 3);
    EXPECT_EQ(bytesOf(file.path), std::string("\1\0\0\0\2\0\0\0\3\0\0\0", 12));
}

TEST(ChunkFiles, AFileThatIsNotThereIsMadeOnceItIsClosed) {
    const OneFile file("caf\u00E9 \u20AC \u4E2D.vtx");
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeLong(7);
    EXPECT_FALSE(std::filesystem::exists(file.path)) << "half a file was to be seen";
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), std::string("\7\0\0\0", 4));
    EXPECT_EQ(test::namesIn(file.folder.Path()).size(), 1u);
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.readLong(), 7);
}

TEST(ChunkFiles, AnEmptyStreamMakesAnEmptyFileAndKeepsAFullOne) {
    const OneFile file;
    save(file.text, 0);
    EXPECT_EQ(bytesOf(file.path), "");
    save(file.text, 2);
    save(file.text, 0);
    EXPECT_EQ(bytesOf(file.path).size(), 8u);
}

TEST(ChunkFiles, OpeningAnotherFileClosesTheFirst) {
    const OneFile first;
    const OneFile second;
    clsKorvelWFile writer;
    writer.OpenFile(first.text);
    writer.writeInt(1);
    writer.OpenFile(second.text);
    EXPECT_EQ(bytesOf(first.path), std::string("\1\0", 2));
    writer.writeInt(2);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(second.path), std::string("\2\0", 2));
    clsKorvelRFile reader;
    reader.OpenFile(first.text);
    EXPECT_EQ(reader.readInt(), 1);
    reader.OpenFile(second.text);
    EXPECT_EQ(reader.readInt(), 2);
}

TEST(ChunkFiles, OpeningForgetsTheOpenChunks) {
    const OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    for (int depth = 0; depth < 100; ++depth)
        writer.BeginChunk(1);
    EXPECT_THROW(writer.BeginChunk(1), std::out_of_range);
    writer.OpenFile(file.text);
    writer.BeginChunk(1);
    writer.EndChunk();
    writer.EndChunk(); // one too many
    EXPECT_THROW(writer.EndChunk(), std::out_of_range);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path).substr(0, 6), std::string("\2\0\0\0\0\0", 6));
}

TEST(ChunkFiles, ClosingWithoutAFileDoesNothing) {
    clsKorvelWFile writer;
    writer.CloseFile();
    clsKorvelRFile reader;
    reader.CloseFile();
    const OneFile file;
    writer.OpenFile(file.text);
    writer.CloseFile();
    writer.CloseFile();
}

TEST(ChunkFiles, AWriterThatIsDestroyedClosesItsFile) {
    const OneFile file;
    {
        clsKorvelWFile writer;
        writer.OpenFile(file.text);
        writer.writeInt(0x4241);
    }
    EXPECT_EQ(bytesOf(file.path), "AB");
}

TEST(ChunkFiles, AStreamThatAnErrorCutsOffNeverReachesTheFile) {
    const OneFile file;
    save(file.text, 2);
    const std::string before = bytesOf(file.path);
    try {
        clsKorvelWFile writer;
        writer.OpenFile(file.text);
        writer.BeginChunk(1);
        writer.writeString("\u2603");
        FAIL() << "the snowman has no byte";
    } catch (const std::overflow_error&) {
        EXPECT_EQ(bytesOf(file.path), before);
    }
    EXPECT_EQ(test::namesIn(file.folder.Path()).size(), 1u);
}

TEST(ChunkFiles, NothingCanBeReadOrWrittenWithoutAFile) {
    clsKorvelRFile reader;
    EXPECT_EQ(codeOf([&] { reader.readBool(); }), std::errc::bad_file_descriptor);
    EXPECT_EQ(codeOf([&] { static_cast<void>(reader.PeekChunkType()); }),
              std::errc::bad_file_descriptor);
    EXPECT_EQ(reader.Remaining(), 0u);
    clsKorvelWFile writer;
    EXPECT_EQ(codeOf([&] { writer.writeInt(1); }), std::errc::bad_file_descriptor);
    EXPECT_EQ(codeOf([&] { writer.BeginChunk(1); }), std::errc::bad_file_descriptor);
    const OneFile file;
    save(file.text, 1);
    reader.OpenFile(file.text);
    reader.CloseFile();
    EXPECT_EQ(codeOf([&] { reader.readLong(); }), std::errc::bad_file_descriptor);
}

TEST(ChunkFiles, ReadingPastTheEndGivesZerosForEver) {
    const OneFile file;
    putBytes(file.path, "\1");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.PeekChunkType(), 1); // of which only the first byte is there
    EXPECT_EQ(reader.Remaining(), 1u);
    EXPECT_EQ(reader.readLong(), 1);
    EXPECT_EQ(reader.Remaining(), 0u);
    for (int times = 0; times < 3; ++times) {
        EXPECT_EQ(reader.readString(), "");
        EXPECT_EQ(reader.readInt(), 0);
        EXPECT_EQ(reader.readLong(), 0);
        EXPECT_EQ(reader.readBool(), 0);
        EXPECT_EQ(reader.readSingle(), 0.0F);
        EXPECT_EQ(reader.PeekChunkType(), 0);
        reader.GoIntoChunk();
    }
}

TEST(ChunkFiles, AStringWithoutAnEndEndsWithTheFile) {
    const OneFile file;
    putBytes(file.path, std::string(100000, 'a'));
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.readString(), std::string(100000, 'a'));
    EXPECT_EQ(reader.readString(), "");
}

TEST(ChunkFiles, AnEmptyFileReadsAsZeros) {
    const OneFile file;
    putBytes(file.path, "");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.PeekChunkType(), 0);
    EXPECT_EQ(reader.readString(), "");
}

TEST(ChunkFiles, AFileThatGrowsWhileItIsReadEndsWhereItEnded) {
    const OneFile file;
    putBytes(file.path, "\1");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    putBytes(file.path, "\1\2\3\4");
    EXPECT_EQ(reader.readLong(), 1);
    EXPECT_EQ(reader.Remaining(), 0u);
}

TEST(ChunkFiles, AFileThatShrinksWhileItIsReadHasZerosBehindItsEnd) {
    const OneFile file;
    putBytes(file.path, std::string(100000, '\1'));
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    reader.readLong();
    std::filesystem::resize_file(file.path, 4);
    for (int i = 0; i < 100000 / 4; ++i)
        reader.readLong();
    EXPECT_EQ(reader.readLong(), 0);
    EXPECT_EQ(reader.Remaining(), 0u);
}

TEST(ChunkFiles, AMissingFileCannotBeRead) {
    const OneFile file;
    clsKorvelRFile reader;
    EXPECT_EQ(codeOf([&] { reader.OpenFile(file.text); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(codeOf([&] { reader.OpenFile(""); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(codeOf([&] { reader.readInt(); }), std::errc::bad_file_descriptor);
}

TEST(ChunkFiles, TheErrorNamesTheFile) {
    const OneFile file;
    clsKorvelRFile reader;
    try {
        reader.OpenFile(file.text);
        FAIL();
    } catch (const std::system_error& error) {
        EXPECT_NE(std::string(error.what()).find(file.text), std::string::npos);
    }
}

TEST(ChunkFiles, AFailedOpeningClosesTheFileBefore) {
    const OneFile file;
    save(file.text, 1);
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_THROW(reader.OpenFile(file.text + ".missing"), std::system_error);
    EXPECT_THROW(reader.readInt(), std::system_error);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeLong(9);
    EXPECT_THROW(writer.OpenFile(Utf8FromPath(file.folder.Path() / "missing" / "x.vtx")),
                 std::system_error);
    EXPECT_EQ(bytesOf(file.path), std::string("\x9\0\0\0", 4));
    EXPECT_THROW(writer.writeInt(1), std::system_error);
}

TEST(ChunkFiles, AFolderIsNoFile) {
    const OneFile file;
    const std::string folder = Utf8FromPath(file.folder.Path());
    clsKorvelRFile reader;
    EXPECT_EQ(codeOf([&] { reader.OpenFile(folder); }), std::errc::is_a_directory);
    clsKorvelWFile writer;
    EXPECT_EQ(codeOf([&] { writer.OpenFile(folder); }), std::errc::is_a_directory);
    EXPECT_EQ(codeOf([&] { writer.OpenFile(folder + "/"); }), std::errc::is_a_directory);
}

TEST(ChunkFiles, AFileInAMissingFolderCannotBeWritten) {
    const OneFile file;
    clsKorvelWFile writer;
    EXPECT_EQ(codeOf([&] { writer.OpenFile(file.text + "/x/y.vtx"); }),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(codeOf([&] { writer.OpenFile(""); }), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(test::namesIn(file.folder.Path()).empty());
    putBytes(file.path, "a file where the path needs a folder");
    EXPECT_EQ(codeOf([&] { writer.OpenFile(file.text + "/y.vtx"); }), std::errc::not_a_directory);
}

} // namespace
} // namespace veltrix
