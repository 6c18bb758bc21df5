#include "sim/clsGraph.h"

#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace veltrix {
namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();

/// What a check expects of a socket that the run does not reach.
constexpr std::int32_t unreached = -1000000;

struct Socket {
    const char* naam;
    std::int32_t level;
};

using Sockets = std::vector<Socket>;

struct clsGraphTest : testing::Test {
    clsGraphTest() { graph.Constructor(test.board.Display); }

    /// A wire that is not drawn: these tests look at levels and colour numbers.
    std::shared_ptr<clsLine> connect(const std::string& naam1, const std::string& naam2) {
        auto line = test.board.BordLines.CreateLine();
        line->naam1 = naam1;
        line->naam2 = naam2;
        lines.Add(line);
        return line;
    }

    void disconnectAll() {
        while (lines.Count() > 0)
            lines.Remove(1);
    }

    /// A run as a tick makes it, with the levels of the sources.
    void run(const Sockets& sources = {}) {
        for (const auto& line : lines)
            line->done = false;
        graph.Clear();
        for (const Socket& source : sources)
            graph.AddPunt(source.naam, source.level);
        EXPECT_FALSE(graph.Run(lines));
    }

    [[nodiscard]] std::int32_t levelOf(const std::string& naam) const {
        return graph.GetPuntValueByName(naam, unreached);
    }

    /// Wires each input to a source of its own with that level (`unreached`: to a socket that
    /// nobody knows), runs, and compares the outputs. An input that is not named has no wire.
    void check(const Sockets& inputs, const Sockets& outputs) {
        std::string row;
        disconnectAll();
        std::vector<std::string> names;
        for (const Socket& input : inputs) {
            names.push_back(std::string("bron van ") + input.naam);
            connect(names.back(), input.naam);
            row += std::string(input.naam) + " = " + std::to_string(input.level) + "; ";
        }
        Sockets sources;
        for (std::size_t i = 0; i < inputs.size(); ++i)
            if (inputs[i].level != unreached)
                sources.push_back({names[i].c_str(), inputs[i].level});
        run(sources);
        for (const Socket& output : outputs)
            EXPECT_EQ(levelOf(output.naam), output.level) << output.naam << " where " << row;
    }

    test::TestBoard test;
    Collection<clsLine> lines;
    clsGraph graph;
};

// The table of levels

TEST_F(clsGraphTest, ALevelIsFoundByTheExactNameAndTheDefaultServesAllOthers) {
    graph.AddPunt("Zoemer", 12);
    EXPECT_EQ(graph.GetPuntValueByName("Zoemer", 7), 12);
    EXPECT_EQ(graph.GetPuntValueByName("zoemer", 7), 7);
    EXPECT_EQ(graph.GetPuntValueByName("", -7), -7);
    EXPECT_EQ(graph.Level("Zoemer"), 12);
    EXPECT_EQ(graph.Level("Zoemer "), std::nullopt);
}

TEST_F(clsGraphTest, ANameThatIsAddedTwiceKeepsItsFirstLevel) {
    run({{"EN-poort Uit", 20}, {"EN-poort Uit", 30}});
    EXPECT_EQ(levelOf("EN-poort Uit"), 20);
    graph.Clear();
    graph.AddPunt("EN-poort Uit", 30);
    EXPECT_EQ(levelOf("EN-poort Uit"), 30);
}

TEST_F(clsGraphTest, ClearForgetsEveryLevel) {
    graph.AddPunt("Zoemer", 50);
    graph.Clear();
    EXPECT_EQ(levelOf("Zoemer"), unreached);
}

TEST_F(clsGraphTest, ANewNameKnowsNothingOfTheOneWhoseNumberItTookOver) {
    for (int i = 0; i < 50; ++i) {
        const std::string before = "tijdelijk " + std::to_string(i);
        const std::string after = "tijdelijk " + std::to_string(i + 1);
        graph.Clear();
        graph.AddPunt(after, i);
        EXPECT_EQ(levelOf(before), unreached);
        EXPECT_EQ(levelOf(after), i);
        EXPECT_EQ(levelOf("nooit " + std::to_string(i)), unreached);
    }
}

