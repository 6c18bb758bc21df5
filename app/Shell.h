#pragma once

#include <cstdint>
#include <string>

namespace veltrix {

/// The desktop that the program runs on, as far as it starts things for its user.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a document or a web address with what the user has for it, in a window of its own that
    /// belongs to nobody. The program that is started begins in `folder` where there is such a
    /// thing. Returns at once with the answer of the shell, which is 0 when it is out of
    /// memory and anything else says little. Throws when the shell cannot be reached.
    virtual std::int32_t Open(const std::string& address, const std::string& folder) = 0;
};

} // namespace veltrix
