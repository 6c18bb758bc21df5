#pragma once

#include "document/ChunkEncoding.h"
#include "document/CodePage1252.h"

#include <cstdint>
#include <string>

namespace veltrix {

/// The fields of a chunk stream, read byte by byte. `Stream` inherits this and has a `takeByte()`
/// that gives the next byte and moves on; what that throws comes through.
template <typename Stream>
class ChunkFieldReader {
public:
    /// Moves past the head of a chunk, its type and its length.
    void GoIntoChunk() {
        readInt();
        readLong();
    }

    /// UTF-8. In the stream the text ends with a zero byte.
    std::string readString() {
        std::string text;
        while (const std::uint8_t byte = takeByte())
            AppendCharacter(text, byte);
        return text;
    }

    std::int16_t readInt() { return chunk::ToInt(take<chunk::IntBytes>()); }

    std::int32_t readLong() { return chunk::ToLong(take<chunk::LongBytes>()); }

    /// -1 or 0.
    std::int32_t readBool() { return takeByte() == chunk::True ? -1 : 0; }

    float readSingle() { return chunk::ToSingle(take<chunk::LongBytes>()); }

private:
    std::uint8_t takeByte() { return static_cast<Stream&>(*this).takeByte(); }

    template <typename Bytes>
    Bytes take() {
        Bytes bytes{};
        for (std::uint8_t& byte : bytes)
            byte = takeByte();
        return bytes;
    }
};

} // namespace veltrix
