#include "tools/examples/Example.h"

#include "board/AppPath.h"
#include "board/Log.h"
#include "board/PictorATL.h"
#include "document/BoardDocument.h"
#include "document/clsKorvelWFile.h"
#include "sim/clsGraph2.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

namespace veltrix::examples {

namespace {

class SilentLog final : public Log {
public:
    void Write(const std::string& /*line*/) noexcept override {}
};

[[noreturn]] void refuse(const Example& example, const std::string& reason) {
    throw std::invalid_argument(example.Name + ": " + reason);
}

void addWires(const Example& example, Board& board) {
    std::set<std::pair<std::uint32_t, std::uint32_t>> joined;
    for (const Example::Wire& wire : example.Wires) {
        for (const SocketName& name : {wire.From, wire.To})
            if (board.Snaps.GetConnectablebyName(name) == 0)
                refuse(example, "no wire can end on \"" + name.Text() + "\"");
        if (!joined.insert(std::minmax({wire.From.Id(), wire.To.Id()})).second)
            refuse(example,
                   "two wires join \"" + wire.From.Text() + "\" and \"" + wire.To.Text() + "\"");
        board.AddLine(wire.From, wire.To);
    }
    if (const std::string report = clsGraph2().Check(board.Lines, board.Snaps); !report.empty())
        refuse(example, "outputs are wired together: " + report);
}

} // namespace

void WriteExample(const Example& example, const std::filesystem::path& folder) {
    SilentLog log;
    PictorATL surface;
    if (!surface.Start({}, Board::Width, Board::Height, 1, log))
        throw std::runtime_error("the surface does not start");
    Board board;
    board.Constructor(surface);
    addWires(example, board);
    for (std::size_t i = 0; i < board.Sensors.size(); ++i)
        board.Sensors[i].SetValue(example.SensorModes[i]);
    board.Knobs = example.Knobs;

    // A document that gets shorter would keep the end of the old one.
    const std::filesystem::path file = folder / PathFromUtf8(example.Name + ".vtx");
    std::filesystem::remove(file);
    clsKorvelWFile document;
    document.OpenFile(Utf8FromPath(file));
    WriteTo(board, document);
    document.CloseFile();
}

} // namespace veltrix::examples
