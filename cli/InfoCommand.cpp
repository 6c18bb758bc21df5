#include "cli/InfoCommand.h"

#include "cli/BoardFile.h"
#include "cli/Output.h"
#include "cli/SilentLog.h"
#include "cli/Simulation.h"

#include <nlohmann/json.hpp>

namespace veltrix::cli {

void InfoCommand::Execute(std::ostream& output) const {
    SilentLog log;
    Simulation simulation({}, 1, log);
    const Board& board = simulation.TheBoard();
    ReadBoard(BoardPath, simulation.TheBoard());

    // The names are those of a script's controls and of a run's columns.
    using Json = nlohmann::ordered_json;
    Json settings;
    settings["Teller"] = board.Display.Value();
    settings["Sensor 1"] = board.Sensors[0].Value();
    settings["Sensor 2"] = board.Sensors[1].Value();
    settings["Puls Generator Regelaar"] = board.Knobs.PulseGenerator;
    settings["Comparator Regelaar"] = board.Knobs.Comparator;
    settings["Var. Spanning Regelaar"] = board.Knobs.VariableVoltage;
    settings["Drukknop 1"] = board.PushButtons[0].Value() ? 1 : 0;
    settings["Drukknop 2"] = board.PushButtons[1].Value() ? 1 : 0;
    Json wires = Json::array();
    for (const auto& line : board.Lines)
        wires.push_back({{"naam1", line->naam1.Text()}, {"naam2", line->naam2.Text()}});

    Output to(output, "standard output");
    to.Put(Json{{"settings", settings}, {"wires", wires}}.dump(2));
    to.Put('\n');
    to.Close();
}

} // namespace veltrix::cli
