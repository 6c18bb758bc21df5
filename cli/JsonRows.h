#pragma once

#include "cli/RowWriter.h"

#include <string>

namespace veltrix::cli {

/// An array with an object a row; the objects have the names of the CSV columns. A place that the
/// run did not reach is null.
class JsonRows final : public RowWriter {
public:
    explicit JsonRows(Output& output) noexcept : output_(output) {}

    void Begin(const std::vector<Readings::Place>& places) override;
    void Row(std::int64_t tick, const std::vector<Cell>& cells) override;
    void End() override;

private:
    Output& output_;
    std::vector<std::string> keys_; // as they stand before their values, from the comma on
    bool any_ = false;
};

} // namespace veltrix::cli
