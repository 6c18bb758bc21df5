#include "tests/editing/EditingFixture.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace veltrix::test {
namespace {

using Drawing = EditingFixture;
using Operating = EditingFixture;

// Drawing

TEST_F(Drawing, TwoClicksOnSocketsMakeAWireBetweenThem) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam1, "Drukknop 1 Uit Geel");
    EXPECT_EQ(lineAt(1).naam2, "LED 1 Ingang");
    EXPECT_EQ(lineAt(1).X1(), 98);
    EXPECT_EQ(lineAt(1).Y1(), 179);
    EXPECT_EQ(lineAt(1).X2(), 322);
    EXPECT_EQ(lineAt(1).Y2(), 41);
    EXPECT_EQ(lineAt(1).Color(), clsBordLines::ColorLow);
}

TEST_F(Drawing, AHalfDrawnWireFollowsThePointerWithTheTicksAndIsNotYetAWire) {
    desktop.Click("Drukknop 1 Uit Geel");
    const std::int32_t before = desktop.form.Pictor1.CountAll();
    desktop.MoveTo({98 + 100, 179});
    EXPECT_EQ(desktop.form.Pictor1.CountAll(), before) << "moved before the tick";
    desktop.RunTicks(1);
    EXPECT_EQ(desktop.form.Pictor1.CountAll(), before + 10) << "a bead for every 10 pixels";
    EXPECT_EQ(desktop.Wires(), 0);
    EXPECT_FALSE(desktop.menu.undoEnabled);
}

TEST_F(Drawing, TheFirstClickPlacesOnlyOneEndSoNothingIsSeenOfTheWire) {
    const std::int32_t before = desktop.form.Pictor1.CountAll();
    desktop.Click("Drukknop 1 Uit Geel");
    EXPECT_EQ(desktop.form.Pictor1.CountAll(), before + 1) << "its empty group";
}

TEST_F(Drawing, ClickingTheFirstSocketAgainDoesNothing) {
    desktop.DrawWire("LED 1 Ingang", "LED 1 Ingang");
    EXPECT_EQ(desktop.Wires(), 0);
    desktop.Click("LED 2 Ingang");
    EXPECT_EQ(desktop.Wires(), 1) << "the wire kept its first end";
}

TEST_F(Drawing, AWireThatExistsIsRefusedInEitherDirectionAndStaysInHand) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("LED 1 Ingang", "Drukknop 1 Uit Geel");
    desktop.Click("LED 2 Ingang");
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_EQ(desktop.messages.shown[0].text, "Deze lijn bestaat al.");
    EXPECT_EQ(desktop.messages.shown[0].title, "Veltrix 2");
    EXPECT_EQ(desktop.messages.shown[0].buttons, Buttons::Ok);
    ASSERT_EQ(desktop.Wires(), 2);
    EXPECT_EQ(lineAt(2).naam1, "LED 1 Ingang");
    EXPECT_EQ(lineAt(2).naam2, "LED 2 Ingang");
}

TEST_F(Drawing, TheRightButtonLetsGoOfAHalfDrawnWire) {
    const std::int32_t before = desktop.form.Pictor1.CountAll();
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.MoveTo({200, 200});
    desktop.RunTicks(1);
    desktop.Click(Point{200, 200}, MouseButton::Right);
    EXPECT_EQ(desktop.form.Pictor1.CountAll(), before);
    desktop.Click("LED 1 Ingang");
    EXPECT_EQ(desktop.Wires(), 0);
}

TEST_F(Drawing, EscapeLetsGoOfAHalfDrawnWire) {
    const std::int32_t before = desktop.form.Pictor1.CountAll();
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.form.Escape_Press();
    EXPECT_EQ(desktop.form.Pictor1.CountAll(), before);
}

TEST_F(Drawing, AWireThatJoinsOutputsIsReportedAndTakenBack) {
    desktop.DrawWire("Sensor 1 Uit Geel", "EN-poort Ingang 1");
    desktop.DrawWire("EN-poort Ingang 1", "Drukknop 1 Uit Geel");
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_THAT(desktop.messages.shown[0].text,
                testing::HasSubstr("\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\""));
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(undo().Position(), 2);
    EXPECT_EQ(undo().Count(), 2);
    EXPECT_TRUE(desktop.menu.undoEnabled);
    EXPECT_FALSE(desktop.menu.redoEnabled);
}

