#include "cli/Simulation.h"

#include <stdexcept>

namespace veltrix::cli {

namespace {

constexpr double ticksPerSecond = 100;

} // namespace

Simulation::Simulation(const std::filesystem::path& applicationFolder, double scale, Log& log)
    : tick_({surface_, board_, graph_, around_, around_, around_, around_, around_, around_}) {
    if (!surface_.Start(applicationFolder, Board::Width, Board::Height, scale, log))
        throw std::runtime_error("the board cannot be drawn at that scale");
    board_.Constructor(surface_);
    graph_.Constructor(board_.Display);
}

void Simulation::RunTick() {
    ++ticks_;
    around_.Seconds = static_cast<float>(static_cast<double>(ticks_) / ticksPerSecond);
    tick_.Timer1_Timer();
}

const Picture& Simulation::Frame() {
    surface_.Refresh();
    return surface_.Frame();
}

} // namespace veltrix::cli
