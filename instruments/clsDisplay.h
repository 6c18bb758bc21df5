#pragma once

#include <array>
#include <cstdint>

namespace veltrix {

class PictorATL;

/// The pulse counter's display of one decimal digit, which also holds the count.
class clsDisplay {
public:
    /// Keeps the surface, which must outlive the display, loads the ten digits and shows 0.
    void Constructor(PictorATL& mag);

    [[nodiscard]] std::int32_t Value() const noexcept { return value_; }

    /// Shows a digit. Throws std::out_of_range when it is not 0 to 9; the digit shown before is
    /// gone from the surface then, and Value() is what it was.
    void SetValue(std::int32_t Value);

    /// One more; 9 is followed by 0, so the outputs of the counter never show 10 to 15.
    void IncreaseValue();

private:
    PictorATL* mag_ = nullptr;
    std::array<std::int32_t, 10> bitmaps_{};
    std::int32_t sprite_ = 0;
    std::int32_t value_ = 0;
};

} // namespace veltrix
