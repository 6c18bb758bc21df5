#include "cli/InputFile.h"

#include "board/AppPath.h"
#include "cli/Fault.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>

namespace veltrix::cli {

std::string ReadInputFile(const std::string& path) {
    const std::filesystem::path file = PathFromUtf8(path);
    std::error_code ignored; // a path that cannot be looked at cannot be opened either
    if (std::filesystem::is_directory(file, ignored))
        throw Fault(path, "is a folder");
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string bytes;
    std::array<char, 65536> part{};
    while (stream) {
        stream.read(part.data(), part.size());
        bytes.append(part.data(), static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream.eof())
        throw Fault(path, ReasonOf(errno, "cannot be read"));
    return bytes;
}

} // namespace veltrix::cli
