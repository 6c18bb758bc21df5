#pragma once

#include "document/ChunkStack.h"
#include "document/FileSave.h"
#include "document/SaveCalls.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// Writes chunks to a file. They reach the file when it is closed, all of them or none (see
/// FileSave). Every write throws std::system_error when no file is open.
class clsKorvelWFile {
public:
    /// `calls` must outlive the stream.
    explicit clsKorvelWFile(SaveCalls& calls = PlatformSaveCalls()) noexcept : save_(calls) {}

    clsKorvelWFile(const clsKorvelWFile&) = delete;
    clsKorvelWFile& operator=(const clsKorvelWFile&) = delete;

    /// Closes the file, unless an exception is on its way that came up while it was open: a stream
    /// that was not finished must not take the place of a whole file. What goes wrong here can no
    /// longer be reported: a file that matters is closed by CloseFile.
    ~clsKorvelWFile();

    /// Opens a file (UTF-8 path) at its start, after closing the one that is open. A file that is
    /// not there is made; one that is there keeps what lies past the end of what is written now.
    /// Throws std::system_error, with no file open, when it cannot be written.
    void OpenFile(const std::string& fname);

    /// Does nothing when no file is open. Throws std::system_error when the file cannot be written;
    /// it is closed then, and what was there before is still there.
    void CloseFile();

    /// Throws std::out_of_range when 100 chunks are open, after the type was written.
    void BeginChunk(std::int16_t i);

    /// Throws std::out_of_range when more chunks were ended than begun. One too many overwrites the
    /// start of the stream.
    void EndChunk();

    /// Writes UTF-8 text; the result is always empty. Throws std::overflow_error at a character
    /// that is not in code page 1252.
    std::string writeString(std::string_view s);
    void writeInt(std::int16_t i);
    void writeLong(std::int32_t l);
    void writeBool(bool b);
    void writeSingle(float s);

private:
    template <typename Bytes>
    void put(const Bytes& bytes);
    void putByte(std::uint8_t byte);

    FileSave save_;
    int exceptions_ = 0; // on their way when the file was opened
    std::string written_;
    ChunkStack chunks_;
    std::int32_t position_ = 0; // in what was written
};

} // namespace veltrix
