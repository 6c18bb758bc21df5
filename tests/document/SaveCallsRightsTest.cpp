#include "document/clsKorvelRFile.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/Processes.h"
#include "tests/document/Saves.h"
#include "tests/document/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace veltrix::test {
namespace {

namespace fs = std::filesystem;

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
        saveNumber(file.text);
        EXPECT_EQ(factsOf(file.path).st_mode & 07777, mode);
        EXPECT_EQ(bytesOf(file.path), newContent);
    }
}

TEST(SaveCallsRights, ANewFileHasTheModeThatTheUserWants) {
    const mode_t before = ::umask(0027);
    const OneFile file;
    saveNumber(file.text);
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
    EXPECT_EQ(SystemCalls::LastCreated(), 0600u) << "from the first moment on";
}

TEST(SaveCallsRights, AFileKeepsItsOwnerAndGroup) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root gives files away";
    const OneFile file;
    putBytes(file.path, oldContent);
    ASSERT_EQ(::chown(file.path.c_str(), 1234, 4321), 0);
    const ino_t before = factsOf(file.path).st_ino;
    saveNumber(file.text);
    EXPECT_EQ(factsOf(file.path).st_uid, 1234u);
    EXPECT_EQ(factsOf(file.path).st_gid, 4321u);
    EXPECT_NE(factsOf(file.path).st_ino, before) << "another file took its place";
}

/// As the system keeps it: owner rw-, user 1234 rw-, group r--, mask rw-, others ---.
const std::string accessList("\2\0\0\0"
                             "\1\0\6\0\xFF\xFF\xFF\xFF"
                             "\2\0\6\0\xD2\4\0\0"
                             "\4\0\4\0\xFF\xFF\xFF\xFF"
                             "\x10\0\6\0\xFF\xFF\xFF\xFF"
                             "\x20\0\0\0\xFF\xFF\xFF\xFF",
                             44);

TEST(SaveCallsRights, AFileKeepsItsAccessList) {
    const OneFile file;
    putBytes(file.path, oldContent);
    constexpr const char* name = "system.posix_acl_access";
    if (::setxattr(file.path.c_str(), name, accessList.data(), accessList.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    const mode_t mode = factsOf(file.path).st_mode;
    saveNumber(file.text);
    std::string kept(200, '\0');
    const ssize_t size = ::getxattr(file.path.c_str(), name, kept.data(), kept.size());
    ASSERT_GT(size, 0);
    kept.resize(static_cast<std::size_t>(size));
    EXPECT_EQ(kept, accessList);
    EXPECT_EQ(factsOf(file.path).st_mode, mode);
}

TEST(SaveCallsRights, AFolderThatGivesItsFilesAListDoesNotGiveItToAnOldFile) {
    const OneFile file;
    putBytes(file.path, oldContent);
    if (::setxattr(file.folder.Path().c_str(), "system.posix_acl_default", accessList.data(),
                   accessList.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    setMode(file.path, 0640);
    saveNumber(file.text);
    EXPECT_EQ(factsOf(file.path).st_mode & 07777, 0640u);
    EXPECT_LT(::getxattr(file.path.c_str(), "system.posix_acl_access", nullptr, 0), 0);
}

TEST(SaveCallsRights, AReadOnlyFileIsRefusedThoughItsFolderIsWritable) {
    FileOfEverybody file(0777, 0444);
    EXPECT_TRUE(wellAsOrdinaryUser(
        [&] { return errorOfSaving(file.text) == std::errc::permission_denied; }));
    EXPECT_EQ(bytesOf(file.path), oldContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, AFileInAReadOnlyFolderIsWrittenInPlace) {
    FileOfEverybody file(0555, 0666);
    const ino_t before = factsOf(file.path).st_ino;
    EXPECT_TRUE(wellAsOrdinaryUser([&] { return !errorOfSaving(file.text); }));
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(factsOf(file.path).st_ino, before);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, ANewFileInAReadOnlyFolderIsRefused) {
    FileOfEverybody file(0555, 0666);
    EXPECT_TRUE(wellAsOrdinaryUser([&] {
        return errorOfSaving(Utf8FromPath(file.folder.Path() / "nieuw.vtx")) ==
               std::errc::permission_denied;
    }));
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsRights, AFileThatMayNotBeLookedForCannotBeReadOrWritten) {
    FileOfEverybody file(0700, 0666);
    if (::geteuid() != 0)
        GTEST_SKIP() << "the folder is the user's own";
    EXPECT_TRUE(wellAsOrdinaryUser([&] {
        clsKorvelRFile reader;
        try {
            reader.OpenFile(file.text);
        } catch (const std::system_error& error) {
            return error.code() == std::errc::permission_denied &&
                   errorOfSaving(file.text) == std::errc::permission_denied;
        }
        return false;
    }));
}

TEST(SaveCallsRights, AFileThatMayBeWrittenButNotReadKeepsItsTail) {
    FileOfEverybody file(0777, 0222);
    EXPECT_TRUE(wellAsOrdinaryUser([&] { return !errorOfSaving(file.text); }));
    setMode(file.path, 0600);
    EXPECT_EQ(bytesOf(file.path), newContent);
}

TEST(SaveCallsRights, AFileOfSomebodyElseStaysHis) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "all files are the user's own";
    FileOfEverybody file(0777, 0666);
    EXPECT_TRUE(wellAsOrdinaryUser([&] { return !errorOfSaving(file.text); }));
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(factsOf(file.path).st_uid, 0u);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

} // namespace
} // namespace veltrix::test
