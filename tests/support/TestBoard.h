#pragma once

#include "board/PictorATL.h"
#include "instruments/Board.h"
#include "tests/support/Logs.h"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace veltrix::test {

/// A surface that has been started, with a board on it. Without a folder no picture is loaded: the
/// board works as it does with pictures, but nothing is seen, and the knob, whose scale is as large
/// as its picture, has no place where it could be hit.
struct TestBoard {
    explicit TestBoard(const std::filesystem::path& pictures = {}, double scale = 1) {
        if (!surface.Start(pictures, Board::Width, Board::Height, scale, log))
            throw std::runtime_error("the surface does not start");
        board.Constructor(surface);
    }

    NullLog log;
    PictorATL surface;
    Board board;
};

/// A wire between two snaps, which must both be on the board: a test with a slip in a name would
/// otherwise show something else than it says.
inline std::shared_ptr<clsLine> wire(Board& board, const std::string& naam1,
                                     const std::string& naam2) {
    for (const std::string& naam : {naam1, naam2})
        if (!board.Snaps.Knows(naam))
            throw std::invalid_argument("the board has no \"" + naam + "\"");
    board.AddLine(naam1, naam2);
    return board.Lines.Item(board.Lines.Count());
}

/// Where a snap lies, for a click.
inline Point at(const Board& board, const std::string& naam) {
    if (!board.Snaps.Knows(naam))
        throw std::invalid_argument("the board has no \"" + naam + "\"");
    return {board.Snaps.GetXbyName(naam), board.Snaps.GetYbyName(naam)};
}

} // namespace veltrix::test
