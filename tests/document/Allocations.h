#pragma once

#include <cstddef>

namespace veltrix::test {

/// How much memory is in use at most, in bytes above what is in use now.
class PeakMemory {
public:
    PeakMemory();

    [[nodiscard]] std::size_t Bytes() const;

private:
    std::size_t before_ = 0;
};

} // namespace veltrix::test
