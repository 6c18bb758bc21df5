#include "cli/JsonRows.h"

#include "cli/Output.h"

#include <nlohmann/json.hpp>

namespace veltrix::cli {

void JsonRows::Begin(const std::vector<Readings::Place>& places) {
    // The names are the same in every row: they are made once, and only the numbers row by row.
    for (const Readings::Place& place : places)
        keys_.emplace_back(",").append(nlohmann::json(place.Name).dump()).append(":");
    output_.Put('[');
}

void JsonRows::Row(std::int64_t tick, const std::vector<Cell>& cells) {
    output_.Put(any_ ? ",\n{\"tick\":" : "\n{\"tick\":");
    output_.PutNumber(tick);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        output_.Put(keys_[i]);
        if (cells[i].Known)
            output_.PutNumber(cells[i].Value);
        else
            output_.Put("null");
    }
    output_.Put('}');
    any_ = true;
}

void JsonRows::End() {
    output_.Put("\n]\n");
}

} // namespace veltrix::cli
