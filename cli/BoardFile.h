#pragma once

#include "instruments/Board.h"

#include <string>

namespace veltrix::cli {

/// Throws Fault when the file cannot be read or is no whole document.
void RequireDocument(const std::string& path);

/// Reads a board document. Throws Fault when the file cannot be read or is no whole document; the
/// board is as it was then.
void ReadBoard(const std::string& path, Board& board);

/// Writes the board into a document. Throws Fault when it cannot be written.
void WriteBoard(const std::string& path, const Board& board);

} // namespace veltrix::cli
