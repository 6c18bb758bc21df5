#include "cli/Simulation.h"

#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix::cli {
namespace {

TEST(Simulation, ClockReadsZeroBeforeTheFirstTickAndTenMillisecondsMoreAtEach) {
    test::NullLog log;
    Simulation simulation({}, 1, log);
    EXPECT_EQ(simulation.Ticks(), 0);
    EXPECT_EQ(simulation.Around().Seconds, 0.0F);
    for (int tick = 1; tick <= 1234; ++tick) {
        simulation.RunTick();
        ASSERT_EQ(simulation.Ticks(), tick);
        // Not a sum of 10 ms, whose rounding would add up.
        ASSERT_EQ(simulation.Around().Seconds, static_cast<float>(tick / 100.0));
    }
}

TEST(Simulation, TicksTheBoard) {
    test::NullLog log;
    Simulation simulation({}, 1, log);
    simulation.TheBoard().AddLine("Drukknop 1 Uit Geel", "LED 2 Ingang");
    simulation.TheBoard().AddLine("Zoemer", "Drukknop 1 Uit Geel");
    simulation.TheBoard().PushButtons[0].SetValue(true);
    EXPECT_FALSE(simulation.TheBoard().LEDs[1].Value());
    EXPECT_FALSE(simulation.BuzzerOn());
    simulation.RunTick();
    EXPECT_TRUE(simulation.TheBoard().LEDs[1].Value());
    EXPECT_TRUE(simulation.BuzzerOn());
    EXPECT_EQ(simulation.Graph().Level("LED 2 Ingang"), 50);
}

TEST(Simulation, SurroundingsReachTheBoard) {
    test::NullLog log;
    Simulation simulation({}, 1, log);
    simulation.TheBoard().Sensors[0].SetValue(clsSensor::Pointer);
    simulation.Around().PointerAt = {44 + 40, 49};
    simulation.Around().SoundLevel = 17;
    simulation.RunTick();
    EXPECT_EQ(simulation.Graph().Level("Sensor 1 Uit Geel"), 30);
    EXPECT_EQ(simulation.Graph().Level("Geluids Sensor Uit Geel"), 17);
}

TEST(Simulation, RunsOnAfterATickThatFailed) {
    test::NullLog log;
    Simulation simulation({}, 1, log);
    simulation.TheBoard().AddLine("Var. Spanning Uit Geel", "LED 1 Ingang");
    simulation.TheBoard().Knobs.VariableVoltage = INT32_MAX;
    EXPECT_THROW(simulation.RunTick(), std::out_of_range);
    EXPECT_EQ(simulation.Ticks(), 1);
    simulation.TheBoard().Knobs.VariableVoltage = 50;
    simulation.RunTick();
    EXPECT_EQ(simulation.Ticks(), 2);
    EXPECT_TRUE(simulation.TheBoard().LEDs[0].Value());
}

TEST(Simulation, WithoutAFolderNoPictureIsMissed) {
    test::KeptLog log;
    Simulation simulation({}, 1, log);
    simulation.TheBoard().AddLine("Sensor 1 Uit Geel", "LED 1 Ingang");
    simulation.RunTick();
    EXPECT_TRUE(log.Lines.empty());
    for (const std::uint32_t pixel : simulation.Frame().pixels)
        ASSERT_EQ(pixel, 0xFF000000U);
}

TEST(Simulation, FrameShowsTheBoardAsItIs) {
    const test::TempFolder folder;
    test::writeBoardPictures(folder.Path());
    test::KeptLog log;
    Simulation simulation(folder.Path(), 1, log);
    const auto pixelOfLed1 = [&] { return simulation.Frame().Row(27 + 16)[373 + 16]; };
    EXPECT_EQ(pixelOfLed1(), test::boardColours::Board);
    simulation.TheBoard().LEDs[0].SetValue(true);
    EXPECT_EQ(pixelOfLed1(), test::boardColours::RedLight);
    EXPECT_TRUE(log.Lines.empty());
}

TEST(Simulation, ImpossibleScaleIsRefused) {
    test::NullLog log;
    EXPECT_THROW(Simulation({}, 0, log), std::runtime_error);
}

} // namespace
} // namespace veltrix::cli
