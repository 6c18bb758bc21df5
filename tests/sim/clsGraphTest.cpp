#include "tests/sim/GraphFixture.h"

#include <algorithm>
#include <stdexcept>

namespace veltrix::test {
namespace {

using clsGraphTest = GraphFixture;

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
                others.push_back({other, 0});
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

TEST_F(clsGraphTest, ANameThatIsAddedOverAndOverFillsTheTableToo) {
    for (int i = 1; i <= 100; ++i)
        graph.AddPunt("Zoemer", i);
    EXPECT_THROW(graph.AddPunt("Zoemer", 101), std::out_of_range);
    EXPECT_EQ(levelOf("Zoemer"), 1);
}

} // namespace
} // namespace veltrix::test
