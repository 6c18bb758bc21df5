#include "tests/sim/TickFixture.h"

#include <stdexcept>

namespace veltrix::test {
namespace {

using TickTest = TickFixture;

TEST_F(TickTest, RunsEverySecondOverTheBareWindowAndEveryTenMillisecondsElsewhere) {
    sim.runTicks(1);
    EXPECT_EQ(sim.timer.interval, 10);
    sim.pointer.overBareMainWindow = true;
    sim.runTicks(1);
    EXPECT_EQ(sim.timer.interval, 1000);
    sim.pointer.overBareMainWindow = false;
    sim.runTicks(1);
    EXPECT_EQ(sim.timer.interval, 10);
}

TEST_F(TickTest, CountsItsPhaseFromOneToNine) {
    EXPECT_EQ(sim.tick.Phase(), 1);
    for (int i = 0; i < 20; ++i) {
        sim.runTicks(1);
        EXPECT_EQ(sim.tick.Phase(), (i + 1) % 9 + 1);
    }
}

// LEDs and buzzer

TEST_F(TickTest, EachLedIsLitAtExactlyFiveVolts) {
    for (std::size_t led = 0; led < 4; ++led) {
        TestSimulation fresh;
        wire(fresh.board, "Var. Spanning Uit Geel", "LED " + std::to_string(led + 1) + " Ingang");
        for (const std::int32_t level : {0, 1, 49, 50, 51}) {
            fresh.board.Knobs.VariableVoltage = level;
            fresh.runTicks(1);
            for (std::size_t i = 0; i < 4; ++i)
                EXPECT_EQ(fresh.board.LEDs[i].Value(), i == led && level == 50) << level;
        }
    }
}

TEST_F(TickTest, ALedGoesDarkWhenItsWireIsGone) {
    board.Knobs.VariableVoltage = 50;
    wire(board, "Var. Spanning Uit Geel", "LED 3 Ingang");
    sim.runTicks(1);
    EXPECT_TRUE(board.LEDs[2].Value());
    board.Lines.Remove(1);
    sim.runTicks(1);
    EXPECT_FALSE(board.LEDs[2].Value());
}

TEST_F(TickTest, TheBuzzerStartsAndStopsItsSoundOnce) {
    wire(board, "Drukknop 1 Uit Geel", "Zoemer");
    sim.runTicks(5);
    EXPECT_TRUE(sim.player.played.empty());
    EXPECT_FALSE(sim.tick.BuzzerOn());
    board.PushButtons[0].SetValue(true);
    sim.runTicks(50);
    EXPECT_EQ(sim.player.played, std::vector<std::string>{"\\Ringin.wav"});
    EXPECT_TRUE(sim.tick.BuzzerOn());
    board.PushButtons[0].SetValue(false);
    sim.runTicks(50);
    EXPECT_EQ(sim.player.played, std::vector<std::string>({"\\Ringin.wav", "\\SILENCE.wav"}));
    EXPECT_FALSE(sim.tick.BuzzerOn());
    board.PushButtons[0].SetValue(true);
    sim.runTicks(1);
    EXPECT_EQ(sim.player.played.size(), 3U);
}

TEST_F(TickTest, TheBuzzerSoundsAtExactlyFiveVolts) {
    wire(board, "Var. Spanning Uit Geel", "Zoemer");
    board.Knobs.VariableVoltage = 49;
    sim.runTicks(2);
    EXPECT_TRUE(sim.player.played.empty());
    board.Knobs.VariableVoltage = 50;
    sim.runTicks(2);
    EXPECT_TRUE(sim.tick.BuzzerOn());
}

// Runs and errors

TEST_F(TickTest, EveryTickEvaluatesEveryWireAnew) {
    const auto line = wire(board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
    board.PushButtons[0].SetValue(true);
    for (int i = 0; i < 3; ++i) {
        line->done = true;
        sim.runTicks(1);
        EXPECT_TRUE(board.LEDs[0].Value());
        EXPECT_TRUE(line->done);
        EXPECT_EQ(line->Color(), 1);
    }
    board.PushButtons[0].SetValue(false);
    sim.runTicks(1);
    EXPECT_EQ(line->Color(), 8);
}

TEST_F(TickTest, AnErrorInOneTickLeavesTheNextOneWorking) {
    wire(board, "Var. Spanning Uit Geel", "LED 1 Ingang");
    wire(board, "Drukknop 1 Uit Geel", "LED 2 Ingang");
    board.PushButtons[0].SetValue(true);
    board.Knobs.VariableVoltage = 1000; // a document may hold any number, but no wire shows it
    EXPECT_THROW(sim.runTicks(1), std::out_of_range);
    EXPECT_FALSE(board.LEDs[1].Value());
    board.Knobs.VariableVoltage = 50;
    EXPECT_NO_THROW(sim.runTicks(1));
    EXPECT_TRUE(board.LEDs[0].Value());
    EXPECT_TRUE(board.LEDs[1].Value());
}

TEST_F(TickTest, ALevelThatNoModuleCanComputeIsAnErrorOfItsTick) {
    // Turned around it leaves the range; the wire has no place, so that no colour comes first.
    const auto line = board.BordLines.CreateLine();
    line->naam1 = "Var. Spanning Uit Geel";
    line->naam2 = "Invertor Ingang";
    board.Lines.Add(line);
    board.Knobs.VariableVoltage = -2147483647 - 1;
    EXPECT_THROW(sim.runTicks(1), std::overflow_error);
    board.Knobs.VariableVoltage = 20;
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Invertor Uitgang"), 30);
}

// Stories

TEST_F(TickTest, APulseGeneratorDrivesTheCounterRoundUntilItsResetIsPressed) {
    wire(board, "Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    wire(board, "Drukknop 1 Uit Geel", "Pulsenteller Reset (In)");
    board.Knobs.PulseGenerator = 50;
    ASSERT_TRUE(sim.runUntil([&] { return board.Display.Value() == 9; }, 1000));
    ASSERT_TRUE(sim.runUntil([&] { return board.Display.Value() == 0; }, 20));
    ASSERT_TRUE(sim.runUntil([&] { return board.Display.Value() == 4; }, 1000));
    board.PushButtons[0].SetValue(true);
    sim.runTicks(1);
    EXPECT_EQ(board.Display.Value(), 0);
    sim.runTicks(100);
    EXPECT_EQ(board.Display.Value(), 0);
    board.PushButtons[0].SetValue(false);
    EXPECT_TRUE(sim.runUntil([&] { return board.Display.Value() == 1; }, 100));
}

TEST_F(TickTest, AnAlarmRingsFromTheFirstBangUntilItIsSwitchedOff) {
    wire(board, "Geluids Sensor Uit Geel", "Comparator In");
    wire(board, "Comparator Uit", "Geheugen Set (In)");
    wire(board, "Drukknop 1 Uit Geel", "Geheugen Reset (In)");
    wire(board, "Geheugen Uit", "Zoemer");
    board.Knobs.Comparator = 35;
    sim.sound.volume = 34;
    sim.runTicks(100);
    EXPECT_FALSE(sim.tick.BuzzerOn());
    sim.sound.volume = 40;
    sim.runTicks(1);
    sim.sound.volume = 0;
    sim.runTicks(100);
    EXPECT_TRUE(sim.tick.BuzzerOn());
    board.PushButtons[0].SetValue(true);
    sim.runTicks(1);
    board.PushButtons[0].SetValue(false);
    sim.runTicks(100);
    EXPECT_FALSE(sim.tick.BuzzerOn());
    EXPECT_EQ(sim.player.played.size(), 2U);
}

} // namespace
} // namespace veltrix::test
