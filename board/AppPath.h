#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace veltrix {

/// Paths inside the program are UTF-8 text; these two cross to the platform's form and back.
[[nodiscard]] std::filesystem::path PathFromUtf8(std::string_view text);
[[nodiscard]] std::string Utf8FromPath(const std::filesystem::path& path);

/// The path of a data file beside the program. `name` is relative to the application folder,
/// begins with a backslash and separates its parts by backslashes: "\\images1\\Line1.bmp".
[[nodiscard]] std::filesystem::path AppPath(const std::filesystem::path& applicationFolder,
                                            std::string_view name);

} // namespace veltrix
