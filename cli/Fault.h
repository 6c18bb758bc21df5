#pragma once

#include <iosfwd>
#include <stdexcept>
#include <string>

namespace veltrix::cli {

/// What ends a command: bad use, or input that cannot be read. `what()` is one line in English,
/// "SUBJECT: reason" or "reason".
class Fault : public std::runtime_error {
public:
    explicit Fault(const std::string& reason) : std::runtime_error(reason) {}

    Fault(const std::string& subject, const std::string& reason)
        : std::runtime_error(subject + ": " + reason) {}
};

/// `text` with every control character shown as \xNN, so that a name from a document or an argument
/// cannot break the one line that it is reported in.
[[nodiscard]] std::string OneLine(const std::string& text);

/// The same in double quotes.
[[nodiscard]] std::string Quoted(const std::string& text);

/// Writes "veltrix-cli: " and what the fault says, as one line.
void Tell(std::ostream& stream, const Fault& fault);

/// The reason of the last failed call of the platform, or `otherwise` when it left none.
[[nodiscard]] std::string ReasonOf(int errorNumber, const std::string& otherwise);

} // namespace veltrix::cli
