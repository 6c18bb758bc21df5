#include "document/clsKorvelWFile.h"

#include "board/Arithmetic.h"

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
