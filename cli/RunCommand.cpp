#include "cli/RunCommand.h"

#include "cli/BoardFile.h"
#include "cli/Output.h"
#include "cli/Readings.h"
#include "cli/RowWriter.h"
#include "cli/Script.h"
#include "cli/SilentLog.h"
#include "cli/Simulation.h"
#include "cli/TickErrors.h"

#include <memory>

namespace veltrix::cli {

namespace {

std::unique_ptr<Output> open(const std::optional<std::string>& file, std::ostream& standard) {
    return file.has_value() ? std::make_unique<Output>(*file)
                            : std::make_unique<Output>(standard, "standard output");
}

} // namespace

void RunCommand::Execute(std::ostream& output, std::ostream& errors) const {
    SilentLog log;
    Simulation simulation({}, 1, log);
    ReadBoard(BoardPath, simulation.TheBoard());
    Script script = ScriptPath.has_value() ? Script::Read(*ScriptPath) : Script();

    // Opened before the run, so that a mistyped name is told at once, and after the reading, so
    // that a board that cannot be read does not cost an earlier result.
    const std::unique_ptr<Output> rowsTo = open(OutPath, output);
    const std::unique_ptr<RowWriter> rows = MakeRowWriter(RowFormat, *rowsTo);
    Readings readings(simulation);
    TickErrors ticks(BoardPath, errors);
    rows->Begin(readings.Places());
    for (std::int64_t tick = 1; tick <= Ticks; ++tick) {
        script.Before(tick, simulation);
        ticks.Run(simulation);
        if (Wanted == Rows::Last && tick != Ticks)
            continue;
        const bool changed = readings.Read();
        if (Wanted != Rows::Changes || changed || tick == 1)
            rows->Row(tick, readings.Cells());
    }
    rows->End();
    rowsTo->Close();
    if (SavePath.has_value())
        WriteBoard(*SavePath, simulation.TheBoard());
}

} // namespace veltrix::cli
