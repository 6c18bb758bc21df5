#pragma once

#include <cstdint>

namespace veltrix {

class PictorATL;

/// One of the two light sensors. Its mode says where its light comes from.
class clsSensor {
public:
    /// The modes that a click steps through; a document may hold any other number.
    enum Mode : std::int32_t {
        Dark = 0,    ///< covered
        Pointer = 1, ///< the mouse pointer is a lamp
        Wave = 2     ///< slowly brighter and darker
    };

    /// Keeps the surface, which must outlive the sensor, loads the pictures of the modes and shows
    /// mode 0. (Xpos, Ypos) is the top left corner in board pixels.
    void Constructor(PictorATL& mag, std::int32_t Xpos, std::int32_t Ypos);

    /// To the next mode: 0, 1, 2, 0, ... Throws std::overflow_error after the largest number.
    void NextValue();

    [[nodiscard]] std::int32_t Value() const noexcept { return value_; }

    /// Any number is a mode; one that has no picture shows none.
    void SetValue(std::int32_t Value);

private:
    PictorATL* mag_ = nullptr;
    std::int32_t bitmap_ = 0;
    std::int32_t sprite_ = 0;
    std::int32_t value_ = 0;
    std::int32_t x_ = 0;
    std::int32_t y_ = 0;
};

} // namespace veltrix
