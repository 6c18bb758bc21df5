#include "cli/InputFile.h"

#include "tests/cli/Cli.h"
#include "tests/cli/Faults.h"

#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

std::string faultOf(const std::string& path) {
    return test::faultOf([&] { (void)ReadInputFile(path); });
}

TEST(InputFile, GivesAllBytes) {
    test::Files files;
    std::string bytes(200000, 'x');
    bytes[70000] = '\0';
    bytes[70001] = '\r';
    EXPECT_EQ(ReadInputFile(files.Add("één.csv", bytes)), bytes);
    EXPECT_EQ(ReadInputFile(files.Add("leeg.csv", "")), "");
}

TEST(InputFile, WhatCannotBeReadIsAFault) {
    const test::Files files;
    EXPECT_EQ(faultOf(files.Path("weg")), files.Path("weg") + ": No such file or directory");
    EXPECT_EQ(faultOf(files.Path("")), files.Path("") + ": is a folder");
    EXPECT_EQ(faultOf(""), ": No such file or directory");
}

} // namespace
} // namespace veltrix::cli
