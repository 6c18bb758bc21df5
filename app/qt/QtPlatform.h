#pragma once

#include "app/Desktop.h"
#include "board/Log.h"
#include "sim/Tick.h"

#include <QElapsedTimer>
#include <QTimer>

#include <filesystem>
#include <functional>

class QWidget;

namespace veltrix {

/// A timer of the program, not enabled to begin with: that of the tick, or of the sound sensor.
class QtTickTimer : public TickTimer {
public:
    /// `interval` is in milliseconds.
    QtTickTimer(std::int32_t interval, std::function<void()> tick);

    void SetEnabled(bool Enabled) override;
    void SetInterval(std::int32_t Interval) override;

private:
    QTimer timer_;
};

/// The time of day in the zone of the computer.
class SystemClock : public Clock {
public:
    [[nodiscard]] float Timer() override;
};

/// Asks the desktop where the pointer is at most once for both sensors, since the answer may come
/// from another process.
class QtPointer : public Pointer {
public:
    /// `surface` shows the board, `bare` is what is left of the main window: its menu bar.
    QtPointer(QWidget& surface, QWidget& bare);

    [[nodiscard]] Point BoardPosition() override;
    [[nodiscard]] bool OverBareMainWindow() override;

private:
    QWidget& surface_;
    QWidget& bare_;
    QElapsedTimer asked_;
    Point position_;
};

/// A line of the standard error output for each fault, with the name of the program before it.
class StandardErrorLog : public Log {
public:
    void Write(const std::string& line) noexcept override;
};

/// The process; the application must be there before it.
class QtProgram : public Program {
public:
    QtProgram();

    [[nodiscard]] const std::filesystem::path& Folder() const override { return folder_; }

    [[nodiscard]] std::string CommandLine() const override;
    void End(int status) override;

    /// What main returns when the program was ended before its event loop began.
    [[nodiscard]] int Status() const noexcept { return status_; }

private:
    std::filesystem::path folder_;
    int status_ = 0;
};

} // namespace veltrix
