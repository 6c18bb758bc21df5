#include "tests/editing/EditingFixture.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

struct UndoListTest : EditingFixture {
    void expectState(std::int32_t position, std::int32_t count) {
        EXPECT_EQ(undo().Position(), position);
        EXPECT_EQ(undo().Count(), count);
        EXPECT_EQ(desktop.menu.undoEnabled, position >= 2);
        EXPECT_EQ(desktop.menu.redoEnabled, position < count);
    }

    void expectOnlyMessage(const std::string& text) {
        ASSERT_EQ(desktop.messages.shown.size(), 1U);
        EXPECT_EQ(desktop.messages.shown[0].text, text);
        EXPECT_EQ(desktop.messages.shown[0].title, ProgramTitle);
        EXPECT_EQ(desktop.messages.shown[0].buttons, Buttons::Ok);
    }
};

TEST_F(UndoListTest, AFreshBoardHasOneUndoStateAndNothingToUndo) {
    expectState(1, 1);
    desktop.form.mnuNieuw_Click();
    expectState(1, 1);
}

TEST_F(UndoListTest, AnEditAfterTwoUndosCutsOffWhatWasUndone) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 2 Ingang");
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 3 Ingang");
    expectState(4, 4);
    desktop.form.mnuUndo_Click();
    desktop.form.mnuUndo_Click();
    expectState(2, 4);
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 4 Ingang");
    expectState(3, 3);
    EXPECT_EQ(desktop.Wires(), 2);
}

TEST_F(UndoListTest, UndoAndRedoGiveBackWiresButtonsAndSensors) {
    desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.Click("Drukknop 1");
    desktop.Click("Sensor 2");
    desktop.form.mnuUndo_Click();
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_EQ(board().Sensors[1].Value(), 0);
    desktop.form.mnuUndo_Click();
    EXPECT_FALSE(board().PushButtons[0].Value());
    EXPECT_EQ(desktop.Wires(), 1);
    desktop.form.mnuUndo_Click();
    EXPECT_EQ(desktop.Wires(), 0);
    for (int i = 0; i < 3; ++i)
        desktop.form.mnuRedo_Click();
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_EQ(board().Sensors[1].Value(), 1);
    expectState(4, 4);
}

TEST_F(UndoListTest, KnobLevelsAndCountComeBackAsTheyWereAtTheLastEdit) {
    // Neither records an undo state of its own.
    Board& changed = const_cast<Board&>(board());
    const auto levels = [&] {
        return std::vector<std::int32_t>{board().Knobs.Comparator, board().Knobs.VariableVoltage,
                                         board().Knobs.PulseGenerator, board().Display.Value()};
    };
    changed.Knobs = {10, 20, 30};
    changed.Display.SetValue(4);
    const std::vector<std::int32_t> before = levels();
    desktop.Click("Drukknop 1");
    changed.Knobs = {11, 21, 31};
    changed.Display.SetValue(5);
    const std::vector<std::int32_t> after = levels();
    desktop.Click("Drukknop 1");
    desktop.form.mnuUndo_Click();
    EXPECT_EQ(levels(), before);
    desktop.form.mnuRedo_Click();
    EXPECT_EQ(levels(), after);
}

TEST_F(UndoListTest, PastTheFirstUndoStateThereIsAMessageAndNothingIsLoaded) {
    desktop.form.mnuUndo_Click();
    expectOnlyMessage("No more Undo's possible");
    expectState(1, 1);
}

TEST_F(UndoListTest, PastTheLastUndoStateThereIsAMessageAndNothingIsLoaded) {
    desktop.form.mnuRedo_Click();
    expectOnlyMessage("No more Redo's possible");
    expectState(1, 1);
}

TEST_F(UndoListTest, ARefusedWireLeavesTheListAsItWas) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.form.mnuUndo_Click();
    expectState(1, 2);
    desktop.DrawWire("Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel");
    expectState(1, 1);
    EXPECT_EQ(desktop.Wires(), 0);
}

TEST_F(UndoListTest, BackAtTheFirstUndoStateClosingAsksNothing) {
    desktop.Click("Drukknop 1");
    desktop.form.mnuUndo_Click();
    std::int32_t Cancel = 0;
    desktop.form.Form_Unload(Cancel);
    EXPECT_TRUE(desktop.messages.shown.empty());
    EXPECT_EQ(desktop.program.ended, 0);
}

TEST_F(UndoListTest, ABoardTooLargeForAnUndoStateEndsTheEditInAnErrorAndKeepsTheBoard) {
    desktop.Click("Drukknop 1");
    desktop.form.mnuUndo_Click();
    // No pupil draws this many; a document may hold them. 64001 bytes is what an undo state holds.
    Board& crowded = const_cast<Board&>(board());
    for (int i = 0; i < 1800; ++i)
        crowded.AddLine("Pulsenteller Tel pulsen (In)", "LED 1 Ingang");
    EXPECT_THROW(desktop.Click("Drukknop 1"), std::out_of_range);
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_EQ(desktop.Wires(), 1800);
    EXPECT_EQ(undo().Count(), 1) << "the undone step is gone";
    EXPECT_EQ(undo().Position(), 1);
}

} // namespace
} // namespace veltrix::test
