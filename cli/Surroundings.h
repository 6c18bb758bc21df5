#pragma once

#include "board/Types.h"
#include "sim/Tick.h"

#include <cstdint>
#include <string>

namespace veltrix::cli {

/// What surrounds a board that runs without a window: a clock, a pointer and a sound level that
/// stay where they are put. Nobody hears the buzzer and nobody draws a wire.
class Surroundings final : public Clock,
                           public Pointer,
                           public SoundSensor,
                           public SoundPlayer,
                           public TickTimer,
                           public PointerFollower {
public:
    float Seconds = 0;
    Point PointerAt;             ///< board pixels
    std::int32_t SoundLevel = 0; ///< 0 to 50

    float Timer() override { return Seconds; }

    Point BoardPosition() override { return PointerAt; }

    bool OverBareMainWindow() override { return false; }

    std::int32_t GetVolume() override { return SoundLevel; }

    void Play(const std::string& /*name*/) override {}

    void SetEnabled(bool /*Enabled*/) override {}

    void SetInterval(std::int32_t /*Interval*/) override {}

    void MoveLooseEnd() override {}

    void MarkSocket() override {}
};

} // namespace veltrix::cli