TEST_F(clsGraphTest, AHundredLevelsFitAndOneMoreIsAnError) {
    for (int i = 1; i <= 100; ++i)
        graph.AddPunt("punt " + std::to_string(i), i);
    EXPECT_THROW(graph.AddPunt("punt 101", 101), std::out_of_range);
    EXPECT_THROW(graph.AddPunt("punt 1", 1), std::out_of_range);
    EXPECT_EQ(levelOf("punt 100"), 100);
    EXPECT_EQ(levelOf("punt 101"), unreached);
    graph.Clear();
    graph.AddPunt("punt 101", 101);
    EXPECT_EQ(levelOf("punt 101"), 101);
}

TEST_F(clsGraphTest, ARunThatFillsTheTableEndsInTheSameErrorAndTheNextOneWorks) {
    graph.Clear();
    for (int i = 1; i <= 95; ++i)
        graph.AddPunt("punt " + std::to_string(i), 0);
    EXPECT_THROW(graph.Run(lines), std::out_of_range);
    run();
    EXPECT_EQ(levelOf("Invertor Uitgang"), 50);
}

// Wires

TEST_F(clsGraphTest, AWireCarriesALevelBothWays) {
    const auto forward = connect("bron", "LED 1 Ingang");
    const auto backward = connect("LED 2 Ingang", "bron");
    run({{"bron", 37}});
    EXPECT_EQ(levelOf("LED 1 Ingang"), 37);
    EXPECT_EQ(levelOf("LED 2 Ingang"), 37);
    EXPECT_TRUE(forward->done);
    EXPECT_TRUE(backward->done);
}

TEST_F(clsGraphTest, AChainInAnyOrderCarriesToItsEnd) {
    for (const bool reversed : {false, true}) {
        disconnectAll();
        std::vector<int> order{0, 1, 2, 3, 4, 5, 6, 7};
        if (reversed)
            std::reverse(order.begin(), order.end());
        for (const int i : order)
            connect("schakel " + std::to_string(i), "schakel " + std::to_string(i + 1));
        run({{"schakel 0", 12}});
        EXPECT_EQ(levelOf("schakel 8"), 12);
        run({{"schakel 8", 13}});
        EXPECT_EQ(levelOf("schakel 0"), 13);
    }
}

TEST_F(clsGraphTest, OfTwoWiresToOneSocketTheFirstOneWins) {
    connect("bron 1", "Zoemer");
    const auto second = connect("Zoemer", "bron 2");
    second->SetColor(6);
    run({{"bron 1", 10}, {"bron 2", 20}});
    EXPECT_EQ(levelOf("Zoemer"), 10);
    EXPECT_EQ(levelOf("bron 2"), 20);
    EXPECT_FALSE(second->done);
    EXPECT_EQ(second->Color(), 6);
}

TEST_F(clsGraphTest, AWireBetweenTwoSourcesChangesNeitherEndNorItsColour) {
    const auto line = connect("bron 1", "bron 2");
    line->SetColor(5);
    run({{"bron 1", 0}, {"bron 2", 50}});
    EXPECT_EQ(levelOf("bron 1"), 0);
    EXPECT_EQ(levelOf("bron 2"), 50);
    EXPECT_EQ(line->Color(), 5);
    EXPECT_FALSE(line->done);
}

TEST_F(clsGraphTest, AWireThatNoLevelReachesKeepsItsColour) {
    const auto line = connect("nergens", "LED 1 Ingang");
    line->SetColor(3);
    run();
    EXPECT_EQ(levelOf("LED 1 Ingang"), unreached);
    EXPECT_EQ(line->Color(), 3);
    EXPECT_FALSE(line->done);
}

