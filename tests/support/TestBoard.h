#pragma once

#include "board/PictorATL.h"
#include "instruments/Board.h"
#include "tests/support/Logs.h"

#include <cstdint>
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

/// The position of a snap by its name, for a click. Throws std::invalid_argument for a name that
/// the board does not have: a test with a slip in it would otherwise show something else than it
/// says.
inline Point at(const Board& board, const std::string& naam) {
    const clsSnaps& snaps = board.Snaps;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i)
        if (snaps.GetSnapItemName(i) == naam)
            return {snaps.GetXbyName(naam), snaps.GetYbyName(naam)};
    throw std::invalid_argument("the board has no \"" + naam + "\"");
}

/// A new wire between two snaps that the board must have.
inline std::shared_ptr<clsLine> wire(Board& board, const std::string& naam1,
                                     const std::string& naam2) {
    static_cast<void>(at(board, naam1));
    static_cast<void>(at(board, naam2));
    board.AddLine(naam1, naam2);
    return board.Lines.Item(board.Lines.Count());
}

} // namespace veltrix::test
