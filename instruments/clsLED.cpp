#include "instruments/clsLED.h"

#include "board/PictorATL.h"
#include "instruments/RemoveSprite.h"

namespace veltrix {

void clsLED::Constructor(PictorATL& mag, std::int32_t Xpos, std::int32_t Ypos) {
    mag_ = &mag;
    bitmap_ = mag.LoadBitmap("\\images2\\RedLight.bmp");
    mask_ = mag.LoadBitmap("\\images2\\RedLightMask.bmp");
    SetValue(false);
    x_ = Xpos;
    y_ = Ypos;
}

void clsLED::SetValue(bool Value) {
    RemoveSprite(*mag_, sprite_);
    if (Value) {
        sprite_ = mag_->CreateMaskedSprite(bitmap_, mask_);
        mag_->PlaceSprite(sprite_, x_, y_);
        mag_->SetSpriteFlags(sprite_, spriteFlags::Overlay);
        mag_->RedrawSprite(sprite_);
    }
    value_ = Value;
}

} // namespace veltrix
