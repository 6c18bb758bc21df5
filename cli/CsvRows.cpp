#include "cli/CsvRows.h"

#include "cli/CsvFields.h"
#include "cli/Output.h"

namespace veltrix::cli {

void CsvRows::Begin(const std::vector<Readings::Place>& places) {
    output_.Put("tick");
    for (const Readings::Place& place : places) {
        output_.Put(',');
        output_.Put(CsvField(place.Name));
    }
    output_.Put('\n');
}

void CsvRows::Row(std::int64_t tick, const std::vector<Cell>& cells) {
    output_.PutNumber(tick);
    for (const Cell& cell : cells) {
        output_.Put(',');
        if (cell.Known)
            output_.PutNumber(cell.Value);
    }
    output_.Put('\n');
}

} // namespace veltrix::cli
