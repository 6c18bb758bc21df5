#include "tests/sim/GraphFixture.h"

namespace veltrix::test {
namespace {

struct clsGraphCounter : GraphFixture {
    /// Runs once a level with the other inputs as given; the count afterwards.
    std::int32_t after(const std::vector<std::int32_t>& pulses, const Sockets& others = {}) {
        for (const std::int32_t pulse : pulses) {
            Sockets inputs = others;
            inputs.push_back({"Pulsenteller Tel pulsen (In)", pulse});
            check(inputs, {});
        }
        return test.board.Display.Value();
    }

    static Sockets enable(std::int32_t level) {
        return {{"Pulsenteller Teller aan/uit (In)", level}};
    }

    static Sockets reset(std::int32_t level) { return {{"Pulsenteller Reset (In)", level}}; }
};

TEST_F(clsGraphCounter, CountsRisingEdges) {
    EXPECT_EQ(after({0, 50, 50, 0, 50}), 2);
}

TEST_F(clsGraphCounter, TheVeryFirstPulseCounts) {
    EXPECT_EQ(after({50}), 1);
    EXPECT_EQ(after({50, 50}), 1);
}

TEST_F(clsGraphCounter, AnEdgeRunsFromExactlyLowToExactlyHigh) {
    EXPECT_EQ(after({0, 30, 50}), 0);
    EXPECT_EQ(after({0, 49}), 0);
    EXPECT_EQ(after({0, 50}), 1);
    EXPECT_EQ(after({1, 50}), 1);
}

TEST_F(clsGraphCounter, WithoutAPulseNothingIsCounted) {
    check({}, {});
    check(enable(50), {});
    EXPECT_EQ(test.board.Display.Value(), 0);
    EXPECT_EQ(after({50}), 1);
}

TEST_F(clsGraphCounter, CountsOnlyWhileItsSwitchIsExactlyHighOrOpen) {
    EXPECT_EQ(after({0, 50}, enable(50)), 1);
    EXPECT_EQ(after({0, 50}, enable(49)), 1);
    EXPECT_EQ(after({0, 50}, enable(0)), 1);
}

TEST_F(clsGraphCounter, WhatHappensWhileItIsOffIsNotRemembered) {
    EXPECT_EQ(after({0}), 0);
    EXPECT_EQ(after({50}, enable(0)), 0);
    EXPECT_EQ(after({50}), 1); // the last pulse it saw was low
    EXPECT_EQ(after({0}, enable(0)), 1);
    EXPECT_EQ(after({50}), 1); // the last pulse it saw was high
}

TEST_F(clsGraphCounter, ResetGoesToZeroAndComesBeforeCounting) {
    EXPECT_EQ(after({0, 50, 0, 50, 0}), 2);
    EXPECT_EQ(after({50}, reset(49)), 3);
    EXPECT_EQ(after({0}), 3);
    EXPECT_EQ(after({50}, reset(50)), 0);
    EXPECT_EQ(after({50}), 1); // the pulse during the reset was not seen
}

TEST_F(clsGraphCounter, AfterNineComesZero) {
    std::vector<std::int32_t> pulses;
    for (int i = 0; i < 9; ++i) {
        pulses.push_back(0);
        pulses.push_back(50);
    }
    EXPECT_EQ(after(pulses), 9);
    EXPECT_EQ(after({0, 50}), 0);
    EXPECT_EQ(after({0, 50}), 1);
}

TEST_F(clsGraphCounter, WaitsForInputsThatAreWiredButUnknown) {
    EXPECT_EQ(after({0, 50}, enable(unreached)), 0);
    EXPECT_EQ(after({0, 50}, reset(unreached)), 0);
    EXPECT_EQ(after({0, unreached, 50}), 1);
}

} // namespace
} // namespace veltrix::test
