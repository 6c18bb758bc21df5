#pragma once

#include "document/ChunkFieldReader.h"
#include "document/ChunkFieldWriter.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace veltrix {

/// Chunks in a block of memory that never grows: one write pass from the start, then any number of
/// reads, each after ResetToStart. Every read and write throws std::out_of_range at the end of the
/// block; nothing marks where the written data ends.
class clsKorvelRWRam : public ChunkFieldReader<clsKorvelRWRam>,
                       public ChunkFieldWriter<clsKorvelRWRam> {
public:
    static constexpr std::size_t Size = 64001; ///< bytes
    using Block = std::array<std::uint8_t, Size>;

    /// Back to position 0; the data and the open chunks stay.
    void ResetToStart() noexcept { position_ = 0; }

    /// The type of the chunk at the position, which stays.
    std::int16_t PeekChunkType();

    /// Bytes from the position to the end of the block.
    [[nodiscard]] std::uint64_t Remaining() const noexcept {
        return Size - static_cast<std::uint64_t>(position_);
    }

    [[nodiscard]] const Block& Data() const noexcept { return block_; }

private:
    friend ChunkFieldReader<clsKorvelRWRam>;
    friend ChunkFieldWriter<clsKorvelRWRam>;

    void putByte(std::uint8_t byte);
    std::uint8_t takeByte();

    Block block_{};
};

} // namespace veltrix
