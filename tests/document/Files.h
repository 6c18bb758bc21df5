#pragma once

#include "board/AppPath.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>

namespace veltrix::test {

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

inline void putBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << bytes;
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot write " + file.string());
}

inline std::set<std::string> namesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(Utf8FromPath(entry.path().filename()));
    return names;
}

/// A folder with one file in it, of which a test needs the path in both forms.
struct OneFile {
    explicit OneFile(const std::string& name = "bord.vtx")
        : path(folder.Path() / PathFromUtf8(name)), text(Utf8FromPath(path)) {}

    TempFolder folder;
    std::filesystem::path path;
    std::string text;
};

} // namespace veltrix::test
