#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace veltrix::cli {

/// The exit codes of veltrix-cli.
namespace exitCode {
inline constexpr int Done = 0;
inline constexpr int Found = 1;  ///< check has something to report
inline constexpr int Failed = 2; ///< bad use, or something cannot be read or written
} // namespace exitCode

/// The program behind its main: does what the arguments (those behind the program's name) ask, and
/// gives the exit code. Faults are told on `errors`, one line each.
[[nodiscard]] int RunProgram(const std::vector<std::string>& arguments,
                             const std::filesystem::path& applicationFolder, std::ostream& output,
                             std::ostream& errors) noexcept;

} // namespace veltrix::cli
