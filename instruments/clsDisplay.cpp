#include "instruments/clsDisplay.h"

#include "board/PictorATL.h"

#include <stdexcept>
#include <string>

namespace veltrix {

namespace {

constexpr std::int32_t digitX = 266;
constexpr std::int32_t digitY = 282;

} // namespace

void clsDisplay::Constructor(PictorATL& mag) {
    mag_ = &mag;
    for (std::size_t digit = 0; digit < bitmaps_.size(); ++digit)
        bitmaps_[digit] = mag.LoadBitmap("\\images2\\Display" + std::to_string(digit) + ".bmp");
    SetValue(0);
}

void clsDisplay::SetValue(std::int32_t Value) {
    if (sprite_ != 0) {
        mag_->DeleteSprite(sprite_);
        sprite_ = 0;
    }
    const auto digit = static_cast<std::size_t>(Value);
    if (digit >= bitmaps_.size())
        throw std::out_of_range("the display shows 0 to 9, not " + std::to_string(Value));
    sprite_ = mag_->CreateSprite(bitmaps_[digit]);
    mag_->PlaceSprite(sprite_, digitX, digitY);
    value_ = Value;
}

void clsDisplay::IncreaseValue() {
    SetValue(value_ == 9 ? 0 : value_ + 1);
}

} // namespace veltrix
