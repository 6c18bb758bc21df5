#pragma once

#include "board/Types.h"

#include <cstdint>

namespace veltrix {

class PictorATL;

/// A red lamp that is lit or dark: one of the four LEDs, or the lamp of a push button, which is lit
/// while the button is pressed. A dark lamp draws nothing: the board below shows it.
class clsLED {
public:
    /// Keeps the surface, which must outlive the lamp, and loads the lamp's picture. (Xpos, Ypos)
    /// is its top left corner in board pixels.
    void Constructor(PictorATL& mag, std::int32_t Xpos, std::int32_t Ypos);

    [[nodiscard]] bool Value() const noexcept { return value_; }

    /// A lit lamp gets a new sprite every time, also when it was lit already; the surface sees that
    /// nothing changed.
    void SetValue(bool Value);

private:
    PictorATL* mag_ = nullptr;
    std::int32_t bitmap_ = 0;
    std::int32_t mask_ = 0;
    std::int32_t sprite_ = 0; // 0 while dark
    Bool16 value_;
    std::int32_t x_ = 0;
    std::int32_t y_ = 0;
};

} // namespace veltrix
