#include "cli/Script.h"

#include "tests/cli/BareSimulation.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace veltrix::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

const std::string header = "tick,control,value\n";

/// The sound level after each tick of a script: one control tells when rows are done.
std::vector<std::int32_t> levels(const std::string& text, std::int64_t ticks) {
    test::BareSimulation bare;
    Script script = Script::Parse(text, "s.csv");
    std::vector<std::int32_t> found;
    for (std::int64_t tick = 1; tick <= ticks; ++tick) {
        script.Before(tick, bare.simulation);
        found.push_back(bare.simulation.Around().SoundLevel);
    }
    return found;
}

std::string faultOf(const std::string& text) {
    return test::faultOf([&] { (void)Script::Parse(text, "s.csv"); });
}

using Levels = std::vector<std::int32_t>;

TEST(Script, RowTakesEffectJustBeforeItsTick) {
    EXPECT_EQ(levels(header + "2,Geluids Sensor,10\n4,Geluids Sensor,20\n", 5),
              (Levels{0, 10, 10, 20, 20}));
}

TEST(Script, RowsMayComeInAnyOrder) {
    EXPECT_EQ(levels(header + "4,Geluids Sensor,20\n2,Geluids Sensor,10\n", 4),
              (Levels{0, 10, 10, 20}));
}

TEST(Script, RowsOfOneTickAreDoneInTheirOrder) {
    std::string text = header;
    for (int level = 1; level <= 40; ++level)
        text += "2,Geluids Sensor," + std::to_string(level) + "\n1,Geluids Sensor,50\n";
    EXPECT_EQ(levels(text, 2), (Levels{50, 40}));
}

TEST(Script, RowsBeyondTheLastTickAreNeverDone) {
    EXPECT_EQ(levels(header + "3,Geluids Sensor,10\n9223372036854775807,Geluids Sensor,20\n", 2),
              (Levels{0, 0}));
}

TEST(Script, LooksOfTheFileDoNotMatter) {
    const Levels expected{0, 10};
    EXPECT_EQ(levels("\xEF\xBB\xBFtick,control,value\r\n2,Geluids Sensor,10\r\n", 2), expected);
    EXPECT_EQ(levels("\n\r\n \n" + header + "\n\n2,Geluids Sensor,10\n \t\n", 2), expected);
    EXPECT_EQ(levels("\"tick\",\"control\",\"value\"\n\"2\",\"Geluids Sensor\",\"10\"\n", 2),
              expected);
    EXPECT_EQ(levels("tick, control, value\n 2 , Geluids Sensor , 10\n", 2), expected);
    EXPECT_EQ(levels(header + "2,Geluids Sensor,10", 2), expected) << "no end of the last line";
}

TEST(Script, HeaderAloneIsAScript) {
    EXPECT_EQ(levels(header, 1), (Levels{0}));
}

TEST(Script, ResetNeedsNoValueAtAll) {
    for (const char* row : {"1,Pulsenteller Reset Drukknop\n", "1,Pulsenteller Reset Drukknop,\n",
                            "1,Pulsenteller Reset Drukknop,1\n"})
        EXPECT_EQ(faultOf(header + row), "") << row;
}

TEST(Script, HeaderIsRequired) {
    const std::string expected = "s.csv: line 1: the columns must be tick,control,value";
    EXPECT_EQ(faultOf(""), expected);
    EXPECT_EQ(faultOf("\n\n"), expected);
    EXPECT_EQ(faultOf("5,Sensor 1,2\n"), expected);
    EXPECT_EQ(faultOf("tick,control\n"), expected);
    EXPECT_EQ(faultOf("Tick,Control,Value\n"), expected);
    EXPECT_EQ(faultOf("tick;control;value\n"), expected);
    EXPECT_EQ(faultOf("\ntick,value,control\n"),
              "s.csv: line 2: the columns must be tick,control,value");
}

TEST(Script, FaultNamesTheLine) {
    EXPECT_THAT(faultOf(header + "\n1,Sensor 1,1\n\r\n1,Sensor 1,3\n"),
                StartsWith("s.csv: line 5: \"3\" is no value for Sensor 1, which takes a mode"));
}

TEST(Script, TickIsAWholeNumberFromOne) {
    for (const char* tick : {"0", "-1", "", "x", "1.5", "9223372036854775808"})
        EXPECT_THAT(faultOf(header + tick + ",Sensor 1,1\n"),
                    StartsWith(std::string("s.csv: line 2: \"") + tick + "\" is no tick"));
}

TEST(Script, ControlMustBeKnown) {
    EXPECT_THAT(faultOf(header + "1,Sensor 9,1\n"),
                AllOf(StartsWith("s.csv: line 2: unknown control \"Sensor 9\""),
                      HasSubstr("Geluids Sensor")));
    EXPECT_THAT(faultOf(header + "1,Sénsor\x01,1\n"),
                StartsWith("s.csv: line 2: unknown control \"Sénsor\\x01\""));
    EXPECT_EQ(faultOf(header + "1\n"), "s.csv: line 2: the control is missing");
}

TEST(Script, ValueMustSuitTheControl) {
    for (const char* row :
         {"Sensor 1,3", "Sensor 2,", "Sensor 1", "Drukknop 1,2", "Drukknop 2,on",
          "Comparator Regelaar,51", "Var. Spanning Regelaar,-1", "Puls Generator Regelaar,2.5",
          "Geluids Sensor,x", "Aanwijzer,5", "Aanwijzer,\"5,6\"", "Aanwijzer,1 2 3"})
        EXPECT_THAT(faultOf(header + "7," + row + "\n"), StartsWith("s.csv: line 2: \"")) << row;
}

TEST(Script, RowOfTooManyFieldsIsAFault) {
    EXPECT_EQ(faultOf(header + "1,Sensor 1,1,\n"), "s.csv: line 2: more than tick,control,value");
}

TEST(Script, QuoteInTheWrongPlaceIsAFault) {
    EXPECT_EQ(faultOf(header + "1,\"Sensor 1,1\n"), "s.csv: line 2: a quoted field does not end");
}

TEST(Script, IsReadFromAFile) {
    test::Files files;
    const std::string path = files.Add("één.csv", header + "1,Sensor 1,9\n");
    EXPECT_THAT(test::faultOf([&] { (void)Script::Read(path); }),
                StartsWith(path + ": line 2: \"9\""));
    EXPECT_THROW((void)Script::Read(files.Path("weg.csv")), Fault);
}

} // namespace
} // namespace veltrix::cli
