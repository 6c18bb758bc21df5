#include "document/clsKorvelWFile.h"

#include "tests/document/Errors.h"
#include "tests/document/Files.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace veltrix::test {
namespace {

void save(const std::string& path, std::int32_t values) {
    clsKorvelWFile file;
    file.OpenFile(path);
    for (std::int32_t value = 1; value <= values; ++value)
        file.writeLong(value);
    file.CloseFile();
}

TEST(clsKorvelWFile, AShorterStreamLeavesTheTailOfALongerFile) {
    const OneFile file;
    save(file.text, 5);
    const std::string before = bytesOf(file.path);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeInt(0x4241);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "AB" + before.substr(2));
}

TEST(clsKorvelWFile, ATailLongerThanAnyBufferStaysWhole) {
    const OneFile file;
    std::string before(300001, 'x');
    for (std::size_t i = 0; i < before.size(); i += 97)
        before[i] = static_cast<char>(i % 251);
    putBytes(file.path, before);
    save(file.text, 1);
    EXPECT_EQ(bytesOf(file.path), std::string("\1\0\0\0", 4) + before.substr(4));
}

TEST(clsKorvelWFile, ALongerStreamMakesTheFileLonger) {
    const OneFile file;
    save(file.text, 1);
    save(file.text, 3);
    EXPECT_EQ(bytesOf(file.path), std::string("\1\0\0\0\2\0\0\0\3\0\0\0", 12));
}

TEST(clsKorvelWFile, AFileThatIsNotThereIsMadeOnceItIsClosed) {
    const OneFile file("caf\u00E9 \u20AC \u4E2D.vtx");
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeLong(7);
    EXPECT_FALSE(std::filesystem::exists(file.path)) << "half a file was to be seen";
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), std::string("\7\0\0\0", 4));
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(clsKorvelWFile, AnEmptyStreamMakesAnEmptyFileAndKeepsAFullOne) {
    const OneFile file;
    save(file.text, 0);
    EXPECT_EQ(bytesOf(file.path), "");
    save(file.text, 2);
    save(file.text, 0);
    EXPECT_EQ(bytesOf(file.path).size(), 8u);
}

TEST(clsKorvelWFile, OpeningForgetsTheOpenChunks) {
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

TEST(clsKorvelWFile, AWriterThatIsDestroyedClosesItsFile) {
    const OneFile file;
    {
        clsKorvelWFile writer;
        writer.OpenFile(file.text);
        writer.writeInt(0x4241);
    }
    EXPECT_EQ(bytesOf(file.path), "AB");
}

TEST(clsKorvelWFile, AStreamThatAnErrorCutsOffNeverReachesTheFile) {
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
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(clsKorvelWFile, AFileInAMissingFolderCannotBeWritten) {
    const OneFile file;
    clsKorvelWFile writer;
    EXPECT_EQ(errorOf([&] { writer.OpenFile(file.text + "/x/y.vtx"); }),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(errorOf([&] { writer.OpenFile(""); }), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(namesIn(file.folder.Path()).empty());
    putBytes(file.path, "a file where the path needs a folder");
    EXPECT_EQ(errorOf([&] { writer.OpenFile(file.text + "/y.vtx"); }), std::errc::not_a_directory);
}

TEST(clsKorvelWFile, OpeningAnotherFileClosesTheFirst) {
    const OneFile first;
    const OneFile second;
    clsKorvelWFile writer;
    writer.OpenFile(first.text);
    writer.writeInt(0x4241);
    writer.OpenFile(second.text);
    EXPECT_EQ(bytesOf(first.path), "AB");
    writer.writeInt(0x4443);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(second.path), "CD");
}

TEST(clsKorvelWFile, AFailedOpeningClosesTheFileBefore) {
    const OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeInt(0x4241);
    EXPECT_THROW(writer.OpenFile(Utf8FromPath(file.folder.Path() / "missing" / "x.vtx")),
                 std::system_error);
    EXPECT_EQ(bytesOf(file.path), "AB");
    EXPECT_EQ(errorOf([&] { writer.writeInt(1); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelWFile, NothingCanBeWrittenWithoutAFile) {
    clsKorvelWFile writer;
    writer.CloseFile();
    EXPECT_EQ(errorOf([&] { writer.writeInt(1); }), std::errc::bad_file_descriptor);
    EXPECT_EQ(errorOf([&] { writer.BeginChunk(1); }), std::errc::bad_file_descriptor);
    const OneFile file;
    writer.OpenFile(file.text);
    writer.CloseFile();
    writer.CloseFile();
    EXPECT_EQ(errorOf([&] { writer.writeBool(true); }), std::errc::bad_file_descriptor);
}

TEST(clsKorvelWFile, AFolderIsNoFile) {
    const OneFile file;
    const std::string folder = Utf8FromPath(file.folder.Path());
    clsKorvelWFile writer;
    EXPECT_EQ(errorOf([&] { writer.OpenFile(folder); }), std::errc::is_a_directory);
    EXPECT_EQ(errorOf([&] { writer.OpenFile(folder + "/"); }), std::errc::is_a_directory);
}

} // namespace
} // namespace veltrix::test
