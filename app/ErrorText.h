#pragma once

#include <exception>
#include <string>

namespace veltrix {

/// What went wrong, in Dutch and for the person at the board.
[[nodiscard]] std::string DutchReason(const std::exception& error);

} // namespace veltrix
