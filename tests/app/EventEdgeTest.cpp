#include "tests/support/MemoryDesktop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <system_error>

namespace veltrix::test {

namespace {

struct EventEdgeTest : testing::Test {
    EventEdgeTest() { desktop.Start(); }

    MemoryDesktop desktop;
};

TEST_F(EventEdgeTest, ACommandsErrorIsToldInDutchAndTheProgramGoesOn) {
    desktop.edge.Command([](FORM1&) {
        throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    });
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_NE(desktop.messages.shown[0].text.find("de schijf is vol"), std::string::npos);
    EXPECT_FALSE(desktop.form.Ended());
}

TEST_F(EventEdgeTest, AMouseEventsErrorGoesToTheLogOnly) {
    desktop.log.Lines.clear();
    desktop.edge.Quietly([](FORM1&) { throw std::out_of_range("beyond the end"); });
    EXPECT_EQ(desktop.log.Lines, std::vector<std::string>{"beyond the end"});
    EXPECT_TRUE(desktop.messages.shown.empty());
}

/// A level of 300 volts, which only a damaged document can hold: its wire has no colour.
void overload(MemoryDesktop& desktop) {
    auto& board = const_cast<Board&>(desktop.form.TheBoard());
    board.AddLine("Var. Spanning Uit Geel", "LED 1 Ingang");
    board.Knobs.VariableVoltage = 3000;
}

TEST_F(EventEdgeTest, EqualErrorsOfTicksInARowAreToldOnce) {
    overload(desktop);
    desktop.RunTicks(1);
    EXPECT_EQ(desktop.notice.shown.size(), 1U);
    EXPECT_TRUE(desktop.messages.shown.empty()) << "a box would stop the board";
}

TEST_F(EventEdgeTest, AnErrorThatComesBackAfterAGoodTickIsToldAgain) {
    overload(desktop);
    desktop.RunTicks(2); // the wire has its impossible colour now, so the second tick is good
    ASSERT_EQ(desktop.notice.shown.size(), 1U);
    const_cast<Board&>(desktop.form.TheBoard()).Knobs.VariableVoltage = 4000;
    desktop.RunTicks(1);
    EXPECT_EQ(desktop.notice.shown.size(), 2U);
}

TEST_F(EventEdgeTest, ATickThatFailsLeavesTheFrameWhole) {
    overload(desktop);
    desktop.Click("Drukknop 1");
    desktop.RunTicks(1);
    desktop.form.Pictor1.Refresh();
    EXPECT_TRUE(desktop.form.Pictor1.Changed().empty()) << "everything had been painted";
}

} // namespace

} // namespace veltrix::test
