#pragma once

#include <system_error>

namespace veltrix::test {

/// The code of the std::system_error that ends a call; none when nothing does.
template <typename Call>
std::error_code errorOf(Call call) {
    try {
        call();
    } catch (const std::system_error& error) {
        return error.code();
    }
    return {};
}

} // namespace veltrix::test
