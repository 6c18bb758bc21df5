#pragma once

#include "document/clsKorvelWFile.h"
#include "tests/document/Errors.h"

#include <string>
#include <system_error>

namespace veltrix::test {

/// What a save finds, and what is there after it: the first four bytes are new.
inline const std::string oldContent = "ABCDEFGH";
inline const std::string newContent = std::string("\1\0\0\0", 4) + "EFGH";

/// Saves four bytes on the disk of the computer.
inline void saveNumber(const std::string& path) {
    clsKorvelWFile file;
    file.OpenFile(path);
    file.writeLong(1);
    file.CloseFile();
}

inline std::error_code errorOfSaving(const std::string& path) {
    return errorOf([&path] { saveNumber(path); });
}

} // namespace veltrix::test
