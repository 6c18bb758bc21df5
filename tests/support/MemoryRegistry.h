#pragma once

#include "document/Registry.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace veltrix::test {

/// A registry in memory. Keys that were not closed, and calls that a strict registry refuses, are
/// kept for the test to see.
class MemoryRegistry : public Registry {
public:
    struct Value {
        Type type = Type::Sz;
        std::string data;

        friend bool operator==(const Value& a, const Value& b) {
            return a.type == b.type && a.data == b.data;
        }
    };

    /// A key's values by their names; the default value has the empty one.
    using Values = std::map<std::string, Value>;

    std::optional<Key> RegCreateKeyExA(Key root, const std::string& subkey, std::uint32_t options,
                                       std::uint32_t access) override {
        if (readOnly || root != ClassesRoot || options != NonVolatile)
            return std::nullopt;
        for (std::size_t end = subkey.find('\\'); end != std::string::npos;
             end = subkey.find('\\', end + 1))
            keys[subkey.substr(0, end)];
        keys[subkey];
        return RegOpenKeyExA(root, subkey, access);
    }

    std::optional<Key> RegOpenKeyExA(Key root, const std::string& subkey,
                                     std::uint32_t access) override {
        if (readOnly || root != ClassesRoot || access != AllAccess || keys.count(subkey) == 0)
            return std::nullopt;
        const Key key{++lastKey_};
        open.emplace(key, subkey);
        return key;
    }

    void RegSetValueExA(Key key, const std::string& name, Type type,
                        const std::string& data) override {
        keys.at(open.at(key))[name] = {type, data};
    }

    void RegCloseKey(Key key) override { closedWrongly += open.erase(key) == 0; }

    /// The default value of a key that has one.
    [[nodiscard]] std::optional<std::string> Default(const std::string& subkey) const {
        const auto key = keys.find(subkey);
        if (key == keys.end() || key->second.count("") == 0)
            return std::nullopt;
        return key->second.at("").data;
    }

    bool readOnly = false;
    std::map<std::string, Values> keys;
    std::map<Key, std::string> open;
    int closedWrongly = 0;

private:
    std::intptr_t lastKey_ = 0;
};

} // namespace veltrix::test
