#pragma once

#include "board/SocketName.h"
#include "board/Types.h"

#include <cstdint>

namespace veltrix {

class PictorATL;
class clsBordLines;

/// A wire between two sockets. It is drawn once both its ends are placed, and leaves the surface
/// when it is destroyed. Giving it the colour or the highlight that it has already draws nothing.
class clsLine {
public:
    clsLine() = default;
    clsLine(const clsLine&) = delete;
    clsLine& operator=(const clsLine&) = delete;
    ~clsLine();

    /// Gets the wire a group of its own on the surface. Both objects must outlive the wire.
    void Constructor(clsBordLines& bl, PictorATL& mag);

    /// Places both ends and sets the colour number.
    void SetAll(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                std::int32_t ColorNr);

    /// Places end 1 when `groupNR` is 1, end 2 for any other value.
    void SetCoords(std::int32_t groupNR, std::int32_t x, std::int32_t y);

    /// Colour number, 1 (5 V) to 8 (0 V). Setting one that has no picture throws
    /// std::out_of_range once there are beads to draw; the number is kept.
    [[nodiscard]] std::int32_t Color() const noexcept { return color_; }

    void SetColor(std::int32_t Color);

    /// Whether the wire is drawn in the highlighted look, whatever its colour.
    [[nodiscard]] bool Highlight() const noexcept { return highlight_; }

    void SetHighlight(bool Highlight);

    [[nodiscard]] std::int32_t X1() const noexcept { return x1_; }

    [[nodiscard]] std::int32_t Y1() const noexcept { return y1_; }

    [[nodiscard]] std::int32_t X2() const noexcept { return x2_; }

    [[nodiscard]] std::int32_t Y2() const noexcept { return y2_; }

    /// Whether end 1 or end 2 has been placed: -1 or 0.
    [[nodiscard]] std::int32_t Valid1() const noexcept { return valid1_.AsLong(); }

    [[nodiscard]] std::int32_t Valid2() const noexcept { return valid2_.AsLong(); }

    /// The group on the surface that holds the wire's beads.
    [[nodiscard]] std::int32_t GroupLID() const noexcept { return groupLID_; }

    /// How far a board position is from the nearest of eleven points spread over the wire, rounded
    /// to a whole number. An end that is not placed counts as (0, 0).
    [[nodiscard]] std::int32_t Distance(std::int32_t Xpos, std::int32_t Ypos) const;

    /// The sockets at the two ends. The wire itself never looks at them.
    SocketName naam1;
    SocketName naam2;

    /// A mark for whoever walks the wires. The wire itself never looks at it.
    Bool16 done;

private:
    void redraw();

    clsBordLines* bl_ = nullptr;
    PictorATL* mag_ = nullptr;
    std::int32_t groupLID_ = 0;
    std::int32_t color_ = 0;
    std::int32_t x1_ = 0;
    std::int32_t y1_ = 0;
    std::int32_t x2_ = 0;
    std::int32_t y2_ = 0;
    Bool16 highlight_;
    Bool16 valid1_;
    Bool16 valid2_;
};

} // namespace veltrix
