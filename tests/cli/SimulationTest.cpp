#include "cli/Simulation.h"

#include "tests/cli/BareSimulation.h"
#include "tests/support/Logs.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix::cli {
namespace {

struct SimulationTest : testing::Test, test::BareSimulation {};

TEST_F(SimulationTest, ClockReadsZeroBeforeTheFirstTickAndTenMillisecondsMoreAtEach) {
    EXPECT_EQ(simulation.Ticks(), 0);
    EXPECT_EQ(simulation.Around().Seconds, 0.0F);
    for (int tick = 1; tick <= 1234; ++tick) {
        simulation.RunTick();
        ASSERT_EQ(simulation.Ticks(), tick);
        // Not a sum of 10 ms, whose rounding would add up.
        ASSERT_EQ(simulation.Around().Seconds, static_cast<float>(tick / 100.0));
    }
}

TEST_F(SimulationTest, TicksTheBoard) {
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

TEST_F(SimulationTest, SurroundingsReachTheBoard) {
    simulation.TheBoard().Sensors[0].SetValue(clsSensor::Pointer);
    simulation.Around().PointerAt = {44 + 40, 49};
    simulation.Around().SoundLevel = 17;
    simulation.RunTick();
    EXPECT_EQ(simulation.Graph().Level("Sensor 1 Uit Geel"), 30);
    EXPECT_EQ(simulation.Graph().Level("Geluids Sensor Uit Geel"), 17);
}

TEST_F(SimulationTest, RunsOnAfterATickThatFailed) {
    simulation.TheBoard().AddLine("Var. Spanning Uit Geel", "LED 1 Ingang");
    simulation.TheBoard().Knobs.VariableVoltage = INT32_MAX;
    EXPECT_THROW(simulation.RunTick(), std::out_of_range);
    EXPECT_EQ(simulation.Ticks(), 1);
    simulation.TheBoard().Knobs.VariableVoltage = 50;
    simulation.RunTick();
    EXPECT_EQ(simulation.Ticks(), 2);
    EXPECT_TRUE(simulation.TheBoard().LEDs[0].Value());
}

TEST_F(SimulationTest, WithoutAFolderNoPictureIsMissed) {
    test::KeptLog kept;
    Simulation bare({}, 1, kept);
    bare.TheBoard().AddLine("Sensor 1 Uit Geel", "LED 1 Ingang");
    bare.RunTick();
    EXPECT_TRUE(kept.Lines.empty());
    for (const std::uint32_t pixel : bare.Frame().pixels)
        ASSERT_EQ(pixel, 0xFF000000U);
}

TEST_F(SimulationTest, FrameShowsTheBoardAsItIs) {
    const test::TempFolder folder;
    test::writeBoardPictures(folder.Path());
    test::KeptLog kept;
    Simulation pictured(folder.Path(), 1, kept);
    const auto pixelOfLed1 = [&] { return pictured.Frame().Row(27 + 16)[373 + 16]; };
    EXPECT_EQ(pixelOfLed1(), test::boardColours::Board);
    pictured.TheBoard().LEDs[0].SetValue(true);
    EXPECT_EQ(pixelOfLed1(), test::boardColours::RedLight);
    EXPECT_TRUE(kept.Lines.empty());
}

TEST_F(SimulationTest, ImpossibleScaleIsRefused) {
    EXPECT_THROW(Simulation({}, 0, log), std::runtime_error);
}

} // namespace
} // namespace veltrix::cli
