#pragma once

#include "tests/support/TestSimulation.h"

#include <gtest/gtest.h>

namespace veltrix::test {

/// A board that ticks, at the simulation's own pace or at a clock of the test's own.
struct TickFixture : testing::Test {
    /// The next tick, at so many seconds after midnight.
    void tickAt(double seconds) {
        sim.clock.now = static_cast<float>(seconds);
        sim.tick.Timer1_Timer();
    }

    TestSimulation sim;
    Board& board = sim.board;
};

} // namespace veltrix::test
