#include "cli/CheckCommand.h"

#include "cli/BoardFile.h"
#include "cli/Fault.h"
#include "cli/Output.h"
#include "cli/SilentLog.h"
#include "cli/Simulation.h"
#include "sim/clsGraph2.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace veltrix::cli {

namespace {

/// Writes a line for everything found, and knows whether there was anything.
class Findings {
public:
    explicit Findings(std::ostream& stream) : to_(stream, "standard output") {}

    void Add(const std::string& finding) {
        to_.Put(finding);
        to_.Put('\n');
        any_ = true;
    }

    /// Comes last. Whether there was anything to add.
    bool Close() {
        to_.Close();
        return any_;
    }

private:
    Output to_;
    bool any_ = false;
};

/// Sockets that wires join although each is an output.
void findConflicts(const Board& board, Findings& findings) {
    const std::string report = clsGraph2().Check(board.Lines, board.Snaps);
    constexpr std::string_view lineEnd = "\r\n";
    for (std::size_t begin = 0; begin < report.size();) {
        const std::size_t end = report.find(lineEnd, begin);
        findings.Add("outputs wired together: " + report.substr(begin, end - begin));
        begin = end + lineEnd.size();
    }
}

/// Ends at names that no wire can end on.
void findUnknownSockets(const Board& board, Findings& findings) {
    std::size_t number = 0;
    for (const auto& line : board.Lines) {
        ++number;
        for (const SocketName* name : {&line->naam1, &line->naam2})
            if (board.Snaps.GetConnectablebyName(*name) == 0)
                findings.Add("wire " + std::to_string(number) + ": unknown socket " +
                             Quoted(name->Text()));
    }
}

/// Wires between two sockets that an earlier one joins already, whichever way round.
void findDuplicates(const Board& board, Findings& findings) {
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::size_t> first;
    std::size_t number = 0;
    for (const auto& line : board.Lines) {
        ++number;
        const auto ends = std::minmax({line->naam1.Id(), line->naam2.Id()});
        const auto [earlier, isFirst] = first.emplace(ends, number);
        if (!isFirst)
            findings.Add("wire " + std::to_string(number) + ": duplicate of wire " +
                         std::to_string(earlier->second) + ", " + Quoted(line->naam1.Text()) +
                         " to " + Quoted(line->naam2.Text()));
    }
}

} // namespace

bool CheckCommand::Execute(std::ostream& output) const {
    SilentLog log;
    Simulation simulation({}, 1, log);
    ReadBoard(BoardPath, simulation.TheBoard());

    Findings findings(output);
    findConflicts(simulation.TheBoard(), findings);
    findUnknownSockets(simulation.TheBoard(), findings);
    findDuplicates(simulation.TheBoard(), findings);
    return !findings.Close();
}

} // namespace veltrix::cli
