#pragma once

#include "document/BoardDocument.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "tests/document/Files.h"

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

} // namespace veltrix::test
