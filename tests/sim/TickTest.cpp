#include "sim/Tick.h"

#include "tests/support/Pictures.h"
#include "tests/support/TestSimulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace veltrix {
namespace {

using test::TestSimulation;
using test::wire;

struct TickTest : testing::Test {
    /// The next tick, at a clock of the test's own.
    void tickAt(double seconds) {
        sim.clock.now = static_cast<float>(seconds);
        sim.tick.Timer1_Timer();
    }

    TestSimulation sim;
    Board& board = sim.board;
};

// The steps

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

TEST_F(TickTest, MovesTheLooseEndAndTheMarkOnceATick) {
    sim.runTicks(3);
    EXPECT_EQ(sim.follower.moves, 3);
    EXPECT_EQ(sim.follower.marks, 3);
}

/// Everything outside that a tick asks, written down in the order in which it asks.
struct Witness : Clock, Pointer, SoundSensor, SoundPlayer, TickTimer, PointerFollower {
    explicit Witness(Board& witnessed) : board(witnessed) {}

    float Timer() override {
        steps.emplace_back("clock");
        return 0;
    }

    Point BoardPosition() override {
        steps.emplace_back("pointer");
        return {};
    }

    bool OverBareMainWindow() override { return false; }

    std::int32_t GetVolume() override {
        steps.emplace_back("sound");
        voltageDuringExchange = board.Knobs.VariableVoltage;
        knobDuringExchange = board.Knob.Visible();
        return 50;
    }

    void Play(const std::string& name) override { steps.push_back("play " + name); }

    void SetEnabled(bool /*Enabled*/) override { steps.emplace_back("enabled"); }

    void SetInterval(std::int32_t /*Interval*/) override { steps.emplace_back("interval"); }

    void MoveLooseEnd() override { steps.emplace_back("loose end"); }

    void MarkSocket() override { steps.emplace_back("mark"); }

