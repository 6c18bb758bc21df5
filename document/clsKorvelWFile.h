#pragma once

#include "document/ChunkFieldWriter.h"
#include "document/FileSave.h"
#include "document/SaveCalls.h"

#include <cstdint>
#include <string>

namespace veltrix {

/// Writes chunks to a file. They reach the file when it is closed, all of them or none, as far as
/// that can be promised (see FileSave). Every write throws std::system_error when no file is open.
class clsKorvelWFile : public ChunkFieldWriter<clsKorvelWFile> {
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
    /// it is closed then, and FileSave::Commit says what is in it.
    void CloseFile();

private:
    friend ChunkFieldWriter<clsKorvelWFile>;

    void putByte(std::uint8_t byte);

    FileSave save_;
    int exceptions_ = 0; // on their way when the file was opened
    std::string written_;
};

} // namespace veltrix
