#include "document/clsKorvelRFile.h"

#include "tests/document/Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace veltrix {
namespace {

using test::OneFile;
using test::putBytes;

template <typename Call>
std::error_code codeOf(Call call) {
    try {
        call();
    } catch (const std::system_error& error) {
        return error.code();
    }
    return {};
}

TEST(clsKorvelRFile, ReadingPastTheEndGivesZerosForEver) {
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

TEST(clsKorvelRFile, AStringWithoutAnEndEndsWithTheFile) {
    const OneFile file;
    putBytes(file.path, std::string(100000, 'a'));
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.readString(), std::string(100000, 'a'));
    EXPECT_EQ(reader.readString(), "");
}

TEST(clsKorvelRFile, AnEmptyFileReadsAsZeros) {
    const OneFile file;
    putBytes(file.path, "");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_EQ(reader.PeekChunkType(), 0);
    EXPECT_EQ(reader.readString(), "");
}

TEST(clsKorvelRFile, AFileThatGrowsWhileItIsReadEndsWhereItEnded) {
    const OneFile file;
    putBytes(file.path, "\1");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    putBytes(file.path, "\1\2\3\4");
    EXPECT_EQ(reader.readLong(), 1);
    EXPECT_EQ(reader.Remaining(), 0u);
}

TEST(clsKorvelRFile, AFileThatShrinksWhileItIsReadHasZerosBehindItsEnd) {
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

TEST(clsKorvelRFile, AMissingFileCannotBeRead) {
    const OneFile file;
    clsKorvelRFile reader;
    EXPECT_EQ(codeOf([&] { reader.OpenFile(file.text); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(codeOf([&] { reader.OpenFile(""); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(codeOf([&] { reader.readInt(); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelRFile, TheErrorNamesTheFile) {
    const OneFile file;
    clsKorvelRFile reader;
    try {
        reader.OpenFile(file.text);
        FAIL();
    } catch (const std::system_error& error) {
        EXPECT_NE(std::string(error.what()).find(file.text), std::string::npos);
    }
}

TEST(clsKorvelRFile, OpeningAnotherFileClosesTheFirst) {
    const OneFile first;
    const OneFile second;
    putBytes(first.path, "A");
    putBytes(second.path, "B");
    clsKorvelRFile reader;
    reader.OpenFile(first.text);
    EXPECT_EQ(reader.readInt(), 'A');
    reader.OpenFile(second.text);
    EXPECT_EQ(reader.readInt(), 'B');
}

TEST(clsKorvelRFile, AFailedOpeningClosesTheFileBefore) {
    const OneFile file;
    putBytes(file.path, "A");
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    EXPECT_THROW(reader.OpenFile(file.text + ".missing"), std::system_error);
    EXPECT_EQ(codeOf([&] { reader.readInt(); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelRFile, NothingCanBeReadWithoutAFile) {
    clsKorvelRFile reader;
    reader.CloseFile();
    EXPECT_EQ(codeOf([&] { reader.readBool(); }), std::errc::bad_file_descriptor);
    EXPECT_EQ(codeOf([&] { static_cast<void>(reader.PeekChunkType()); }),
              std::errc::bad_file_descriptor);
    EXPECT_EQ(reader.Remaining(), 0u);
    const OneFile file;
    putBytes(file.path, "abcd");
    reader.OpenFile(file.text);
    reader.CloseFile();
    EXPECT_EQ(codeOf([&] { reader.readLong(); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelRFile, AFolderIsNoFile) {
    const OneFile file;
    clsKorvelRFile reader;
    EXPECT_EQ(codeOf([&] { reader.OpenFile(Utf8FromPath(file.folder.Path())); }),
              std::errc::is_a_directory);
}

} // namespace
} // namespace veltrix
