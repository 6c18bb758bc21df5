#include "app/qt/WindowsRegistry.h"

#include <windows.h>

namespace veltrix {

namespace {

HKEY handleOf(Registry::Key key) {
    return key == Registry::ClassesRoot ? HKEY_CLASSES_ROOT : reinterpret_cast<HKEY>(key);
}

Registry::Key keyOf(HKEY handle) {
    return Registry::Key{reinterpret_cast<std::intptr_t>(handle)};
}

} // namespace

std::optional<Registry::Key> WindowsRegistry::RegCreateKeyExA(Key root, const std::string& subkey,
                                                              std::uint32_t options,
                                                              std::uint32_t access) {
    HKEY key = nullptr;
    if (::RegCreateKeyExA(handleOf(root), subkey.c_str(), 0, nullptr, options, access, nullptr,
                          &key, nullptr) != ERROR_SUCCESS)
        return std::nullopt;
    return keyOf(key);
}

std::optional<Registry::Key> WindowsRegistry::RegOpenKeyExA(Key root, const std::string& subkey,
                                                            std::uint32_t access) {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(handleOf(root), subkey.c_str(), 0, access, &key) != ERROR_SUCCESS)
        return std::nullopt;
    return keyOf(key);
}

void WindowsRegistry::RegSetValueExA(Key key, const std::string& name, Type type,
                                     const std::string& data) {
    // What is refused stays as it was.
    ::RegSetValueExA(handleOf(key), name.c_str(), 0, static_cast<DWORD>(type),
                     reinterpret_cast<const BYTE*>(data.data()), static_cast<DWORD>(data.size()));
}

void WindowsRegistry::RegCloseKey(Key key) {
    ::RegCloseKey(handleOf(key));
}

} // namespace veltrix
