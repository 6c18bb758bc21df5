#pragma once

#include "instruments/UCWaveIn.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <mutex>
#include <optional>

namespace veltrix {

/// Knows which devices are being opened by the threads of the sound, and since when, so that others
/// notice one that does not come back. From any thread.
class OpeningWatch {
public:
    /// What takes longer than this may never return.
    static constexpr std::chrono::seconds Patience{2};

    static constexpr std::size_t Output = 0; ///< the loudspeaker; the inputs have their numbers
    static constexpr std::size_t Devices = UCWaveIn::Inputs + 1;

    void Begin(std::size_t device);

    /// It came back, early or late.
    void End(std::size_t device);

    [[nodiscard]] bool IsOpening(std::size_t device) const;

    /// A device that has been opening for longer than Patience; told once for each opening.
    [[nodiscard]] std::optional<std::size_t> TakeHanging();

private:
    struct Opening {
        std::optional<std::chrono::steady_clock::time_point> since;
        bool told = false;
    };

    mutable std::mutex mutex_;
    std::array<Opening, Devices> openings_;
};

} // namespace veltrix
