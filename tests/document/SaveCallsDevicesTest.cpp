#include "document/clsKorvelRFile.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/Saves.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace veltrix::test {
namespace {

namespace fs = std::filesystem;

TEST(SaveCallsDevices, AFullDeviceFailsWhenItIsClosed) {
    clsKorvelWFile file;
    file.OpenFile("/dev/full");
    file.writeLong(1);
    EXPECT_EQ(errorOf([&] { file.CloseFile(); }), std::errc::no_space_on_device);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_NO_THROW(file.CloseFile());
}

TEST(SaveCallsDevices, ADeviceIsWrittenAndStaysADevice) {
    saveNumber("/dev/null");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    const OneFile link;
    fs::create_symlink("/dev/null", link.path);
    saveNumber(link.text);
    EXPECT_TRUE(fs::is_symlink(link.path));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(SaveCallsDevices, APipeGetsTheStream) {
    const OneFile file;
    ASSERT_EQ(::mkfifo(file.path.c_str(), 0600), 0);
    const int reader = ::open(file.path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    saveNumber(file.text);
    char bytes[8] = {};
    EXPECT_EQ(::read(reader, bytes, sizeof bytes), 4);
    EXPECT_EQ(bytes[0], 1);
    ::close(reader);
}

TEST(SaveCallsDevices, APipeThatNobodyReadsIsRefusedAtOnce) {
    const OneFile file;
    ASSERT_EQ(::mkfifo(file.path.c_str(), 0600), 0);
    EXPECT_EQ(errorOfSaving(file.text), std::errc::no_such_device_or_address);
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
} // namespace veltrix::test
