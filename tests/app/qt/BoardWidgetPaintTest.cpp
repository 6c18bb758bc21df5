#include "tests/app/qt/PaintWatch.h"
#include "tests/app/qt/RealWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace veltrix::test {

namespace {

struct BoardWidgetPaint : testing::Test, RealWindow {
    BoardWidgetPaint() { Start(); }

    /// Over the board the window shows exactly what the surface composed. The board's corner lies
    /// between two pixels where the menu bar is no whole number of them high, and its last row may
    /// then lie outside the window.
    void ExpectTheFrameOnTheScreen() const {
        QCoreApplication::processEvents();
        const QImage screen = OnScreen();
        const QImage frame = Frame();
        const double top = window.menuBar()->height() * window.devicePixelRatioF();
        for (const int y : {static_cast<int>(std::floor(top)), static_cast<int>(std::ceil(top))}) {
            const int rows = std::min(frame.height(), screen.height() - y);
            if (rows >= frame.height() - 1 &&
                screen.copy(0, y, frame.width(), rows) == frame.copy(0, 0, frame.width(), rows))
                return;
        }
        FAIL() << "a window of " << screen.width() << " by " << screen.height()
               << " pixels does not show the frame of " << frame.width() << " by " << frame.height()
               << " below " << top;
    }

    /// A board that everything can be seen to move on.
    void Wire() {
        DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
        DrawWire("Var. Spanning Uit Geel", "AD-omzetter In");
        Leave();
        RunTicks(2);
    }

    /// Takes the pointer off the board.
    void Leave() { QTest::mouseMove(window.windowHandle(), QPoint(window.width() - 1, 1)); }

    /// The frame's rectangles that the last tick changed, as the widget counts.
    QRegion Changed() const {
        const double scale = form.Pictor1.Scale();
        QRegion region;
        for (const Rect& rect : form.Pictor1.Changed())
            region +=
                QRectF(rect.x / scale, rect.y / scale, rect.width / scale, rect.height / scale)
                    .toAlignedRect();
        return region;
    }
};

TEST_F(BoardWidgetPaint, TheSurfaceHasTheScreensExactScale) {
    EXPECT_EQ(form.Pictor1.Scale(), window.devicePixelRatioF());
    EXPECT_EQ(Frame().width(), std::ceil(415 * window.devicePixelRatioF()));
    EXPECT_EQ(Frame().height(), std::ceil(376 * window.devicePixelRatioF()));
}

TEST_F(BoardWidgetPaint, TheFrameIsOnTheScreenPixelForPixel) {
    ExpectTheFrameOnTheScreen();
    Wire();
    window.Surface().update();
    ExpectTheFrameOnTheScreen();
}

TEST_F(BoardWidgetPaint, EveryChangeReachesTheScreen) {
    Wire();
    ExpectTheFrameOnTheScreen();
    Click("Drukknop 1");
    RunTicks(1);
    ExpectTheFrameOnTheScreen();
    Click("Sensor 2");
    Click("Var. Spanning Regelaar");
    RunTicks(2);
    ExpectTheFrameOnTheScreen();
    Choose("mnuUndo");
    RunTicks(1);
    ExpectTheFrameOnTheScreen();
    Choose("mnuVerwijderVerbindingen");
    MoveTo("LED 1 Ingang");
    RunTicks(1);
    ExpectTheFrameOnTheScreen();
    Choose("mnuNieuw");
    RunTicks(1);
    ExpectTheFrameOnTheScreen();
}

TEST_F(BoardWidgetPaint, AMenuBarOfAnyHeightLeavesTheBoardCrisp) {
    // Styles and fonts differ; with a broken scale so does the part of a pixel the board begins at.
    for (int height = 19; height <= 26; ++height) {
        SCOPED_TRACE(height);
        window.menuBar()->setFixedHeight(height);
        ASSERT_TRUE(waitUntil([&] { return window.Surface().y() == height; }));
        ExpectTheFrameOnTheScreen();
        Click("Drukknop 2");
        RunTicks(1);
        ExpectTheFrameOnTheScreen();
    }
}

TEST_F(BoardWidgetPaint, ATickThatChangesNothingPaintsNothing) {
    Wire();
    PaintWatch board(window.Surface());
    PaintWatch frame(window);
    RunTicks(50);
    EXPECT_EQ(board.Times, 0);
    EXPECT_EQ(frame.Times, 0);
    Click("Drukknop 1");
    RunTicks(1);
    EXPECT_GT(board.Times, 0) << "whoever watches must see something at times";
}

TEST_F(BoardWidgetPaint, AWireThatChangesItsColourIsAllThatIsPainted) {
    Wire();
    DrawWire("Drukknop 2 Uit Geel", "Zoemer");
    Leave();
    RunTicks(2);
    PaintWatch board(window.Surface());
    const_cast<Board&>(form.TheBoard()).Knobs.VariableVoltage = 25;
    RunTicks(1);
    EXPECT_EQ(board.Times, 1);
    EXPECT_EQ(board.Region, Changed());
    constexpr int bead = 16; // half of one, in board pixels
    const Point from = at(form.TheBoard(), "Var. Spanning Uit Geel");
    const Point to = at(form.TheBoard(), "AD-omzetter In");
    const QRect wire = QRect(QPoint(from.x, from.y), QPoint(to.x, to.y)).normalized();
    EXPECT_TRUE(wire.adjusted(-bead, -bead, bead, bead).contains(board.Region.boundingRect()));
    EXPECT_TRUE(board.Region.contains(wire.center()));
}

TEST_F(BoardWidgetPaint, ASurfaceOfAnotherScreensScaleIsStartedAnewWhereItIsShown) {
    Wire();
    const double scale = form.Pictor1.Scale();
    form.Pictor1.Restart(scale * 1.1);
    form.Pictor1.Refresh();
    window.Surface().update();
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Pictor1.Scale(), scale);
    EXPECT_EQ(Wires(), 2);
    ExpectTheFrameOnTheScreen();
}

TEST(BoardWidget, WithoutAProgramItPaintsNothingAndFallsOverNothing) {
    BoardWidget lonely;
    lonely.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&lonely, 60000));
    QTest::mouseMove(lonely.windowHandle(), QPoint(98, 179));
    QTest::mouseClick(lonely.windowHandle(), Qt::LeftButton, {}, QPoint(98, 179));
    EXPECT_EQ(lonely.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(lonely.size(), QSize(415, 376));
}

} // namespace

} // namespace veltrix::test
