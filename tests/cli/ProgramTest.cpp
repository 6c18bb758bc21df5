#include "cli/Program.h"

#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"
#include "tests/cli/Process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace veltrix::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

using Arguments = std::vector<std::string>;

void expectFault(const Arguments& arguments, const std::string& expected) {
    const test::Outcome outcome = test::cli(arguments);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "veltrix-cli: " + expected + "\n");
}

TEST(Program, BadUseIsToldInOneLine) {
    expectFault({}, "a command is missing; the commands are run, info, check and render");
    expectFault({"spring"},
                "spring: unknown command; the commands are run, info, check and render");
    expectFault({"--hoog"},
                "--hoog: unknown command; the commands are run, info, check and render");
    expectFault({"run"}, "BOARD is required");
    expectFault({"info"}, "BOARD is required");
    expectFault({"check"}, "BOARD is required");
    expectFault({"render", "--out", "b.png"}, "BOARD is required");
    expectFault({"render", "b.vtx"}, "--out is required");
    expectFault({"run", "b.vtx", "--hoog"}, "--hoog: unexpected argument");
    expectFault({"info", "b.vtx", "--ticks", "5"}, "--ticks: unexpected argument");
    expectFault({"run", "b.vtx", "c.vtx"}, "c.vtx: unexpected argument");
    expectFault({"run", "b.vtx", "een\ntwee"}, "een\\x0Atwee: unexpected argument");
    for (const char* ticks : {"-1", "1.5", "x", "", "9223372036854775808"})
        expectFault({"run", "b.vtx", "--ticks", ticks},
                    std::string("--ticks: \"") + ticks + "\" is not a whole number from 0 on");
    expectFault({"run", "b.vtx", "--format", "xml"}, "--format: \"xml\" is none of csv, json, vcd");
    expectFault({"run", "b.vtx", "--rows", "ALL"}, "--rows: \"ALL\" is none of all, changes, last");
    expectFault({"render", "b.vtx", "--out", "b.png", "--scale", "4"},
                "--scale: \"4\" is none of 1, 2, 3");
}

TEST(Program, OptionWithoutItsValueIsAFault) {
    for (const char* option : {"--ticks", "--script", "--format", "--rows", "--out", "--save"}) {
        const test::Outcome outcome = test::cli({"run", "b.vtx", option});
        EXPECT_EQ(outcome.code, 2);
        EXPECT_THAT(outcome.errors, StartsWith(std::string("veltrix-cli: ") + option + ": "));
        EXPECT_EQ(test::linesOf(outcome.errors).size(), 1U);
    }
}

TEST(Program, OptionGivenTwiceIsAFault) {
    const test::Outcome outcome = test::cli({"run", "b.vtx", "--ticks", "1", "--ticks", "2"});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.errors, StartsWith("veltrix-cli: --ticks: "));
    EXPECT_EQ(test::linesOf(outcome.errors).size(), 1U);
}

TEST(Program, OptionsMayStandBeforeTheBoard) {
    test::Files files;
    const std::string board = files.Add("b.vtx", test::Document{}.Bytes());
    EXPECT_EQ(test::cli({"run", "--ticks=2", board}).output,
              test::cli({"run", board, "--ticks", "2"}).output);
}

TEST(Program, BoardMayBeNamedLikeACommandOrAnOption) {
    test::Files files;
    const std::string board = files.Add("b.vtx", test::Document{}.Bytes());
    EXPECT_EQ(test::cli({"check", "--", board}).code, 0);
    for (const Arguments& arguments :
         {Arguments{"check", "info"}, Arguments{"check", "--", "--help"}}) {
        const test::Outcome outcome = test::cli(arguments);
        EXPECT_EQ(outcome.errors,
                  "veltrix-cli: " + arguments.back() + ": No such file or directory\n");
    }
}

TEST(Program, HelpExplainsEveryCommand) {
    const test::Outcome all = test::cli({"--help"});
    EXPECT_EQ(all.code, 0);
    EXPECT_EQ(all.errors, "");
    EXPECT_THAT(all.output, AllOf(HasSubstr("run"), HasSubstr("info"), HasSubstr("check"),
                                  HasSubstr("render"), HasSubstr("exit code")));

    const test::Outcome run = test::cli({"run", "--help"});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.output,
                AllOf(HasSubstr("--ticks"), HasSubstr("--script"), HasSubstr("csv|json|vcd"),
                      HasSubstr("all|changes|last"), HasSubstr("--out"), HasSubstr("--save"),
                      HasSubstr("tick,control,value"), HasSubstr("Geheugen_Set_In")));
    EXPECT_THAT(test::cli({"render", "-h"}).output, HasSubstr("--scale"));
    EXPECT_THAT(test::cli({"check", "--help"}).output, HasSubstr("exit code is 1"));
    EXPECT_THAT(test::cli({"info", "--help"}).output, HasSubstr("naam1"));
}

TEST(Program, HelpFitsOnAScreen) {
    for (const char* command : {"run", "info", "check", "render"})
        for (const std::string& line : test::linesOf(test::cli({command, "--help"}).output))
            EXPECT_LE(line.size(), 100U) << line;
}

TEST(Program, VersionIsTold) {
    const test::Outcome outcome = test::cli({"--version"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.output, MatchesRegex("veltrix-cli [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

// The built program

TEST(BuiltProgram, GivesRowsOnItsStandardOutputAndItsExitCode) {
    test::Files files;
    const std::string board =
        files.Add("één.vtx", test::Document{.wires = {{"Zoemer", "Invertor Uitgang"}}}.Bytes());
    const test::Outcome outcome = test::runVeltrixCli({"run", board, "--ticks", "3"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, test::cli({"run", board, "--ticks", "3"}).output);
    EXPECT_EQ(test::linesOf(outcome.output).size(), 4U);
}

TEST(BuiltProgram, TellsFaultsOnItsStandardError) {
    const test::Outcome outcome = test::runVeltrixCli({"info", "wég.vtx"});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "veltrix-cli: wég.vtx: No such file or directory\n");
}

TEST(BuiltProgram, CheckEndsWithOneWhenThereIsSomethingToReport) {
    test::Files files;
    const std::string board = files.Add("b.vtx", test::Document{.wires = {{"a", "b"}}}.Bytes());
    EXPECT_EQ(test::runVeltrixCli({"check", board}).code, 1);
}

TEST(BuiltProgram, HelpAndVersionEndWell) {
    for (const Arguments& arguments :
         {Arguments{"--help"}, Arguments{"--version"}, Arguments{"run", "--help"}}) {
        const test::Outcome outcome = test::runVeltrixCli(arguments);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_NE(outcome.output, "");
    }
}

TEST(BuiltProgram, NoticesAStandardOutputThatIsFull) {
    test::Files files;
    const std::string board = files.Add("b.vtx", test::Document{}.Bytes());
    for (const Arguments& arguments :
         {Arguments{"run", board}, Arguments{"run", board, "--ticks", "10000"},
          Arguments{"info", board}}) {
        const test::Outcome outcome = test::runVeltrixCli(arguments, "/dev/full");
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(outcome.errors, "veltrix-cli: standard output: No space left on device\n");
    }
    EXPECT_EQ(test::runVeltrixCli({"--help"}, "/dev/full").code, 2);
}

} // namespace
} // namespace veltrix::cli
