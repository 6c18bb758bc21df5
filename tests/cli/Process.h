#pragma once

#include "tests/cli/Cli.h"
#include "tests/support/Folders.h"

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <vector>

extern char** environ;

namespace veltrix::test {

/// Runs a program to its end. Its standard output goes to `outputTo` when that is given, and is
/// part of the outcome otherwise.
inline Outcome runProcess(const std::string& program, const std::vector<std::string>& arguments,
                          const std::string& outputTo = {}) {
    const Files files;
    const std::string output = outputTo.empty() ? files.Path("output") : outputTo;
    const std::string errors = files.Path("errors");

    std::vector<std::string> all{program};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    for (std::string& value : all)
        values.push_back(value.data());
    values.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int write = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), write, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, errors.c_str(), write, 0600);
    pid_t process = 0;
    const int failed =
        posix_spawn(&process, program.c_str(), &actions, nullptr, values.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0)
        throw std::runtime_error("cannot start " + program);
    int status = 0;
    if (waitpid(process, &status, 0) != process)
        throw std::runtime_error("lost " + program);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            outputTo.empty() ? bytesOf(output) : std::string(), bytesOf(errors)};
}

/// Runs the built veltrix-cli.
inline Outcome runVeltrixCli(const std::vector<std::string>& arguments,
                             const std::string& outputTo = {}) {
    return runProcess(ApplicationFolder() / "veltrix-cli", arguments, outputTo);
}

} // namespace veltrix::test
