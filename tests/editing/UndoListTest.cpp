#include "editing/UndoList.h"

#include "tests/support/MemoryDesktop.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

struct UndoListTest : testing::Test {
    UndoListTest() { undo.Reset(); }

    /// An edit that is recorded.
    void drawWire(const std::string& naam1, const std::string& naam2) {
        wire(board, naam1, naam2);
        undo.Undo_AddThisState();
    }

    void expectState(std::int32_t position, std::int32_t count) {
        EXPECT_EQ(undo.Position(), position);
        EXPECT_EQ(undo.Count(), count);
        EXPECT_EQ(undo.Changed(), position >= 2);
        EXPECT_EQ(menu.undoEnabled, position >= 2);
        EXPECT_EQ(menu.redoEnabled, position < count);
    }

    void expectOnlyMessage(const std::string& text) {
        ASSERT_EQ(messages.shown.size(), 1U);
        EXPECT_EQ(messages.shown[0].text, text);
        EXPECT_EQ(messages.shown[0].title, ProgramTitle);
        EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    }

    /// Every value on the board that an undo state holds.
    [[nodiscard]] std::vector<std::int32_t> values() const {
        return {board.Knobs.Comparator,       board.Knobs.VariableVoltage,
                board.Knobs.PulseGenerator,   board.Display.Value(),
                board.Sensors[0].Value(),     board.Sensors[1].Value(),
                board.PushButtons[0].Value(), board.PushButtons[1].Value()};
    }

    TestBoard made;
    Board& board = made.board;
    FakeMenu menu;
    FakeMessageBox messages;
    UndoList undo{board, menu, messages};
};

TEST_F(UndoListTest, AfterAResetThereIsOneUndoStateNothingToUndoAndNoLooseWire) {
    expectState(1, 1);
    drawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    board.LooseWire = board.BordLines.CreateLine();
    undo.Reset();
    expectState(1, 1);
    EXPECT_EQ(board.LooseWire, nullptr);
}

TEST_F(UndoListTest, AnEditAfterTwoUndosCutsOffWhatWasUndone) {
    for (const char* led : {"LED 1 Ingang", "LED 2 Ingang", "LED 3 Ingang"})
        drawWire("Drukknop 1 Uit Geel", led);
    expectState(4, 4);
    undo.mnuUndo_Click();
    undo.mnuUndo_Click();
    expectState(2, 4);
    drawWire("Drukknop 1 Uit Geel", "LED 4 Ingang");
    expectState(3, 3);
    EXPECT_EQ(board.Lines.Count(), 2);
}

TEST_F(UndoListTest, UndoAndRedoGiveBackTheWires) {
    drawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    drawWire("Drukknop 1 Uit Geel", "LED 2 Ingang");
    for (const std::int32_t wires : {1, 0}) {
        undo.mnuUndo_Click();
        EXPECT_EQ(board.Lines.Count(), wires);
    }
    for (const std::int32_t wires : {1, 2}) {
        undo.mnuRedo_Click();
        ASSERT_EQ(board.Lines.Count(), wires);
    }
    EXPECT_EQ(board.Lines.Item(1)->naam2, "LED 1 Ingang");
    EXPECT_EQ(board.Lines.Item(2)->naam2, "LED 2 Ingang");
    expectState(3, 3);
}

TEST_F(UndoListTest, UndoAndRedoGiveBackKnobsCounterSensorsAndButtons) {
    board.Knobs = {10, 20, 30};
    board.Display.SetValue(4);
    board.Sensors[1].SetValue(1);
    board.PushButtons[0].SetValue(true);
    undo.Undo_AddThisState();
    const std::vector<std::int32_t> before = values();
    board.Knobs = {11, 21, 31};
    board.Display.SetValue(5);
    board.Sensors[0].SetValue(2);
    board.PushButtons[0].SetValue(false);
    board.PushButtons[1].SetValue(true);
    undo.Undo_AddThisState();
    const std::vector<std::int32_t> after = values();
    undo.mnuUndo_Click();
    EXPECT_EQ(values(), before);
    undo.mnuRedo_Click();
    EXPECT_EQ(values(), after);
}

TEST_F(UndoListTest, PastTheFirstUndoStateThereIsAMessageAndNothingIsLoaded) {
    wire(board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
    undo.mnuUndo_Click();
    expectOnlyMessage("No more Undo's possible");
    expectState(1, 1);
    EXPECT_EQ(board.Lines.Count(), 1);
}

TEST_F(UndoListTest, PastTheLastUndoStateThereIsAMessageAndNothingIsLoaded) {
    wire(board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
    undo.mnuRedo_Click();
    expectOnlyMessage("No more Redo's possible");
    expectState(1, 1);
    EXPECT_EQ(board.Lines.Count(), 1);
}

TEST_F(UndoListTest, AStateThatIsTakenBackLeavesTheOneBeforeItAndNoneToRedo) {
    drawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    undo.mnuUndo_Click();
    expectState(1, 2);
    drawWire("Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel");
    undo.Undo_RemoveLastState();
    expectState(1, 1);
    EXPECT_EQ(board.Lines.Count(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(UndoListTest, ABoardTooLargeForAnUndoStateIsAnErrorAndWhatWasUndoneIsGone) {
    drawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    undo.mnuUndo_Click();
    // No pupil draws this many; a document may hold them. 64001 bytes is what an undo state holds.
    for (int i = 0; i < 1800; ++i)
        board.AddLine("Pulsenteller Tel pulsen (In)", "LED 1 Ingang");
    EXPECT_THROW(undo.Undo_AddThisState(), std::out_of_range);
    expectState(1, 1);
    EXPECT_EQ(board.Lines.Count(), 1800);
    EXPECT_THROW(undo.Reset(), std::out_of_range);
    expectState(0, 0);
}

TEST_F(UndoListTest, AStateThatIsTakenBackGivesBackTheLevelsOfTheOneBefore) {
    const std::vector<std::int32_t> before = values();
    board.Knobs = {10, 20, 30};
    board.Display.SetValue(4);
    drawWire("Drukknop 1 Uit Geel", "Drukknop 2 Uit Geel");
    undo.Undo_RemoveLastState();
    EXPECT_EQ(values(), before);
}

TEST_F(UndoListTest, EveryStateStaysHoweverManyThereAre) {
    constexpr std::int32_t edits = 200;
    for (std::int32_t edit = 1; edit <= edits; ++edit) {
        board.Knobs.Comparator = edit;
        undo.Undo_AddThisState();
    }
    expectState(edits + 1, edits + 1);
    for (std::int32_t edit = edits - 1; edit >= 0; --edit) {
        undo.mnuUndo_Click();
        EXPECT_EQ(board.Knobs.Comparator, edit);
    }
}

} // namespace
} // namespace veltrix::test
