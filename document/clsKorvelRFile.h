#pragma once

#include "document/ChunkFieldReader.h"

#include <cstdint>
#include <fstream>
#include <string>

namespace veltrix {

/// Reads chunks from a file. Past its end there are zeros. Every read throws std::system_error when
/// no file is open or the file cannot be read.
class clsKorvelRFile : public ChunkFieldReader<clsKorvelRFile> {
public:
    /// Opens a file (UTF-8 path) at its start, after closing the one that is open. Throws
    /// std::system_error, with no file open, when it cannot be read; what is no regular file
    /// cannot, since it may have no end.
    void OpenFile(const std::string& fname);

    /// Does nothing when no file is open.
    void CloseFile() noexcept;

    /// The type of the chunk at the position, which stays.
    std::int16_t PeekChunkType();

    /// Bytes from the position to the end of the file as it was when it was opened.
    [[nodiscard]] std::uint64_t Remaining() const noexcept { return size_ - position_; }

private:
    friend ChunkFieldReader<clsKorvelRFile>;

    std::uint8_t takeByte();

    std::filebuf file_;
    std::uint64_t size_ = 0;
    std::uint64_t position_ = 0; // never past the end
};

} // namespace veltrix
