#pragma once

#include <iosfwd>
#include <string>

namespace veltrix::cli {

/// Writes the settings and the wires of a board as JSON.
struct InfoCommand {
    std::string BoardPath;

    /// Throws Fault.
    void Execute(std::ostream& output) const;
};

} // namespace veltrix::cli
