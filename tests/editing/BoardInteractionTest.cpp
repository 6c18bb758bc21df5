#include "tests/support/MemoryDesktop.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix::test {

namespace {

struct BoardInteractionTest : testing::Test {
    BoardInteractionTest() { desktop.Start(); }

    [[nodiscard]] const Board& board() const { return desktop.form.TheBoard(); }

    [[nodiscard]] const clsLine& lineAt(std::int32_t index) const {
        return *board().Lines.Item(index);
    }

    MemoryDesktop desktop;
};

using Drawing = BoardInteractionTest;
using Removing = BoardInteractionTest;
using Operating = BoardInteractionTest;
using Hovering = BoardInteractionTest;

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
    EXPECT_EQ(desktop.messages.shown[0].text,
              "Je begaat een fout: Je hebt 2 of meer uitgangen aan elkaar verbonden.\r\n"
              "Het gaat om de uitgangen:\r\n\r\n"
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
    EXPECT_EQ(desktop.messages.shown[0].title, "Veltrix");
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(desktop.form.TheUndoList().Position(), 2);
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 2);
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
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 4) << "an undo state for every press";
}

TEST_F(Operating, ASensorStepsThroughItsModes) {
    for (const std::int32_t mode : {1, 2, 0}) {
        desktop.Click("Sensor 2");
        EXPECT_EQ(board().Sensors[1].Value(), mode);
        EXPECT_EQ(board().Sensors[0].Value(), 0);
    }
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 4);
}

TEST_F(Operating, TheCounterIsResetWithoutAnUndoState) {
    desktop.Click("Drukknop 1"); // the counter starts from a low pulse
    desktop.Click("Drukknop 1");
    desktop.DrawWire("Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.RunTicks(1);
    desktop.Click("Drukknop 1");
    desktop.RunTicks(1);
    ASSERT_EQ(board().Display.Value(), 1);
    const std::int32_t states = desktop.form.TheUndoList().Count();
    desktop.Click("Pulsenteller Reset Drukknop");
    EXPECT_EQ(board().Display.Value(), 0);
    EXPECT_EQ(desktop.form.TheUndoList().Count(), states);
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

TEST_F(Operating, TheRightButtonOperatesNothing) {
    desktop.Click(at(board(), "Drukknop 1"), MouseButton::Right);
    EXPECT_FALSE(board().PushButtons[0].Value());
}

// Removing

TEST_F(Removing, AClickAnywhereRemovesTheNearestWire) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(Point{400, 370});
    EXPECT_EQ(desktop.Wires(), 0);
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 3);
}

TEST_F(Removing, RemovingTheYoungestWireRecordsAnUndoState) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click("Pulsenteller Tel pulsen (In)");
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam1, "Drukknop 1 Uit Geel");
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 4);
}

TEST_F(Removing, RemovingAnOlderWireEndsInTheInvalidIndexErrorAndRecordsNoUndoState) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.form.mnuVerwijderVerbindingen_Click();
    EXPECT_THROW(desktop.Click("LED 1 Ingang"), std::out_of_range);
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(lineAt(1).naam1, "Puls Generator Uit Geel");
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 3);
}

TEST_F(Removing, TheInvalidIndexErrorStopsAtTheEdgeInTheLogOnly) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.log.Lines.clear();
    const Point led = at(board(), "LED 1 Ingang");
    desktop.edge.Mouse(
        [&](FORM1& form) { form.Pictor1_MouseDown(MouseButton::Left, led.x, led.y); });
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(desktop.log.Lines.size(), 1U);
    EXPECT_TRUE(desktop.messages.shown.empty());
    EXPECT_TRUE(desktop.notice.shown.empty());
}

TEST_F(Removing, OnAnEmptyBoardAClickRecordsAnUndoStateAndChangesNothing) {
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(Point{200, 200});
    EXPECT_EQ(desktop.form.TheUndoList().Count(), 2);
    EXPECT_EQ(desktop.Wires(), 0);
}

TEST_F(Removing, ExactlyTheWireThatAClickWouldRemoveIsMarked) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.DrawWire("Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.MoveTo(at(board(), "LED 1 Ingang"));
    EXPECT_TRUE(lineAt(1).Highlight());
    EXPECT_FALSE(lineAt(2).Highlight());
    desktop.MoveTo(at(board(), "Pulsenteller Tel pulsen (In)"));
    EXPECT_FALSE(lineAt(1).Highlight());
    EXPECT_TRUE(lineAt(2).Highlight());
}

TEST_F(Removing, TheRightButtonRemovesNothing) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(Point{200, 200}, MouseButton::Right);
    EXPECT_EQ(desktop.Wires(), 1);
}

