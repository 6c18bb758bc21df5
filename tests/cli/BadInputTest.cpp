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
using testing::StartsWith;

using Wires = std::vector<std::pair<std::string, std::string>>;

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

    /// Every command calls the document faulty; `where` is a pattern.
    void expectFaulty(const std::string& bytes, const std::string& where) {
        const std::string board = files.Add("b.vtx", bytes);
        for (const auto& command : commands(board)) {
            const Outcome outcome = cli(command);
            EXPECT_EQ(outcome.code, 2) << command[0];
            EXPECT_EQ(outcome.output, "") << command[0];
            EXPECT_THAT(outcome.errors, StartsWith("veltrix-cli: " + board + ": "));
            EXPECT_THAT(outcome.errors, MatchesRegex("[^\n]*" + where + "[^\n]*\n"));
        }
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

TEST_F(BadInput, EmptyDocument) {
    expectFaulty("", "the file is empty");
    const Outcome outcome = runVeltrixCli({"run", files.Add("b.vtx", "")});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_THAT(outcome.errors, MatchesRegex("veltrix-cli: [^\n]*b.vtx: the file is empty\n"));
}

TEST_F(BadInput, DocumentTruncatedAtEveryByte) {
    const std::string whole = Document{someWires}.Bytes();
    for (std::size_t length = 1; length < whole.size(); ++length)
        expectFaulty(whole.substr(0, length), "at byte " + std::to_string(length));
}

TEST_F(BadInput, RandomBytes) {
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        std::string bytes(1 + random() % 300, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        expectFaulty(bytes, "(at byte 0|ends inside)");
    }
}

TEST_F(BadInput, DamagedBytesNeverEndTheProgram) {
    std::mt19937 random(2);
    const std::string whole = Document{someWires, -2, 3, 2, 1, 50, 25, 50, true}.Bytes();
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

TEST_F(BadInput, UnknownChunkTypes) {
    Document document{someWires};
    document.documentType = 1;
    expectFaulty(document.Bytes(), "at byte 0");
    document = Document{someWires};
    document.settingsType = 4097;
    expectFaulty(document.Bytes(), "at byte 6");
    document = Document{someWires};
    document.wiresType = -1;
    expectFaulty(document.Bytes(), "at byte 46");
}

TEST_F(BadInput, CountsThatCannotBe) {
    expectFaulty(Document{someWires, -1}.Bytes(), "at byte 16");
    expectFaulty(Document{someWires, INT32_MIN}.Bytes(), "at byte 16");
    expectFaulty(Document{someWires, 4}.Bytes(), "at byte 16");
    expectFaulty(Document{someWires, INT32_MAX}.Bytes(), "at byte 16");
}

TEST_F(BadInput, CounterReadingsThatCannotBe) {
    for (const std::int32_t counter : {-1, 10, INT32_MAX, INT32_MIN})
        expectFaulty(Document{someWires, -2, counter}.Bytes(), "at byte 20");
}

TEST_F(BadInput, UnknownAndForeignNames) {
    std::string everything;
    for (int byte = 1; byte < 256; ++byte)
        everything += static_cast<char>(byte);
    expectRuns(Document{{{"", ""},
                         {"zoemer", "LED 9 Ingang"},
                         {"\xE9\xE9n", "\x80\x81\xFF"},
                         {everything, "Invertor Uitgang"},
                         {"Pulsenteller Uitgang Collection", "LED 1 Ingang"},
                         {std::string(5000, 'x'), "Zoemer"}}});
}

TEST_F(BadInput, AThousandWires) {
    Wires wires;
    for (int i = 0; i < 1000; ++i)
        wires.emplace_back("Drukknop 1 Uit Geel", "LED 1 Ingang");
    expectRuns(Document{wires});
    for (auto& [from, to] : wires)
        from = "Relais Ingang 1 (in/uit)", to = "Relais Uitgang 2 (in/uit)";
    expectRuns(Document{wires});
}

TEST_F(BadInput, ChainOfAThousandUnknownSockets) {
    Wires wires;
    for (int i = 1000; i > 0; --i)
        wires.emplace_back("knoop " + std::to_string(i - 1), "knoop " + std::to_string(i));
    wires.emplace_back("Invertor Uitgang", "knoop 0");
    const std::string board = files.Add("b.vtx", Document{wires}.Bytes());
    const Outcome outcome = cli({"run", board});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors,
              "veltrix-cli: " + board + ": tick 1: the evaluator knows at most 100 levels\n");
}

TEST_F(BadInput, LevelsFarOutOfRange) {
    for (const std::int32_t far : {INT32_MIN, -1, 51, 1000, INT32_MAX})
        expectRuns(Document{{{"Var. Spanning Uit Geel", "Invertor Ingang"},
                             {"Var. Spanning Uit Geel", "AD-omzetter In"},
                             {"Comparator In", "Var. Spanning Uit Geel"},
                             {"Invertor Uitgang", "LED 1 Ingang"}},
                            -2,
                            9,
                            far,
                            far,
                            far,
                            far,
                            far,
                            true,
                            true});
}

TEST_F(BadInput, WhatIsNoFile) {
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

TEST_F(BadInput, FileThatMayNotBeRead) {
    const std::string board = files.Add("b.vtx", Document{}.Bytes());
    std::filesystem::permissions(board, std::filesystem::perms::none);
    if (std::ifstream(board))
        GTEST_SKIP() << "this user may read everything";
    EXPECT_EQ(cli({"info", board}).errors, "veltrix-cli: " + board + ": Permission denied\n");
}

} // namespace
} // namespace veltrix::test
