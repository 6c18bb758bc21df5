#include "instruments/clsVoltControl.h"

#include "board/Arithmetic.h"

#include <algorithm>

namespace veltrix {

namespace {

constexpr std::int32_t knobLevel = 10; // above the wires
constexpr std::int32_t white = 0xFFFFFF;

// The scale: one tenth of a volt is 4 pixels wide, 0 V lies 6 pixels from the left edge.
constexpr std::int32_t pixelsPerStep = 4;
constexpr std::int32_t zeroX = 6;
constexpr std::int32_t tickBottom = 32;
constexpr std::int32_t pointerY = 5;
constexpr std::int32_t pointerOffset = -1;
constexpr Rect closeZone{197, 0, 16, 48};

} // namespace

clsVoltControl::~clsVoltControl() {
    if (mag_ != nullptr)
        mag_->RemoveListener(*this);
}

void clsVoltControl::Constructor(PictorATL& newMag) {
    mag_ = &newMag;
    const std::int32_t bitmap = mag_->LoadBitmap("\\images2\\0-5V.bmp");
    for (std::int32_t i = 0; i <= level::High; ++i)
        for (std::int32_t y = 0; y < (i % 10 == 0 ? 10 : 5); ++y)
            mag_->SetBitmapPixel(bitmap, pixelsPerStep * i + zeroX, tickBottom - y, white);
    scale_ = mag_->CreateSprite(bitmap);
    mag_->SetSpriteFlags(scale_, spriteFlags::ReportsMouse);
    mag_->SetLevel(scale_, knobLevel);

    const std::int32_t picture = mag_->LoadBitmap("\\images2\\VPointer.bmp");
    const std::int32_t mask = mag_->LoadBitmap("\\images2\\VPointerMask.bmp");
    pointer_ = mag_->CreateMaskedSprite(picture, mask);
    mag_->SetSpriteFlags(pointer_, spriteFlags::Overlay);
    mag_->SetLevel(pointer_, knobLevel);
    mag_->AddToGroup(pointer_, scale_);

    closeZone_ = mag_->NewGroup();
    mag_->AddToGroup(closeZone_, scale_);
    mag_->PlaceSprite(closeZone_, closeZone.x, closeZone.y);
    mag_->SetSpriteSize(closeZone_, closeZone.width, closeZone.height);
    mag_->AddListener(*this);
}

void clsVoltControl::Move(std::int32_t x, std::int32_t y) {
    closeRequested_ = false;
    visible_ = true;
    setState(spriteState::Hidden);
    mag_->PlaceSprite(scale_, x, y);
    setState(spriteState::Shown);
}

void clsVoltControl::Hide() {
    setState(spriteState::Hidden);
    visible_ = false;
}

bool clsVoltControl::InBound() const noexcept {
    return mag_->GetSpriteState(scale_) != spriteState::Hidden && mag_->IsPointerOver(scale_);
}

void clsVoltControl::Update() {
    if (closeRequested_)
        Hide();
}

void clsVoltControl::SetValue(double Value) {
    value_ = std::clamp(Value, static_cast<double>(level::Low), static_cast<double>(level::High));
    mag_->SetSpriteState(pointer_, spriteState::Hidden);
    mag_->PlaceSprite(pointer_, RoundToLong(pixelsPerStep * value_ + pointerOffset), pointerY);
    mag_->SetSpriteState(pointer_, spriteState::Shown);
    mag_->RedrawSprite(pointer_);
}

void clsVoltControl::MouseDown(std::int32_t sprite, MouseButton /*button*/, std::int32_t x,
                               std::int32_t /*y*/) {
    if (!visible_)
        return;
    // The close zone lies on the scale but names no sprite, so it can be told apart from it.
    if (sprite == 0 && mag_->IsPointerOver(closeZone_))
        closeRequested_ = true;
    if (sprite == scale_)
        dragging_ = true;
    if (dragging_)
        follow(x);
}

void clsVoltControl::MouseUp(std::int32_t /*sprite*/, MouseButton /*button*/, std::int32_t /*x*/,
                             std::int32_t /*y*/) {
    dragging_ = false;
}

void clsVoltControl::MouseMove(std::int32_t /*sprite*/, std::int32_t x, std::int32_t /*y*/) {
    if (visible_ && dragging_)
        follow(x);
}

void clsVoltControl::follow(std::int32_t x) {
    // Not rounded here: what the knob is read by does that, so that nothing is rounded twice.
    SetValue((static_cast<double>(x) - mag_->GetSpriteX(scale_) - zeroX) / pixelsPerStep);
}

void clsVoltControl::setState(std::int32_t state) {
    for (const std::int32_t sprite : {scale_, pointer_}) {
        mag_->SetSpriteState(sprite, state);
        mag_->RedrawSprite(sprite);
    }
}

} // namespace veltrix
