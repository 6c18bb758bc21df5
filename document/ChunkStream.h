#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// A stream that chunks are read from. Chunks are entered and read field by field in the order in
/// which they were written; their lengths are not looked at, and what lies past the end of the data
/// reads as zeros.
template <typename Stream>
concept ChunkReader = requires(Stream& stream) {
    stream.GoIntoChunk();
    { stream.PeekChunkType() } -> std::same_as<std::int16_t>;
    { stream.readString() } -> std::same_as<std::string>; // UTF-8
    { stream.readInt() } -> std::same_as<std::int16_t>;
    { stream.readLong() } -> std::same_as<std::int32_t>;
    { stream.readBool() } -> std::same_as<std::int32_t>; // -1 or 0
    { stream.readSingle() } -> std::same_as<float>;
    // Bytes from the position to the end: nothing longer can still be in the stream.
    { stream.Remaining() } -> std::same_as<std::uint64_t>;
};

/// A stream that chunks are written to, one inside the other where BeginChunk comes before the
/// EndChunk of another.
template <typename Stream>
concept ChunkWriter = requires(Stream& stream, std::int16_t i, std::int32_t l, bool b, float s,
                               std::string_view text) {
    stream.BeginChunk(i);
    stream.EndChunk();
    { stream.writeString(text) } -> std::same_as<std::string>;
    stream.writeInt(i);
    stream.writeLong(l);
    stream.writeBool(b);
    stream.writeSingle(s);
};

} // namespace veltrix
