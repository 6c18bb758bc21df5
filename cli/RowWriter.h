#pragma once

#include "cli/Readings.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace veltrix::cli {

class Output;

/// Writes a run's readings as rows of one format.
class RowWriter {
public:
    virtual ~RowWriter() = default;

    /// Comes first, once. The places stay the same for all rows.
    virtual void Begin(const std::vector<Readings::Place>& places) = 0;

    /// The readings after a tick, one cell a place. Ticks come in order.
    virtual void Row(std::int64_t tick, const std::vector<Cell>& cells) = 0;

    /// Comes last, once.
    virtual void End() = 0;
};

enum class Format { Csv, Json, Vcd };

/// The writer of a format, onto an output that outlives it.
[[nodiscard]] std::unique_ptr<RowWriter> MakeRowWriter(Format format, Output& output);

} // namespace veltrix::cli
