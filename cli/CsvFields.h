#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veltrix::cli {

/// The fields of one line of CSV. A field may stand in double quotes, with a double quote inside it
/// doubled; blanks around a field are dropped. Throws std::runtime_error when a quote is not where
/// one can be.
[[nodiscard]] std::vector<std::string> CsvFields(std::string_view line);

/// `field` as it stands in a line of CSV: in quotes when it would be taken for something else
/// without them.
[[nodiscard]] std::string CsvField(std::string_view field);

} // namespace veltrix::cli
