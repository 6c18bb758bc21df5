#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veltrix {

/// The four calls on the Windows registry that a registration is made of, by their own names. Text
/// is in the ANSI code page. None of them throws; a call that fails is one that did nothing.
class Registry {
public:
    /// An open key, or a root that is always open.
    enum class Key : std::intptr_t {};

    /// HKEY_CLASSES_ROOT: the document types, where each file extension has a key.
    static constexpr Key ClassesRoot{-1};

    static constexpr std::uint32_t NonVolatile = 0;     ///< an option: the key outlives the session
    static constexpr std::uint32_t AllAccess = 0xF003F; ///< KEY_ALL_ACCESS

    /// How a value is stored.
    enum class Type : std::uint32_t {
        Sz = 1,   ///< text and the zero byte at its end
        Dword = 4 ///< a number in 4 bytes, lowest first
    };

    virtual ~Registry() = default;

    /// Opens a key, which is made first when it does not exist, and so are those on the way to it;
    /// nothing when that is not allowed.
    virtual std::optional<Key> RegCreateKeyExA(Key root, const std::string& subkey,
                                               std::uint32_t options, std::uint32_t access) = 0;

    /// Opens a key that exists.
    virtual std::optional<Key> RegOpenKeyExA(Key root, const std::string& subkey,
                                             std::uint32_t access) = 0;

    /// Stores `data` as it is; the value without a name is the key's default.
    virtual void RegSetValueExA(Key key, const std::string& name, Type type,
                                const std::string& data) = 0;

    virtual void RegCloseKey(Key key) = 0;
};

} // namespace veltrix
