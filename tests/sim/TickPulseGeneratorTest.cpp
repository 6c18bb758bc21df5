#include "tests/sim/TickFixture.h"

#include <cmath>
#include <vector>

namespace veltrix::test {
namespace {

struct TickPulseGenerator : TickFixture {
    static std::int32_t outputOf(const TestSimulation& simulation) {
        return simulation.levelOf("Puls Generator Uit Geel");
    }

    /// The ticks, of the next so many, after which the output differs from before.
    static std::vector<int> togglesIn(int ticks, TestSimulation& simulation) {
        std::vector<int> toggles;
        std::int32_t level = outputOf(simulation);
        for (int i = 0; i < ticks; ++i) {
            simulation.runTicks(1);
            if (outputOf(simulation) != level)
                toggles.push_back(simulation.ticks);
            level = outputOf(simulation);
        }
        return toggles;
    }

    std::vector<int> togglesIn(int ticks) { return togglesIn(ticks, sim); }

    [[nodiscard]] std::int32_t output() const { return outputOf(sim); }

    /// The tick that first sees the level after the n-th half period has passed: the generator
    /// toggles at the end of the tick after it, which the next one shows.
    static int tickOf(int n, double halfPeriod) {
        return static_cast<int>(std::floor(n * halfPeriod / 0.01)) + 2;
    }
};

TEST_F(TickPulseGenerator, TogglesAfterEveryHalfPeriod) {
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
        EXPECT_EQ(togglesIn(expected.back(), fresh), expected) << setting.k;
    }
}

TEST_F(TickPulseGenerator, StandsStillAtZeroAtEitherLevel) {
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

TEST_F(TickPulseGenerator, TheTimeAtZeroCountsForTheFirstToggle) {
    EXPECT_TRUE(togglesIn(200).empty());
    board.Knobs.PulseGenerator = 1;
    EXPECT_EQ(togglesIn(5), std::vector<int>{202});
}

TEST_F(TickPulseGenerator, TogglesOnceATickHoweverMuchTimeWentByAndKeepsTheRest) {
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

TEST_F(TickPulseGenerator, PausesAfterMidnightForAsLongAsTheClockWentBack) {
    board.Knobs.PulseGenerator = 50;
    tickAt(86399.5);
    tickAt(86399.9);
    tickAt(86399.9);
    const std::int32_t level = output();
    tickAt(0);
    for (const double seconds : {0.5, 1.0, 100.0, 86000.0, 86399.5}) {
        tickAt(seconds);
        EXPECT_EQ(output(), level) << seconds;
    }
    tickAt(86399.98);
    tickAt(86399.98);
    EXPECT_NE(output(), level);
}

TEST_F(TickPulseGenerator, ANewLevelIsSeenInTheNextTick) {
    wire(board, "Puls Generator Uit Geel", "LED 1 Ingang");
    board.Knobs.PulseGenerator = 50;
    tickAt(0);
    tickAt(0.05); // toggles, after the level was taken
    EXPECT_FALSE(board.LEDs[0].Value());
    tickAt(0.05);
    EXPECT_TRUE(board.LEDs[0].Value());
}

} // namespace
} // namespace veltrix::test
