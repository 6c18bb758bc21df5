#pragma once

#include "instruments/Settings.h"

namespace veltrix {

/// The desktop's own store of settings: the registry, or a file in the user's configuration folder.
class QtSettings : public Settings {
public:
    [[nodiscard]] std::string Get(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& standard) override;
};

} // namespace veltrix
