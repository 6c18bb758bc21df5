#pragma once

#include "document/ChunkStack.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// Chunks in a block of memory that never grows: one write pass from the start, then any number of
/// reads, each after ResetToStart. Every read and write throws std::out_of_range at the end of the
/// block; nothing marks where the written data ends.
class clsKorvelRWRam {
public:
    static constexpr std::size_t Size = 64001; ///< bytes
    using Block = std::array<std::uint8_t, Size>;

    /// Back to position 0; the data and the open chunks stay.
    void ResetToStart() noexcept { position_ = 0; }

    /// Throws std::out_of_range when 100 chunks are open, after the type was written.
    void BeginChunk(std::int16_t i);

    /// Throws std::out_of_range when more chunks were ended than begun. One too many overwrites the
    /// start of the block.
    void EndChunk();

    void GoIntoChunk();
    std::int16_t PeekChunkType();
    std::string readString(); ///< UTF-8
    std::int16_t readInt();
    std::int32_t readLong();
    std::int32_t readBool(); ///< -1 or 0
    float readSingle();

    /// Writes UTF-8 text; the result is always empty. Throws std::overflow_error at a character
    /// that is not in code page 1252.
    std::string writeString(std::string_view s);
    void writeInt(std::int16_t i);
    void writeLong(std::int32_t l);
    void writeBool(bool b);
    void writeSingle(float s);

    /// Bytes from the position to the end of the block.
    [[nodiscard]] std::uint64_t Remaining() const noexcept {
        return Size - static_cast<std::uint64_t>(position_);
    }

    [[nodiscard]] const Block& Data() const noexcept { return block_; }

private:
    template <typename Bytes>
    void put(const Bytes& bytes);
    template <typename Bytes>
    Bytes take();
    void putByte(std::uint8_t byte);
    std::uint8_t takeByte();

    Block block_{};
    ChunkStack chunks_;
    std::int32_t position_ = 0;
};

} // namespace veltrix
