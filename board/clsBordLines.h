#pragma once

#include "board/PictorATL.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace veltrix {

class clsLine;

/// Makes wires and draws them: a wire is a chain of small round pictures, its beads, laid along the
/// straight segment between its ends.
class clsBordLines {
public:
    /// Colour numbers of a wire: 1 (5 V) to 8 (0 V), and the look of a wire that a click removes.
    static constexpr std::int32_t ColorHigh = 1;
    static constexpr std::int32_t ColorLow = 8;
    static constexpr std::int32_t ColorHighlight = 9;

    /// Keeps the surface, which must outlive this object, and loads the pictures of the wires.
    void Constructor(PictorATL& mag);

    /// A new wire without ends. It draws itself with this object, which must outlive it.
    [[nodiscard]] std::shared_ptr<clsLine> CreateLine();

    /// Lays the beads of a segment, one for every whole 10 board pixels of its length, into a group
    /// of sprites. Throws std::out_of_range when there is a bead to lay and `ColorNr` is not 0 to
    /// 9, std::overflow_error when the ends lie too far apart to subtract.
    void DrawLine(std::int32_t GroupLID, std::int32_t X1, std::int32_t Y1, std::int32_t X2,
                  std::int32_t Y2, std::int32_t ColorNr);

private:
    [[nodiscard]] std::size_t pictureOf(std::int32_t ColorNr) const;

    PictorATL* mag_ = nullptr;
    std::array<std::int32_t, 10> bitmaps_{}; // by colour number; 0 is no colour
    std::array<std::int32_t, 10> masks_{};
};

} // namespace veltrix
