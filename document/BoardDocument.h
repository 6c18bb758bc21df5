#pragma once

#include "document/ChunkStream.h"
#include "instruments/Board.h"

#include <algorithm>
#include <cstdint>

namespace veltrix {

/// The types of the chunks of a board document, and the shape of what is in them.
namespace boardDocument {
inline constexpr std::int16_t Document = -9510; ///< the first chunk: the two below, in this order
inline constexpr std::int16_t Settings = 4096;
inline constexpr std::int16_t Wires = 8192; ///< for each wire the names of its two sockets

/// The least that a wire takes: two empty names.
inline constexpr std::uint64_t LeastBytesOfWire = 2;
} // namespace boardDocument

/// Writes the board as one chunk at the stream's position. What the stream throws comes through.
template <ChunkWriter Writer>
void WriteTo(const Board& board, Writer& dest) {
    dest.BeginChunk(boardDocument::Document);
    dest.BeginChunk(boardDocument::Settings);
    dest.writeLong(0); // reserved
    dest.writeLong(board.Lines.Count());
    dest.writeLong(board.Display.Value());
    for (const clsSensor& sensor : board.Sensors)
        dest.writeLong(sensor.Value());
    dest.writeLong(board.Knobs.PulseGenerator);
    dest.writeLong(board.Knobs.Comparator);
    dest.writeLong(board.Knobs.VariableVoltage);
    for (const clsLED& lamp : board.PushButtons)
        dest.writeBool(lamp.Value());
    dest.EndChunk();
    dest.BeginChunk(boardDocument::Wires);
    for (const auto& line : board.Lines) {
        dest.writeString(line->naam1.Text());
        dest.writeString(line->naam2.Text());
    }
    dest.EndChunk();
    dest.EndChunk();
}

/// Replaces the board's wires and settings by those of the document at the stream's position.
///
/// Whatever is there is taken as far as it makes a document: without a document's first chunk the
/// board keeps its settings and has no wires; names that no socket has make wires nevertheless;
/// wires past the end of the data have empty names, no more of them than the data had room for.
/// There is no way back: when the stream throws, or the counter's reading is no digit
/// (std::out_of_range), what was read until then stays.
template <ChunkReader Reader>
void ReadFrom(Board& board, Reader& src) {
    board.Lines = Collection<clsLine>();
    if (src.PeekChunkType() != boardDocument::Document)
        return;
    src.GoIntoChunk();
    std::int32_t count = 0;
    if (src.PeekChunkType() == boardDocument::Settings) {
        src.GoIntoChunk();
        src.readLong(); // reserved
        count = src.readLong();
        board.Display.SetValue(src.readLong());
        for (clsSensor& sensor : board.Sensors)
            sensor.SetValue(src.readLong());
        board.Knobs.PulseGenerator = src.readLong();
        board.Knobs.Comparator = src.readLong();
        board.Knobs.VariableVoltage = src.readLong();
        for (clsLED& lamp : board.PushButtons)
            lamp.SetValue(src.readBool() != 0);
    }
    if (src.PeekChunkType() != boardDocument::Wires)
        return;
    src.GoIntoChunk();
    // A damaged count must not ask for more wires than the file could ever hold.
    const auto most = static_cast<std::int64_t>(src.Remaining() / boardDocument::LeastBytesOfWire);
    const std::int64_t wires = std::min(std::int64_t{count}, most);
    for (std::int64_t i = 0; i < wires; ++i) {
        const SocketName naam1 = src.readString();
        const SocketName naam2 = src.readString();
        board.AddLine(naam1, naam2);
    }
}

} // namespace veltrix
