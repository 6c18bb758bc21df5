#include "board/clsLine.h"

#include "board/Arithmetic.h"
#include "board/PictorATL.h"
#include "board/clsBordLines.h"

#include <cmath>

namespace veltrix {

namespace {

constexpr std::int32_t wireLevel = 8; // above the lamps, below the knob

} // namespace

clsLine::~clsLine() {
    if (mag_ != nullptr)
        mag_->DeleteSprite(groupLID_);
}

void clsLine::Constructor(clsBordLines& bl, PictorATL& mag) {
    bl_ = &bl;
    mag_ = &mag;
    groupLID_ = mag.NewGroup();
    mag.SetLevel(groupLID_, wireLevel);
    color_ = clsBordLines::ColorHigh;
}

void clsLine::SetAll(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                     std::int32_t ColorNr) {
    color_ = ColorNr;
    x1_ = X1;
    y1_ = Y1;
    x2_ = X2;
    y2_ = Y2;
    valid1_ = true;
    valid2_ = true;
    redraw();
}

void clsLine::SetCoords(std::int32_t groupNR, std::int32_t x, std::int32_t y) {
    if (groupNR == 1) {
        x1_ = x;
        y1_ = y;
        valid1_ = true;
    } else {
        x2_ = x;
        y2_ = y;
        valid2_ = true;
    }
    redraw();
}

void clsLine::SetColor(std::int32_t Color) {
    if (Color == color_)
        return;
    color_ = Color;
    redraw();
}

void clsLine::SetHighlight(bool Highlight) {
    if (Highlight == highlight_)
        return;
    highlight_ = Highlight;
    redraw();
}

std::int32_t clsLine::Distance(std::int32_t Xpos, std::int32_t Ypos) const {
    std::int32_t least = 100000000;
    for (int i = 0; i <= 10; ++i) {
        const double px = (static_cast<double>(x2_) - x1_) * i / 10 + x1_;
        const double py = (static_cast<double>(y2_) - y1_) * i / 10 + y1_;
        const double d = std::sqrt((Xpos - px) * (Xpos - px) + (Ypos - py) * (Ypos - py));
        // What is kept is the rounded distance: a later point has to beat the whole number.
        if (d < least)
            least = RoundToLong(d);
    }
    return least;
}

void clsLine::redraw() {
    mag_->ClearGroup(groupLID_);
    if (valid1_ && valid2_)
        bl_->DrawLine(groupLID_, x1_, y1_, x2_, y2_,
                      highlight_ ? clsBordLines::ColorHighlight : color_);
}

} // namespace veltrix
