#include "cli/InfoCommand.h"

#include "cli/BoardFile.h"
#include "cli/Output.h"
#include "cli/SilentLog.h"
#include "cli/Simulation.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace veltrix::cli {

namespace {

using Json = nlohmann::ordered_json;

/// By the names of a script's controls and of a run's columns.
Json settingsOf(const Board& board) {
    Json settings;
    settings["Teller"] = board.Display.Value();
    settings["Sensor 1"] = board.Sensors[0].Value();
    settings["Sensor 2"] = board.Sensors[1].Value();
    settings["Puls Generator Regelaar"] = board.Knobs.PulseGenerator;
    settings["Comparator Regelaar"] = board.Knobs.Comparator;
    settings["Var. Spanning Regelaar"] = board.Knobs.VariableVoltage;
    settings["Drukknop 1"] = board.PushButtons[0].Value() ? 1 : 0;
    settings["Drukknop 2"] = board.PushButtons[1].Value() ? 1 : 0;
    return settings;
}

} // namespace

void InfoCommand::Execute(std::ostream& output) const {
    SilentLog log;
    Simulation simulation({}, 1, log);
    const Board& board = simulation.TheBoard();
    ReadBoard(BoardPath, simulation.TheBoard());

    // Wire by wire: a tree of a large document would take many times its size.
    Output to(output, "standard output");
    to.Put("{\n\"settings\": ");
    to.Put(settingsOf(board).dump(2));
    to.Put(",\n\"wires\": [");
    const char* separator = "\n";
    for (const auto& line : board.Lines) {
        to.Put(std::exchange(separator, ",\n"));
        to.Put(Json{{"naam1", line->naam1.Text()}, {"naam2", line->naam2.Text()}}.dump());
    }
    to.Put("\n]\n}\n");
    to.Close();
}

} // namespace veltrix::cli
