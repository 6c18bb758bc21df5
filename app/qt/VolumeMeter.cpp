#include "app/qt/VolumeMeter.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace veltrix {

namespace {

constexpr int barHeight = 16; // pixels
constexpr int rim = 1;        // of the groove around the bar
constexpr double roundness = 3;

} // namespace

VolumeMeter::VolumeMeter(int fullScale, QWidget* parent) : QWidget(parent), fullScale_(fullScale) {
    setFixedSize(fullScale + 2 * rim, barHeight + 2 * rim);
}

void VolumeMeter::SetLevel(float width, bool visible) {
    level_ = visible ? std::min(static_cast<double>(width), static_cast<double>(fullScale_)) : 0;
}

void VolumeMeter::Step() {
    constexpr double rise = 0.5;  // of the way in one step
    constexpr double fall = 0.12; // a fifth of a second to near the end
    const double before = shown_;
    shown_ += (level_ - shown_) * (level_ > shown_ ? rise : fall);
    if (std::abs(level_ - shown_) < 0.25)
        shown_ = level_;
    const double scale = devicePixelRatioF();
    const double left = std::min(before, shown_);
    const double right = std::max(before, shown_);
    if (std::lround(left * scale) != std::lround(right * scale))
        update(QRectF(rim + left - roundness - 1, 0, right - left + 2 * roundness + 2, height())
                   .toAlignedRect());
}

QRectF VolumeMeter::bar(double width) const {
    return {rim, rim, width, barHeight};
}

void VolumeMeter::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), roundness + 1,
                            roundness + 1);
    if (shown_ <= 0)
        return;
    // The colours belong to the scale, not to the bar: red is loud.
    QLinearGradient scale(rim, 0, rim + fullScale_, 0);
    scale.setColorAt(0.0, QColor(0x2e, 0xa0, 0x43));
    scale.setColorAt(0.6, QColor(0x9c, 0xc2, 0x2b));
    scale.setColorAt(0.8, QColor(0xf2, 0xb7, 0x05));
    scale.setColorAt(1.0, QColor(0xd6, 0x33, 0x2c));
    QPainterPath groove;
    groove.addRoundedRect(bar(fullScale_), roundness, roundness);
    painter.setClipPath(groove);
    painter.fillRect(bar(shown_), scale);
}

} // namespace veltrix