TEST_F(Drawing, NoWireBeginsOnAControlOrBesideASocket) {
    desktop.DrawWire("Drukknop 1", "LED 1 Ingang");
    desktop.Click("LED 2 Ingang");
    ASSERT_EQ(desktop.Wires(), 1) << "the wire began at LED 1, not at the push button";
    EXPECT_EQ(lineAt(1).naam1, "LED 1 Ingang");
    desktop.Click(Point{160, 20});
    desktop.Click("LED 3 Ingang");
    EXPECT_EQ(desktop.Wires(), 1);
}

TEST_F(Drawing, ThePointerOfAHalfDrawnWireSurvivesUndo) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.form.mnuUndo_Click();
    desktop.Click("LED 2 Ingang");
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam2, "LED 2 Ingang");
}

TEST_F(Drawing, ANewBoardTakesTheHalfDrawnWireOutOfTheHand) {
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.form.mnuNieuw_Click();
    desktop.Click("LED 2 Ingang");
    EXPECT_EQ(desktop.Wires(), 0);
}

// Operating

TEST_F(Operating, APushButtonIsPressedAndReleasedByClicks) {
    desktop.Click("Drukknop 1");
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_FALSE(board().PushButtons[1].Value());
    desktop.Click("Drukknop 1");
    EXPECT_FALSE(board().PushButtons[0].Value());
    desktop.Click("Drukknop 2");
    EXPECT_TRUE(board().PushButtons[1].Value());
    EXPECT_EQ(undo().Count(), 4) << "an undo state for every press";
}

TEST_F(Operating, ASensorStepsThroughItsModes) {
    for (const std::int32_t mode : {1, 2, 0}) {
        desktop.Click("Sensor 2");
        EXPECT_EQ(board().Sensors[1].Value(), mode);
        EXPECT_EQ(board().Sensors[0].Value(), 0);
    }
    EXPECT_EQ(undo().Count(), 4);
}

TEST_F(Operating, TheCounterIsResetWithoutAnUndoState) {
    desktop.Click("Drukknop 1"); // the counter starts from a low pulse
    desktop.Click("Drukknop 1");
    desktop.DrawWire("Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.RunTicks(1);
    desktop.Click("Drukknop 1");
    desktop.RunTicks(1);
    ASSERT_EQ(board().Display.Value(), 1);
    const std::int32_t states = undo().Count();
    desktop.Click("Pulsenteller Reset Drukknop");
    EXPECT_EQ(board().Display.Value(), 0);
    EXPECT_EQ(undo().Count(), states);
}

TEST_F(Operating, InOperatingModeASocketStartsNoWireButControlsWork) {
    desktop.form.mnuRegelen_Click();
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    EXPECT_EQ(desktop.Wires(), 0);
    desktop.Click("Drukknop 1");
    desktop.Click("Sensor 1");
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_EQ(board().Sensors[0].Value(), 1);
}

TEST_F(Operating, InRemovingModeControlsDoNothing) {
    desktop.form.mnuVerwijderVerbindingen_Click();
    for (const char* control : {"Sensor 1", "Drukknop 1", "Comparator Regelaar"})
        desktop.Click(control);
    EXPECT_EQ(board().Sensors[0].Value(), 0);
    EXPECT_FALSE(board().PushButtons[0].Value());
    EXPECT_FALSE(board().Knob.Visible());
}

TEST_F(Operating, APressThatCannotBeRecordedIsAnErrorAndStands) {
    // As a document may leave the board: more wires than an undo state holds.
    Board& crowded = const_cast<Board&>(board());
    for (int i = 0; i < 1800; ++i)
        crowded.AddLine("Pulsenteller Tel pulsen (In)", "LED 1 Ingang");
    EXPECT_THROW(desktop.Click("Drukknop 1"), std::out_of_range);
    EXPECT_TRUE(board().PushButtons[0].Value());
    EXPECT_EQ(desktop.Wires(), 1800);
}

TEST_F(Operating, TheRightButtonOperatesNothing) {
    desktop.Click(at(board(), "Drukknop 1"), MouseButton::Right);
    EXPECT_FALSE(board().PushButtons[0].Value());
}

// Removing

struct Removing : EditingFixture {
    void removeFromOneWire() {
        desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
        desktop.form.mnuVerwijderVerbindingen_Click();
    }

    /// The same with a younger wire, whose ends lie far from those of the first.
    void removeFromTwoWires() {
        desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
        desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
        desktop.form.mnuVerwijderVerbindingen_Click();
    }
};

TEST_F(Removing, AClickAnywhereRemovesTheNearestWire) {
    removeFromOneWire();
    desktop.Click(Point{400, 370});
    EXPECT_EQ(desktop.Wires(), 0);
    EXPECT_EQ(undo().Count(), 3);
}

TEST_F(Removing, RemovingTheYoungestWireRecordsAnUndoState) {
    removeFromTwoWires();
    desktop.Click("Pulsenteller Tel pulsen (In)");
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam1, "Drukknop 1 Uit Geel");
    EXPECT_EQ(undo().Count(), 4);
}

