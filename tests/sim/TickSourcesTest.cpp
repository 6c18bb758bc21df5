#include "tests/sim/TickFixture.h"

#include <algorithm>
#include <cmath>

namespace veltrix::test {
namespace {

using TickSources = TickFixture;

// The knob

TEST_F(TickSources, TakesTheKnobOverIntoTheLevelThatItWasOpenedFor) {
    KnobLevels& levels = board.Knobs;
    const auto turn = [&](const char* naam, double value) {
        board.Knob.naam = naam;
        board.Knob.Move(0, 0);
        board.Knob.SetValue(value);
        sim.runTicks(1);
    };
    turn("Comparator Regelaar", 11);
    EXPECT_EQ(levels.Comparator, 11);
    EXPECT_EQ(levels.VariableVoltage, 0);
    turn("Var. Spanning Regelaar", 12);
    EXPECT_EQ(levels.VariableVoltage, 12);
    EXPECT_EQ(levels.PulseGenerator, 0);
    turn("Puls Generator Regelaar", 13);
    EXPECT_EQ(levels.PulseGenerator, 13);
    turn("Zoemer", 14);
    turn("", 15);
    EXPECT_EQ(levels.Comparator, 11);
    EXPECT_EQ(levels.VariableVoltage, 12);
    EXPECT_EQ(levels.PulseGenerator, 13);
    board.Knob.Hide();
    board.Knob.naam = "Comparator Regelaar";
    sim.runTicks(1);
    EXPECT_EQ(levels.Comparator, 11);
}

TEST_F(TickSources, RoundsTheKnobsFractionHalvesToTheEvenLevel) {
    board.Knob.naam = "Var. Spanning Regelaar";
    board.Knob.Move(0, 0);
    const auto check = [&](double value, std::int32_t level) {
        board.Knob.SetValue(value);
        sim.runTicks(1);
        EXPECT_EQ(board.Knobs.VariableVoltage, level) << value;
    };
    check(20.25, 20);
    check(20.5, 20);
    check(20.75, 21);
    check(21.5, 22);
    check(0.5, 0);
    check(49.5, 50);
}

TEST_F(TickSources, TheKnobsLevelIsTheVariableVoltageOfTheSameTick) {
    board.Knob.naam = "Var. Spanning Regelaar";
    board.Knob.Move(0, 0);
    board.Knob.SetValue(27);
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Var. Spanning Uit Geel"), 27);
}

TEST_F(TickSources, TheKnobsLevelIsTheComparatorsReference) {
    wire(board, "Var. Spanning Uit Geel", "Comparator In");
    board.Knobs.VariableVoltage = 20;
    board.Knobs.Comparator = 21;
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Comparator Uit"), 0);
    board.Knobs.Comparator = 20;
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Comparator Uit"), 50);
}

// The light sensors

TEST_F(TickSources, ACoveredSensorIsDark) {
    sim.pointer.position = {44, 49};
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Sensor 1 Uit Geel"), 0);
    EXPECT_EQ(sim.levelOf("Sensor 2 Uit Geel"), 0);
}

TEST_F(TickSources, ASensorThatSeesThePointerIsBrighterTheNearerItIs) {
    const Point spots[] = {{44, 49}, {44, 102}};
    for (std::size_t i = 0; i < 2; ++i) {
        board.Sensors[i].SetValue(clsSensor::Pointer);
        const auto check = [&](std::int32_t dx, std::int32_t dy, std::int32_t level) {
            sim.pointer.position = {spots[i].x + dx, spots[i].y + dy};
            sim.runTicks(1);
            EXPECT_EQ(sim.levelOf("Sensor " + std::to_string(i + 1) + " Uit Geel"), level)
                << dx << ", " << dy;
        };
        check(0, 0, 50);
        check(40, 0, 30);
        check(0, -40, 30);
        check(-24, 32, 30);
        check(1, 0, 50);  // 49.5
        check(3, 0, 48);  // 48.5
        check(99, 0, 0);  // 0.5
        check(101, 0, 0); // -0.5
        check(102, 0, 0);
        check(-3000, 4000, 0);
    }
}

TEST_F(TickSources, ASensorInTheSlowWaveSwingsBetweenTenAndFiftyInFiveSeconds) {
    board.Sensors[0].SetValue(clsSensor::Wave);
    board.Sensors[1].SetValue(clsSensor::Wave);
    const auto at = [&](double seconds) {
        tickAt(seconds);
        EXPECT_EQ(sim.levelOf("Sensor 1 Uit Geel"), sim.levelOf("Sensor 2 Uit Geel"));
        return sim.levelOf("Sensor 1 Uit Geel");
    };
    EXPECT_EQ(at(0), 30);
    EXPECT_EQ(at(1.25), 50);
    EXPECT_EQ(at(2.5), 30);
    EXPECT_EQ(at(3.75), 10);
    // A whole number of rounds after midnight, were it not for the rough pi.
    EXPECT_EQ(at(86000), std::lround(std::sin(86000 / 5.0 * 2 * 3.14) * 20 + 30));
    EXPECT_NE(at(86000), 30);
    std::int32_t lowest = 50;
    std::int32_t highest = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::int32_t level = at(i * 0.1);
        lowest = std::min(lowest, level);
        highest = std::max(highest, level);
    }
    EXPECT_EQ(lowest, 10);
    EXPECT_EQ(highest, 50);
}

TEST_F(TickSources, ASensorInAnotherModeKeepsItsLevel) {
    for (clsSensor& sensor : board.Sensors)
        sensor.SetValue(clsSensor::Pointer);
    sim.pointer.position = {44, 49};
    sim.runTicks(1);
    const std::int32_t second = sim.levelOf("Sensor 2 Uit Geel");
    EXPECT_EQ(second, 24); // 53 pixels away: 23.5
    for (const std::int32_t mode : {3, -1, 1000}) {
        for (clsSensor& sensor : board.Sensors)
            sensor.SetValue(mode);
        sim.pointer.position = {300, 300};
        sim.runTicks(2);
        EXPECT_EQ(sim.levelOf("Sensor 1 Uit Geel"), 50);
        EXPECT_EQ(sim.levelOf("Sensor 2 Uit Geel"), second);
    }
    board.Sensors[0].SetValue(clsSensor::Dark);
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Sensor 1 Uit Geel"), 0);
    EXPECT_EQ(sim.levelOf("Sensor 2 Uit Geel"), second);
}

// The other sources

TEST_F(TickSources, APressedPushButtonIsHigh) {
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Drukknop 1 Uit Geel"), 0);
    board.PushButtons[0].SetValue(true);
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Drukknop 1 Uit Geel"), 50);
    EXPECT_EQ(sim.levelOf("Drukknop 2 Uit Geel"), 0);
    board.PushButtons[0].SetValue(false);
    board.PushButtons[1].SetValue(true);
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Drukknop 1 Uit Geel"), 0);
    EXPECT_EQ(sim.levelOf("Drukknop 2 Uit Geel"), 50);
}

TEST_F(TickSources, TheSoundSensorGivesTheLevelOfTheRoom) {
    for (const std::int32_t volume : {0, 17, 50}) {
        sim.sound.volume = volume;
        sim.runTicks(1);
        EXPECT_EQ(sim.levelOf("Geluids Sensor Uit Geel"), volume);
    }
}

TEST_F(TickSources, TheCountersOutputsShowTheCountInBinary) {
    for (std::int32_t count = 0; count <= 9; ++count) {
        board.Display.SetValue(count);
        sim.runTicks(1);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 1"), count % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 2"), count / 2 % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 4"), count / 4 % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 8"), count / 8 * 50);
    }
}

TEST_F(TickSources, TheCountersOutputsLagOneTickBehindTheDisplay) {
    wire(board, "Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)");
    sim.runTicks(1);
    board.PushButtons[0].SetValue(true);
    sim.runTicks(1);
    EXPECT_EQ(board.Display.Value(), 1);
    EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 1"), 0);
    sim.runTicks(1);
    EXPECT_EQ(board.Display.Value(), 1);
    EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 1"), 50);
}

} // namespace
} // namespace veltrix::test
