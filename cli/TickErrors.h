#pragma once

#include <iosfwd>
#include <string>

namespace veltrix::cli {

class Simulation;

/// Runs ticks for a command. A tick that fails, as it may on a board whose levels are far out of
/// range, is abandoned; of a row of equal errors only the first is told.
class TickErrors {
public:
    /// Tells "veltrix-cli: `board`: tick N: reason" on a stream that outlives this object.
    TickErrors(std::string board, std::ostream& stream);

    /// The next tick.
    void Run(Simulation& simulation);

private:
    std::string board_;
    std::ostream& stream_;
    std::string told_;
};

} // namespace veltrix::cli
