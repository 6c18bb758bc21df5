#include "cli/TickErrors.h"

#include "tests/cli/BareSimulation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>

namespace veltrix::cli {
namespace {

struct TickErrorsTest : testing::Test, test::BareSimulation {
    void runAt(std::int32_t level) {
        simulation.TheBoard().Knobs.VariableVoltage = level;
        ticks.Run(simulation);
    }

    void SetUp() override {
        simulation.TheBoard().AddLine("Var. Spanning Uit Geel", "LED 1 Ingang");
    }

    std::ostringstream errors;
    TickErrors ticks{"bord.vtx", errors};
};

TEST_F(TickErrorsTest, TicksThatSucceedSayNothing) {
    runAt(0);
    runAt(50);
    EXPECT_EQ(simulation.Ticks(), 2);
    EXPECT_EQ(errors.str(), "");
}

TEST_F(TickErrorsTest, FirstOfARowOfEqualErrorsIsTold) {
    simulation.TheBoard().AddLine("Var. Spanning Uit Geel", "Invertor Ingang");
    runAt(50);
    // A wire fails once for a colour number; when both have, the invertor fails in every tick.
    for (int i = 0; i < 5; ++i)
        runAt(INT32_MIN);
    EXPECT_EQ(simulation.Ticks(), 6);
    EXPECT_EQ(errors.str(),
              "veltrix-cli: bord.vtx: tick 2: a wire cannot have the colour number 300647719\n"
              "veltrix-cli: bord.vtx: tick 4: a whole number left the 32-bit range\n");
}

TEST_F(TickErrorsTest, AnotherErrorIsToldToo) {
    runAt(1000);
    runAt(-1000);
    runAt(1000);
    EXPECT_EQ(errors.str(),
              "veltrix-cli: bord.vtx: tick 1: a wire cannot have the colour number -132\n"
              "veltrix-cli: bord.vtx: tick 2: a wire cannot have the colour number 148\n"
              "veltrix-cli: bord.vtx: tick 3: a wire cannot have the colour number -132\n");
}

TEST_F(TickErrorsTest, TicksThatSucceedInBetweenDoNotMakeTheErrorNew) {
    for (int i = 0; i < 5; ++i) {
        runAt(1000);
        runAt(0);
    }
    EXPECT_EQ(errors.str(),
              "veltrix-cli: bord.vtx: tick 1: a wire cannot have the colour number -132\n");
}

} // namespace
} // namespace veltrix::cli
