#include "document/clsKorvelRFile.h"

#include "tests/document/Errors.h"
#include "tests/document/Files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace veltrix::test {
namespace {

/// A file of these bytes, opened to be read from its start.
struct FileBeingRead : OneFile {
    explicit FileBeingRead(const std::string& bytes) {
        putBytes(path, bytes);
        reader.OpenFile(text);
    }

    clsKorvelRFile reader;
};

TEST(clsKorvelRFile, ReadingPastTheEndGivesZerosForEver) {
    FileBeingRead file("\1");
    EXPECT_EQ(file.reader.PeekChunkType(), 1); // of which only the first byte is there
    EXPECT_EQ(file.reader.Remaining(), 1u);
    EXPECT_EQ(file.reader.readLong(), 1);
    EXPECT_EQ(file.reader.Remaining(), 0u);
    for (int times = 0; times < 3; ++times) {
        EXPECT_EQ(file.reader.readString(), "");
        EXPECT_EQ(file.reader.readInt(), 0);
        EXPECT_EQ(file.reader.readLong(), 0);
        EXPECT_EQ(file.reader.readBool(), 0);
        EXPECT_EQ(file.reader.readSingle(), 0.0F);
        EXPECT_EQ(file.reader.PeekChunkType(), 0);
        file.reader.GoIntoChunk();
    }
}

TEST(clsKorvelRFile, AStringWithoutAnEndEndsWithTheFile) {
    FileBeingRead file(std::string(100000, 'a'));
    EXPECT_EQ(file.reader.readString(), std::string(100000, 'a'));
    EXPECT_EQ(file.reader.readString(), "");
}

TEST(clsKorvelRFile, AnEmptyFileReadsAsZeros) {
    FileBeingRead file("");
    EXPECT_EQ(file.reader.PeekChunkType(), 0);
    EXPECT_EQ(file.reader.readString(), "");
}

TEST(clsKorvelRFile, AFileThatGrowsWhileItIsReadEndsWhereItEnded) {
    FileBeingRead file("\1");
    putBytes(file.path, "\1\2\3\4");
    EXPECT_EQ(file.reader.readLong(), 1);
    EXPECT_EQ(file.reader.Remaining(), 0u);
}

TEST(clsKorvelRFile, AFileThatShrinksWhileItIsReadHasZerosBehindItsEnd) {
    FileBeingRead file(std::string(100000, '\1'));
    file.reader.readLong();
    std::filesystem::resize_file(file.path, 4);
    for (int i = 0; i < 100000 / 4; ++i)
        file.reader.readLong();
    EXPECT_EQ(file.reader.readLong(), 0);
    EXPECT_EQ(file.reader.Remaining(), 0u);
}

TEST(clsKorvelRFile, AMissingFileCannotBeRead) {
    const OneFile file;
    clsKorvelRFile reader;
    EXPECT_EQ(errorOf([&] { reader.OpenFile(file.text); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(errorOf([&] { reader.OpenFile(""); }), std::errc::no_such_file_or_directory);
    EXPECT_EQ(errorOf([&] { reader.readInt(); }), std::errc::bad_file_descriptor);
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
    FileBeingRead file("A");
    EXPECT_EQ(file.reader.readInt(), 'A');
    const OneFile second;
    putBytes(second.path, "B");
    file.reader.OpenFile(second.text);
    EXPECT_EQ(file.reader.readInt(), 'B');
}

TEST(clsKorvelRFile, AFailedOpeningClosesTheFileBefore) {
    FileBeingRead file("A");
    EXPECT_THROW(file.reader.OpenFile(file.text + ".missing"), std::system_error);
    EXPECT_EQ(errorOf([&] { file.reader.readInt(); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelRFile, NothingCanBeReadWithoutAFile) {
    clsKorvelRFile reader;
    reader.CloseFile();
    EXPECT_EQ(errorOf([&] { reader.readBool(); }), std::errc::bad_file_descriptor);
    EXPECT_EQ(errorOf([&] { static_cast<void>(reader.PeekChunkType()); }),
              std::errc::bad_file_descriptor);
    EXPECT_EQ(reader.Remaining(), 0u);
    FileBeingRead file("abcd");
    file.reader.CloseFile();
    EXPECT_EQ(errorOf([&] { file.reader.readLong(); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelRFile, AFolderIsNoFile) {
    const OneFile file;
    clsKorvelRFile reader;
    EXPECT_EQ(errorOf([&] { reader.OpenFile(Utf8FromPath(file.folder.Path())); }),
              std::errc::is_a_directory);
}

} // namespace
} // namespace veltrix::test
