#pragma once

#include <iosfwd>
#include <string>

namespace veltrix::cli {

/// Looks for wires that a pupil could not have drawn, and for outputs that wires join.
struct CheckCommand {
    std::string BoardPath;

    /// Writes a line for everything found; whether there was nothing. Throws Fault.
    bool Execute(std::ostream& output) const;
};

} // namespace veltrix::cli
