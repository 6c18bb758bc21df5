#pragma once

#include <cstdint>
#include <string>

namespace veltrix {

/// Listens to one of the computer's sound inputs. The platform's capture implements it; whatever
/// that does, none of these may keep its caller waiting, for they are called from the window and
/// from the tick.
class AudioTap2 {
public:
    virtual ~AudioTap2() = default;

    /// How many sound inputs the computer has; negative while it has not answered yet. The list is
    /// the same for every instance.
    [[nodiscard]] virtual std::int32_t DeviceCount() = 0;

    /// Binds the instance to an input, counted from 1.
    virtual void SetDeviceIndex(std::int32_t DeviceIndex) = 0;

    /// The name of input `i` in UTF-8, for people to read.
    [[nodiscard]] virtual std::string DeviceName(std::int32_t i) = 0;

    /// Whether input `i` can be listened to.
    [[nodiscard]] virtual bool DeviceValid(std::int32_t i) = 0;

    /// Begins to listen to the bound input.
    virtual void Start() = 0;

    /// How loud the bound input is now: 0 is silence, louder is larger, on a scale of the
    /// platform's own.
    [[nodiscard]] virtual std::int32_t Level() = 0;
};

} // namespace veltrix
