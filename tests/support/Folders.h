#pragma once

#include <filesystem>

namespace veltrix::test {

/// The folder that holds the programs and the data that they load.
[[nodiscard]] const std::filesystem::path& ApplicationFolder();

/// The root of the sources.
[[nodiscard]] const std::filesystem::path& SourceFolder();

} // namespace veltrix::test
