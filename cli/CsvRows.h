#pragma once

#include "cli/RowWriter.h"

namespace veltrix::cli {

/// A line of names, then a line a row. A place that the run did not reach is an empty cell.
class CsvRows final : public RowWriter {
public:
    explicit CsvRows(Output& output) noexcept : output_(output) {}

    void Begin(const std::vector<Readings::Place>& places) override;
    void Row(std::int64_t tick, const std::vector<Cell>& cells) override;

    void End() override {}

private:
    Output& output_;
};

} // namespace veltrix::cli
