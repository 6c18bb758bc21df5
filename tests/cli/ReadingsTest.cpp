#include "cli/Readings.h"

#include "tests/cli/BareSimulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace veltrix::cli {
namespace {

struct ReadingsTest : testing::Test, test::BareSimulation {
    Cell cell(const std::string& name) const {
        const auto& places = readings.Places();
        const auto found =
            std::find_if(places.begin(), places.end(),
                         [&](const Readings::Place& place) { return place.Name == name; });
        if (found == places.end())
            throw std::invalid_argument("no place " + name);
        return readings.Cells()[static_cast<std::size_t>(found - places.begin())];
    }

    Readings readings{simulation};
};

TEST_F(ReadingsTest, PlacesAreTheSocketsOfTheCatalogueAndWhatABoardShows) {
    std::vector<std::string> expected;
    const clsSnaps snaps;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i)
        if (snaps.GetConnectablebyName(snaps.GetSnapItemName(i)) != 0)
            expected.push_back(snaps.GetSnapItemName(i));
    ASSERT_EQ(expected.size(), 45U);
    for (const char* shown : {"LED 1", "LED 2", "LED 3", "LED 4", "Zoemer klinkt", "Teller"})
        expected.emplace_back(shown);

    std::vector<std::string> found;
    for (const Readings::Place& place : readings.Places())
        found.push_back(place.Name);
    EXPECT_EQ(found, expected);
}

TEST_F(ReadingsTest, NothingIsKnownBeforeTheFirstReading) {
    ASSERT_EQ(readings.Cells().size(), readings.Places().size());
    for (const Cell& cell : readings.Cells())
        EXPECT_EQ(cell, Cell());
}

TEST_F(ReadingsTest, SocketThatTheRunDidNotReachIsUnknown) {
    simulation.TheBoard().AddLine("Drukknop 1 Uit Geel", "LED 1 Ingang");
    simulation.RunTick();
    readings.Read();
    EXPECT_EQ(cell("LED 1 Ingang"), (Cell{0, true}));
    EXPECT_EQ(cell("LED 2 Ingang"), Cell());
    EXPECT_EQ(cell("Relais Ingang 1 (in/uit)"), Cell());
    EXPECT_EQ(cell("Var. Spanning In Zwart"), Cell());
    EXPECT_EQ(cell("Invertor Uitgang"), (Cell{50, true}));
}

TEST_F(ReadingsTest, ShowsLampsBuzzerAndCounter) {
    simulation.TheBoard().AddLine("Invertor Uitgang", "LED 3 Ingang");
    simulation.TheBoard().AddLine("Invertor Uitgang", "Zoemer");
    simulation.TheBoard().Display.SetValue(7);
    simulation.RunTick();
    readings.Read();
    EXPECT_EQ(cell("LED 2"), (Cell{0, true}));
    EXPECT_EQ(cell("LED 3"), (Cell{1, true}));
    EXPECT_EQ(cell("Zoemer klinkt"), (Cell{1, true}));
    EXPECT_EQ(cell("Teller"), (Cell{7, true}));
}

TEST_F(ReadingsTest, TellsWhetherACellChanged) {
    simulation.RunTick();
    EXPECT_TRUE(readings.Read());
    simulation.RunTick();
    EXPECT_FALSE(readings.Read());
    simulation.TheBoard().PushButtons[1].SetValue(true);
    EXPECT_FALSE(readings.Read()) << "the board did not tick";
    simulation.RunTick();
    EXPECT_TRUE(readings.Read());
    simulation.TheBoard().AddLine("Sensor 1 Uit Geel", "Zoemer");
    simulation.RunTick();
    EXPECT_TRUE(readings.Read()) << "from unknown to 0";
}

} // namespace
} // namespace veltrix::cli
