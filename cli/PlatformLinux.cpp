#include "cli/Platform.h"

namespace veltrix::cli {

std::filesystem::path ApplicationFolder() {
    std::error_code unknown; // without /proc, only the current folder is left to look in
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", unknown);
    return unknown ? std::filesystem::path(".") : program.parent_path();
}

std::vector<std::string> Arguments(int count, const char* const* values) {
    return count > 1 ? std::vector<std::string>(values + 1, values + count)
                     : std::vector<std::string>();
}

} // namespace veltrix::cli
