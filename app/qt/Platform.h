#pragma once

#include "app/FileTypes.h"
#include "app/Shell.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace veltrix {

// What differs from one system to the next besides the sound; one file for each system makes it.

[[nodiscard]] std::unique_ptr<Shell> MakeShell();

/// `program` is the path of the running program.
[[nodiscard]] std::unique_ptr<FileTypes> MakeFileTypes(const std::filesystem::path& program);

/// Why no window can be shown, in one line, before the toolkit finds out its own way; nothing when
/// there is no such reason. `argumentCount` and `arguments` are those of main.
[[nodiscard]] std::optional<std::string> NoDisplayReason(int argumentCount,
                                                         const char* const* arguments);

} // namespace veltrix
