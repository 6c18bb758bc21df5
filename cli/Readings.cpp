#include "cli/Readings.h"

#include "cli/Simulation.h"

#include <optional>

namespace veltrix::cli {

Readings::Readings(const Simulation& simulation) : simulation_(simulation) {
    const clsSnaps& snaps = simulation.TheBoard().Snaps;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i) {
        const SocketName name = snaps.GetSnapItemName(i);
        if (snaps.GetConnectablebyName(name) == 0)
            continue;
        sockets_.push_back(name);
        places_.push_back({name.Text()});
    }
    for (std::size_t i = 1; i <= simulation.TheBoard().LEDs.size(); ++i)
        places_.push_back({"LED " + std::to_string(i), 1});
    places_.push_back({"Zoemer klinkt", 1});
    places_.push_back({"Teller", 4});
    cells_.resize(places_.size());
}

bool Readings::Read() {
    bool changed = false;
    auto at = cells_.begin();
    const auto read = [&](const Cell& cell) {
        changed = changed || !(*at == cell);
        *at++ = cell;
    };
    for (const SocketName& socket : sockets_) {
        const std::optional<std::int32_t> level = simulation_.Graph().Level(socket);
        read({level.value_or(0), level.has_value()});
    }
    for (const clsLED& led : simulation_.TheBoard().LEDs)
        read({led.Value() ? 1 : 0, true});
    read({simulation_.BuzzerOn() ? 1 : 0, true});
    read({simulation_.TheBoard().Display.Value(), true});
    return changed;
}

} // namespace veltrix::cli
