// Every board of examples/ does what it says.

#include "cli/CsvFields.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Process.h"
#include "tests/support/Folders.h"
#include "tools/examples/Example.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace veltrix::examples {
namespace {

using testing::HasSubstr;

using Fields = std::vector<std::string>;

const std::filesystem::path folder = test::SourceFolder() / "examples";

std::string fileOf(const std::string& name) {
    return Utf8FromPath(folder / PathFromUtf8(name));
}

std::vector<Fields> tableOf(const std::string& csv) {
    std::vector<Fields> rows;
    for (const std::string& line : test::linesOf(csv))
        rows.push_back(cli::CsvFields(line));
    return rows;
}

std::int64_t lastTickOf(const std::vector<Fields>& table) {
    std::int64_t last = 0;
    for (std::size_t row = 1; row < table.size(); ++row)
        last = std::max<std::int64_t>(last, std::stoll(table[row].at(0)));
    return last;
}

/// The wanted columns of a run's rows, for the first tick and every one in which they changed.
std::vector<Fields> changesOf(const std::vector<Fields>& rows, const Fields& wanted) {
    std::vector<std::size_t> columns;
    for (const std::string& name : wanted) {
        const auto found = std::find(rows[0].begin(), rows[0].end(), name);
        if (found == rows[0].end())
            throw std::invalid_argument("a run has no column " + name);
        columns.push_back(static_cast<std::size_t>(found - rows[0].begin()));
    }
    std::vector<Fields> changes{wanted};
    for (std::size_t row = 1; row < rows.size(); ++row) {
        Fields cells;
        for (const std::size_t column : columns)
            cells.push_back(rows[row].at(column));
        if (row == 1 || !std::equal(cells.begin() + 1, cells.end(), changes.back().begin() + 1))
            changes.push_back(cells);
    }
    return changes;
}

/// A test's name has no hyphens.
std::string testName(std::string name) {
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

struct ExampleTest : testing::TestWithParam<Example> {};

TEST_P(ExampleTest, DocumentIsWhatTheGeneratorWrites) {
    const test::TempFolder fresh;
    WriteExample(GetParam(), fresh.Path());
    const std::string name = GetParam().Name + ".vtx";
    EXPECT_EQ(test::bytesOf(folder / PathFromUtf8(name)),
              test::bytesOf(fresh.Path() / PathFromUtf8(name)))
        << "build the target examples and look at what changed";
}

TEST_P(ExampleTest, BoardDoesWhatIsExpectedOfIt) {
    constexpr std::int64_t afterwards = 50; // ticks in which nothing may change any more
    const std::string& name = GetParam().Name;
    const std::string script = fileOf(name + ".csv");
    const auto expected = tableOf(test::bytesOf(fileOf(name + ".expected.csv")));
    ASSERT_GE(expected.size(), 2U);
    ASSERT_GE(expected[0].size(), 2U);
    ASSERT_EQ(expected[0][0], "tick");
    const std::int64_t ticks =
        std::max(lastTickOf(expected), lastTickOf(tableOf(test::bytesOf(script)))) + afterwards;

    const test::Outcome outcome = test::runVeltrixCli(
        {"run", fileOf(name + ".vtx"), "--script", script, "--ticks", std::to_string(ticks)});
    ASSERT_EQ(outcome.code, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(changesOf(tableOf(outcome.output), expected[0]), expected);
}

TEST_P(ExampleTest, BoardHasNoFaults) {
    const test::Outcome outcome = test::runVeltrixCli({"check", fileOf(GetParam().Name + ".vtx")});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.output + outcome.errors, "");
}

TEST_P(ExampleTest, ReadmeHasALineForIt) {
    EXPECT_THAT(test::bytesOf(folder / "README.md"),
                HasSubstr("| `" + GetParam().Name + ".vtx` |"));
}

INSTANTIATE_TEST_SUITE_P(All, ExampleTest, testing::ValuesIn(AllExamples()),
                         [](const auto& example) { return testName(example.param.Name); });

TEST(Examples, FolderHoldsNothingElse) {
    std::set<std::string> expected{"README.md"};
    for (const Example& example : AllExamples())
        for (const char* extension : {".vtx", ".csv", ".expected.csv"})
            expected.insert(example.Name + extension);
    EXPECT_EQ(test::namesIn(folder), expected);
}

TEST(Examples, BoardThatNobodyCouldWireIsRefused) {
    const test::TempFolder fresh;
    const auto refuses = [&](const std::vector<Example::Wire>& wires) {
        EXPECT_THROW(WriteExample({.Name = "fout", .Wires = wires}, fresh.Path()),
                     std::invalid_argument);
    };
    refuses({{"Sensor 1 Uit Geel", "LED 5 Ingang"}});
    refuses({{"Sensor 1", "LED 1 Ingang"}});
    refuses({{"Sensor 1 Uit Geel", "LED 1 Ingang"}, {"LED 1 Ingang", "Sensor 1 Uit Geel"}});
    refuses({{"Sensor 1 Uit Geel", "LED 1 Ingang"}, {"LED 1 Ingang", "Invertor Uitgang"}});
    EXPECT_TRUE(std::filesystem::is_empty(fresh.Path()));
}

} // namespace
} // namespace veltrix::examples
