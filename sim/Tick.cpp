#include "sim/Tick.h"

#include "board/Arithmetic.h"
#include "sim/Sockets.h"

#include <algorithm>
#include <cmath>

namespace veltrix {

namespace {

const Sockets& s() {
    return Sockets::Get();
}

/// Where the pointer is brightest for the two sensors, in board pixels.
constexpr std::array<Point, 2> lightSpots{{{44, 49}, {44, 102}}};

/// Bright on the spot itself, dark from 100 pixels away.
std::int32_t lightFrom(Point pointer, Point spot) {
    const double dx = static_cast<double>(pointer.x) - spot.x;
    const double dy = static_cast<double>(pointer.y) - spot.y;
    return std::clamp(RoundToLong(level::High - std::sqrt(dx * dx + dy * dy) / 2), level::Low,
                      level::High);
}

/// Between 10 and 50 in about five seconds; the board's clockwork takes 3.14 for pi.
std::int32_t slowWave(double seconds) {
    return RoundToLong(std::sin(seconds / 5 * 2 * 3.14) * 20 + 30);
}

} // namespace

void Tick::Timer1_Timer() {
    // Over the menu bar the board rests, so that menus stay quick on slow machines.
    parts_.Timer.SetInterval(parts_.ThePointer.OverBareMainWindow() ? IntervalOverBareWindow
                                                                    : Interval);
    phase_ = phase_ == 9 ? 1 : phase_ + 1;
    parts_.Follower.MoveLooseEnd();
    parts_.Follower.MarkSocket();
    takeOverKnob();
    ExchangeBoardIO();
    parts_.TheBoard.Knob.Update();
    parts_.Surface.Refresh();
}

void Tick::takeOverKnob() {
    const clsVoltControl& knob = parts_.TheBoard.Knob;
    if (!knob.Visible())
        return;
    KnobLevels& levels = parts_.TheBoard.Knobs;
    const std::int32_t value = RoundToLong(knob.Value());
    if (knob.naam == s().ComparatorRegelaar)
        levels.Comparator = value;
    else if (knob.naam == s().VarSpanningRegelaar)
        levels.VariableVoltage = value;
    else if (knob.naam == s().PulsGeneratorRegelaar)
        levels.PulseGenerator = value;
}

void Tick::ExchangeBoardIO() {
    Board& board = parts_.TheBoard;
    clsGraph& graph = parts_.Graph;
    for (const auto& line : board.Lines)
        line->done = false;
    graph.Clear();
    graph.SetComparatorValue(board.Knobs.Comparator);

    addSensor(0, s().Sensor1Uit, lightSpots[0]);
    addSensor(1, s().Sensor2Uit, lightSpots[1]);
    graph.AddPunt(s().Drukknop1Uit, level::Of(board.PushButtons[0].Value()));
    graph.AddPunt(s().Drukknop2Uit, level::Of(board.PushButtons[1].Value()));
    graph.AddPunt(s().VarSpanningUit, board.Knobs.VariableVoltage);
    graph.AddPunt(s().GeluidsSensorUit, parts_.Sound.GetVolume());
    graph.AddPunt(s().PulsGeneratorUit, pulseLevel_);
    // The count as it stood before this tick's evaluation.
    graph.AddBits(s().TellerUitgang, board.Display.Value());
    runPulseGenerator();

    graph.Run(board.Lines);
    driveLeds();
    driveBuzzer();
}

void Tick::addSensor(std::size_t index, const SocketName& output, Point spot) {
    std::int32_t& light = sensorLevels_[index];
    switch (parts_.TheBoard.Sensors[index].Value()) {
    case clsSensor::Dark:
        light = level::Low;
        break;
    case clsSensor::Pointer:
        light = lightFrom(parts_.ThePointer.BoardPosition(), spot);
        break;
    case clsSensor::Wave:
        light = slowWave(static_cast<double>(parts_.TheClock.Timer()));
        break;
    default: // a mode from a document that no click can reach: the level stays as it was
        break;
    }
    parts_.Graph.AddPunt(output, light);
}

void Tick::runPulseGenerator() {
    const double k = parts_.TheBoard.Knobs.PulseGenerator;
    const double halfPeriod = 10 / (4 * k + 10); // seconds
    const float now = parts_.TheClock.Timer();
    // Fields are single precision, what is computed from them is double: the sums are rounded once,
    // when they are stored.
    accumulator_ = static_cast<float>(static_cast<double>(accumulator_) + static_cast<double>(now) -
                                      static_cast<double>(lastTime_));
    lastTime_ = now;
    const double elapsed = static_cast<double>(accumulator_);
    if (k <= 0 || elapsed <= halfPeriod)
        return;
    accumulator_ = static_cast<float>(elapsed - halfPeriod * std::trunc(elapsed / halfPeriod));
    pulseLevel_ = level::High - pulseLevel_;
}

void Tick::driveLeds() {
    std::array<clsLED, 4>& leds = parts_.TheBoard.LEDs;
    for (std::size_t i = 0; i < leds.size(); ++i)
        leds[i].SetValue(parts_.Graph.IsHigh(s().Leds[i]));
}

void Tick::driveBuzzer() {
    const bool on = parts_.Graph.IsHigh(s().Zoemer);
    if (on == buzzer_)
        return;
    parts_.Player.Play(on ? "\\Ringin.wav" : "\\SILENCE.wav");
    buzzer_ = on;
}

} // namespace veltrix
