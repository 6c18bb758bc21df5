#include "app/qt/QtProgramStart.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace veltrix {
namespace {

TEST(QtProgramStart, AProgramIsStartedWithItsArguments) {
    const test::TempFolder folder;
    const std::filesystem::path made = folder.Path() / "two words";
    EXPECT_TRUE(QtProgramStart().Start("touch \"" + made.string() + "\""));
    EXPECT_TRUE(test::waitUntil([&] { return std::filesystem::exists(made); }));
}

TEST(QtProgramStart, NobodyWaitsForIt) {
    const test::TempFolder folder;
    const std::filesystem::path pipe = folder.Path() / "pipe";
    ASSERT_TRUE(QtProgramStart().Start("mkfifo " + pipe.string()));
    ASSERT_TRUE(test::waitUntil([&] { return std::filesystem::exists(pipe); }));
    // It ends when somebody writes into the pipe, which is after the start has come back.
    EXPECT_TRUE(QtProgramStart().Start("head -c 1 " + pipe.string()));
    int writer = -1; // cannot be opened before there is a reader
    ASSERT_TRUE(test::waitUntil([&] {
        writer = ::open(pipe.c_str(), O_WRONLY | O_NONBLOCK);
        return writer >= 0;
    }));
    EXPECT_EQ(::write(writer, "x", 1), 1);
    ::close(writer);
}

TEST(QtProgramStart, WhatIsNotThereDoesNotStart) {
    EXPECT_FALSE(QtProgramStart().Start("veltrix-has-no-such-program sound"));
    EXPECT_FALSE(QtProgramStart().Start(""));
    EXPECT_FALSE(QtProgramStart().Start("   "));
}

} // namespace
} // namespace veltrix
