#include "board/clsBordLines.h"

#include "board/Arithmetic.h"
#include "board/clsLine.h"

#include <cmath>
#include <stdexcept>
#include <string>

namespace veltrix {

namespace {

constexpr std::size_t directions = 32;
constexpr std::int32_t beadSize = 32;
constexpr std::int32_t beadHalf = beadSize / 2;
constexpr double beadSpacing = 10;

struct Vector {
    double x = 0;
    double y = 0;
};

std::array<Vector, directions> directionTable() {
    // The strips of beads were drawn with 3.14 for pi; with any other value the frame chosen for a
    // wire between two directions would not be the one that was drawn for it.
    std::array<Vector, directions> table;
    for (std::size_t n = 0; n < directions; ++n) {
        const double angle = 3.14 * 2 * static_cast<double>(n) / static_cast<double>(directions);
        table[n] = {std::cos(angle), std::sin(angle)};
    }
    return table;
}

/// The frame whose direction is nearest to the unit vector (ux, uy); the lower one on a tie.
std::int32_t nearestDirection(double ux, double uy) {
    static const std::array<Vector, directions> table = directionTable();
    std::int32_t nearest = 0;
    double best = 0;
    for (std::size_t n = 0; n < directions; ++n) {
        const double match = ux * table[n].x + uy * table[n].y;
        if (match > best) {
            best = match;
            nearest = static_cast<std::int32_t>(n);
        }
    }
    return nearest;
}

} // namespace

void clsBordLines::Constructor(PictorATL& mag) {
    mag_ = &mag;
    for (std::size_t n = 1; n < bitmaps_.size(); ++n) {
        bitmaps_[n] = mag.LoadBitmap("\\images1\\Line" + std::to_string(n) + ".bmp");
        masks_[n] = mag.LoadBitmap("\\images1\\LineMask.bmp");
    }
}

std::shared_ptr<clsLine> clsBordLines::CreateLine() {
    auto line = std::make_shared<clsLine>();
    line->Constructor(*this, *mag_);
    return line;
}

std::size_t clsBordLines::pictureOf(std::int32_t ColorNr) const {
    const auto color = static_cast<std::size_t>(ColorNr);
    if (color >= bitmaps_.size())
        throw std::out_of_range("a wire cannot have the colour number " + std::to_string(ColorNr));
    return color;
}

void clsBordLines::DrawLine(std::int32_t GroupLID, std::int32_t X1, std::int32_t Y1,
                            std::int32_t X2, std::int32_t Y2, std::int32_t ColorNr) {
    if (X1 == X2 && Y1 == Y2)
        return;
    const double dx = CheckedSubtract(X2, X1);
    const double dy = CheckedSubtract(Y2, Y1);
    const double length = std::sqrt(dx * dx + dy * dy);
    const std::int32_t direction = nearestDirection(dx / length, dy / length);
    const auto beads = static_cast<std::int64_t>(length / beadSpacing);
    for (std::int64_t i = 0; i < beads; ++i) {
        const std::size_t color = pictureOf(ColorNr);
        const std::int32_t bead = mag_->CreateMaskedSprite(bitmaps_[color], masks_[color]);
        const double t = (static_cast<double>(i) + 0.5) / static_cast<double>(beads);
        mag_->PlaceSprite(bead, RoundToLong(t * dx + X1 - beadHalf),
                          RoundToLong(t * dy + Y1 - beadHalf));
        mag_->AddToGroup(bead, GroupLID);
        mag_->SetSpriteSize(bead, beadSize, beadSize);
        mag_->SetSpriteSource(bead, beadSize * direction, 0);
    }
}

} // namespace veltrix
