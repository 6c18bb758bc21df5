#include "cli/CsvFields.h"

#include <algorithm>
#include <stdexcept>

namespace veltrix::cli {

namespace {

constexpr std::string_view blanks = " \t";

/// Takes the blanks from the beginning of `rest`.
void skipBlanks(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
}

/// Takes a field in quotes, whose first quote is gone already, from the beginning of `rest`.
std::string takeQuoted(std::string_view& rest) {
    std::string field;
    for (;;) {
        const std::size_t quote = rest.find('"');
        if (quote == std::string_view::npos)
            throw std::runtime_error("a quoted field does not end");
        field += rest.substr(0, quote);
        rest.remove_prefix(quote + 1);
        if (rest.empty() || rest.front() != '"')
            return field;
        field += '"';
        rest.remove_prefix(1);
    }
}

/// Takes a field without quotes from the beginning of `rest`.
std::string takePlain(std::string_view& rest) {
    std::string_view field = rest.substr(0, rest.find(','));
    rest.remove_prefix(field.size());
    if (field.find('"') != std::string_view::npos)
        throw std::runtime_error("a double quote inside a field without quotes");
    field = field.substr(0, field.find_last_not_of(blanks) + 1);
    return std::string(field);
}

} // namespace

std::vector<std::string> CsvFields(std::string_view line) {
    std::vector<std::string> fields;
    for (;;) {
        skipBlanks(line);
        if (!line.empty() && line.front() == '"') {
            line.remove_prefix(1);
            fields.push_back(takeQuoted(line));
            skipBlanks(line);
        } else {
            fields.push_back(takePlain(line));
        }
        if (line.empty())
            return fields;
        if (line.front() != ',')
            throw std::runtime_error("something stands behind a quoted field");
        line.remove_prefix(1);
    }
}

std::string CsvField(std::string_view field) {
    const bool plain = field.find_first_of(",\"\r\n") == std::string_view::npos &&
                       (field.empty() || (blanks.find(field.front()) == std::string_view::npos &&
                                          blanks.find(field.back()) == std::string_view::npos));
    if (plain)
        return std::string(field);
    std::string quoted = "\"";
    for (const char c : field)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

} // namespace veltrix::cli
