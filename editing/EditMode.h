#pragma once

#include <cstdint>

namespace veltrix {

/// What the mouse does on the board; the menu "Cursor" chooses it.
enum class EditMode : std::int32_t {
    DrawWires = 0,   ///< "Nieuwe verbindingen"
    RemoveWires = 1, ///< "Verwijder verbindingen"
    Operate = 2      ///< "Regelen"
};

/// The shape of the mouse pointer over the board.
enum class PointerShape {
    Arrow,
    Hand, ///< a click operates what lies here
    Cross ///< a wire can begin or end here
};

} // namespace veltrix
