#pragma once

#include "board/AppPath.h"
#include "cli/Program.h"
#include "tests/document/Files.h"

#include <filesystem>
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

/// The lines of a text, without their ends.
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
        putBytes(folder_.Path() / PathFromUtf8(name), bytes);
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
