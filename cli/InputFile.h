#pragma once

#include <string>

namespace veltrix::cli {

/// The bytes of a file. Throws Fault when it cannot be read.
[[nodiscard]] std::string ReadInputFile(const std::string& path);

} // namespace veltrix::cli
