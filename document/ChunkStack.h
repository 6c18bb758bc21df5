#pragma once

#include "board/Arithmetic.h"

#include <array>
#include <cstdint>

namespace veltrix {

/// Where the length fields of the chunks being written stand in the stream. Room for 100 open
/// chunks; entry 0 lies below the outermost one.
class ChunkStack {
public:
    /// No chunk is open any more; the entries stay.
    void Reset() noexcept { depth_ = 0; }

    /// Throws std::out_of_range when 100 chunks are open; the chunk counts as open nevertheless.
    void Open(std::int32_t lengthField) {
        depth_ = CheckedAdd(depth_, 1);
        entries_.at(static_cast<std::size_t>(depth_)) = lengthField;
    }

    /// The length field of the innermost chunk, entry 0 when none is open. Throws std::out_of_range
    /// when more chunks were closed than opened.
    [[nodiscard]] std::int32_t LengthField() const {
        return entries_.at(static_cast<std::size_t>(depth_));
    }

    void Close() { depth_ = CheckedSubtract(depth_, 1); }

private:
    std::array<std::int32_t, 101> entries_{};
    std::int32_t depth_ = 0;
};

} // namespace veltrix
