#include "editing/clsCursor.h"

#include "board/PictorATL.h"

namespace veltrix {

namespace {

constexpr std::int32_t radius = 16;
constexpr std::int32_t cursorLevel = 9; // above wires and sensors, which it marks, below the knob

} // namespace

void clsCursor::Constructor(PictorATL& mag) {
    mag_ = &mag;
    const std::int32_t picture = mag.LoadBitmap("\\images2\\Cursor.bmp");
    const std::int32_t mask = mag.LoadBitmap("\\images2\\CursorMask.bmp");
    sprite_ = mag.CreateMaskedSprite(picture, mask);
    mag.SetSpriteFlags(sprite_, spriteFlags::Overlay);
    mag.SetLevel(sprite_, cursorLevel);
    Hide();
}

void clsCursor::Hide() {
    mag_->SetSpriteState(sprite_, spriteState::Hidden);
}

void clsCursor::ShowPoint(std::int32_t x, std::int32_t y) {
    mag_->PlaceSprite(sprite_, x - radius, y - radius);
    mag_->SetSpriteState(sprite_, spriteState::Shown);
}

} // namespace veltrix
