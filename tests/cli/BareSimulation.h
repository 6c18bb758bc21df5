#pragma once

#include "cli/Simulation.h"
#include "tests/support/Logs.h"

namespace veltrix::test {

/// An empty board that runs without pictures, in which nothing is worth a line of the log.
struct BareSimulation {
    NullLog log;
    cli::Simulation simulation{{}, 1, log};
};

} // namespace veltrix::test
