#include "cli/TickErrors.h"

#include "cli/Fault.h"
#include "cli/Simulation.h"

#include <exception>
#include <ostream>
#include <utility>

namespace veltrix::cli {

TickErrors::TickErrors(std::string board, std::ostream& stream)
    : board_(std::move(board)), stream_(stream) {}

void TickErrors::Run(Simulation& simulation) {
    try {
        simulation.RunTick();
    } catch (const std::exception& error) {
        if (told_ == error.what())
            return;
        told_ = error.what();
        Tell(stream_, Fault(board_, "tick " + std::to_string(simulation.Ticks()) + ": " + told_));
    }
}

} // namespace veltrix::cli
