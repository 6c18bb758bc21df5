// Registers the document type in the registry of the Windows it runs on, and holds what is there
// against what the same calls leave in memory. A program of its own, because no test library for
// Windows is at hand: it ends with 1 when something differs.

#include "app/qt/WindowsRegistry.h"
#include "document/modFileAssoc.h"
#include "tests/support/MemoryRegistry.h"

#include <cstdio>
#include <optional>
#include <string>
#include <windows.h>

namespace veltrix::test {

namespace {

int faults = 0;

void check(bool holds, const std::string& what) {
    std::printf("%s %s\n", holds ? "ok  " : "FAIL", what.c_str());
    faults += holds ? 0 : 1;
}

/// A value as Windows gives it back, byte for byte; nothing when there is none.
std::optional<MemoryRegistry::Value> valueOf(const std::string& subkey, const std::string& name) {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(HKEY_CLASSES_ROOT, subkey.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return std::nullopt;
    char bytes[1000];
    DWORD size = sizeof bytes;
    DWORD type = 0;
    const LSTATUS result = ::RegQueryValueExA(key, name.c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(bytes), &size);
    ::RegCloseKey(key);
    if (result != ERROR_SUCCESS)
        return std::nullopt;
    return MemoryRegistry::Value{Registry::Type{type}, std::string(bytes, size)};
}

void compare(const MemoryRegistry& expected) {
    for (const auto& [subkey, values] : expected.keys) {
        HKEY key = nullptr;
        check(::RegOpenKeyExA(HKEY_CLASSES_ROOT, subkey.c_str(), 0, KEY_READ, &key) ==
                  ERROR_SUCCESS,
              "key " + subkey);
        ::RegCloseKey(key);
        for (const auto& [name, value] : values)
            check(valueOf(subkey, name) == value, "value \"" + name + "\" of " + subkey);
    }
}

void write(Registry& registry, const std::string& folder) {
    modFileAssoc association(registry, folder, "veltrix");
    association.RegisterFileType();
    association.SetRegValue("Veltrix.Document", "EditFlags", Registry::Type::Dword, 0x01020304);
    association.SetRegValue("Veltrix.Document", "Nothing", Registry::Type{3}, std::string("text"));
    association.SetRegValue("Veltrix.NoSuchKey", "", Registry::Type::Sz, std::string("text"));
}

int run() {
    for (const char* folder : {"C:\\Program Files\\Veltrix", "C:\\Eén map", "D:\\"}) {
        std::printf("in %s\n", folder);
        MemoryRegistry expected;
        WindowsRegistry registry;
        write(expected, folder);
        write(registry, folder);
        write(registry, folder);
        compare(expected);
        check(!valueOf("Veltrix.Document", "Nothing"), "other types write nothing");
        check(!valueOf("Veltrix.NoSuchKey", ""), "no value without a key");
    }
    return faults == 0 ? 0 : 1;
}

} // namespace

} // namespace veltrix::test

int main() {
    return veltrix::test::run();
}
