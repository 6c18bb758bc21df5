#pragma once

#include <cstdlib>
#include <exception>
#include <grp.h>
#include <iostream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace veltrix::test {

/// Runs `work` in a process of its own and gives its process number. The process ends with status 0
/// when `work` gives true.
template <typename Work>
pid_t start(Work work) {
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process can be started");
    if (child != 0)
        return child;
    bool good = false;
    try {
        good = work();
    } catch (const std::exception& error) {
        std::cerr << "in the process: " << error.what() << std::endl;
    }
    ::_exit(good ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// Waits for the end of a process; whether it ended well.
inline bool endedWell(pid_t process) {
    int status = 0;
    if (::waitpid(process, &status, 0) != process)
        throw std::runtime_error("the process is not there");
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Runs `work`, which gives whether all went well, as a user whom folders and files may forbid
/// something, whoever runs the tests.
template <typename Work>
bool wellAsOrdinaryUser(Work work) {
    return endedWell(start([&work] {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            throw std::runtime_error("cannot become another user");
        return work();
    }));
}

} // namespace veltrix::test
