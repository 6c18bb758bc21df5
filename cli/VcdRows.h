#pragma once

#include "cli/RowWriter.h"

#include <string>

namespace veltrix::cli {

/// A value change dump, as viewers of digital signals read it: time k is tick k, and a row lists
/// only what differs from the row before. A place that the run did not reach is x, a negative level
/// stands in two's complement.
class VcdRows final : public RowWriter {
public:
    explicit VcdRows(Output& output) noexcept : output_(output) {}

    /// The name of a place as a viewer can take it: what is neither a letter nor a digit becomes
    /// one underscore, and none stands at either end. "Geheugen Set (In)" is "Geheugen_Set_In".
    [[nodiscard]] static std::string SignalName(const std::string& name);

    void Begin(const std::vector<Readings::Place>& places) override;
    void Row(std::int64_t tick, const std::vector<Cell>& cells) override;

    void End() override {}

private:
    struct Signal {
        std::string code; // stands for the name in the rows
        int bits = 0;
    };

    void put(const Signal& signal, const Cell& cell);

    Output& output_;
    std::vector<Signal> signals_;
    std::vector<Cell> shown_; // empty before the first row
};

} // namespace veltrix::cli
