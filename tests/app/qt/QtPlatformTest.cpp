#include "app/qt/QtPlatform.h"
#include "tests/app/qt/WaitUntil.h"

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QTime>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

TEST(QtTickTimer, TicksWhileItIsEnabled) {
    int ticks = 0;
    QtTickTimer timer(Tick::Interval, [&] { ++ticks; });
    timer.SetEnabled(true);
    EXPECT_TRUE(waitUntil([&] { return ticks >= 3; }));
    timer.SetEnabled(false);
    const int before = ticks;
    int others = 0;
    QtTickTimer other(Tick::Interval, [&] { ++others; });
    other.SetEnabled(true);
    ASSERT_TRUE(waitUntil([&] { return others >= 3; }));
    EXPECT_EQ(ticks, before);
}

TEST(QtTickTimer, IsNotEnabledToBeginWith) {
    int ticks = 0;
    int others = 0;
    QtTickTimer timer(Tick::Interval, [&] { ++ticks; });
    timer.SetInterval(1);
    QtTickTimer other(Tick::Interval, [&] { ++others; });
    other.SetEnabled(true);
    ASSERT_TRUE(waitUntil([&] { return others >= 3; }));
    EXPECT_EQ(ticks, 0);
}

TEST(QtTickTimer, TheSameIntervalSetInEveryTickDoesNotPutItOff) {
    int ticks = 0;
    QtTickTimer* self = nullptr;
    QtTickTimer timer(Tick::Interval, [&] {
        ++ticks;
        self->SetInterval(20);
    });
    self = &timer;
    timer.SetInterval(20);
    timer.SetEnabled(true);
    QTimer often; // were the interval begun anew each time, the timer would never come to tick
    QObject::connect(&often, &QTimer::timeout, &often, [&] { timer.SetInterval(20); });
    often.start(2);
    EXPECT_TRUE(waitUntil([&] { return ticks >= 3; }));
}

TEST(SystemClock, TellsTheSecondsSinceMidnight) {
    SystemClock clock;
    const QTime before = QTime::currentTime();
    const double now = static_cast<double>(clock.Timer());
    const QTime after = QTime::currentTime();
    if (after < before)
        GTEST_SKIP() << "it was midnight just now";
    // Single precision tells hundredths of a second late in the day.
    constexpr double rounding = 0.01;
    EXPECT_GE(now, before.msecsSinceStartOfDay() / 1000.0 - rounding);
    EXPECT_LE(now, after.msecsSinceStartOfDay() / 1000.0 + rounding);
}

/// A window like the main one: a bar above the board.
struct QtPointerTest : testing::Test {
    QtPointerTest() {
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(bar);
        layout->addWidget(board);
        bar->setFixedSize(200, 20);
        board->setFixedSize(200, 100);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window, 60000))
            throw std::runtime_error("the window does not show");
        QCursor::setPos(window.mapToGlobal(QPoint(10, 60)));
    }

    void MoveTo(QPoint place) {
        QTest::mouseMove(window.windowHandle(), place);
        QCursor::setPos(window.mapToGlobal(place));
    }

    QWidget window;
    QWidget* bar = new QWidget;
    QWidget* board = new QWidget;
};

TEST_F(QtPointerTest, IsMeasuredFromTheBoardsCorner) {
    MoveTo(QPoint(10, 60));
    EXPECT_EQ(QtPointer(*board, *bar).BoardPosition(), (Point{10, 40}));
    MoveTo(QPoint(3, 5));
    EXPECT_EQ(QtPointer(*board, *bar).BoardPosition(), (Point{3, -15})) << "on the bar";
    QCursor::setPos(window.mapToGlobal(QPoint(-30, 500)));
    EXPECT_EQ(QtPointer(*board, *bar).BoardPosition(), (Point{-30, 480})) << "outside the window";
}

TEST_F(QtPointerTest, IsAskedAgainInALaterTick) {
    QtPointer pointer(*board, *bar);
    MoveTo(QPoint(10, 60));
    EXPECT_EQ(pointer.BoardPosition(), (Point{10, 40}));
    MoveTo(QPoint(20, 60));
    EXPECT_TRUE(waitUntil([&] { return pointer.BoardPosition() == Point{20, 40}; }));
}

TEST_F(QtPointerTest, IsOverTheBareWindowOnItsBar) {
    QtPointer pointer(*board, *bar);
    MoveTo(QPoint(10, 60));
    EXPECT_FALSE(pointer.OverBareMainWindow());
    MoveTo(QPoint(10, 10));
    EXPECT_TRUE(pointer.OverBareMainWindow());
    MoveTo(QPoint(10, 60));
    EXPECT_FALSE(pointer.OverBareMainWindow());
}

TEST_F(QtPointerTest, IsNotOnABarThatDidNotSeeItLeave) {
    // So a menu leaves the bar on some desktops, when an item over the board is chosen.
    QtPointer pointer(*board, *bar);
    MoveTo(QPoint(10, 60));
    bar->setAttribute(Qt::WA_UnderMouse);
    EXPECT_FALSE(pointer.OverBareMainWindow());
    MoveTo(QPoint(10, 10));
    EXPECT_TRUE(pointer.OverBareMainWindow());
}

TEST(StandardErrorLog, WritesALineWithTheProgramsName) {
    StandardErrorLog log;
    testing::internal::CaptureStderr();
    log.Write("no picture Bord.bmp");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "veltrix: no picture Bord.bmp\n");
}

TEST(QtProgram, StandsInTheFolderOfItsFile) {
    EXPECT_EQ(QtProgram().Folder(),
              std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()));
}

TEST(QtProgram, EndsTheEventLoopWithItsStatus) {
    QtProgram program;
    EXPECT_EQ(program.Status(), 0);
    QTimer::singleShot(0, [&] { program.End(3); });
    EXPECT_EQ(QApplication::exec(), 3);
    EXPECT_EQ(program.Status(), 3) << "for a program that ends before its loop begins";
}

} // namespace

} // namespace veltrix::test
