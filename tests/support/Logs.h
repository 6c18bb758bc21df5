#pragma once

#include "board/Log.h"

#include <string>
#include <vector>

namespace veltrix::test {

/// Forgets every line.
class NullLog : public Log {
public:
    void Write(const std::string& /*line*/) noexcept override {}
};

/// Keeps every line.
class KeptLog : public Log {
public:
    void Write(const std::string& line) noexcept override { Lines.push_back(line); }

    std::vector<std::string> Lines;
};

} // namespace veltrix::test
