#pragma once

#include "board/AppPath.h"
#include "cli/Program.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace veltrix::test {

/// What came of a command.
struct Outcome {
    int code = 0;
    std::string output;
    std::string errors;
};

/// Runs a command in this process. Without a folder no picture is found.
inline Outcome cli(const std::vector<std::string>& arguments,
                   const std::filesystem::path& applicationFolder = {}) {
    std::ostringstream output;
    std::ostringstream errors;
    const int code = cli::RunProgram(arguments, applicationFolder, output, errors);
    return {code, output.str(), errors.str()};
}

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Files for one test.
class Files {
public:
    /// Writes a file and gives its path.
    std::string Add(const std::string& name, const std::string& bytes) {
        std::ofstream stream(folder_.Path() / PathFromUtf8(name), std::ios::binary);
        stream << bytes;
        return Path(name);
    }

    /// The path of a file that may not be there (yet).
    [[nodiscard]] std::string Path(const std::string& name) const {
        return Utf8FromPath(folder_.Path() / PathFromUtf8(name));
    }

private:
    TempFolder folder_;
};

} // namespace veltrix::test
