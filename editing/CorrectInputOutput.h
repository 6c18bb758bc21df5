#pragma once

#include "document/Dialogs.h"
#include "instruments/Board.h"

namespace veltrix {

/// Whether no outputs are wired together; tells the user which are when there are some.
[[nodiscard]] bool CorrectInputOutput(const Board& board, MessageBox& messages);

} // namespace veltrix
