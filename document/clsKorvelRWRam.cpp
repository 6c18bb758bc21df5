#include "document/clsKorvelRWRam.h"

namespace veltrix {

std::int16_t clsKorvelRWRam::PeekChunkType() {
    const std::int32_t position = position_;
    const std::int16_t type = readInt();
    position_ = position;
    return type;
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
