#pragma once

#include <string>

namespace veltrix {

/// Where the program leaves a line about a fault that it got over by itself.
class Log {
public:
    virtual ~Log() = default;

    /// One line, in English, without a line end. Must not throw.
    virtual void Write(const std::string& line) noexcept = 0;
};

} // namespace veltrix
