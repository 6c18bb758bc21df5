#include "cli/RunCommand.h"

#include "cli/CsvFields.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace veltrix::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

using Strings = std::vector<std::string>;

/// The cells of one column, from the first row on.
Strings column(const std::string& csv, const std::string& name) {
    const Strings lines = test::linesOf(csv);
    const Strings names = CsvFields(lines.at(0));
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        throw std::invalid_argument("no column " + name);
    Strings cells;
    for (std::size_t i = 1; i < lines.size(); ++i)
        cells.push_back(CsvFields(lines[i]).at(static_cast<std::size_t>(found - names.begin())));
    return cells;
}

struct RunCommandTest : testing::Test {
    test::Outcome run(const Strings& options) {
        Strings arguments{"run", board};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return test::cli(arguments);
    }

    /// A run that must succeed silently.
    std::string rows(const Strings& options) {
        const test::Outcome outcome = run(options);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.errors, "");
        return outcome.output;
    }

    std::string script(const std::string& lines) {
        return files.Add("s.csv", "tick,control,value\n" + lines);
    }

    test::Files files;
    std::string board = files.Add(
        "b.vtx",
        test::Document{.wires = {{"Drukknop 1 Uit Geel", "LED 1 Ingang"}}, .counter = 4}.Bytes());
};

TEST_F(RunCommandTest, RowATickForAHundredTicks) {
    const Strings ticks = column(rows({}), "tick");
    ASSERT_EQ(ticks.size(), 100U);
    for (std::size_t i = 0; i < ticks.size(); ++i)
        EXPECT_EQ(ticks[i], std::to_string(i + 1));
}

TEST_F(RunCommandTest, RowIsReadAfterItsTick) {
    const std::string text =
        rows({"--ticks", "4", "--script", script("2,Drukknop 1,1\n4,Drukknop 1,0\n")});
    EXPECT_THAT(column(text, "Drukknop 1 Uit Geel"), ElementsAre("0", "50", "50", "0"));
    EXPECT_THAT(column(text, "LED 1"), ElementsAre("0", "1", "1", "0"));
    EXPECT_THAT(column(text, "LED 2 Ingang"), ElementsAre("", "", "", ""));
    EXPECT_THAT(column(text, "Teller"), ElementsAre("4", "4", "4", "4"));
}

TEST_F(RunCommandTest, NoTicksMakeNoRows) {
    EXPECT_EQ(test::linesOf(rows({"--ticks", "0"})).size(), 1U);
    EXPECT_EQ(test::linesOf(rows({"--ticks", "0", "--rows", "last"})).size(), 1U);
    EXPECT_EQ(nlohmann::json::parse(rows({"--ticks", "0", "--format", "json"})),
              nlohmann::json::array());
}

TEST_F(RunCommandTest, ChangesAreTheFirstTickAndThoseThatDiffer) {
    const std::string path = script("3,Drukknop 1,1\n5,Drukknop 1,1\n6,Drukknop 1,0\n");
    EXPECT_THAT(column(rows({"--ticks", "9", "--rows", "changes", "--script", path}), "tick"),
                ElementsAre("1", "3", "6"));
}

TEST_F(RunCommandTest, LastIsTheLastTick) {
    const std::string path = script("3,Drukknop 1,1\n");
    const std::string text = rows({"--ticks", "9", "--rows", "last", "--script", path});
    EXPECT_THAT(column(text, "tick"), ElementsAre("9"));
    EXPECT_THAT(column(text, "LED 1"), ElementsAre("1"));
}

TEST_F(RunCommandTest, FormatsTellTheSame) {
    const std::string path = script("2,Drukknop 1,1\n");
    const std::string csv = rows({"--ticks", "3", "--script", path});
    const auto json =
        nlohmann::ordered_json::parse(rows({"--ticks", "3", "--script", path, "--format", "json"}));
    const Strings names = CsvFields(test::linesOf(csv).at(0));
    ASSERT_EQ(json.size(), 3U);
    for (std::size_t row = 0; row < 3; ++row) {
        ASSERT_EQ(json[row].size(), names.size());
        std::size_t at = 0;
        for (const auto& [key, value] : json[row].items()) {
            EXPECT_EQ(key, names[at++]);
            EXPECT_EQ(value.is_null() ? "" : value.dump(), column(csv, key)[row]) << key;
        }
    }
    const std::string vcd = rows({"--ticks", "3", "--script", path, "--format", "vcd"});
    EXPECT_THAT(vcd, HasSubstr(" LED_1_Ingang $end\n"));
    EXPECT_THAT(vcd, HasSubstr("\n#2\nb00000000000000000000000000110010 "));
}

