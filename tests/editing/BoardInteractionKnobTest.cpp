#include "tests/editing/EditingFixture.h"
#include "tests/support/Pictures.h"

namespace veltrix::test {
namespace {

/// The knob as a pupil uses it: opened by its regulator, dragged, closed by its cross.
struct KnobUse : EditingFixture {
    KnobUse() : EditingFixture(boardPictures()) {}

    /// A position on the open scale of the comparator's knob.
    static Point onScale(std::int32_t x) { return {100 + x, 150 + 20}; }
};

TEST_F(KnobUse, ARegulatorOpensTheKnobWithItsOwnLevel) {
    desktop.Click("Comparator Regelaar");
    EXPECT_TRUE(board().Knob.Visible());
    EXPECT_EQ(board().Knob.naam, "Comparator Regelaar");
    EXPECT_EQ(board().Knob.Value(), 0);
    desktop.Click(onScale(6 + 4 * 20));
    desktop.RunTicks(1);
    desktop.Click("Puls Generator Regelaar");
    EXPECT_EQ(board().Knob.naam, "Puls Generator Regelaar");
    EXPECT_EQ(board().Knob.Value(), 0);
    desktop.RunTicks(1);
    EXPECT_EQ(board().Knobs.Comparator, 20);
    EXPECT_EQ(board().Knobs.PulseGenerator, 0);
    desktop.Click("Var. Spanning Regelaar");
    EXPECT_EQ(board().Knob.naam, "Var. Spanning Regelaar");
    desktop.Click("Comparator Regelaar");
    EXPECT_EQ(board().Knob.Value(), 20);
}

TEST_F(KnobUse, DraggingSetsTheLevelWithTheTicks) {
    desktop.Click("Comparator Regelaar");
    desktop.Press(onScale(6));
    desktop.MoveTo(onScale(6 + 4 * 33));
    EXPECT_EQ(board().Knobs.Comparator, 0) << "before the tick";
    desktop.RunTicks(1);
    EXPECT_EQ(board().Knobs.Comparator, 33);
    desktop.MoveTo({100 + 1000, 170});
    desktop.RunTicks(1);
    EXPECT_EQ(board().Knobs.Comparator, 50);
    desktop.form.Pictor1_MouseUp(MouseButton::Left, 1100, 170);
    desktop.MoveTo(onScale(6));
    desktop.RunTicks(1);
    EXPECT_EQ(board().Knobs.Comparator, 50) << "released";
}

TEST_F(KnobUse, TheBoardUnderTheOpenKnobIsOutOfReach) {
    desktop.Click("Comparator Regelaar");
    // The knob lies over the memory cell's inputs.
    const Point covered = at(board(), "Geheugen Set (In)");
    ASSERT_LT(covered.y, 150 + 48);
    desktop.Click(covered);
    desktop.Click("LED 1 Ingang");
    desktop.Click("LED 2 Ingang");
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(board().Lines.Item(1)->naam1, "LED 1 Ingang");
}

TEST_F(KnobUse, ItsCrossClosesTheKnobWithTheNextTick) {
    desktop.Click("Comparator Regelaar");
    desktop.Click(onScale(200));
    EXPECT_TRUE(board().Knob.Visible());
    desktop.RunTicks(1);
    EXPECT_FALSE(board().Knob.Visible());
    EXPECT_EQ(board().Knobs.Comparator, 0) << "the click on the cross did not drag";
}

TEST_F(KnobUse, EscapeClosesTheKnobOnceNoWireIsInHand) {
    desktop.Click("Comparator Regelaar");
    desktop.Click("LED 1 Ingang");
    desktop.form.Escape_Press();
    EXPECT_TRUE(board().Knob.Visible());
    desktop.form.Escape_Press();
    EXPECT_FALSE(board().Knob.Visible());
}

TEST_F(KnobUse, TurningAKnobRecordsNoUndoState) {
    desktop.Click("Comparator Regelaar");
    desktop.Click(onScale(6 + 4 * 20));
    desktop.RunTicks(1);
    EXPECT_EQ(undo().Count(), 1);
}

TEST_F(KnobUse, APointerOverTheKnobIsAHand) {
    desktop.Click("Comparator Regelaar");
    desktop.MoveTo(onScale(50));
    EXPECT_EQ(desktop.form.Pictor1_ShapeAt(150, 170), PointerShape::Hand);
}

} // namespace
} // namespace veltrix::test
