#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iosfwd>
#include <string>
#include <string_view>

namespace veltrix::cli {

/// Where what a command has to say goes: a file, or the standard output. Text gathers in a buffer,
/// since a run writes millions of cells.
class Output {
public:
    /// Onto a stream that outlives the output. `name` is what a fault calls it.
    Output(std::ostream& stream, std::string name);

    /// Into a file, whose old content is gone. Throws Fault when it cannot be opened.
    explicit Output(const std::string& path);

    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Put(char c) {
        room(1);
        buffer_[used_++] = c;
    }

    void Put(std::string_view text);

    /// In decimal digits.
    void PutNumber(std::int64_t number);

    /// The lowest `bits` bits of `number`, the highest of them first.
    void PutBinary(std::int32_t number, int bits);

    /// Comes last. Throws Fault, as every Put may, when something could not be written; a file that
    /// was not closed is not complete.
    void Close();

private:
    void room(std::size_t bytes) {
        if (buffer_.size() - used_ < bytes)
            flush();
    }

    void flush();
    void check() const;

    std::ofstream file_;
    std::ostream* stream_ = nullptr;
    std::string name_;
    std::array<char, 65536> buffer_{};
    std::size_t used_ = 0;
};

} // namespace veltrix::cli
