#pragma once

#include "cli/RowWriter.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

namespace veltrix::cli {

/// Which ticks of a run get a row.
enum class Rows {
    All,
    Changes, ///< the first one, and those whose readings differ from the tick before
    Last
};

/// Runs a board and writes what can be read on it.
struct RunCommand {
    std::string BoardPath;
    std::int64_t Ticks = 100;
    std::optional<std::string> ScriptPath;
    Format RowFormat = Format::Csv;
    Rows Wanted = Rows::All;
    std::optional<std::string> OutPath; ///< instead of the standard output
    std::optional<std::string> SavePath;

    /// Throws Fault. Ticks that fail are told on `errors`.
    void Execute(std::ostream& output, std::ostream& errors) const;
};

} // namespace veltrix::cli
