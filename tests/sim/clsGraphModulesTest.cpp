#include "tests/sim/GraphFixture.h"

#include <algorithm>
#include <stdexcept>

namespace veltrix::test {
namespace {

using clsGraphModules = GraphFixture;

TEST_F(clsGraphModules, OnAnEmptyBoardEveryModuleShowsWhatItsOpenInputsMean) {
    check({}, {{"OF-poort Uit", 0},
               {"EN-poort Uit", 0},
               {"Geheugen Uit", 0},
               {"Invertor Uitgang", 50},
               {"Comparator Uit", 0},
               {"Transistor Uit", 0},
               {"Relais Uitgang 1 (in/uit)", unreached},
               {"Relais Ingang 1 (in/uit)", unreached},
               {"Relais Uitgang 2 (in/uit)", unreached},
               {"Relais Ingang 2 (in/uit)", unreached},
               {"Pulsenteller Uitgang 1", unreached},
               {"AD-omzetter Uitgang 1", 0},
               {"AD-omzetter Uitgang 2", 0},
               {"AD-omzetter Uitgang 4", 0},
               {"AD-omzetter Uitgang 8", 0}});
}

struct clsGraphGates : GraphFixture {
    /// The output for these levels at the inputs.
    void twoWires(std::int32_t in1, std::int32_t in2, std::int32_t out) {
        check({{gate + " Ingang 1", in1}, {gate + " Ingang 2", in2}}, {{gate + " Uit", out}});
    }

    /// The output for this level at either input while the other one has no wire.
    void oneWire(std::int32_t in, std::int32_t out) {
        check({{gate + " Ingang 1", in}}, {{gate + " Uit", out}});
        check({{gate + " Ingang 2", in}}, {{gate + " Uit", out}});
    }