TEST_F(Removing, DrawingAgainClearsTheMarkButOperatingLeavesIt) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.MoveTo({200, 200});
    desktop.form.mnuRegelen_Click();
    EXPECT_TRUE(lineAt(1).Highlight());
    desktop.form.mnuNieuweVerbindingen_Click();
    EXPECT_FALSE(lineAt(1).Highlight());
}

// Hovering

TEST_F(Hovering, TheModeMenuShowsTheModeThatIsInForce) {
    EXPECT_EQ(desktop.menu.mode, EditMode::DrawWires);
    desktop.form.mnuRegelen_Click();
    EXPECT_EQ(desktop.menu.mode, EditMode::Operate);
    desktop.form.mnuVerwijderVerbindingen_Click();
    EXPECT_EQ(desktop.menu.mode, EditMode::RemoveWires);
    desktop.form.mnuNieuweVerbindingen_Click();
    EXPECT_EQ(desktop.menu.mode, EditMode::DrawWires);
}

struct ShapeCase {
    EditMode mode;
    const char* snap;
    PointerShape shape;
};

TEST_F(Hovering, ThePointersShapeTellsWhatAClickWouldDo) {
    constexpr ShapeCase cases[] = {
        {EditMode::DrawWires, "LED 1 Ingang", PointerShape::Cross},
        {EditMode::DrawWires, "Var. Spanning In Zwart", PointerShape::Cross},
        {EditMode::DrawWires, "Drukknop 1", PointerShape::Hand},
        {EditMode::DrawWires, "Sensor 1", PointerShape::Hand},
        {EditMode::DrawWires, "Comparator Regelaar", PointerShape::Hand},
        {EditMode::DrawWires, "Geluids Sensor", PointerShape::Arrow},
        {EditMode::Operate, "LED 1 Ingang", PointerShape::Arrow},
        {EditMode::Operate, "Drukknop 1", PointerShape::Hand},
        {EditMode::RemoveWires, "Drukknop 1", PointerShape::Arrow},
    };
    for (const ShapeCase& c : cases) {
        if (c.mode == EditMode::Operate)
            desktop.form.mnuRegelen_Click();
        else if (c.mode == EditMode::RemoveWires)
            desktop.form.mnuVerwijderVerbindingen_Click();
        else
            desktop.form.mnuNieuweVerbindingen_Click();
        const Point there = at(board(), c.snap);
        EXPECT_EQ(desktop.form.Pictor1_ShapeAt(there.x, there.y), c.shape) << c.snap;
    }
    EXPECT_EQ(desktop.form.Pictor1_ShapeAt(160, 20), PointerShape::Arrow);
}

/// With pictures, so that the ring around a socket can be seen in the frame.
struct Ring : testing::Test {
    Ring() : desktop(pictures()) { desktop.Start(); }

    static const std::filesystem::path& pictures() {
        static const TempFolder folder;
        static const bool written = [] {
            writeBoardPictures(folder.Path());
            writePicture(folder.Path(), "\\images2\\Cursor.bmp", plain(32, 32, colour));
            writePicture(folder.Path(), "\\images2\\CursorMask.bmp", plain(32, 32, 0xFFFFFFFF));
            return true;
        }();
        EXPECT_TRUE(written);
        return folder.Path();
    }

    /// Whether the ring lies around a snap after the next tick.
    bool ringAround(const std::string& snap) {
        desktop.RunTicks(1);
        const Point centre = at(desktop.form.TheBoard(), snap);
        return desktop.form.Pictor1.Frame().Row(centre.y - 15)[centre.x] == colour;
    }

    static constexpr std::uint32_t colour = 0xFF123456;
    MemoryDesktop desktop;
};

TEST_F(Ring, MarksTheSocketUnderThePointerAndLeavesWithIt) {
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
    const Point led = at(desktop.form.TheBoard(), "LED 1 Ingang");
    desktop.MoveTo({led.x + 9, led.y - 9});
    EXPECT_TRUE(ringAround("LED 1 Ingang"));
    desktop.MoveTo({led.x + 10, led.y});
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
}

TEST_F(Ring, InOperatingModeMarksOnlyWhatCanBeOperated) {
    desktop.form.mnuRegelen_Click();
    desktop.MoveTo(at(desktop.form.TheBoard(), "LED 1 Ingang"));
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
    desktop.MoveTo(at(desktop.form.TheBoard(), "Pulsenteller Reset Drukknop"));
    EXPECT_TRUE(ringAround("Pulsenteller Reset Drukknop"));
}

TEST_F(Ring, LeavesWhenThePointerLeavesTheBoard) {
    desktop.MoveTo(at(desktop.form.TheBoard(), "LED 1 Ingang"));
    EXPECT_TRUE(ringAround("LED 1 Ingang"));
    desktop.form.Pictor1_MouseLeave();
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
}

} // namespace

} // namespace veltrix::test
