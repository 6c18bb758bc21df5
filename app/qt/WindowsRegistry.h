#pragma once

#include "document/Registry.h"

namespace veltrix {

/// The registry of the Windows that the program runs on. It needs no toolkit.
class WindowsRegistry : public Registry {
public:
    std::optional<Key> RegCreateKeyExA(Key root, const std::string& subkey, std::uint32_t options,
                                       std::uint32_t access) override;
    std::optional<Key> RegOpenKeyExA(Key root, const std::string& subkey,
                                     std::uint32_t access) override;
    void RegSetValueExA(Key key, const std::string& name, Type type,
                        const std::string& data) override;
    void RegCloseKey(Key key) override;
};

} // namespace veltrix
