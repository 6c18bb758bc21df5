#include "tests/editing/EditingFixture.h"
#include "tests/support/Pictures.h"

namespace veltrix::test {
namespace {

using Hovering = EditingFixture;

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

struct Ring : EditingFixture {
    Ring() : EditingFixture(boardPictures()) {}

    /// Whether the ring lies around a snap after the next tick.
    bool ringAround(const std::string& snap) {
        desktop.RunTicks(1);
        const Point centre = at(board(), snap);
        return desktop.form.Pictor1.Frame().Row(centre.y - 15)[centre.x] == boardColours::Ring;
    }
};

TEST_F(Ring, TheRingMarksTheSocketUnderThePointerAndLeavesWithIt) {
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
    const Point led = at(board(), "LED 1 Ingang");
    desktop.MoveTo({led.x + 9, led.y - 9});
    EXPECT_TRUE(ringAround("LED 1 Ingang"));
    desktop.MoveTo({led.x + 10, led.y});
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
}

TEST_F(Ring, InOperatingModeTheRingMarksOnlyWhatCanBeOperated) {
    desktop.form.mnuRegelen_Click();
    desktop.MoveTo(at(board(), "LED 1 Ingang"));
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
    desktop.MoveTo(at(board(), "Pulsenteller Reset Drukknop"));
    EXPECT_TRUE(ringAround("Pulsenteller Reset Drukknop"));
}

TEST_F(Ring, TheRingLeavesWhenThePointerLeavesTheBoard) {
    desktop.MoveTo(at(board(), "LED 1 Ingang"));
    EXPECT_TRUE(ringAround("LED 1 Ingang"));
    desktop.form.Pictor1_MouseLeave();
    EXPECT_FALSE(ringAround("LED 1 Ingang"));
}

TEST_F(Ring, InRemovingModeTheRingAndTheLooseWireStayWhereTheyAre) {
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.MoveTo(at(board(), "LED 1 Ingang"));
    EXPECT_TRUE(ringAround("Drukknop 1 Uit Geel"));
    ASSERT_NE(board().LooseWire, nullptr);
    EXPECT_EQ(board().LooseWire->X2(), 98);
    EXPECT_EQ(board().LooseWire->Y2(), 179);
}

TEST_F(Ring, InDrawingModeTheRingMarksControlsToo) {
    desktop.MoveTo(at(board(), "Drukknop 1"));
    EXPECT_TRUE(ringAround("Drukknop 1"));
}

} // namespace
} // namespace veltrix::test
