#pragma once

#include "board/SocketName.h"
#include "board/Types.h"
#include "instruments/Board.h"
#include "instruments/SoundSensor.h"
#include "sim/clsGraph.h"

#include <array>
#include <cstdint>
#include <string>

namespace veltrix {

/// The run-time clock.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since midnight, in single precision.
    [[nodiscard]] virtual float Timer() = 0;
};

/// The mouse pointer, wherever on the screen it is.
class Pointer {
public:
    virtual ~Pointer() = default;

    /// Its position in board pixels from the board's top left corner; it may lie outside the board
    /// and outside the window.
    [[nodiscard]] virtual Point BoardPosition() = 0;

    /// Whether the window under it is the main window itself and not one of its child controls.
    [[nodiscard]] virtual bool OverBareMainWindow() = 0;
};

/// The timer that calls the tick.
class TickTimer {
public:
    virtual ~TickTimer() = default;

    virtual void SetEnabled(bool Enabled) = 0;

    /// In milliseconds. Called in every tick; setting the same value again must cost nothing.
    virtual void SetInterval(std::int32_t Interval) = 0;
};

/// Plays the buzzer's sounds.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Plays a wave file from the application folder over and over, instead of the one before.
    /// Returns at once, and silently does nothing when it cannot.
    virtual void Play(const std::string& name) = 0;
};

/// What follows the mouse pointer while a board is edited.
class PointerFollower {
public:
    virtual ~PointerFollower() = default;

    /// Moves the loose end of the wire that is being drawn to the pointer.
    virtual void MoveLooseEnd() = 0;

    /// Marks the socket under the pointer, or none.
    virtual void MarkSocket() = 0;
};

/// The heartbeat of the board, every 10 ms: reads the inputs, evaluates the circuit, shows the
/// result. It knows no clock, pointer or sound of its own, so that every run can be repeated.
class Tick {
public:
    static constexpr std::int32_t Interval = 10;                 ///< ms
    static constexpr std::int32_t IntervalOverBareWindow = 1000; ///< ms

    /// What a tick works with; all of it must outlive the tick.
    struct Parts {
        PictorATL& Surface;
        Board& TheBoard;
        clsGraph& Graph;
        Clock& TheClock;
        Pointer& ThePointer;
        SoundSensor& Sound;
        SoundPlayer& Player;
        TickTimer& Timer;
        PointerFollower& Follower;
    };

    explicit Tick(const Parts& parts) noexcept : parts_(parts) {}

    /// One tick. Catches nothing: what a part throws ends the tick where it stands.
    void Timer1_Timer();

    /// Reads every source into the evaluator, runs it, and drives LEDs and buzzer.
    void ExchangeBoardIO();

    /// Whether the buzzer sounds.
    [[nodiscard]] bool BuzzerOn() const noexcept { return buzzer_; }

    /// Counts the ticks 1 to 9, over and over; 1 before the first.
    [[nodiscard]] std::int32_t Phase() const noexcept { return phase_; }

private:
    void takeOverKnob();
    void addSensor(std::size_t index, const SocketName& output, Point spot);
    void runPulseGenerator();
    void driveLeds();
    void driveBuzzer();

    Parts parts_;
    std::array<std::int32_t, 2> sensorLevels_{};
    std::int32_t pulseLevel_ = 0;
    float accumulator_ = 0; // seconds since the pulse generator's last change
    float lastTime_ = 0;
    Bool16 buzzer_;
    std::int32_t phase_ = 1;
};

} // namespace veltrix
