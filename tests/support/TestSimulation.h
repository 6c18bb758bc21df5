#pragma once

#include "sim/Tick.h"
#include "tests/support/TestBoard.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace veltrix::test {

/// A clock that stands until the test turns it.
struct FakeClock : Clock {
    float Timer() override { return now; }

    float now = 0;
};

/// A pointer where the test puts it, over the board at first.
struct FakePointer : Pointer {
    Point BoardPosition() override { return position; }

    bool OverBareMainWindow() override { return overBareMainWindow; }

    Point position;
    bool overBareMainWindow = false;
};

/// A room as loud as the test says.
struct FakeSoundSensor : SoundSensor {
    std::int32_t GetVolume() override { return volume; }

    std::int32_t volume = 0;
};

/// Keeps the names of the sounds, and plays none.
struct FakeSoundPlayer : SoundPlayer {
    void Play(const std::string& name) override { played.push_back(name); }

    std::vector<std::string> played;
};

/// Keeps what it was told; the test calls the ticks itself.
struct FakeTickTimer : TickTimer {
    void SetEnabled(bool Enabled) override { enabled = Enabled; }

    void SetInterval(std::int32_t Interval) override { interval = Interval; }

    bool enabled = false;
    std::int32_t interval = 0;
};

/// Follows no pointer: nothing is drawn and no socket is marked.
struct FakeFollower : PointerFollower {
    void MoveLooseEnd() override {}

    void MarkSocket() override {}
};

/// A board that ticks, without a window: the test turns the clock and moves the pointer.
struct TestSimulation : TestBoard {
    static constexpr double secondsPerTick = 0.01;

    using TestBoard::TestBoard;

    void runTicks(int count) {
        for (int i = 0; i < count; ++i) {
            ++ticks;
            clock.now = static_cast<float>(ticks * secondsPerTick);
            tick.Timer1_Timer();
        }
    }

    /// Whether `condition` held before or after one of at most `maxTicks` ticks.
    template <typename Condition>
    [[nodiscard]] bool runUntil(Condition condition, int maxTicks) {
        for (int i = 0; i < maxTicks && !condition(); ++i)
            runTicks(1);
        return condition();
    }

    /// The level of a socket after the last tick, 0 where the run did not come.
    [[nodiscard]] std::int32_t levelOf(const std::string& naam) const {
        return graph.GetPuntValueByName(naam, 0);
    }

    FakeClock clock;
    FakePointer pointer;
    FakeSoundSensor sound;
    FakeSoundPlayer player;
    FakeTickTimer timer;
    FakeFollower follower;
    clsGraph graph = evaluatorOf(board);
    Tick tick{{surface, board, graph, clock, pointer, sound, player, timer, follower}};
    int ticks = 0;

private:
    static clsGraph evaluatorOf(Board& board) {
        clsGraph graph;
        graph.Constructor(board.Display);
        return graph;
    }
};

} // namespace veltrix::test