TEST_F(RunCommandTest, RowsGoIntoAFile) {
    const std::string path = files.Path("één.csv");
    const std::string expected = rows({"--ticks", "3"});
    EXPECT_EQ(rows({"--ticks", "3", "--out", path}), "");
    EXPECT_EQ(test::bytesOf(PathFromUtf8(path)), expected);
}

TEST_F(RunCommandTest, SavesTheBoardAfterTheRun) {
    const std::string saved = files.Path("één.vtx");
    rows({"--ticks", "5", "--save", saved, "--script",
          script("1,Sensor 2,1\n2,Pulsenteller Reset Drukknop,\n5,Comparator Regelaar,33\n"
                 "6,Var. Spanning Regelaar,44\n5,Drukknop 2,1\n")});
    EXPECT_EQ(test::bytesOf(PathFromUtf8(saved)),
              (test::Document{.wires = {{"Drukknop 1 Uit Geel", "LED 1 Ingang"}},
                              .sensor2 = 1,
                              .comparator = 33,
                              .button2 = true}
                   .Bytes()));
}

TEST_F(RunCommandTest, BoardMayBeSavedOverItself) {
    const std::string before = test::bytesOf(board);
    rows({"--save", board});
    EXPECT_EQ(test::bytesOf(board), before);
}

TEST_F(RunCommandTest, FailedTicksAreToldOnceAndGetTheirRow) {
    board =
        files.Add("ver.vtx", test::Document{.wires = {{"Drukknop 1 Uit Geel", "LED 1 Ingang"},
                                                      {"Var. Spanning Uit Geel", "LED 2 Ingang"},
                                                      {"Invertor Uitgang", "LED 3 Ingang"}},
                                            .voltage = INT32_MIN,
                                            .button1 = true}
                                 .Bytes());
    const test::Outcome outcome =
        run({"--ticks", "3", "--script", script("3,Var. Spanning Regelaar,50\n")});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.errors, StartsWith("veltrix-cli: " + board + ": tick 1: "));
    EXPECT_EQ(test::linesOf(outcome.errors).size(), 1U);
    EXPECT_THAT(column(outcome.output, "Var. Spanning Uit Geel"),
                ElementsAre("-2147483648", "-2147483648", "50"));
    EXPECT_THAT(column(outcome.output, "LED 1 Ingang"), ElementsAre("50", "50", "50"));
    // A wire keeps the colour number that it has no picture for, and is not drawn again for it.
    EXPECT_THAT(column(outcome.output, "LED 3 Ingang"), ElementsAre("", "50", "50"));
    EXPECT_THAT(column(outcome.output, "LED 1"), ElementsAre("0", "1", "1"));
}

TEST_F(RunCommandTest, FaultyInputLeavesEarlierResultsAlone) {
    const std::string out = files.Add("rijen.csv", "earlier");
    EXPECT_EQ(run({"--out", out, "--script", files.Path("weg.csv")}).code, 2);
    board = files.Add("leeg.vtx", "");
    EXPECT_EQ(run({"--out", out}).code, 2);
    EXPECT_EQ(test::bytesOf(out), "earlier");
}

TEST_F(RunCommandTest, ResultsThatCannotBeWrittenAreFaults) {
    const std::string missing = files.Path("weg/rijen");
    const auto fault = [](const std::string& path, const std::string& reason) {
        return "veltrix-cli: " + path + ": " + reason + "\n";
    };
    for (const char* option : {"--out", "--save"}) {
        test::Outcome outcome = run({option, missing});
        EXPECT_EQ(outcome.code, 2) << option;
        EXPECT_EQ(outcome.errors, fault(missing, "No such file or directory"));
        outcome = run({option, "/dev/full"});
        EXPECT_EQ(outcome.code, 2) << option;
        EXPECT_EQ(outcome.errors, fault("/dev/full", "No space left on device"));
    }
}

} // namespace
} // namespace veltrix::cli
