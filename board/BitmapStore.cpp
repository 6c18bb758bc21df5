#include "board/BitmapStore.h"

#include "board/AppPath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace veltrix {

namespace {

/// The file that the build rendered with `pixels` pixels to a board pixel.
std::string rendition(const std::string& name, int pixels) {
    if (pixels == 1)
        return name;
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    return name.substr(0, dot) + "@" + std::to_string(pixels) + "x" + name.substr(dot);
}

/// The renditions from the best to the worst: the next larger one, then still larger ones, since
/// making a picture smaller loses nothing that the screen could show.
std::array<int, 3> byPreference(double scale) {
    if (scale <= 1)
        return {1, 2, 3};
    if (scale <= 2)
        return {2, 3, 1};
    return {3, 2, 1};
}

/// A single picture reaches to the last pixel that it touches, as the frame does; the frames of a
/// strip are rounded, since sprites are put beside one another by rounding.
std::int32_t scaled(std::int32_t boardPixels, double scale, std::int32_t frames) {
    const double pixels = boardPixels * scale;
    return std::max(
        1, static_cast<std::int32_t>(frames == 1 ? std::ceil(pixels) : std::floor(pixels + 0.5)));
}

std::int64_t positionInStrip(std::int64_t position, std::int64_t frame, std::int64_t pixels) {
    // Frame by frame, so that a rounded frame width does not add up along the strip.
    const std::int64_t whole = position >= 0 ? position / frame : -((frame - 1 - position) / frame);
    const std::int64_t rest = position - whole * frame;
    return whole * pixels + (rest * pixels * 2 + frame) / (frame * 2);
}

std::int32_t clamped(std::int64_t value) {
    // Far outside every picture, yet safe to add to.
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, -(1 << 28), 1 << 28));
}

} // namespace

std::int32_t BitmapStore::Bitmap::Column(std::int64_t x) const noexcept {
    if (picture->Empty())
        return 0;
    return clamped(positionInStrip(x, width / frames, picture->width / frames));
}

std::int32_t BitmapStore::Bitmap::RowAt(std::int64_t y) const noexcept {
    if (picture->Empty())
        return 0;
    return clamped(positionInStrip(y, height, picture->height));
}

void BitmapStore::Start(const std::filesystem::path& applicationFolder, Log& log) {
    folder_ = applicationFolder;
    log_ = &log;
}

void BitmapStore::Restart(double scale) {
    scale_ = scale;
    for (Bitmap& bitmap : bitmaps_)
        bitmap.picture.reset();
    for (Bitmap& bitmap : bitmaps_)
        load(bitmap);
    for (const Edit& edit : edits_)
        apply(edit);
}

std::int32_t BitmapStore::Load(const std::string& name) {
    Bitmap bitmap;
    bitmap.name = name;
    load(bitmap);
    bitmaps_.push_back(std::move(bitmap));
    return static_cast<std::int32_t>(bitmaps_.size());
}

bool BitmapStore::SetPixel(std::int32_t bitmap, std::int32_t x, std::int32_t y,
                           std::int32_t colour) {
    const Bitmap* found = Find(bitmap);
    if (found == nullptr || x < 0 || y < 0 || x >= found->width || y >= found->height)
        return false;
    edits_.push_back({bitmap, x, y, 0xFF000000U | static_cast<std::uint32_t>(colour)});
    apply(edits_.back());
    return true;
}

const BitmapStore::Bitmap* BitmapStore::Find(std::int32_t number) const noexcept {
    if (number < 1 || number > static_cast<std::int32_t>(bitmaps_.size()))
        return nullptr;
    return &bitmaps_[static_cast<std::size_t>(number) - 1];
}

void BitmapStore::load(Bitmap& bitmap) {
    const auto edited = [&](const Bitmap& other) {
        const auto number = static_cast<std::int32_t>(&other - bitmaps_.data()) + 1;
        return std::any_of(edits_.begin(), edits_.end(),
                           [&](const Edit& edit) { return edit.bitmap == number; });
    };
    for (const Bitmap& other : bitmaps_)
        if (other.name == bitmap.name && other.picture != nullptr && !edited(other)) {
            bitmap = other;
            return;
        }

    bitmap.picture = std::make_shared<Picture>();
    if (folder_.empty())
        return;
    std::string reason;
    for (const int pixels : byPreference(scale_)) {
        try {
            const Picture full = ReadPicture(AppPath(folder_, rendition(bitmap.name, pixels)));
            const std::int32_t frames =
                full.width % full.height == 0 ? full.width / full.height : 1;
            if (full.width / pixels < frames || full.height < pixels)
                throw std::runtime_error("is smaller than a pixel of the board");
            bitmap.width = full.width / pixels;
            bitmap.height = full.height / pixels;
            bitmap.frames = frames;
            bitmap.picture = std::make_shared<Picture>(ResampleFrames(
                full, bitmap.frames, scaled(bitmap.width / bitmap.frames, scale_, bitmap.frames),
                scaled(bitmap.height, scale_, bitmap.frames)));
            return;
        } catch (const std::runtime_error& error) {
            if (reason.empty())
                reason = error.what();
        }
    }
    if (reported_.insert(bitmap.name).second)
        log_->Write(Utf8FromPath(AppPath(folder_, bitmap.name)) + ": " + reason);
}

void BitmapStore::apply(const Edit& edit) {
    Bitmap& bitmap = bitmaps_[static_cast<std::size_t>(edit.bitmap) - 1];
    if (bitmap.picture->Empty())
        return;
    if (bitmap.picture.use_count() > 1) // shared with bitmaps that keep their pixels
        bitmap.picture = std::make_shared<Picture>(*bitmap.picture);
    for (std::int32_t y = bitmap.RowAt(edit.y); y < bitmap.RowAt(edit.y + 1); ++y)
        for (std::int32_t x = bitmap.Column(edit.x); x < bitmap.Column(edit.x + 1); ++x)
            bitmap.picture->Row(y)[x] = edit.pixel;
}

} // namespace veltrix
