#include "cli/Output.h"

#include "tests/cli/Cli.h"
#include "tests/cli/Faults.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <sstream>

namespace veltrix::cli {
namespace {

std::string written(const std::function<void(Output&)>& write) {
    std::ostringstream stream;
    Output output(stream, "test");
    write(output);
    output.Close();
    return stream.str();
}

TEST(Output, WritesNumbers) {
    EXPECT_EQ(written([](Output& output) {
                  for (const std::int64_t number :
                       {std::int64_t{0}, std::int64_t{-50}, INT64_MIN, INT64_MAX}) {
                      output.PutNumber(number);
                      output.Put(' ');
                  }
              }),
              "0 -50 -9223372036854775808 9223372036854775807 ");
}

TEST(Output, WritesTheLowestBits) {
    EXPECT_EQ(written([](Output& output) {
                  output.PutBinary(9, 4);
                  output.Put(' ');
                  output.PutBinary(-2, 32);
              }),
              "1001 11111111111111111111111111111110");
}

TEST(Output, KeepsTheOrderAcrossItsBuffer) {
    std::string expected;
    const std::string text(4321, 't');
    const std::string found = written([&](Output& output) {
        for (std::int64_t i = 0; i < 100; ++i) {
            output.Put(text);
            output.PutNumber(i * 1000003);
            output.Put('\n');
            expected += text + std::to_string(i * 1000003) + '\n';
        }
    });
    EXPECT_EQ(found, expected);
}

TEST(Output, TextLongerThanItsBufferIsWhole) {
    const std::string text(1000000, 'x');
    EXPECT_EQ(written([&](Output& output) { output.Put(text); }), text);
}

TEST(Output, ReplacesTheContentOfAFile) {
    test::Files files;
    const std::string path = files.Add("één.csv", "a longer text than the new one");
    Output output(path);
    output.Put("new");
    output.Close();
    EXPECT_EQ(test::bytesOf(path), "new");
}

TEST(Output, WhatCannotBeWrittenIsAFault) {
    const test::Files files;
    const std::string missing = files.Path("weg/rijen.csv");
    EXPECT_EQ(test::faultOf([&] { Output output(missing); }),
              missing + ": No such file or directory");
    EXPECT_EQ(test::faultOf([] {
                  Output output("/dev/full");
                  output.Put("a few bytes");
                  output.Close();
              }),
              "/dev/full: No space left on device");
    EXPECT_EQ(test::faultOf([] {
                  Output output("/dev/full");
                  output.Put(std::string(1000000, 'x'));
              }),
              "/dev/full: No space left on device");
}

TEST(Output, StreamThatFailsIsAFault) {
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    Output output(stream, "standard output");
    EXPECT_EQ(test::faultOf([&] { output.Close(); }), "standard output: cannot be written");
}

} // namespace
} // namespace veltrix::cli
