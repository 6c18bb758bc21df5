#pragma once

#include "app/FileTypes.h"
#include "app/Shell.h"

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {

/// Keeps what it was asked to open, and opens nothing.
struct FakeShell : Shell {
    std::int32_t Open(const std::string& address, const std::string& folder) override {
        opened.push_back({address, folder});
        if (unreachable)
            throw std::runtime_error("no shell");
        return answer;
    }

    struct Opened {
        std::string address;
        std::string folder;
    };

    std::vector<Opened> opened;
    std::int32_t answer = 42;
    bool unreachable = false;
};

/// Counts how often the file type was registered, and registers nothing.
struct FakeFileTypes : FileTypes {
    void RegisterFileType() noexcept override {
        ++times;
        if (whenRegistered)
            whenRegistered();
    }

    int times = 0;
    std::function<void()> whenRegistered;
};

} // namespace veltrix::test