    std::string gate; ///< what the names of its sockets begin with
};

TEST_F(clsGraphGates, AnOrGateIsHighWhenOneInputIsExactlyHigh) {
    gate = "OF-poort";
    twoWires(0, 0, 0);
    twoWires(50, 0, 50);
    twoWires(0, 50, 50);
    twoWires(50, 50, 50);
    twoWires(49, 49, 0);
    twoWires(51, 0, 0);
    twoWires(49, 50, 50);
    twoWires(unreached, 50, unreached);
    twoWires(50, unreached, unreached);
    oneWire(0, 0);
    oneWire(49, 0);
    oneWire(50, 50);
    oneWire(unreached, unreached);
}

TEST_F(clsGraphGates, AnAndGateIsHighWhenBothInputsAreExactlyHigh) {
    gate = "EN-poort";
    twoWires(0, 0, 0);
    twoWires(50, 0, 0);
    twoWires(0, 50, 0);
    twoWires(50, 50, 50);
    twoWires(49, 50, 0);
    twoWires(50, 49, 0);
    twoWires(51, 50, 0);
    twoWires(unreached, 50, unreached);
    twoWires(0, unreached, unreached);
    oneWire(0, 0);
    oneWire(50, 0);
    oneWire(unreached, unreached);
}

TEST_F(clsGraphModules, TheMemoryCellKeepsWhatItWasSetToUntilItIsReset) {
    const auto cell = [&](std::int32_t set, std::int32_t reset, std::int32_t out) {
        check({{"Geheugen Set (In)", set}, {"Geheugen Reset (In)", reset}},
              {{"Geheugen Uit", out}});
    };
    cell(0, 0, 0);
    cell(49, 0, 0);
    cell(50, 0, 50);
    cell(0, 0, 50);
    cell(0, 49, 50);
    cell(0, 50, 0);
    cell(0, 0, 0);
    cell(50, 50, 50); // Set wins
    cell(0, 50, 0);
    cell(unreached, 50, unreached);
    cell(50, unreached, unreached);
    cell(0, 0, 0);
    check({{"Geheugen Set (In)", 50}}, {{"Geheugen Uit", 50}});
    check({}, {{"Geheugen Uit", 50}});
    graph.Clear();
    check({{"Geheugen Reset (In)", 50}}, {{"Geheugen Uit", 0}});
    check({}, {{"Geheugen Uit", 0}});
}

TEST_F(clsGraphModules, TheInvertorTurnsTheWholeScaleAround) {
    const auto invertor = [&](std::int32_t in, std::int32_t out) {
        check({{"Invertor Ingang", in}}, {{"Invertor Uitgang", out}});
    };
    for (std::int32_t in = 0; in <= 50; ++in)
        invertor(in, 50 - in);
    invertor(60, -10);
    invertor(-10, 60);
    invertor(unreached, unreached);
    check({}, {{"Invertor Uitgang", 50}});
    EXPECT_THROW(invertor(least, 0), std::overflow_error);
}

TEST_F(clsGraphModules, TheComparatorIsHighFromItsReferenceOn) {
    const auto comparator = [&](std::int32_t reference, std::int32_t in, std::int32_t out) {
        graph.SetComparatorValue(reference);
        check({{"Comparator In", in}}, {{"Comparator Uit", out}});
    };
    comparator(20, 19, 0);
    comparator(20, 20, 50);
    comparator(20, 21, 50);
    comparator(0, 0, 50);
    comparator(0, -1, 0);
    comparator(50, 49, 0);
    comparator(50, 50, 50);
    comparator(most, most, 50);
    comparator(least, least, 50);
    comparator(0, unreached, unreached);
    graph.SetComparatorValue(0);
    check({}, {{"Comparator Uit", 0}});
}

TEST_F(clsGraphModules, TheTransistorPullsItsOutputLowFromSevenTenthsOfAVolt) {
    const auto transistor = [&](std::int32_t in, std::int32_t out) {
        check({{"Transistor In", in}}, {{"Transistor Uit", out}});
    };
    transistor(0, 50);
    transistor(6, 50);
    transistor(7, 0);
    transistor(50, 0);
    transistor(-1, 50);
    transistor(unreached, unreached);
    check({}, {{"Transistor Uit", 0}});
}

TEST_F(clsGraphModules, ALevelWithoutAWireIsNoInputOfTheAnalogueModules) {
    run({{"Invertor Ingang", 20},
         {"Comparator In", 50},
         {"Transistor In", 0},
         {"AD-omzetter In", 50},
         {"OF-poort Ingang 1", 50}});
    EXPECT_EQ(levelOf("Invertor Uitgang"), 50);
    EXPECT_EQ(levelOf("Comparator Uit"), 0);
    EXPECT_EQ(levelOf("Transistor Uit"), 0);
    EXPECT_EQ(levelOf("AD-omzetter Uitgang 1"), 0);
    EXPECT_EQ(levelOf("OF-poort Uit"), 50); // the gates ask only for the level
}

TEST_F(clsGraphModules, AModuleWhoseOutputIsKnownIsNotAsked) {
    run({{"OF-poort Uit", 7}, {"Invertor Uitgang", 8}, {"AD-omzetter Uitgang 1", 9}});
    EXPECT_EQ(levelOf("OF-poort Uit"), 7);
    EXPECT_EQ(levelOf("Invertor Uitgang"), 8);
    EXPECT_EQ(levelOf("AD-omzetter Uitgang 1"), 9);
    EXPECT_EQ(levelOf("AD-omzetter Uitgang 2"), unreached);
}

TEST_F(clsGraphModules, TheAdConverterSplitsTheScaleIntoSixteenSteps) {
    const auto converter = [&](std::int32_t in, std::int32_t n) {
        check({{"AD-omzetter In", in}}, {{"AD-omzetter Uitgang 1", n & 1 ? 50 : 0},
                                         {"AD-omzetter Uitgang 2", n & 2 ? 50 : 0},
                                         {"AD-omzetter Uitgang 4", n & 4 ? 50 : 0},
                                         {"AD-omzetter Uitgang 8", n & 8 ? 50 : 0}});
    };
    // Sixteen fiftieths of the input, to the nearest number; no input lies half-way.
    for (std::int32_t in = 0; in <= 50; ++in)
        converter(in, std::min((32 * in + 50) / 100, 15));
    converter(1, 0);
    converter(3, 1);
    converter(25, 8);
    converter(45, 14);
    converter(46, 15);
    converter(47, 15);
    converter(48, 15);
    converter(50, 15);
    converter(1000, 15);
    converter(most, 15);
    converter(-1, 0);
    converter(-3, 15); // minus one has every bit set
    check({{"AD-omzetter In", unreached}},
          {{"AD-omzetter Uitgang 1", unreached}, {"AD-omzetter Uitgang 8", unreached}});
}

} // namespace
} // namespace veltrix::test
