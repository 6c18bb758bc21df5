#include "tests/app/qt/RealWindow.h"

#include <QMouseEvent>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct BoardWidgetMouse : testing::Test, RealWindow {
    BoardWidgetMouse() { Start(); }

    Qt::CursorShape Shape() { return window.Surface().cursor().shape(); }

    /// A mouse event somewhere on a pixel of the board, as screens with a scale report it.
    void PressAt(QPointF place) {
        QMouseEvent press(QEvent::MouseButtonPress, place, window.Surface().mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window.Surface(), &press);
    }
};

TEST_F(BoardWidgetMouse, TwoClicksDrawAWire) {
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    ASSERT_EQ(Wires(), 1);
    const clsLine& line = *form.TheBoard().Lines.Item(1);
    EXPECT_EQ(line.naam1.Text(), "Drukknop 1 Uit Geel");
    EXPECT_EQ(line.naam2.Text(), "LED 1 Ingang");
}

TEST_F(BoardWidgetMouse, TheWireInHandFollowsThePointer) {
    Click("Drukknop 1 Uit Geel");
    MoveTo("Zoemer");
    RunTicks(1);
    const QImage toTheBuzzer = Frame();
    MoveTo("LED 4 Ingang");
    RunTicks(1);
    EXPECT_NE(Frame(), toTheBuzzer);
    MoveTo("Zoemer");
    RunTicks(1);
    EXPECT_EQ(Frame(), toTheBuzzer);
    EXPECT_EQ(Wires(), 0);
}

TEST_F(BoardWidgetMouse, TheRightButtonLetsGoOfTheWireInHand) {
    Click("Drukknop 1 Uit Geel");
    Click("Zoemer", Qt::RightButton);
    Click("LED 1 Ingang");
    EXPECT_EQ(Wires(), 0) << "the click began a new wire";
}

TEST_F(BoardWidgetMouse, EscapeLetsGoOfTheWireInHand) {
    Click("Drukknop 1 Uit Geel");
    Key(Qt::Key_Escape);
    Click("LED 1 Ingang");
    EXPECT_EQ(Wires(), 0) << "the click began a new wire";
}

TEST_F(BoardWidgetMouse, OtherButtonsDoNothing) {
    Click("Drukknop 1", Qt::MiddleButton);
    Click("Drukknop 1", Qt::BackButton);
    EXPECT_FALSE(PushButtons()[0].Value());
    Click("Drukknop 1");
    EXPECT_TRUE(PushButtons()[0].Value());
}

TEST_F(BoardWidgetMouse, ButtonsAndSensorsAreOperatedWithTheLeftButton) {
    Click("Drukknop 2");
    EXPECT_TRUE(PushButtons()[1].Value());
    Click("Sensor 1");
    EXPECT_EQ(form.TheBoard().Sensors[0].Value(), 1);
    Click("Sensor 2", Qt::RightButton);
    EXPECT_EQ(form.TheBoard().Sensors[1].Value(), 0);
}

TEST_F(BoardWidgetMouse, ADoubleClickIsTwoPresses) {
    MoveTo("Drukknop 1");
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, InWindow("Drukknop 1"));
    EXPECT_FALSE(PushButtons()[0].Value()) << "pressed and released";
    EXPECT_EQ(form.TheUndoList().Count(), 3) << "the first state and two presses";
}

TEST_F(BoardWidgetMouse, TheKnobOpensTurnsAndCloses) {
    Click("Var. Spanning Regelaar");
    ASSERT_TRUE(form.TheBoard().Knob.Visible());
    // Its scale lies at (236, 90); the pointer is dragged over it.
    const QPoint scale = QPoint(236, 90 + window.menuBar()->height());
    QTest::mouseMove(window.windowHandle(), scale + QPoint(100, 24));
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, scale + QPoint(100, 24));
    QTest::mouseMove(window.windowHandle(), scale + QPoint(150, 24));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, scale + QPoint(150, 24));
    RunTicks(1);
    const std::int32_t turned = form.TheBoard().Knobs.VariableVoltage;
    EXPECT_GT(turned, 0);
    EXPECT_LE(turned, 50);
    EXPECT_EQ(Wires(), 0);
    QTest::mouseMove(window.windowHandle(), QPoint(2, window.height() - 2));
    Key(Qt::Key_Escape);
    RunTicks(1);
    EXPECT_FALSE(form.TheBoard().Knob.Visible());
    EXPECT_EQ(form.TheBoard().Knobs.VariableVoltage, turned);
}