TEST_F(clsGraphTest, AWireFromASocketToItselfCarriesNothing) {
    const auto line = connect("bron", "bron");
    run({{"bron", 50}});
    EXPECT_FALSE(line->done);
    run();
    EXPECT_EQ(levelOf("bron"), unreached);
}

TEST_F(clsGraphTest, AWireThatIsDoneCarriesNoMore) {
    const auto line = connect("bron", "LED 1 Ingang");
    line->done = true;
    graph.Clear();
    graph.AddPunt("bron", 50);
    graph.Run(lines);
    EXPECT_EQ(levelOf("LED 1 Ingang"), unreached);
}

TEST_F(clsGraphTest, TheColourOfAWireShowsItsLevel) {
    const auto line = connect("bron", "LED 1 Ingang");
    for (std::int32_t level = 0; level <= 50; ++level) {
        run({{"bron", level}});
        // From 8 at 0 down to 1 at 50 in even steps, to the nearest number; 4.5 goes to 4.
        const std::int32_t nearest = level == 25 ? 4 : (850 - 14 * level) / 100;
        EXPECT_EQ(line->Color(), nearest) << level;
    }
    run({{"bron", 25}});
    EXPECT_EQ(line->Color(), 4);
    run({{"bron", 35}});
    EXPECT_EQ(line->Color(), 3);
    run({{"bron", 60}});
    EXPECT_EQ(line->Color(), 0);
    run({{"bron", -8}});
    EXPECT_EQ(line->Color(), 9);
}

TEST_F(clsGraphTest, ADrawnWireOfALevelWithoutAPictureIsAnError) {
    const auto line = connect("bron", "LED 1 Ingang");
    line->SetAll(0, 0, 100, 0, 1);
    for (const std::int32_t level : {-20, 100, most, least}) {
        line->SetColor(1);
        EXPECT_THROW(run({{"bron", level}}), std::out_of_range) << level;
        // The level came first.
        EXPECT_EQ(levelOf("LED 1 Ingang"), level);
    }
    EXPECT_NO_THROW(run({{"bron", 50}}));
}

// Modules

