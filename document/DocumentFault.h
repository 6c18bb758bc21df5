#pragma once

#include <optional>
#include <string>

namespace veltrix {

/// What keeps a file (UTF-8 path) from being a whole board document, as one line of English that
/// says where; nothing when it is whole. Bytes after the document are no fault, and neither are
/// chunk lengths, which no reader looks at. Throws std::system_error when it cannot be read.
[[nodiscard]] std::optional<std::string> FindDocumentFault(const std::string& path);

} // namespace veltrix
