#include "document/clsKorvelWFile.h"

#include "board/Arithmetic.h"
#include "document/ChunkEncoding.h"
#include "document/CodePage1252.h"

#include <exception>
#include <system_error>
#include <utility>

namespace veltrix {

clsKorvelWFile::~clsKorvelWFile() {
    if (std::uncaught_exceptions() > exceptions_)
        return;
    try {
        CloseFile();
    } catch (const std::exception&) {
        // Nobody is left to tell.
    }
}

void clsKorvelWFile::OpenFile(const std::string& fname) {
    CloseFile();
    chunks_.Reset();
    save_.Begin(fname);
    exceptions_ = std::uncaught_exceptions();
}

void clsKorvelWFile::CloseFile() {
    const std::string content = std::exchange(written_, {});
    position_ = 0;
    if (save_.Begun())
        save_.Commit(content);
}

void clsKorvelWFile::BeginChunk(std::int16_t i) {
    writeInt(i);
    chunks_.Open(position_);
    writeLong(0);
}

void clsKorvelWFile::EndChunk() {
    const std::int32_t end = position_;
    position_ = chunks_.LengthField();
    const std::int32_t body = CheckedAdd(position_, sizeof(std::int32_t));
    writeLong(CheckedSubtract(end, body));
    position_ = end;
    chunks_.Close();
}

std::string clsKorvelWFile::writeString(std::string_view s) {
    while (!s.empty())
        putByte(TakeByte(s));
    putByte(0);
    return {};
}

void clsKorvelWFile::writeInt(std::int16_t i) {
    put(chunk::FromInt(i));
}

void clsKorvelWFile::writeLong(std::int32_t l) {
    put(chunk::FromLong(l));
}

void clsKorvelWFile::writeBool(bool b) {
    putByte(b ? chunk::True : chunk::False);
}

void clsKorvelWFile::writeSingle(float s) {
    put(chunk::FromSingle(s));
}

template <typename Bytes>
void clsKorvelWFile::put(const Bytes& bytes) {
    for (const std::uint8_t byte : bytes)
        putByte(byte);
}

void clsKorvelWFile::putByte(std::uint8_t byte) {
    if (!save_.Begun())
        throw std::system_error(std::make_error_code(std::errc::bad_file_descriptor));
    const auto at = static_cast<std::size_t>(position_);
    const std::int32_t next = CheckedAdd(position_, 1);
    if (at == written_.size())
        written_.push_back(static_cast<char>(byte));
    else
        written_[at] = static_cast<char>(byte);
    position_ = next;
}

} // namespace veltrix
