#include "instruments/clsSensor.h"

#include "board/Arithmetic.h"
#include "board/PictorATL.h"
#include "instruments/RemoveSprite.h"

#include <algorithm>
#include <limits>

namespace veltrix {

namespace {

constexpr std::int32_t pictureSize = 48;
constexpr std::int32_t sensorLevel = 8; // above the lamps, below the knob

/// A mode far outside the strip stays outside it: there is no picture at the end of the range.
std::int32_t pictureStart(std::int32_t mode) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{pictureSize} * mode, Limits::min(), Limits::max()));
}

} // namespace

void clsSensor::Constructor(PictorATL& mag, std::int32_t Xpos, std::int32_t Ypos) {
    mag_ = &mag;
    bitmap_ = mag.LoadBitmap("\\images2\\Sensors.bmp");
    x_ = Xpos;
    y_ = Ypos;
    SetValue(Dark);
}

void clsSensor::NextValue() {
    SetValue(value_ == Wave ? std::int32_t{Dark} : CheckedAdd(value_, 1));
}

void clsSensor::SetValue(std::int32_t Value) {
    RemoveSprite(*mag_, sprite_);
    sprite_ = mag_->CreateSprite(bitmap_);
    mag_->SetSpriteSize(sprite_, pictureSize, pictureSize);
    mag_->PlaceSprite(sprite_, x_, y_);
    mag_->SetSpriteSource(sprite_, pictureStart(Value), 0);
    mag_->SetLevel(sprite_, sensorLevel);
    mag_->RedrawSprite(sprite_);
    value_ = Value;
}

} // namespace veltrix