TEST_F(clsGraphTest, OnAnEmptyBoardEveryModuleShowsWhatItsOpenInputsMean) {
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

TEST_F(clsGraphTest, AnOrGateIsHighWhenOneInputIsExactlyHigh) {
    const auto gate = [&](std::int32_t in1, std::int32_t in2, std::int32_t out) {
        check({{"OF-poort Ingang 1", in1}, {"OF-poort Ingang 2", in2}}, {{"OF-poort Uit", out}});
    };
    gate(0, 0, 0);
    gate(50, 0, 50);
    gate(0, 50, 50);
    gate(50, 50, 50);
    gate(49, 49, 0);
    gate(51, 0, 0);
    gate(49, 50, 50);
    gate(unreached, 50, unreached);
    gate(50, unreached, unreached);
    const auto oneWire = [&](std::int32_t in, std::int32_t out) {
        check({{"OF-poort Ingang 1", in}}, {{"OF-poort Uit", out}});
        check({{"OF-poort Ingang 2", in}}, {{"OF-poort Uit", out}});
    };
    oneWire(0, 0);
    oneWire(49, 0);
    oneWire(50, 50);
    oneWire(unreached, unreached);
}

TEST_F(clsGraphTest, AnAndGateIsHighWhenBothInputsAreExactlyHigh) {
    const auto gate = [&](std::int32_t in1, std::int32_t in2, std::int32_t out) {
        check({{"EN-poort Ingang 1", in1}, {"EN-poort Ingang 2", in2}}, {{"EN-poort Uit", out}});
    };
    gate(0, 0, 0);
    gate(50, 0, 0);
    gate(0, 50, 0);
    gate(50, 50, 50);
    gate(49, 50, 0);
    gate(50, 49, 0);
    gate(51, 50, 0);
    gate(unreached, 50, unreached);
    gate(0, unreached, unreached);
    const auto oneWire = [&](std::int32_t in, std::int32_t out) {
        check({{"EN-poort Ingang 1", in}}, {{"EN-poort Uit", out}});
        check({{"EN-poort Ingang 2", in}}, {{"EN-poort Uit", out}});
    };
    oneWire(0, 0);
    oneWire(50, 0);
    oneWire(unreached, unreached);
}

TEST_F(clsGraphTest, TheMemoryCellKeepsWhatItWasSetToUntilItIsReset) {
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

TEST_F(clsGraphTest, TheInvertorTurnsTheWholeScaleAround) {
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

TEST_F(clsGraphTest, TheComparatorIsHighFromItsReferenceOn) {
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

TEST_F(clsGraphTest, TheTransistorPullsItsOutputLowFromSevenTenthsOfAVolt) {
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

TEST_F(clsGraphTest, ALevelWithoutAWireIsNoInputOfTheAnalogueModules) {
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

TEST_F(clsGraphTest, AModuleWhoseOutputIsKnownIsNotAsked) {
    run({{"OF-poort Uit", 7}, {"Invertor Uitgang", 8}, {"AD-omzetter Uitgang 1", 9}});
    EXPECT_EQ(levelOf("OF-poort Uit"), 7);
    EXPECT_EQ(levelOf("Invertor Uitgang"), 8);
    EXPECT_EQ(levelOf("AD-omzetter Uitgang 1"), 9);
    EXPECT_EQ(levelOf("AD-omzetter Uitgang 2"), unreached);
}

TEST_F(clsGraphTest, AClosedRelayCopiesALevelBothWays) {
    for (const std::string path : {"1", "2"}) {
        const std::string in = "Relais Ingang " + path + " (in/uit)";
        const std::string out = "Relais Uitgang " + path + " (in/uit)";
        const auto contact = [&](const std::string& from, const std::string& to, std::int32_t level,
                                 std::int32_t expected) {
            check({{"Relais Controle (In)", 50}, {from.c_str(), level}},
                  {{from.c_str(), level}, {to.c_str(), expected}});
            check({{"Relais Controle (In)", 49}, {from.c_str(), level}}, {{to.c_str(), 0}});
            check({{"Relais Controle (In)", unreached}, {from.c_str(), level}}, {{to.c_str(), 0}});
            check({{from.c_str(), level}}, {{to.c_str(), 0}});
        };
        contact(in, out, 50, 50);
        contact(in, out, 23, 23);
        contact(in, out, 0, 0);
        contact(out, in, 50, 50);
        contact(out, in, 23, 23);
    }
}

TEST_F(clsGraphTest, ARelayContactThatNobodyKnowsPassesNothing) {
    check({{"Relais Controle (In)", 50}}, {{"Relais Ingang 1 (in/uit)", unreached},
                                           {"Relais Uitgang 1 (in/uit)", unreached},
                                           {"Relais Ingang 2 (in/uit)", unreached},
                                           {"Relais Uitgang 2 (in/uit)", unreached}});
    check({{"Relais Controle (In)", 50}, {"Relais Ingang 1 (in/uit)", 50}},
          {{"Relais Uitgang 1 (in/uit)", 50}, {"Relais Uitgang 2 (in/uit)", unreached}});
}

TEST_F(clsGraphTest, ARelayWithBothSidesKnownChangesNeither) {
    check({{"Relais Controle (In)", 50},
           {"Relais Ingang 1 (in/uit)", 20},
           {"Relais Uitgang 1 (in/uit)", 30}},
          {{"Relais Ingang 1 (in/uit)", 20}, {"Relais Uitgang 1 (in/uit)", 30}});
}

TEST_F(clsGraphTest, ARelayIsOpenForARunInWhichItsControlComesAfterItsContact) {
    connect("bron", "Relais Ingang 1 (in/uit)");
    connect("Invertor Uitgang", "Relais Controle (In)"); // known only after the first pass
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Controle (In)"), 50);
    EXPECT_EQ(levelOf("Relais Uitgang 1 (in/uit)"), 0);
}

TEST_F(clsGraphTest, ARelayClosesWhenItsControlComesNoLaterThanItsContact) {
    connect("bron", "EN-poort Ingang 1");
    connect("bron", "EN-poort Ingang 2");
    connect("EN-poort Uit", "Relais Ingang 1 (in/uit)");
    connect("Invertor Uitgang", "Relais Controle (In)");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Uitgang 1 (in/uit)"), 50);
}

TEST_F(clsGraphTest, AModuleOfALaterRowSeesTheRelayInTheNextPass) {
    connect("bron", "Relais Ingang 1 (in/uit)");
    connect("bron", "Relais Controle (In)");
    connect("Relais Uitgang 1 (in/uit)", "Relais Ingang 2 (in/uit)");
    connect("Relais Uitgang 2 (in/uit)", "Transistor In");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Uitgang 2 (in/uit)"), 50);
    EXPECT_EQ(levelOf("Transistor Uit"), 0);
}

struct PulseCounter : clsGraphTest {
    /// Runs once a level with the other inputs as given; the count afterwards.
    std::int32_t after(const std::vector<std::int32_t>& pulses, const Sockets& others = {}) {
        for (const std::int32_t pulse : pulses) {
            Sockets inputs = others;
            inputs.push_back({"Pulsenteller Tel pulsen (In)", pulse});
            check(inputs, {});
        }
        return test.board.Display.Value();
    }

    static Sockets enable(std::int32_t level) {
        return {{"Pulsenteller Teller aan/uit (In)", level}};
    }

    static Sockets reset(std::int32_t level) { return {{"Pulsenteller Reset (In)", level}}; }
};

TEST_F(PulseCounter, CountsRisingEdges) {
    EXPECT_EQ(after({0, 50, 50, 0, 50}), 2);
}

TEST_F(PulseCounter, TheVeryFirstPulseCounts) {
    EXPECT_EQ(after({50}), 1);
    EXPECT_EQ(after({50, 50}), 1);
}

TEST_F(PulseCounter, AnEdgeRunsFromExactlyLowToExactlyHigh) {
    EXPECT_EQ(after({0, 30, 50}), 0);
    EXPECT_EQ(after({0, 49}), 0);
    EXPECT_EQ(after({0, 50}), 1);
    EXPECT_EQ(after({1, 50}), 1);
}

TEST_F(PulseCounter, WithoutAPulseNothingIsCounted) {
    check({}, {});
    check(enable(50), {});
    EXPECT_EQ(test.board.Display.Value(), 0);
    EXPECT_EQ(after({50}), 1);
}

TEST_F(PulseCounter, CountsOnlyWhileItsSwitchIsExactlyHighOrOpen) {
    EXPECT_EQ(after({0, 50}, enable(50)), 1);
    EXPECT_EQ(after({0, 50}, enable(49)), 1);
    EXPECT_EQ(after({0, 50}, enable(0)), 1);
}

TEST_F(PulseCounter, WhatHappensWhileItIsOffIsNotRemembered) {
    EXPECT_EQ(after({0}), 0);
    EXPECT_EQ(after({50}, enable(0)), 0);
    EXPECT_EQ(after({50}), 1); // the last pulse it saw was low
    EXPECT_EQ(after({0}, enable(0)), 1);
    EXPECT_EQ(after({50}), 1); // the last pulse it saw was high
}

TEST_F(PulseCounter, ResetGoesToZeroAndComesBeforeCounting) {
    EXPECT_EQ(after({0, 50, 0, 50, 0}), 2);
    EXPECT_EQ(after({50}, reset(49)), 3);
    EXPECT_EQ(after({0}), 3);
    EXPECT_EQ(after({50}, reset(50)), 0);
    EXPECT_EQ(after({50}), 1); // the pulse during the reset was not seen
}

TEST_F(PulseCounter, AfterNineComesZero) {
    std::vector<std::int32_t> pulses;
    for (int i = 0; i < 9; ++i) {
        pulses.push_back(0);
        pulses.push_back(50);
    }
    EXPECT_EQ(after(pulses), 9);
    EXPECT_EQ(after({0, 50}), 0);
    EXPECT_EQ(after({0, 50}), 1);
}

TEST_F(PulseCounter, WaitsForInputsThatAreWiredButUnknown) {
    EXPECT_EQ(after({0, 50}, enable(unreached)), 0);
    EXPECT_EQ(after({0, 50}, reset(unreached)), 0);
    EXPECT_EQ(after({0, unreached, 50}), 1);
}

TEST_F(clsGraphTest, TheAdConverterSplitsTheScaleIntoSixteenSteps) {
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

// Circuits

TEST_F(clsGraphTest, ARunGoesOnAfterAPassInWhichASingleModuleAddedItsOutput) {
    const std::vector<std::string> outputs{
        "OF-poort Uit",   "EN-poort Uit",   "Geheugen Uit",         "Invertor Uitgang",
        "Comparator Uit", "Transistor Uit", "AD-omzetter Uitgang 1"};
    for (const std::string& output : outputs) {
        disconnectAll();
        connect(output, "LED 1 Ingang");
        Sockets others{{"Pulsenteller Uitgang Collection", 0}};
        for (const std::string& other : outputs)
            if (other != output)
                others.push_back({other.c_str(), 0});
        run(others);
        EXPECT_EQ(levelOf("LED 1 Ingang"), output == "Invertor Uitgang" ? 50 : 0) << output;
    }
}

TEST_F(clsGraphTest, AModuleInItsOwnLoopIsNeverReached) {
    connect("Invertor Uitgang", "Invertor Ingang");
    connect("Invertor Uitgang", "LED 1 Ingang");
    run();
    EXPECT_EQ(levelOf("Invertor Uitgang"), unreached);
    EXPECT_EQ(levelOf("LED 1 Ingang"), unreached);
    EXPECT_EQ(graph.GetPuntValueByName("LED 1 Ingang", 0), 0);
}

TEST_F(clsGraphTest, ALoopThroughTwoModulesIsNeverReachedAndTheRestIs) {
    connect("EN-poort Uit", "OF-poort Ingang 1");
    connect("OF-poort Uit", "EN-poort Ingang 1");
    connect("bron", "EN-poort Ingang 2");
    connect("bron", "LED 1 Ingang");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("EN-poort Uit"), unreached);
    EXPECT_EQ(levelOf("OF-poort Uit"), unreached);
    EXPECT_EQ(levelOf("LED 1 Ingang"), 50);
}

TEST_F(clsGraphTest, AMemoryCellThatResetsItselfWaitsForItself) {
    connect("bron", "Geheugen Set (In)");
    connect("Geheugen Uit", "Geheugen Reset (In)");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Geheugen Uit"), unreached);
}

TEST_F(clsGraphTest, ModulesInARowAllComeToTheirLevelInOneRun) {
    connect("LED 1 Ingang", "Transistor Uit");
    connect("Transistor In", "Comparator Uit");
    connect("Comparator In", "Invertor Uitgang");
    connect("Invertor Ingang", "OF-poort Uit");
    connect("OF-poort Ingang 1", "EN-poort Uit");
    connect("EN-poort Ingang 1", "bron");
    connect("EN-poort Ingang 2", "bron");
    graph.SetComparatorValue(50);
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Invertor Uitgang"), 0);
    EXPECT_EQ(levelOf("LED 1 Ingang"), 50);
    run({{"bron", 0}});
    EXPECT_EQ(levelOf("Invertor Uitgang"), 50);
    EXPECT_EQ(levelOf("LED 1 Ingang"), 0);
}

} // namespace
} // namespace veltrix
