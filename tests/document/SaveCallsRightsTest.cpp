#include "document/clsKorvelRFile.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/Processes.h"
#include "tests/document/SystemCalls.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace veltrix {
namespace {

using test::bytesOf;
using test::namesIn;
using test::OneFile;
using test::putBytes;
namespace fs = std::filesystem;

const std::string oldContent = "ABCDEFGH";
const std::string newContent = std::string("\1\0\0\0", 4) + "EFGH";

void save(const std::string& path) {
    clsKorvelWFile file;
    file.OpenFile(path);
    file.writeLong(1);
    file.CloseFile();
}

std::error_code errorOf(const std::string& path) {
    try {
        save(path);
    } catch (const std::system_error& error) {
        return error.code();
    }
    return {};
}

struct stat factsOf(const fs::path& path) {
    struct stat facts {};

    if (::lstat(path.c_str(), &facts) != 0)
        throw std::system_error(errno, std::generic_category(), path);
    return facts;
}

void setMode(const fs::path& path, mode_t mode) {
    if (::chmod(path.c_str(), mode) != 0)
        throw std::system_error(errno, std::generic_category(), path);
}

/// A file that an ordinary user may write, in a folder that lets him make files or not.
struct FileOfEverybody : OneFile {
    explicit FileOfEverybody(mode_t folderMode, mode_t fileMode) {
        putBytes(path, oldContent);
        setMode(path, fileMode);
        setMode(folder.Path(), folderMode);
    }

    // The folder may belong to the ordinary user who runs the tests.
    ~FileOfEverybody() { setMode(folder.Path(), 0700); }

    FileOfEverybody(const FileOfEverybody&) = delete;
    FileOfEverybody& operator=(const FileOfEverybody&) = delete;
};

TEST(SaveCallsRights, AFileKeepsItsMode) {
    for (const mode_t mode : {0600u, 0640u, 0664u, 0666u, 0755u}) {
        const OneFile file;
        putBytes(file.path, oldContent);
        setMode(file.path, mode);
        save(file.text);
        EXPECT_EQ(factsOf(file.path).st_mode & 07777, mode);
        EXPECT_EQ(bytesOf(file.path), newContent);
    }
}

TEST(SaveCallsRights, ANewFileHasTheModeThatTheUserWants) {
    const mode_t before = ::umask(0027);
    const OneFile file;
    save(file.text);
    ::umask(before);
    EXPECT_EQ(factsOf(file.path).st_mode & 07777, 0640u);
}

TEST(SaveCallsRights, WhileItIsWrittenNobodyElseReadsAPrivateFile) {
    const OneFile file;
    putBytes(file.path, oldContent);
    setMode(file.path, 0600);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    for (const std::string& name : namesIn(file.folder.Path()))
        EXPECT_EQ(factsOf(file.folder.Path() / name).st_mode & 0077, 0u) << name;
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 2u);
    EXPECT_EQ(test::SystemCalls::LastCreated(), 0600u) << "from the first moment on";
}

TEST(SaveCallsRights, AFileKeepsItsOwnerAndGroup) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root gives files away";
    const OneFile file;
    putBytes(file.path, oldContent);
    ASSERT_EQ(::chown(file.path.c_str(), 1234, 4321), 0);
    const ino_t before = factsOf(file.path).st_ino;
    save(file.text);
    EXPECT_EQ(factsOf(file.path).st_uid, 1234u);
    EXPECT_EQ(factsOf(file.path).st_gid, 4321u);
    EXPECT_NE(factsOf(file.path).st_ino, before) << "another file took its place";
}

