#include "cli/Script.h"

#include "cli/Control.h"
#include "cli/CsvFields.h"
#include "cli/Fault.h"
#include "cli/InputFile.h"
#include "cli/WholeNumber.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace veltrix::cli {

namespace {

const std::vector<std::string> columns = {"tick", "control", "value"};

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

} // namespace

Script Script::Parse(std::string_view text, const std::string& name) {
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
        text.remove_prefix(byteOrderMark.size());
    Script script;
    bool headed = false;
    for (std::size_t number = 1; !text.empty(); ++number) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (line.find_first_not_of(" \t") == std::string_view::npos)
            continue;
        try {
            const std::vector<std::string> fields = CsvFields(line);
            if (headed)
                script.rows_.push_back(rowOf(fields));
            else if (fields != columns)
                throw std::runtime_error("the columns must be tick,control,value");
            headed = true;
        } catch (const std::runtime_error& error) {
            throw Fault(name, "line " + std::to_string(number) + ": " + error.what());
        }
    }
    if (!headed)
        throw Fault(name, "line 1: the columns must be tick,control,value");
    std::stable_sort(script.rows_.begin(), script.rows_.end(),
                     [](const Row& a, const Row& b) { return a.tick < b.tick; });
    return script;
}

Script Script::Read(const std::string& path) {
    return Parse(ReadInputFile(path), path);
}

Script::Row Script::rowOf(const std::vector<std::string>& fields) {
    const std::optional<std::int64_t> tick = WholeNumber<std::int64_t>(fields[0]);
    if (!tick.has_value() || *tick < 1)
        throw std::runtime_error(Quoted(fields[0]) +
                                 " is no tick; the first is 1, and they are whole numbers");
    if (fields.size() < 2)
        throw std::runtime_error("the control is missing");
    const Control* const control = Control::Find(fields[1]);
    if (control == nullptr)
        throw std::runtime_error("unknown control " + Quoted(fields[1]) + "; there are " +
                                 Control::Names());
    if (fields.size() > columns.size())
        throw std::runtime_error("more than tick,control,value");
    const std::string value = fields.size() == columns.size() ? fields[2] : std::string();
    try {
        return {*tick, control, control->Parse(value)};
    } catch (const std::runtime_error& wanted) {
        throw std::runtime_error(Quoted(value) + " is no value for " + fields[1] +
                                 ", which takes " + wanted.what());
    }
}

void Script::Before(std::int64_t tick, Simulation& simulation) {
    for (; next_ < rows_.size() && rows_[next_].tick <= tick; ++next_)
        rows_[next_].control->Set(simulation, rows_[next_].value);
}

} // namespace veltrix::cli
