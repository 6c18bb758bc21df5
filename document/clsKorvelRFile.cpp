#include "document/clsKorvelRFile.h"

#include "board/AppPath.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace veltrix {

namespace {

[[noreturn]] void fail(const std::string& fname, std::error_code reason) {
    throw std::system_error(reason, fname);
}

} // namespace

void clsKorvelRFile::OpenFile(const std::string& fname) {
    CloseFile();
    const std::filesystem::path path = PathFromUtf8(fname);
    std::error_code reason;
    const std::filesystem::file_status status = std::filesystem::status(path, reason);
    if (std::filesystem::is_directory(status))
        fail(fname, std::make_error_code(std::errc::is_a_directory));
    if (!std::filesystem::exists(status))
        fail(fname, reason ? reason : std::make_error_code(std::errc::no_such_file_or_directory));
    if (!std::filesystem::is_regular_file(status))
        fail(fname, std::make_error_code(std::errc::operation_not_supported));
    const std::uint64_t size = std::filesystem::file_size(path, reason);
    if (reason)
        fail(fname, reason);
    errno = 0;
    if (file_.open(path, std::ios::in | std::ios::binary) == nullptr)
        fail(fname, std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
    size_ = size;
}

void clsKorvelRFile::CloseFile() noexcept {
    file_.close();
    size_ = 0;
    position_ = 0;
}

std::int16_t clsKorvelRFile::PeekChunkType() {
    const std::uint64_t position = position_;
    const std::int16_t type = readInt();
    position_ = position;
    file_.pubseekpos(static_cast<std::streamoff>(position));
    return type;
}

std::uint8_t clsKorvelRFile::takeByte() {
    if (!file_.is_open())
        throw std::system_error(std::make_error_code(std::errc::bad_file_descriptor));
    // A file that grew since it was opened ends where it ended then.
    if (position_ == size_)
        return 0;
    const std::filebuf::int_type byte = file_.sbumpc();
    if (byte == std::filebuf::traits_type::eof()) {
        position_ = size_;
        return 0;
    }
    ++position_;
    return static_cast<std::uint8_t>(byte);
}

} // namespace veltrix
