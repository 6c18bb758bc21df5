#include "cli/RowWriter.h"

#include "cli/CsvRows.h"
#include "cli/JsonRows.h"
#include "cli/VcdRows.h"

namespace veltrix::cli {

std::unique_ptr<RowWriter> MakeRowWriter(Format format, Output& output) {
    switch (format) {
    case Format::Json:
        return std::make_unique<JsonRows>(output);
    case Format::Vcd:
        return std::make_unique<VcdRows>(output);
    case Format::Csv:
        break;
    }
    return std::make_unique<CsvRows>(output);
}

} // namespace veltrix::cli
