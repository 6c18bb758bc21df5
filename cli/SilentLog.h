#pragma once

#include "board/Log.h"

namespace veltrix::cli {

/// For a board that nobody looks at.
class SilentLog final : public Log {
public:
    void Write(const std::string& /*line*/) noexcept override {}
};

} // namespace veltrix::cli