TEST(SaveCallsRights, AFileKeepsItsAccessList) {
    const OneFile file;
    putBytes(file.path, oldContent);
    // Version 2; owner rw-, user 1234 rw-, group r--, mask rw-, others ---.
    const auto entry = [](int tag, int rights, std::uint32_t id) {
        std::string bytes{static_cast<char>(tag), 0, static_cast<char>(rights), 0};
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(id >> shift & 0xFF);
        return bytes;
    };
    constexpr std::uint32_t none = 0xFFFFFFFF;
    const std::string list = std::string("\2\0\0\0", 4) + entry(1, 6, none) + entry(2, 6, 1234) +
                             entry(4, 4, none) + entry(16, 6, none) + entry(32, 0, none);
    constexpr const char* name = "system.posix_acl_access";
    if (::setxattr(file.path.c_str(), name, list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    const mode_t mode = factsOf(file.path).st_mode;
    save(file.text);
    std::string kept(200, '\0');
    const ssize_t size = ::getxattr(file.path.c_str(), name, kept.data(), kept.size());
    ASSERT_GT(size, 0);
    kept.resize(static_cast<std::size_t>(size));
    EXPECT_EQ(kept, list);
    EXPECT_EQ(factsOf(file.path).st_mode, mode);
}

TEST(SaveCallsRights, AFolderThatGivesItsFilesAListDoesNotGiveItToAnOldFile) {
    const OneFile file;
    putBytes(file.path, oldContent);
    const std::string list("\2\0\0\0"
                           "\1\0\6\0\xFF\xFF\xFF\xFF"
                           "\2\0\6\0\xD2\4\0\0"
                           "\4\0\4\0\xFF\xFF\xFF\xFF"
                           "\x10\0\6\0\xFF\xFF\xFF\xFF"
                           "\x20\0\0\0\xFF\xFF\xFF\xFF",
                           44);
    if (::setxattr(file.folder.Path().c_str(), "system.posix_acl_default", list.data(), list.size(),
                   0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    setMode(file.path, 0640);
    save(file.text);
    EXPECT_EQ(factsOf(file.path).st_mode & 07777, 0640u);
    EXPECT_LT(::getxattr(file.path.c_str(), "system.posix_acl_access", nullptr, 0), 0);
}

TEST(SaveCallsRights, AReadOnlyFileIsRefusedThoughItsFolderIsWritable) {
    FileOfEverybody file(0777, 0444);
    EXPECT_TRUE(test::wellAsOrdinaryUser(
        [&] { return errorOf(file.text) == std::errc::permission_denied; }));
    EXPECT_EQ(bytesOf(file.path), oldContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, AFileInAReadOnlyFolderIsWrittenInPlace) {
    FileOfEverybody file(0555, 0666);
    const ino_t before = factsOf(file.path).st_ino;
    EXPECT_TRUE(test::wellAsOrdinaryUser([&] { return !errorOf(file.text); }));
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(factsOf(file.path).st_ino, before);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, ANewFileInAReadOnlyFolderIsRefused) {
    FileOfEverybody file(0555, 0666);
    EXPECT_TRUE(test::wellAsOrdinaryUser([&] {
        return errorOf(Utf8FromPath(file.folder.Path() / "nieuw.vtx")) ==
               std::errc::permission_denied;
    }));
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, AFileThatMayNotBeLookedForCannotBeReadOrWritten) {
    FileOfEverybody file(0700, 0666);
    if (::geteuid() != 0)
        GTEST_SKIP() << "the folder is the user's own";
    EXPECT_TRUE(test::wellAsOrdinaryUser([&] {
        clsKorvelRFile reader;
        try {
            reader.OpenFile(file.text);
        } catch (const std::system_error& error) {
            return error.code() == std::errc::permission_denied &&
                   errorOf(file.text) == std::errc::permission_denied;
        }
        return false;
    }));
}

TEST(SaveCallsRights, AFileThatMayBeWrittenButNotReadKeepsItsTail) {
    FileOfEverybody file(0777, 0222);
    EXPECT_TRUE(test::wellAsOrdinaryUser([&] { return !errorOf(file.text); }));
    setMode(file.path, 0600);
    EXPECT_EQ(bytesOf(file.path), newContent);
}

TEST(SaveCallsRights, AFileOfSomebodyElseStaysHis) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "all files are the user's own";
    FileOfEverybody file(0777, 0666);
    EXPECT_TRUE(test::wellAsOrdinaryUser([&] { return !errorOf(file.text); }));
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(factsOf(file.path).st_uid, 0u);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, ALinkStaysALinkAndItsFileIsWritten) {
    const OneFile file;
    const fs::path folder = file.folder.Path();
    fs::create_directory(folder / "map");
    putBytes(folder / "map" / "echt.vtx", oldContent);
    fs::create_symlink("map/tussen.vtx", file.path);
    fs::create_symlink(folder / "map" / "echt.vtx", folder / "map" / "tussen.vtx");
    save(file.text);
    EXPECT_TRUE(fs::is_symlink(file.path));
    EXPECT_TRUE(fs::is_symlink(folder / "map" / "tussen.vtx"));
    EXPECT_EQ(bytesOf(folder / "map" / "echt.vtx"), newContent);
    EXPECT_EQ(namesIn(folder).size(), 2u);
    EXPECT_EQ(namesIn(folder / "map").size(), 2u);
}

TEST(SaveCallsRights, ALinkToNothingMakesWhatItLinksTo) {
    const OneFile file;
    fs::create_symlink("echt.vtx", file.path);
    save(file.text);
    EXPECT_TRUE(fs::is_symlink(file.path));
    EXPECT_EQ(bytesOf(file.folder.Path() / "echt.vtx"), newContent.substr(0, 4));
}

TEST(SaveCallsRights, LinksInARingAreAnError) {
    const OneFile file;
    fs::create_symlink("ander.vtx", file.path);
    fs::create_symlink("bord.vtx", file.folder.Path() / "ander.vtx");
    EXPECT_EQ(errorOf(file.text), std::errc::too_many_symbolic_link_levels);
}

TEST(SaveCallsRights, AFileOfTwoNamesKeepsBoth) {
    const OneFile file;
    putBytes(file.path, oldContent);
    fs::create_hard_link(file.path, file.folder.Path() / "ander.vtx");
    save(file.text);
    EXPECT_EQ(bytesOf(file.folder.Path() / "ander.vtx"), newContent);
    EXPECT_EQ(fs::hard_link_count(file.path), 2u);
}

TEST(SaveCallsRights, AFileThatVanishesWhileItIsWrittenIsThereAgain) {
    const OneFile file;
    putBytes(file.path, oldContent);
    SaveCalls& calls = PlatformSaveCalls();
    const SaveCalls::File open = *calls.OpenToWrite(file.path);
    EXPECT_TRUE(calls.IsReplaceable(open));
    fs::remove(file.path);
    EXPECT_TRUE(calls.IsReplaceable(open)) << "what is written into it would be lost";
    calls.Close(open);
    putBytes(file.path, oldContent);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeLong(1);
    fs::remove(file.path);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), newContent);
}

TEST(SaveCallsRights, WhatAKilledSaveLeftIsRemoved) {
    const OneFile file;
    putBytes(file.path, oldContent);
    const fs::path left = file.folder.Path() / ".bord.vtx.veltrix-new";
    putBytes(left, "half of someth");
    setMode(left, 0400);
    save(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, WhatStandsThereWithoutBeingAFileIsLeftAlone) {
    const OneFile file;
    putBytes(file.path, oldContent);
    const fs::path folder = file.folder.Path();
    putBytes(folder / "ander.txt", "untouched");
    fs::create_symlink("ander.txt", folder / ".bord.vtx.veltrix-new");
    fs::create_directory(folder / ".bord.vtx.veltrix-new-2");
    save(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(bytesOf(folder / "ander.txt"), "untouched");
    EXPECT_EQ(namesIn(folder).size(), 4u);
}

TEST(SaveCallsRights, TwoSavesOfOneFileDoNotDisturbEachOther) {
    const OneFile file;
    putBytes(file.path, oldContent);
    clsKorvelWFile first;
    first.OpenFile(file.text);
    first.writeLong(0x31313131);
    clsKorvelWFile second;
    second.OpenFile(file.text);
    second.writeLong(0x32323232);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 3u);
    second.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "2222EFGH");
    first.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "1111EFGH");
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, TheLongestNameThatASystemKnowsCanBeSaved) {
    const OneFile file(std::string(251, 'a') + ".vtx");
    save(file.text);
    putBytes(file.path, oldContent);
    save(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
    EXPECT_EQ(errorOf(Utf8FromPath(file.folder.Path() / std::string(256, 'a'))),
              std::errc::filename_too_long);
}

TEST(SaveCallsRights, ANameInTheCurrentFolderNeedsNoFolder) {
    const OneFile file;
    const fs::path before = fs::current_path();
    fs::current_path(file.folder.Path());
    save("bord.vtx");
    fs::current_path(before);
    EXPECT_EQ(bytesOf(file.path).size(), 4u);
}

TEST(SaveCallsDevices, AFullDeviceFailsWhenItIsClosed) {
    clsKorvelWFile file;
    file.OpenFile("/dev/full");
    file.writeLong(1);
    try {
        file.CloseFile();
        FAIL() << "the device took what it has no room for";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_space_on_device);
    }
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_NO_THROW(file.CloseFile());
}

TEST(SaveCallsDevices, ADeviceIsWrittenAndStaysADevice) {
    save("/dev/null");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    const OneFile link;
    fs::create_symlink("/dev/null", link.path);
    save(link.text);
    EXPECT_TRUE(fs::is_symlink(link.path));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(SaveCallsDevices, APipeGetsTheStream) {
    const OneFile file;
    ASSERT_EQ(::mkfifo(file.path.c_str(), 0600), 0);
    const int reader = ::open(file.path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    save(file.text);
    char bytes[8] = {};
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 4);
    EXPECT_EQ(bytes[0], 1);
    ::close(reader);
}

TEST(SaveCallsDevices, APipeThatNobodyReadsIsRefusedAtOnce) {
    const OneFile file;
    ASSERT_EQ(::mkfifo(file.path.c_str(), 0600), 0);
    EXPECT_EQ(errorOf(file.text), std::errc::no_such_device_or_address);
}

TEST(SaveCallsDevices, WhatHasNoEndIsNotRead) {
    const OneFile pipe;
    ASSERT_EQ(::mkfifo(pipe.path.c_str(), 0600), 0);
    for (const std::string& path : {std::string("/dev/zero"), std::string("/dev/tty"), pipe.text}) {
        clsKorvelRFile file;
        EXPECT_THROW(file.OpenFile(path), std::system_error) << path;
    }
}

} // namespace
} // namespace veltrix
