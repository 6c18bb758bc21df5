#pragma once

#include "board/Arithmetic.h"
#include "document/ChunkEncoding.h"
#include "document/ChunkStack.h"
#include "document/CodePage1252.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// The fields of a chunk stream, written byte by byte. `Stream` inherits this and has a
/// `putByte(byte)` that puts a byte at `position_` and moves on; what that throws comes through.
template <typename Stream>
class ChunkFieldWriter {
public:
    /// Throws std::out_of_range when 100 chunks are open, after the type was written.
    void BeginChunk(std::int16_t i) {
        writeInt(i);
        chunks_.Open(position_);
        writeLong(0);
    }

    /// Throws std::out_of_range when more chunks were ended than begun. One too many overwrites the
    /// start of the stream.
    void EndChunk() {
        const std::int32_t end = position_;
        position_ = chunks_.LengthField();
        const std::int32_t body = CheckedAdd(position_, sizeof(std::int32_t));
        writeLong(CheckedSubtract(end, body));
        position_ = end;
        chunks_.Close();
    }

    /// Writes UTF-8 text; the result is always empty. Throws std::overflow_error at a character
    /// that is not in code page 1252.
    std::string writeString(std::string_view s) {
        while (!s.empty())
            putByte(TakeByte(s));
        putByte(0);
        return {};
    }

    void writeInt(std::int16_t i) { put(chunk::FromInt(i)); }

    void writeLong(std::int32_t l) { put(chunk::FromLong(l)); }

    void writeBool(bool b) { putByte(b ? chunk::True : chunk::False); }

    void writeSingle(float s) { put(chunk::FromSingle(s)); }

protected:
    ChunkStack chunks_;
    std::int32_t position_ = 0;

private:
    void putByte(std::uint8_t byte) { static_cast<Stream&>(*this).putByte(byte); }

    template <typename Bytes>
    void put(const Bytes& bytes) {
        for (const std::uint8_t byte : bytes)
            putByte(byte);
    }
};

} // namespace veltrix
