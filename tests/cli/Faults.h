#pragma once

#include "cli/Fault.h"

#include <string>

namespace veltrix::test {

/// What the fault that ends a call says; nothing when none does.
template <typename Call>
std::string faultOf(Call call) {
    try {
        call();
    } catch (const cli::Fault& fault) {
        return fault.what();
    }
    return {};
}

} // namespace veltrix::test
