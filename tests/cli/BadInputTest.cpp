// Documents that are no boards, or boards that nobody could build: every command says in one line
// what is wrong and where, or does what it can, and never falls over.

#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"
#include "tests/cli/Process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace veltrix::test {
namespace {

using testing::MatchesRegex;

const Wires someWires = {{"Drukknop 1 Uit Geel", "LED 1 Ingang"},
                         {"LED 1 Ingang", "Zoemer"},
                         {"Sensor 1 Uit Geel", "Relais Ingang 1 (in/uit)"}};

struct BadInput : testing::Test {
    std::vector<std::vector<std::string>> commands(const std::string& board) const {
        return {{"run", board, "--ticks", "20", "--save", files.Path("saved.vtx")},
                {"info", board},
                {"check", board},
                {"render", board, "--ticks", "20", "--out", files.Path("picture.png")}};
    }

    /// Every command does its work, whatever there is to say about it.
    void expectRuns(const Document& document) {
        const std::string board = files.Add("b.vtx", document.Bytes());
        for (const auto& command : commands(board)) {
            const Outcome outcome = cli(command);
            EXPECT_EQ(outcome.code, command[0] == "check" && outcome.output != "" ? 1 : 0)
                << outcome.errors;
        }
        EXPECT_EQ(bytesOf(files.Path("saved.vtx")).size(), document.Bytes().size());
        EXPECT_EQ(runVeltrixCli({"run", board, "--rows", "last"}).code, 0);
    }

    Files files;
};

TEST_F(BadInput, AFaultyDocumentIsFaultyForEveryCommand) {
    std::string bytes = Document{.wires = someWires}.Bytes();
    bytes.pop_back();
    const std::string board = files.Add("b.vtx", bytes);
    for (const auto& command : commands(board)) {
        const Outcome outcome = cli(command);
        EXPECT_EQ(outcome.code, 2) << command[0];
        EXPECT_EQ(outcome.output, "") << command[0];
        EXPECT_EQ(outcome.errors, "veltrix-cli: " + board +
                                      ": the file ends inside wire 3, at byte " +
                                      std::to_string(bytes.size()) + "\n");
    }
    EXPECT_FALSE(std::filesystem::exists(PathFromUtf8(files.Path("saved.vtx"))));
    EXPECT_FALSE(std::filesystem::exists(PathFromUtf8(files.Path("picture.png"))));
}

TEST_F(BadInput, ADamagedDocumentIsReadOrRefusedByAllCommandsAlike) {
    std::mt19937 random(2);
    const std::string whole = Document{.wires = someWires,
                                       .counter = 3,
                                       .sensor1 = 2,
                                       .sensor2 = 1,
                                       .pulse = 50,
                                       .comparator = 25,
                                       .voltage = 50,
                                       .button1 = true}
                                  .Bytes();
    for (int i = 0; i < 400; ++i) {
        std::string bytes = whole;
        for (int damaged = 0; damaged < 1 + i % 4; ++damaged)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        const std::string board = files.Add("b.vtx", bytes);
        for (const auto& command : commands(board)) {
            const Outcome outcome = cli(command);
            EXPECT_GE(outcome.code, 0);
            EXPECT_LE(linesOf(outcome.errors).size(), 20U) << "one line a tick at most";
            EXPECT_EQ(outcome.code == 2,
                      outcome.errors != "" && outcome.output.empty() && command[0] != "render")
                << command[0] << outcome.errors;
            if (outcome.code == 2)
                break; // for all commands alike
        }
    }
}

TEST_F(BadInput, AnyNameMayStandInADocument) {
    std::string everything;
    for (int byte = 1; byte < 256; ++byte)
        everything += static_cast<char>(byte);
    expectRuns(Document{.wires = {{"", ""},
                                  {"zoemer", "LED 9 Ingang"},
                                  {"\xE9\xE9n", "\x80\x81\xFF"},
                                  {everything, "Invertor Uitgang"},
                                  {"Pulsenteller Uitgang Collection", "LED 1 Ingang"},
                                  {std::string(5000, 'x'), "Zoemer"}}});
}

TEST_F(BadInput, AThousandWiresAreABoard) {
    Wires wires;
    for (int i = 0; i < 1000; ++i)
        wires.emplace_back("Drukknop 1 Uit Geel", "LED 1 Ingang");
    expectRuns(Document{.wires = wires});
    for (auto& [from, to] : wires)
        from = "Relais Ingang 1 (in/uit)", to = "Relais Uitgang 2 (in/uit)";
    expectRuns(Document{.wires = wires});
}

TEST_F(BadInput, AChainOfAThousandUnknownSocketsFailsInItsTick) {
    Wires wires;
    for (int i = 1000; i > 0; --i)
        wires.emplace_back("knoop " + std::to_string(i - 1), "knoop " + std::to_string(i));
    wires.emplace_back("Invertor Uitgang", "knoop 0");
    const std::string board = files.Add("b.vtx", Document{.wires = wires}.Bytes());
    const Outcome outcome = cli({"run", board});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors,
              "veltrix-cli: " + board + ": tick 1: the evaluator knows at most 100 levels\n");
}

TEST_F(BadInput, LevelsFarOutOfRangeAreABoard) {
    for (const std::int32_t far : {INT32_MIN, -1, 51, 1000, INT32_MAX})
        expectRuns(Document{.wires = {{"Var. Spanning Uit Geel", "Invertor Ingang"},
                                      {"Var. Spanning Uit Geel", "AD-omzetter In"},
                                      {"Comparator In", "Var. Spanning Uit Geel"},
                                      {"Invertor Uitgang", "LED 1 Ingang"}},
                            .counter = 9,
                            .sensor1 = far,
                            .sensor2 = far,
                            .pulse = far,
                            .comparator = far,
                            .voltage = far,
                            .button1 = true,
                            .button2 = true});
}

TEST_F(BadInput, WhatIsNoFileIsAFault) {
    const std::string folder = files.Path("");
    for (const auto& command : commands(folder)) {
        const Outcome outcome = cli(command);
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(outcome.errors, "veltrix-cli: " + folder + ": Is a directory\n");
    }
    for (const char* endless : {"/dev/zero", "/dev/null"}) {
        const Outcome outcome = cli({"info", endless});
        EXPECT_EQ(outcome.code, 2);
        EXPECT_THAT(outcome.errors,
                    MatchesRegex(std::string("veltrix-cli: ") + endless + ": [^\n]+\n"));
    }
}

TEST_F(BadInput, AFileThatMayNotBeReadIsAFault) {
    const std::string board = files.Add("b.vtx", Document{}.Bytes());
    std::filesystem::permissions(board, std::filesystem::perms::none);
    if (std::ifstream(board))
        GTEST_SKIP() << "this user may read everything";
    EXPECT_EQ(cli({"info", board}).errors, "veltrix-cli: " + board + ": Permission denied\n");
}

} // namespace
} // namespace veltrix::test
