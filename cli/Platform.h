#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace veltrix::cli {

// What the command line asks of the system it runs on; each system has a source file of its own.

/// The folder of the running program, beside which its data files lie.
[[nodiscard]] std::filesystem::path ApplicationFolder();

/// The arguments behind the program's name, in UTF-8. Takes what main was given.
[[nodiscard]] std::vector<std::string> Arguments(int count, const char* const* values);

} // namespace veltrix::cli
