#pragma once

#include "board/SocketName.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veltrix::cli {

class Simulation;

/// What was read in one place after a tick.
struct Cell {
    std::int32_t Value = 0;
    bool Known = false; ///< false when the run did not reach the place; Value is 0 then

    friend bool operator==(const Cell&, const Cell&) = default;
};

/// The places where a board is read after each tick: every socket that a wire can end on, in the
/// order of the catalogue, then the LEDs, the buzzer and the counter's display.
class Readings {
public:
    struct Place {
        std::string Name;
        int Bits = 32; ///< how wide its values are; a level may be any 32-bit number
    };

    explicit Readings(const Simulation& simulation);

    [[nodiscard]] const std::vector<Place>& Places() const noexcept { return places_; }

    /// One cell a place, as of the last Read; all unknown before the first.
    [[nodiscard]] const std::vector<Cell>& Cells() const noexcept { return cells_; }

    /// Reads every place. Whether a cell differs from the reading before.
    bool Read();

private:
    const Simulation& simulation_;
    std::vector<Place> places_;
    std::vector<SocketName> sockets_;
    std::vector<Cell> cells_;
};

} // namespace veltrix::cli
