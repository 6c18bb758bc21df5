#include "cli/VcdRows.h"

#include "cli/Output.h"

#include <string_view>

namespace veltrix::cli {

namespace {

bool isLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// Letters only, which no reader can take for the beginning of a value or of a time.
std::string codeOf(std::size_t index) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    std::string code(1, letters[index % letters.size()]);
    for (index /= letters.size(); index > 0; index /= letters.size())
        code += letters[index % letters.size()];
    return code;
}

} // namespace

std::string VcdRows::SignalName(const std::string& name) {
    std::string signal;
    for (const char c : name) {
        if (isLetterOrDigit(c))
            signal += c;
        else if (!signal.empty() && signal.back() != '_')
            signal += '_';
    }
    return signal.substr(0, signal.find_last_not_of('_') + 1);
}

void VcdRows::Begin(const std::vector<Readings::Place>& places) {
    output_.Put("$comment one unit of time is one tick of the board $end\n"
                "$timescale 10 ms $end\n"
                "$scope module veltrix $end\n");
    for (const Readings::Place& place : places) {
        signals_.push_back({codeOf(signals_.size()), place.Bits});
        output_.Put("$var wire ");
        output_.PutNumber(place.Bits);
        output_.Put(' ');
        output_.Put(signals_.back().code);
        output_.Put(' ');
        output_.Put(SignalName(place.Name));
        output_.Put(" $end\n");
    }
    output_.Put("$upscope $end\n"
                "$enddefinitions $end\n");
}

void VcdRows::Row(std::int64_t tick, const std::vector<Cell>& cells) {
    output_.Put('#');
    output_.PutNumber(tick);
    output_.Put('\n');
    if (shown_.empty()) {
        output_.Put("$dumpvars\n");
        for (std::size_t i = 0; i < cells.size(); ++i)
            put(signals_[i], cells[i]);
        output_.Put("$end\n");
    } else {
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (!(cells[i] == shown_[i]))
                put(signals_[i], cells[i]);
    }
    shown_ = cells;
}

void VcdRows::put(const Signal& signal, const Cell& cell) {
    if (signal.bits > 1)
        output_.Put('b');
    if (!cell.Known)
        output_.Put('x');
    else if (signal.bits > 1)
        output_.PutBinary(cell.Value, signal.bits);
    else
        output_.Put(cell.Value != 0 ? '1' : '0');
    if (signal.bits > 1)
        output_.Put(' ');
    output_.Put(signal.code);
    output_.Put('\n');
}

} // namespace veltrix::cli
