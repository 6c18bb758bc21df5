#include "document/modFileAssoc.h"

#include "document/AnsiText.h"

#include <optional>
#include <utility>

namespace veltrix {

namespace {

constexpr const char* extension = ".vtx";
constexpr const char* documentType = "Veltrix.Document";
constexpr const char* documentName = "Veltrix Document";
// The shell puts the path in the place of %1; the quotes keep a path with blanks in one piece.
constexpr const char* commandTail = ".exe \"%1\"";
constexpr const char* firstIconOfFile = ",0";

std::string bytesOf(std::int32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(static_cast<std::uint32_t>(number) >> shift & 0xFFU);
    return bytes;
}

/// The value as the registry stores it under this type.
std::optional<std::string> dataOf(Registry::Type type, const modFileAssoc::Value& value) {
    if (const auto* text = std::get_if<std::string>(&value); text && type == Registry::Type::Sz)
        return AnsiText(*text) + '\0';
    if (const auto* number = std::get_if<std::int32_t>(&value);
        number && type == Registry::Type::Dword)
        return bytesOf(*number);
    return std::nullopt;
}

} // namespace

modFileAssoc::modFileAssoc(Registry& registry, std::string programFolder, std::string programName)
    : registry_(registry),
      programFolder_(std::move(programFolder)),
      programName_(std::move(programName)) {}

void modFileAssoc::RegisterFileType() {
    const std::string type = documentType;
    const std::string command = type + "\\shell\\open\\command";
    const std::string icon = type + "\\DefaultIcon";

    CreateRegKey(Registry::ClassesRoot, extension);
    SetRegValue(extension, "", Registry::Type::Sz, type);
    CreateRegKey(Registry::ClassesRoot, command); // makes the key of the type on its way
    SetRegValue(type, "", Registry::Type::Sz, documentName);
    SetRegValue(command, "", Registry::Type::Sz,
                programFolder_ + "\\" + programName_ + commandTail);
    CreateRegKey(Registry::ClassesRoot, icon);
    SetRegValue(icon, "", Registry::Type::Sz,
                programFolder_ + "\\images1\\doc.ico" + firstIconOfFile);
}

void modFileAssoc::CreateRegKey(Registry::Key root, const std::string& subkey) {
    if (const auto key =
            registry_.RegCreateKeyExA(root, subkey, Registry::NonVolatile, Registry::AllAccess))
        registry_.RegCloseKey(*key);
}

void modFileAssoc::SetRegValue(const std::string& subkey, const std::string& valueName,
                               Registry::Type type, const Value& value) {
    const auto key = registry_.RegOpenKeyExA(Registry::ClassesRoot, subkey, Registry::AllAccess);
    if (!key)
        return;
    if (const auto data = dataOf(type, value))
        registry_.RegSetValueExA(*key, valueName, type, *data);
    registry_.RegCloseKey(*key);
}

} // namespace veltrix
