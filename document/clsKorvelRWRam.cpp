#include "document/clsKorvelRWRam.h"

#include "board/Arithmetic.h"
#include "document/ChunkEncoding.h"
#include "document/CodePage1252.h"

namespace veltrix {

void clsKorvelRWRam::BeginChunk(std::int16_t i) {
    writeInt(i);
    chunks_.Open(position_);
    writeLong(0);
}

void clsKorvelRWRam::EndChunk() {
    const std::int32_t end = position_;
    position_ = chunks_.LengthField();
    const std::int32_t body = CheckedAdd(position_, sizeof(std::int32_t));
    writeLong(CheckedSubtract(end, body));
    position_ = end;
    chunks_.Close();
}

void clsKorvelRWRam::GoIntoChunk() {
    readInt();
    readLong();
}

std::int16_t clsKorvelRWRam::PeekChunkType() {
    const std::int32_t position = position_;
    const std::int16_t type = readInt();
    position_ = position;
    return type;
}

std::string clsKorvelRWRam::readString() {
    std::string text;
    while (const std::uint8_t byte = takeByte())
        AppendCharacter(text, byte);
    return text;
}

std::int16_t clsKorvelRWRam::readInt() {
    return chunk::ToInt(take<chunk::IntBytes>());
}

std::int32_t clsKorvelRWRam::readLong() {
    return chunk::ToLong(take<chunk::LongBytes>());
}

std::int32_t clsKorvelRWRam::readBool() {
    return takeByte() == chunk::True ? -1 : 0;
}

float clsKorvelRWRam::readSingle() {
    return chunk::ToSingle(take<chunk::LongBytes>());
}

std::string clsKorvelRWRam::writeString(std::string_view s) {
    while (!s.empty())
        putByte(TakeByte(s));
    putByte(0);
    return {};
}

void clsKorvelRWRam::writeInt(std::int16_t i) {
    put(chunk::FromInt(i));
}

void clsKorvelRWRam::writeLong(std::int32_t l) {
    put(chunk::FromLong(l));
}

void clsKorvelRWRam::writeBool(bool b) {
    putByte(b ? chunk::True : chunk::False);
}

void clsKorvelRWRam::writeSingle(float s) {
    put(chunk::FromSingle(s));
}

template <typename Bytes>
void clsKorvelRWRam::put(const Bytes& bytes) {
    for (const std::uint8_t byte : bytes)
        putByte(byte);
}

template <typename Bytes>
Bytes clsKorvelRWRam::take() {
    Bytes bytes{};
    for (std::uint8_t& byte : bytes)
        byte = takeByte();
    return bytes;
}

void clsKorvelRWRam::putByte(std::uint8_t byte) {
    block_.at(static_cast<std::size_t>(position_)) = byte;
    ++position_;
}

std::uint8_t clsKorvelRWRam::takeByte() {
    const std::uint8_t byte = block_.at(static_cast<std::size_t>(position_));
    ++position_;
    return byte;
}

} // namespace veltrix