TEST_F(Removing, RemovingAnOlderWireEndsInTheInvalidIndexErrorAndRecordsNoUndoState) {
    removeFromTwoWires();
    EXPECT_THROW(desktop.Click("LED 1 Ingang"), std::out_of_range);
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam1, "Puls Generator Uit Geel");
    EXPECT_EQ(undo().Count(), 3);
}

TEST_F(Removing, OnAnEmptyBoardAClickRecordsAnUndoStateAndChangesNothing) {
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(Point{200, 200});
    EXPECT_EQ(undo().Count(), 2);
    EXPECT_EQ(desktop.Wires(), 0);
}

TEST_F(Removing, ExactlyTheWireThatAClickWouldRemoveIsMarked) {
    removeFromTwoWires();
    desktop.MoveTo(at(board(), "LED 1 Ingang"));
    EXPECT_TRUE(lineAt(1).Highlight());
    EXPECT_FALSE(lineAt(2).Highlight());
    desktop.MoveTo(at(board(), "Pulsenteller Tel pulsen (In)"));
    EXPECT_FALSE(lineAt(1).Highlight());
    EXPECT_TRUE(lineAt(2).Highlight());
}

TEST_F(Removing, TheRightButtonRemovesNothing) {
    removeFromOneWire();
    desktop.Click(Point{200, 200}, MouseButton::Right);
    EXPECT_EQ(desktop.Wires(), 1);
}

TEST_F(Removing, DrawingAgainClearsTheMarkButOperatingLeavesIt) {
    removeFromOneWire();
    desktop.MoveTo({200, 200});
    desktop.form.mnuRegelen_Click();
    EXPECT_TRUE(lineAt(1).Highlight());
    desktop.form.mnuNieuweVerbindingen_Click();
    EXPECT_FALSE(lineAt(1).Highlight());
}

TEST_F(Drawing, TheEndsLieOnTheSocketsWhereverTheseWereHit) {
    const Point first = at(board(), "Drukknop 1 Uit Geel");
    const Point second = at(board(), "LED 1 Ingang");
    desktop.Click(Point{first.x + 9, first.y - 9});
    desktop.Click(Point{second.x - 9, second.y + 9});
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).X1(), first.x);
    EXPECT_EQ(lineAt(1).Y1(), first.y);
    EXPECT_EQ(lineAt(1).X2(), second.x);
    EXPECT_EQ(lineAt(1).Y2(), second.y);
}

TEST_F(Drawing, AWireThatExistsIsRefusedInItsOwnDirection) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_EQ(desktop.messages.shown[0].text, "Deze lijn bestaat al.");
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(undo().Count(), 2);
}

TEST_F(Drawing, TheLooseWireOutlivesTheModeAndTheRightButtonOfTheRemovingOne) {
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(Point{200, 200}, MouseButton::Right);
    EXPECT_NE(board().LooseWire, nullptr);
    desktop.form.mnuRegelen_Click();
    EXPECT_NE(board().LooseWire, nullptr);
    desktop.Click(Point{200, 200}, MouseButton::Right);
    EXPECT_EQ(board().LooseWire, nullptr);
}

TEST_F(Removing, OfTwoWiresEquallyNearTheOlderOneIsMarked) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 2 Ingang");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.MoveTo(at(board(), "Drukknop 1 Uit Geel"));
    EXPECT_TRUE(lineAt(1).Highlight());
    EXPECT_FALSE(lineAt(2).Highlight());
}

TEST_F(Operating, TheUndoStateOfASensorHoldsItsNewMode) {
    desktop.Click("Sensor 1");
    desktop.form.mnuUndo_Click();
    EXPECT_EQ(board().Sensors[0].Value(), 0);
    desktop.form.mnuRedo_Click();
    EXPECT_EQ(board().Sensors[0].Value(), 1);
}

} // namespace
} // namespace veltrix::test
