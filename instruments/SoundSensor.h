#pragma once

#include <cstdint>

namespace veltrix {

/// What the simulation asks of whatever listens to the room.
class SoundSensor {
public:
    virtual ~SoundSensor() = default;

    /// The level of the sound sensor, 0 to 50.
    [[nodiscard]] virtual std::int32_t GetVolume() = 0;
};

} // namespace veltrix
