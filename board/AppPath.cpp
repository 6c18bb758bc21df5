#include "board/AppPath.h"

#include <algorithm>

namespace veltrix {

std::filesystem::path PathFromUtf8(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path AppPath(const std::filesystem::path& applicationFolder,
                              std::string_view name) {
    std::string relative(name.substr(name.find_first_not_of('\\')));
    std::replace(relative.begin(), relative.end(), '\\', '/');
    return applicationFolder / PathFromUtf8(relative);
}

} // namespace veltrix
