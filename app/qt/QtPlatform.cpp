#include "app/qt/QtPlatform.h"

#include "board/AppPath.h"

#include <QCoreApplication>
#include <QCursor>
#include <QStringList>
#include <QTime>
#include <QWidget>

#include <cstdio>

namespace veltrix {

QtTickTimer::QtTickTimer(std::int32_t interval, std::function<void()> tick) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(interval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(tick));
}

void QtTickTimer::SetEnabled(bool Enabled) {
    if (Enabled)
        timer_.start();
    else
        timer_.stop();
}

void QtTickTimer::SetInterval(std::int32_t Interval) {
    if (timer_.interval() != Interval) // setting it starts the interval anew
        timer_.setInterval(Interval);
}

float SystemClock::Timer() {
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
}

QtPointer::QtPointer(QWidget& surface, QWidget& bare) : surface_(surface), bare_(bare) {}

Point QtPointer::BoardPosition() {
    // Both sensors ask in the same tick; ticks are 10 ms apart.
    constexpr qint64 sameTick = 5;
    if (!asked_.isValid() || asked_.elapsed() >= sameTick) {
        const QPoint position = surface_.mapFromGlobal(QCursor::pos());
        position_ = {position.x(), position.y()};
        asked_.start();
    }
    return position_;
}

bool QtPointer::OverBareMainWindow() {
    // A menu that was open over the board can leave the bar believing that it still has the
    // pointer.
    return bare_.underMouse() && bare_.rect().contains(bare_.mapFromGlobal(QCursor::pos()));
}

void StandardErrorLog::Write(const std::string& line) noexcept {
    std::fprintf(stderr, "veltrix: %s\n", line.c_str());
}

QtProgram::QtProgram()
    : folder_(PathFromUtf8(QCoreApplication::applicationDirPath().toStdString())) {}

std::string QtProgram::CommandLine() const {
    return QCoreApplication::arguments().mid(1).join(' ').toStdString();
}

void QtProgram::End(int status) {
    status_ = status;
    QCoreApplication::exit(status);
}

} // namespace veltrix
