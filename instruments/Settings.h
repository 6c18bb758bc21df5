#pragma once

#include <string>

namespace veltrix {

/// The user's own settings, as the platform keeps them for every program. They are only read.
class Settings {
public:
    virtual ~Settings() = default;

    /// The value of a key in a section of an application's settings; `standard` where there is
    /// none.
    [[nodiscard]] virtual std::string Get(const std::string& application,
                                          const std::string& section, const std::string& key,
                                          const std::string& standard) = 0;
};

} // namespace veltrix
