#include "cli/CheckCommand.h"

#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"

#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

void expectFindings(const test::Wires& wires, const std::vector<std::string>& expected) {
    test::Files files;
    const test::Outcome outcome =
        test::cli({"check", files.Add("b.vtx", test::Document{.wires = wires}.Bytes())});
    EXPECT_EQ(test::linesOf(outcome.output), expected);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.code, expected.empty() ? 0 : 1);
}

TEST(CheckCommand, ABoardWithoutFaultsPrintsNothing) {
    expectFindings({}, {});
    expectFindings({{"Sensor 1 Uit Geel", "LED 1 Ingang"},
                    {"Sensor 1 Uit Geel", "LED 2 Ingang"},
                    {"Relais Ingang 1 (in/uit)", "Sensor 1 Uit Geel"},
                    {"Var. Spanning In Zwart", "Zoemer"}},
                   {});
}

TEST(CheckCommand, OutputsWiredTogetherAreReported) {
    expectFindings({{"Sensor 1 Uit Geel", "EN-poort Ingang 1"},
                    {"EN-poort Ingang 1", "Drukknop 1 Uit Geel"},
                    {"Invertor Uitgang", "OF-poort Uit"}},
                   {"outputs wired together: \"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"",
                    "outputs wired together: \"Invertor Uitgang\" en \"OF-poort Uit\""});
}

TEST(CheckCommand, EndsWhereNoWireCanEndAreReported) {
    expectFindings({{"Sensor 1 Uit Geel", "LED 5 Ingang"},
                    {"", "zoemer"},
                    {"LED 1 Ingang", "Drukknop 1"},
                    {"\xE9\xE9n\n", "LED 2 Ingang"}},
                   {"wire 1: unknown socket \"LED 5 Ingang\"", "wire 2: unknown socket \"\"",
                    "wire 2: unknown socket \"zoemer\"", "wire 3: unknown socket \"Drukknop 1\"",
                    "wire 4: unknown socket \"één\\x0A\""});
}

TEST(CheckCommand, WiresThatAreThereAlreadyAreReported) {
    expectFindings({{"LED 1 Ingang", "LED 2 Ingang"},
                    {"LED 1 Ingang", "LED 3 Ingang"},
                    {"LED 2 Ingang", "LED 1 Ingang"},
                    {"LED 1 Ingang", "LED 2 Ingang"},
                    {"LED 1 Ingang", "LED 3 Ingang"}},
                   {"wire 3: duplicate of wire 1, \"LED 2 Ingang\" to \"LED 1 Ingang\"",
                    "wire 4: duplicate of wire 1, \"LED 1 Ingang\" to \"LED 2 Ingang\"",
                    "wire 5: duplicate of wire 2, \"LED 1 Ingang\" to \"LED 3 Ingang\""});
}

} // namespace
} // namespace veltrix::cli
