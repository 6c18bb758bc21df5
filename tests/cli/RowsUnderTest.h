#pragma once

#include "cli/Output.h"
#include "cli/RowWriter.h"

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {

using Places = std::vector<cli::Readings::Place>;
using Row = std::pair<std::int64_t, std::vector<cli::Cell>>;

/// What a format makes of rows.
inline std::string rowsAs(cli::Format format, const Places& places, const std::vector<Row>& rows) {
    std::ostringstream stream;
    cli::Output output(stream, "test");
    const std::unique_ptr<cli::RowWriter> writer = cli::MakeRowWriter(format, output);
    writer->Begin(places);
    for (const auto& [tick, cells] : rows)
        writer->Row(tick, cells);
    writer->End();
    output.Close();
    return stream.str();
}

} // namespace veltrix::test
