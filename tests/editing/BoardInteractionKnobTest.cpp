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

TEST_F(KnobUse, EachRegulatorOpensTheKnobAtItsOwnPlaceAndLevel) {
    struct Opening {
        const char* regulator;
        Point place;
        std::int32_t value;
    };

    const_cast<Board&>(board()).Knobs = {11, 22, 33};
    const auto colourAt = [this](Point place) {
        desktop.RunTicks(1);
        return desktop.form.Pictor1.Frame().Row(place.y)[place.x];
    };
    constexpr Opening openings[] = {{"Comparator Regelaar", {100, 150}, 11},
                                    {"Var. Spanning Regelaar", {236, 90}, 22},
                                    {"Puls Generator Regelaar", {276, 90}, 33}};
    for (const Opening& o : openings) {
        desktop.Click(o.regulator);
        EXPECT_EQ(board().Knob.Value(), o.value) << o.regulator;
        EXPECT_EQ(colourAt(o.place), boardColours::Scale) << o.regulator;
        EXPECT_EQ(colourAt({o.place.x - 1, o.place.y}), boardColours::Board) << o.regulator;
        EXPECT_EQ(colourAt({o.place.x, o.place.y - 1}), boardColours::Board) << o.regulator;
    }
}

TEST_F(KnobUse, TheLooseWireDoesNotFollowThePointerOverTheKnob) {
    desktop.Click("Drukknop 1 Uit Geel");
    desktop.Click("Comparator Regelaar");
    desktop.MoveTo(onScale(50));
    desktop.RunTicks(1);
    ASSERT_NE(board().LooseWire, nullptr);
    EXPECT_EQ(board().LooseWire->X2(), 266) << "where the pointer was last over the board";
    EXPECT_EQ(board().LooseWire->Y2(), 72);
}

TEST_F(KnobUse, OverTheKnobNoWireIsMarkedRemovedOrLetGo) {
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.Click("Comparator Regelaar");
    desktop.form.mnuVerwijderVerbindingen_Click();
    desktop.Click(onScale(50));
    ASSERT_EQ(desktop.Wires(), 1);
    EXPECT_FALSE(lineAt(1).Highlight());
    desktop.form.mnuNieuweVerbindingen_Click();
    desktop.Click("Drukknop 2 Uit Geel");
    desktop.Click(onScale(50), MouseButton::Right);
    EXPECT_NE(board().LooseWire, nullptr);
}

TEST_F(KnobUse, ASocketUnderTheCrossIsOutOfReach) {
    desktop.Click("Comparator Regelaar");
    const Point cross{297, 190};
    ASSERT_EQ(board().Snaps.GetSnapName(cross.x, cross.y), "Invertor Uitgang");
    desktop.Click(cross);
    EXPECT_EQ(board().LooseWire, nullptr);
    desktop.RunTicks(1);
    EXPECT_FALSE(board().Knob.Visible());
}

} // namespace
} // namespace veltrix::test
