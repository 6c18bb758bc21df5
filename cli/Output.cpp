#include "cli/Output.h"

#include "board/AppPath.h"
#include "cli/Fault.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <limits>
#include <ostream>
#include <utility>

namespace veltrix::cli {

Output::Output(std::ostream& stream, std::string name) : stream_(&stream), name_(std::move(name)) {}

Output::Output(const std::string& path) : stream_(&file_), name_(path) {
    errno = 0;
    file_.open(PathFromUtf8(path), std::ios::binary | std::ios::trunc);
    check();
}

void Output::Put(std::string_view text) {
    while (!text.empty()) {
        room(1);
        const std::size_t part = std::min(text.size(), buffer_.size() - used_);
        std::memcpy(buffer_.data() + used_, text.data(), part);
        used_ += part;
        text.remove_prefix(part);
    }
}

void Output::PutNumber(std::int64_t number) {
    room(std::numeric_limits<std::int64_t>::digits10 + 3);
    char* const begin = buffer_.data() + used_;
    const auto written = std::to_chars(begin, buffer_.data() + buffer_.size(), number);
    used_ += static_cast<std::size_t>(written.ptr - begin);
}

void Output::PutBinary(std::int32_t number, int bits) {
    room(static_cast<std::size_t>(bits));
    for (int bit = bits - 1; bit >= 0; --bit)
        buffer_[used_++] = (static_cast<std::uint32_t>(number) >> bit & 1) != 0 ? '1' : '0';
}

void Output::Close() {
    flush();
    stream_->flush();
    check();
    if (stream_ == &file_) {
        file_.close();
        check();
    }
}

void Output::flush() {
    errno = 0;
    stream_->write(buffer_.data(), static_cast<std::streamsize>(used_));
    used_ = 0;
    check();
}

void Output::check() const {
    if (!*stream_)
        throw Fault(name_, ReasonOf(errno, "cannot be written"));
}

} // namespace veltrix::cli
