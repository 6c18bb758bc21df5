#include "cli/Control.h"

#include "tests/cli/BareSimulation.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::cli {
namespace {

struct ControlTest : testing::Test, test::BareSimulation {};

/// Does to a board what a row of a script says.
void operate(Simulation& simulation, const std::string& name, const std::string& value) {
    const Control* const control = Control::Find(name);
    ASSERT_NE(control, nullptr) << name;
    control->Set(simulation, control->Parse(value));
}

bool takes(const std::string& name, const std::string& value) {
    try {
        (void)Control::Find(name)->Parse(value);
    } catch (const std::runtime_error&) {
        return false;
    }
    return true;
}

void expectTakes(const std::string& name, const std::vector<std::string>& good,
                 const std::vector<std::string>& bad) {
    for (const std::string& value : good)
        EXPECT_TRUE(takes(name, value)) << name << ": " << value;
    for (const std::string& value : bad)
        EXPECT_FALSE(takes(name, value)) << name << ": " << value;
}

TEST_F(ControlTest, OperatesTheBoard) {
    const Board& board = simulation.TheBoard();
    operate(simulation, "Sensor 1", "2");
    operate(simulation, "Sensor 2", "1");
    operate(simulation, "Drukknop 1", "1");
    operate(simulation, "Comparator Regelaar", "11");
    operate(simulation, "Var. Spanning Regelaar", "12");
    operate(simulation, "Puls Generator Regelaar", "13");
    operate(simulation, "Geluids Sensor", "14");
    operate(simulation, "Aanwijzer", "-5 600");
    EXPECT_EQ(board.Sensors[0].Value(), 2);
    EXPECT_EQ(board.Sensors[1].Value(), 1);
    EXPECT_TRUE(board.PushButtons[0].Value());
    EXPECT_FALSE(board.PushButtons[1].Value());
    EXPECT_EQ(board.Knobs.Comparator, 11);
    EXPECT_EQ(board.Knobs.VariableVoltage, 12);
    EXPECT_EQ(board.Knobs.PulseGenerator, 13);
    EXPECT_EQ(simulation.Around().SoundLevel, 14);
    EXPECT_EQ(simulation.Around().PointerAt, (Point{-5, 600}));

    operate(simulation, "Drukknop 1", "0");
    operate(simulation, "Drukknop 2", "1");
    EXPECT_FALSE(board.PushButtons[0].Value());
    EXPECT_TRUE(board.PushButtons[1].Value());
}

TEST_F(ControlTest, ResetButtonNeedsNoValue) {
    for (const char* value : {"", "0", "1", "x"}) {
        simulation.TheBoard().Display.SetValue(7);
        operate(simulation, "Pulsenteller Reset Drukknop", value);
        EXPECT_EQ(simulation.TheBoard().Display.Value(), 0) << value;
    }
}

TEST_F(ControlTest, TakesNothingElse) {
    expectTakes("Sensor 1", {"0", "1", "2"}, {"", "3", "-1", "1.0", "aan"});
    expectTakes("Sensor 2", {"0", "1", "2"}, {"", "3", "-1", "1.0", "aan"});
    expectTakes("Drukknop 1", {"0", "1"}, {"", "2", "-1", "true"});
    expectTakes("Drukknop 2", {"0", "1"}, {"", "2", "-1", "true"});
    for (const char* level : {"Comparator Regelaar", "Var. Spanning Regelaar",
                              "Puls Generator Regelaar", "Geluids Sensor"})
        expectTakes(level, {"0", "25", "50"}, {"", "51", "-1", "2.5", "99999999999"});
    expectTakes("Aanwijzer", {"0 0", "-1 5", "44  49", "2147483647 -2147483648"},
                {"", "5", "5 ", " 5", "1 2 3", "1,2", "1.5 2", "2147483648 0", "x y"});
}

TEST_F(ControlTest, IsFoundByItsExactName) {
    for (const char* name : {"", "sensor 1", "Sensor 3", "Sensor 1 Uit Geel", "Zoemer"})
        EXPECT_EQ(Control::Find(name), nullptr) << name;
}

TEST_F(ControlTest, NamesListsThemAll) {
    EXPECT_EQ(Control::Names(),
              "Sensor 1, Sensor 2, Drukknop 1, Drukknop 2, Comparator Regelaar, Var. Spanning "
              "Regelaar, Puls Generator Regelaar, Geluids Sensor, Pulsenteller Reset Drukknop, "
              "Aanwijzer");
}

} // namespace
} // namespace veltrix::cli
