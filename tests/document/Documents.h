#pragma once

#include "document/BoardDocument.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "tests/document/Files.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace veltrix::test {

/// A board as the bytes of its document.
inline std::string documentOf(const Board& board) {
    clsKorvelRWRam ram;
    WriteTo(board, ram);
    const auto size = static_cast<std::ptrdiff_t>(clsKorvelRWRam::Size - ram.Remaining());
    return {ram.Data().begin(), ram.Data().begin() + size};
}

inline std::string longBytes(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(bits >> shift & 0xFF);
    return bytes;
}

/// Where the fields of a document stand, counted from its first byte.
namespace field {
inline constexpr std::size_t Count = 16;
inline constexpr std::size_t Counter = 20;
inline constexpr std::size_t Sensor1 = 24;
inline constexpr std::size_t PushButton1 = 44;
inline constexpr std::size_t WiresChunk = 46;
inline constexpr std::size_t Wires = 52;
} // namespace field

/// The same bytes with a 32-bit field set anew.
inline std::string with(std::string bytes, std::size_t offset, std::int32_t value) {
    return bytes.replace(offset, 4, longBytes(value));
}

/// Reads bytes as a file.
inline void loadFile(Board& board, const std::string& bytes) {
    static const OneFile file; // some tests load thousands of documents
    putBytes(file.path, bytes);
    clsKorvelRFile reader;
    reader.OpenFile(file.text);
    ReadFrom(board, reader);
}

/// Reads bytes as a block of memory, with the zeros of a fresh block behind them.
inline void loadMemory(Board& board, const std::string& bytes) {
    clsKorvelRWRam ram;
    const auto at = [&bytes](std::size_t i) {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u;
    };
    for (std::size_t i = 0; i < bytes.size(); i += 2)
        ram.writeInt(static_cast<std::int16_t>(at(i) | at(i + 1) << 8));
    ram.ResetToStart();
    ReadFrom(board, ram);
}

/// Every setting another one than on a new board, each of its own value.
inline void turnEverything(Board& board) {
    board.Display.SetValue(7);
    board.Sensors[0].SetValue(1);
    board.Sensors[1].SetValue(2);
    board.Knobs.PulseGenerator = 11;
    board.Knobs.Comparator = 22;
    board.Knobs.VariableVoltage = 33;
    board.PushButtons[0].SetValue(true);
    board.PushButtons[1].SetValue(false);
}

/// The settings that turnEverything makes.
inline void expectTurned(const Board& board) {
    EXPECT_EQ(board.Display.Value(), 7);
    EXPECT_EQ(board.Sensors[0].Value(), 1);
    EXPECT_EQ(board.Sensors[1].Value(), 2);
    EXPECT_EQ(board.Knobs.PulseGenerator, 11);
    EXPECT_EQ(board.Knobs.Comparator, 22);
    EXPECT_EQ(board.Knobs.VariableVoltage, 33);
    EXPECT_TRUE(board.PushButtons[0].Value());
    EXPECT_FALSE(board.PushButtons[1].Value());
}

/// Three wires, the second of which begins where the first one ends.
inline void addThreeWires(Board& board) {
    wire(board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
    wire(board, "LED 1 Ingang", "LED 2 Ingang");
    wire(board, "Sensor 1 Uit Geel", "Zoemer");
}

/// The two streams that documents are read from, for load.
inline const std::string bothReaders[] = {"file", "memory"};

/// Reads bytes as one of bothReaders does.
inline void load(const std::string& reader, Board& board, const std::string& bytes) {
    if (reader == "file")
        loadFile(board, bytes);
    else
        loadMemory(board, bytes);
}

} // namespace veltrix::test
