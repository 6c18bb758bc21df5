#pragma once

#include "document/Registry.h"

#include <cstdint>
#include <string>
#include <variant>

namespace veltrix {

/// Registers the board documents with the Windows shell, so that a double click on one starts this
/// program with its path on the command line, and so that it has an icon. Whatever was registered
/// before is overwritten; without the rights to do so nothing happens, and nobody is told.
class modFileAssoc {
public:
    /// A value is text (UTF-8) or a number.
    using Value = std::variant<std::string, std::int32_t>;

    /// `programFolder` is the folder of the running program, UTF-8; it ends in a backslash only
    /// where it is the root of a drive. `programName` is its file name without the extension. The
    /// registry must outlive this.
    modFileAssoc(Registry& registry, std::string programFolder, std::string programName);

    void RegisterFileType();

    /// Makes a key where there is none, to outlive the session.
    void CreateRegKey(Registry::Key root, const std::string& subkey);

    /// Sets a value of a document type's key that exists; the default value when `valueName` is
    /// empty. A type that is neither of the two, or not the value's, writes nothing.
    void SetRegValue(const std::string& subkey, const std::string& valueName, Registry::Type type,
                     const Value& value);

private:
    Registry& registry_;
    std::string programFolder_;
    std::string programName_;
};

} // namespace veltrix
