#pragma once

#include "board/Types.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix::cli {

class Control;
class Simulation;

/// What is done to the board during a run: a table in CSV with the columns tick, control and value.
///
/// A field may stand in double quotes, with a double quote inside it doubled. Blank lines and
/// blanks around a field count for nothing, a line may end in CR LF and the text may begin with a
/// byte order mark. Rows may come in any order; those of one tick are done in the order of the
/// text.
class Script {
public:
    /// Throws Fault, "`name`: line N: reason", when the text is no such table.
    [[nodiscard]] static Script Parse(std::string_view text, const std::string& name);

    /// Reads a file. Throws Fault also when it cannot be read.
    [[nodiscard]] static Script Read(const std::string& path);

    /// Does what stands in the table for a tick that is about to run. Ticks must come in order.
    void Before(std::int64_t tick, Simulation& simulation);

private:
    struct Row {
        std::int64_t tick = 0;
        const Control* control = nullptr;
        Point value;
    };

    static Row rowOf(const std::vector<std::string>& fields);

    std::vector<Row> rows_; // by tick
    std::size_t next_ = 0;
};

} // namespace veltrix::cli