TEST_F(BoardWidgetMouse, ThePressThatRemovesMarksAndTakesTheNearestWire) {
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    DrawWire("Drukknop 2 Uit Geel", "Zoemer");
    Choose("mnuVerwijderVerbindingen");
    MoveTo("Zoemer");
    EXPECT_FALSE(form.TheBoard().Lines.Item(1)->Highlight());
    EXPECT_TRUE(form.TheBoard().Lines.Item(2)->Highlight());
    Click("Zoemer");
    ASSERT_EQ(Wires(), 1);
    EXPECT_EQ(form.TheBoard().Lines.Item(1)->naam1.Text(), "Drukknop 1 Uit Geel");
}

TEST_F(BoardWidgetMouse, AnErrorInAPressGoesToTheLogAndIsNotShown) {
    // Of two wires the older one is removed: the walk over the wires ends beyond their end.
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    DrawWire("Drukknop 2 Uit Geel", "Zoemer");
    Choose("mnuVerwijderVerbindingen");
    log.Lines.clear();
    Click("LED 1 Ingang");
    EXPECT_EQ(Wires(), 1);
    EXPECT_EQ(log.Lines.size(), 1U);
    RunTicks(1);
    EXPECT_TRUE(answers.boxes.empty());
}

TEST_F(BoardWidgetMouse, AWireThatExistsIsRefusedInABox) {
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    answers.Press("OK");
    DrawWire("LED 1 Ingang", "Drukknop 1 Uit Geel");
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].text, "Deze lijn bestaat al.");
    EXPECT_EQ(answers.boxes[0].title, "Veltrix 2");
    EXPECT_EQ(Wires(), 1);
}

TEST_F(BoardWidgetMouse, TheRingMarksTheSocketUntilThePointerLeavesTheBoard) {
    RunTicks(1);
    const QImage bare = Frame();
    MoveTo("Zoemer");
    RunTicks(1);
    EXPECT_NE(Frame(), bare);
    QTest::mouseMove(window.windowHandle(), QPoint(5, 5));
    RunTicks(1);
    EXPECT_EQ(Frame(), bare);
    MoveTo("Zoemer");
    RunTicks(1);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window.Surface(), &leave); // to another window
    RunTicks(1);
    EXPECT_EQ(Frame(), bare);
}

TEST_F(BoardWidgetMouse, ThePointersShapeTellsWhatAClickWouldDo) {
    MoveTo("Zoemer");
    EXPECT_EQ(Shape(), Qt::CrossCursor);
    MoveTo("Drukknop 1");
    EXPECT_EQ(Shape(), Qt::PointingHandCursor);
    QTest::mouseMove(window.windowHandle(), QPoint(2, window.height() - 2));
    EXPECT_EQ(Shape(), Qt::ArrowCursor);
    Choose("mnuRegelen");
    MoveTo("Zoemer");
    EXPECT_EQ(Shape(), Qt::ArrowCursor);
    MoveTo("Sensor 1");
    EXPECT_EQ(Shape(), Qt::PointingHandCursor);
    Choose("mnuVerwijderVerbindingen");
    MoveTo("Drukknop 1");
    EXPECT_EQ(Shape(), Qt::ArrowCursor);
}

TEST_F(BoardWidgetMouse, APositionWithinAPixelIsThatPixel) {
    // The zone of a button reaches 10 pixels to each side and does not hold its edge.
    const Point button = at(form.TheBoard(), "Drukknop 1");
    PressAt(QPointF(button.x + 9.9, button.y + 9.9));
    EXPECT_TRUE(PushButtons()[0].Value());
    PressAt(QPointF(button.x + 10.0, button.y));
    EXPECT_TRUE(PushButtons()[0].Value()) << "beside it";
    PressAt(QPointF(button.x - 9.1, button.y));
    EXPECT_TRUE(PushButtons()[0].Value()) << "beside it: the pixel that it lies in counts";
    PressAt(QPointF(button.x - 9.0, button.y));
    EXPECT_FALSE(PushButtons()[0].Value());
}

TEST_F(BoardWidgetMouse, PlacesOutsideTheBoardAreNotTakenForItsEdge) {
    PressAt(QPointF(-0.5, -0.5));
    PressAt(QPointF(1e6, -1e6));
    RunTicks(1);
    EXPECT_EQ(Wires(), 0);
    EXPECT_EQ(form.TheUndoList().Count(), 1);
}

} // namespace

} // namespace veltrix::test
