#include "app/qt/sound/OpeningWatch.h"

namespace veltrix {

void OpeningWatch::Begin(std::size_t device) {
    const std::lock_guard lock(mutex_);
    openings_.at(device) = {std::chrono::steady_clock::now(), false};
}

void OpeningWatch::End(std::size_t device) {
    const std::lock_guard lock(mutex_);
    openings_.at(device) = {};
}

bool OpeningWatch::IsOpening(std::size_t device) const {
    const std::lock_guard lock(mutex_);
    return openings_.at(device).since.has_value();
}

std::optional<std::size_t> OpeningWatch::TakeHanging() {
    const std::lock_guard lock(mutex_);
    const auto now = std::chrono::steady_clock::now();
    for (std::size_t device = 0; device < Devices; ++device) {
        Opening& opening = openings_[device];
        if (!opening.since || opening.told || now - *opening.since < Patience)
            continue;
        opening.told = true;
        return device;
    }
    return std::nullopt;
}

} // namespace veltrix
