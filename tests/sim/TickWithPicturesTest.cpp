#include "tests/support/Pictures.h"
#include "tests/support/TestSimulation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veltrix::test {
namespace {

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

TEST(TickWithPictures, DoesItsStepsInOrderAndPaintsLast) {
    TestBoard test(boardPictures());
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
    EXPECT_EQ(test.surface.Frame().Row(300)[200], boardColours::Board);
    EXPECT_EQ(test.surface.Frame().Row(27)[373], boardColours::RedLight);
}

TEST(TickWithPictures, ATickOnABoardAtRestPaintsNothing) {
    TestSimulation sim(boardPictures());
    wire(sim.board, "Invertor Uitgang", "LED 1 Ingang");
    sim.surface.Refresh();
    sim.runTicks(1);
    EXPECT_FALSE(sim.surface.Changed().empty()) << "the LED lights up";
    for (int i = 0; i < 100; ++i) {
        sim.runTicks(1);
        ASSERT_TRUE(sim.surface.Changed().empty());
    }
}

TEST(TickWithPictures, TheSameRunTwiceGivesTheSameFrames) {
    const auto play = [](TestSimulation& sim) {
        wire(sim.board, "Sensor 1 Uit Geel", "AD-omzetter In");
        wire(sim.board, "AD-omzetter Uitgang 8", "LED 1 Ingang");
        wire(sim.board, "Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
        sim.board.Sensors[0].SetValue(clsSensor::Wave);
        sim.board.Knobs.PulseGenerator = 30;
        sim.runTicks(500);
    };
    TestSimulation first(boardPictures());
    TestSimulation second(boardPictures());
    play(first);
    play(second);
    EXPECT_EQ(first.surface.Frame().pixels, second.surface.Frame().pixels);
    EXPECT_EQ(first.board.Display.Value(), second.board.Display.Value());
    EXPECT_NE(first.board.Display.Value(), 0);
}

} // namespace
} // namespace veltrix::test