    Board& board;
    std::vector<std::string> steps;
    std::int32_t voltageDuringExchange = -1;
    bool knobDuringExchange = false;
};

TEST(Tick, DoesItsStepsInOrderAndPaintsLast) {
    const test::PictureFolder pictures;
    test::TestBoard test(pictures.Path());
    Board& board = test.board;
    Witness witness(board);
    clsGraph graph;
    graph.Constructor(board.Display);
    Tick tick({test.surface, board, graph, witness, witness, witness, witness, witness, witness});
    board.Sensors[0].SetValue(clsSensor::Pointer);
    wire(board, "Geluids Sensor Uit Geel", "Zoemer");
    wire(board, "Geluids Sensor Uit Geel", "LED 1 Ingang");
    board.Knob.naam = "Var. Spanning Regelaar";
    board.Knob.Move(0, 300);
    board.Knob.SetValue(33);
    test.surface.MouseDown(MouseButton::Left, 200, 310); // the cross
    tick.Timer1_Timer();
    EXPECT_EQ(witness.steps, std::vector<std::string>({"interval", "loose end", "mark", "pointer",
                                                       "sound", "clock", "play \\Ringin.wav"}));
    EXPECT_EQ(witness.voltageDuringExchange, 33);
    EXPECT_TRUE(witness.knobDuringExchange);
    EXPECT_FALSE(board.Knob.Visible());
    EXPECT_EQ(test.surface.Frame().Row(300)[200], test::boardColours::Board);
    EXPECT_EQ(test.surface.Frame().Row(27)[373], test::boardColours::RedLight);
}

// The knob

TEST_F(TickTest, TakesTheKnobOverIntoTheLevelThatItWasOpenedFor) {
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

TEST_F(TickTest, RoundsTheKnobsFractionHalvesToTheEvenLevel) {
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

TEST_F(TickTest, TheKnobsLevelIsTheVariableVoltageOfTheSameTick) {
    board.Knob.naam = "Var. Spanning Regelaar";
    board.Knob.Move(0, 0);
    board.Knob.SetValue(27);
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Var. Spanning Uit Geel"), 27);
}

TEST_F(TickTest, TheKnobsLevelIsTheComparatorsReference) {
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

TEST_F(TickTest, ACoveredSensorIsDark) {
    sim.pointer.position = {44, 49};
    sim.runTicks(1);
    EXPECT_EQ(sim.levelOf("Sensor 1 Uit Geel"), 0);
    EXPECT_EQ(sim.levelOf("Sensor 2 Uit Geel"), 0);
}

TEST_F(TickTest, ASensorThatSeesThePointerIsBrighterTheNearerItIs) {
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

TEST_F(TickTest, ASensorInTheSlowWaveSwingsBetweenTenAndFiftyInFiveSeconds) {
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

TEST_F(TickTest, ASensorInAnotherModeKeepsItsLevel) {
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

TEST_F(TickTest, APressedPushButtonIsHigh) {
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

TEST_F(TickTest, TheSoundSensorGivesTheLevelOfTheRoom) {
    for (const std::int32_t volume : {0, 17, 50}) {
        sim.sound.volume = volume;
        sim.runTicks(1);
        EXPECT_EQ(sim.levelOf("Geluids Sensor Uit Geel"), volume);
    }
}

TEST_F(TickTest, TheCountersOutputsShowTheCountInBinary) {
    for (std::int32_t count = 0; count <= 9; ++count) {
        board.Display.SetValue(count);
        sim.runTicks(1);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 1"), count % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 2"), count / 2 % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 4"), count / 4 % 2 * 50);
        EXPECT_EQ(sim.levelOf("Pulsenteller Uitgang 8"), count / 8 * 50);
    }
}

TEST_F(TickTest, TheCountersOutputsLagOneTickBehindTheDisplay) {
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

TEST_F(TickTest, TenPulsesLeadTheCounterThroughAllItsDigits) {
    wire(board, "Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)");
    for (std::int32_t count = 1; count <= 10; ++count) {
        board.PushButtons[0].SetValue(true);
        sim.runTicks(2);
        board.PushButtons[0].SetValue(false);
        sim.runTicks(2);
        const std::int32_t seen =
            (sim.levelOf("Pulsenteller Uitgang 1") + 2 * sim.levelOf("Pulsenteller Uitgang 2") +
             4 * sim.levelOf("Pulsenteller Uitgang 4") +
             8 * sim.levelOf("Pulsenteller Uitgang 8")) /
            50;
        EXPECT_EQ(seen, count % 10);
        EXPECT_EQ(board.Display.Value(), count % 10);
    }
}

// The pulse generator

struct PulseGenerator : TickTest {
    /// The ticks, of the next so many, after which the output differs from before.
    std::vector<int> togglesIn(int ticks) {
        std::vector<int> toggles;
        std::int32_t level = output();
        for (int i = 0; i < ticks; ++i) {
            sim.runTicks(1);
            if (output() != level)
                toggles.push_back(sim.ticks);
            level = output();
        }
        return toggles;
    }

    [[nodiscard]] std::int32_t output() const { return sim.levelOf("Puls Generator Uit Geel"); }

    /// The tick that first sees the level after the n-th half period has passed: the generator
    /// toggles at the end of the tick after it, which the next one shows.
    static int tickOf(int n, double halfPeriod) {
        return static_cast<int>(std::floor(n * halfPeriod / 0.01)) + 2;
    }
};

TEST_F(PulseGenerator, TogglesAfterEveryHalfPeriod) {
    struct Setting {
        std::int32_t k;
        double halfPeriod;
    };

    for (const Setting& setting : {Setting{1, 10.0 / 14}, {11, 10.0 / 54}, {50, 10.0 / 210}}) {
        TestSimulation fresh;
        std::vector<int> expected;
        for (int n = 1; n <= 10; ++n)
            expected.push_back(tickOf(n, setting.halfPeriod));
        fresh.board.Knobs.PulseGenerator = setting.k;
        std::vector<int> seen;
        std::int32_t level = 0;
        EXPECT_TRUE(fresh.runUntil(
            [&] {
                const std::int32_t now = fresh.levelOf("Puls Generator Uit Geel");
                if (now != level)
                    seen.push_back(fresh.ticks);
                level = now;
                return seen.size() == 10;
            },
            2000));
        EXPECT_EQ(seen, expected) << setting.k;
    }
}

TEST_F(PulseGenerator, StandsStillAtZeroAtEitherLevel) {
    EXPECT_TRUE(togglesIn(500).empty());
    EXPECT_EQ(output(), 0);
    board.Knobs.PulseGenerator = 50;
    ASSERT_TRUE(sim.runUntil([&] { return output() == 50; }, 100));
    board.Knobs.PulseGenerator = 0;
    EXPECT_TRUE(togglesIn(500).empty());
    EXPECT_EQ(output(), 50);
    board.Knobs.PulseGenerator = -3;
    EXPECT_TRUE(togglesIn(500).empty());
}

TEST_F(PulseGenerator, TheTimeAtZeroCountsForTheFirstToggle) {
    EXPECT_TRUE(togglesIn(200).empty());
    board.Knobs.PulseGenerator = 1;
    EXPECT_EQ(togglesIn(5), std::vector<int>{202});
}

TEST_F(PulseGenerator, TogglesOnceATickHoweverMuchTimeWentByAndKeepsTheRest) {
    board.Knobs.PulseGenerator = 1; // a half period of 0.714 s
    tickAt(0);
    // Three half periods and 0.357 s: one toggle, and the rest counts.
    tickAt(2.5);
    tickAt(2.5);
    EXPECT_EQ(output(), 50);
    tickAt(2.84); // 0.697 since
    tickAt(2.84);
    EXPECT_EQ(output(), 50);
    tickAt(2.87);
    tickAt(2.87);
    EXPECT_EQ(output(), 0);
}

TEST_F(PulseGenerator, PausesAfterMidnightForAsLongAsTheClockWentBack) {
    board.Knobs.PulseGenerator = 50;
    tickAt(86399.5);
    tickAt(86399.9);
    const std::int32_t level = (tickAt(86399.9), output());
    tickAt(0);
    for (const double seconds : {0.5, 1.0, 100.0, 86000.0, 86399.5}) {
        tickAt(seconds);
        EXPECT_EQ(output(), level) << seconds;
    }
    tickAt(86399.98);
    tickAt(86399.98);
    EXPECT_NE(output(), level);
}

TEST_F(PulseGenerator, ANewLevelIsSeenInTheNextTick) {
    wire(board, "Puls Generator Uit Geel", "LED 1 Ingang");
    board.Knobs.PulseGenerator = 50;
    tickAt(0);
    tickAt(0.05); // toggles, after the level was taken
    EXPECT_FALSE(board.LEDs[0].Value());
    tickAt(0.05);
    EXPECT_TRUE(board.LEDs[0].Value());
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

TEST_F(TickTest, ATickOnABoardAtRestPaintsNothing) {
    wire(board, "Invertor Uitgang", "LED 1 Ingang");
    sim.runTicks(2);
    EXPECT_TRUE(board.LEDs[0].Value());
    for (int i = 0; i < 100; ++i) {
        sim.runTicks(1);
        ASSERT_TRUE(sim.surface.Changed().empty());
    }
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

TEST(Tick, TheSameRunTwiceGivesTheSameFrames) {
    const auto play = [](TestSimulation& sim) {
        wire(sim.board, "Sensor 1 Uit Geel", "AD-omzetter In");
        wire(sim.board, "AD-omzetter Uitgang 8", "LED 1 Ingang");
        wire(sim.board, "Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
        sim.board.Sensors[0].SetValue(clsSensor::Wave);
        sim.board.Knobs.PulseGenerator = 30;
        sim.runTicks(500);
    };
    const test::PictureFolder pictures;
    TestSimulation first(pictures.Path());
    TestSimulation second(pictures.Path());
    play(first);
    play(second);
    EXPECT_EQ(first.surface.Frame().pixels, second.surface.Frame().pixels);
    EXPECT_EQ(first.board.Display.Value(), second.board.Display.Value());
    EXPECT_NE(first.board.Display.Value(), 0);
}

} // namespace
} // namespace veltrix
