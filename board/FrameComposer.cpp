#include "board/FrameComposer.h"

#include <algorithm>
#include <cmath>

namespace veltrix {

namespace {

std::uint32_t blend(std::uint32_t below, std::uint32_t above, std::uint32_t alpha) {
    const std::uint32_t rest = 255 - alpha;
    std::uint32_t result = 0xFF000000U;
    for (const int shift : {0, 8, 16}) {
        const std::uint32_t sum =
            (above >> shift & 0xFF) * alpha + (below >> shift & 0xFF) * rest + 127;
        result |= sum / 255 << shift;
    }
    return result;
}

} // namespace

void FrameComposer::Start(std::int32_t width, std::int32_t height, double scale) {
    scale_ = scale;
    frame_.width = static_cast<std::int32_t>(std::ceil(width * scale));
    frame_.height = static_cast<std::int32_t>(std::ceil(height * scale));
    frame_.pixels.assign(static_cast<std::size_t>(frame_.width) *
                             static_cast<std::size_t>(frame_.height),
                         0xFF000000U);
    painted_.clear();
    damaged_.clear();
    damage({0, 0, frame_.width, frame_.height});
    tree_.TouchAll();
}

void FrameComposer::Repaint(std::int32_t bitmap) {
    for (const Painted& painted : painted_)
        if (painted.look.bitmap == bitmap || painted.look.mask == bitmap)
            damage(painted.look.rect);
}

void FrameComposer::Refresh() {
    findGhosts();
    for (const std::int32_t index : tree_.Touched()) {
        const Look look = lookOf(index);
        const Look& before = painted(index).look;
        if (!(look == before) && !takeOver(index, look)) {
            damage(before.rect);
            damage(look.rect);
        }
        painted(index).look = look;
    }
    for (const Ghost& ghost : ghosts_)
        damage(ghost.painted.look.rect);
    for (const std::int32_t index : tree_.Touched())
        painted(index).age = tree_[index].age;
    tree_.ClearTouched();

    changed_.swap(damaged_);
    damaged_.clear();
    for (const Rect& rect : changed_)
        compose(rect);
}

/// Gathers what the frame still shows of sprites that are gone, indexed by look, so that a board of
/// thousands of beads need not compare each with each.
void FrameComposer::findGhosts() {
    painted_.resize(std::max(painted_.size(), tree_.Size()));
    ghosts_.clear();
    for (const std::int32_t index : tree_.Touched()) {
        if (painted(index).age == tree_[index].age)
            continue;
        if (!painted(index).look.rect.Empty())
            ghosts_.push_back({painted(index)});
        painted(index) = {{}, tree_[index].age};
    }
    if (ghosts_.empty())
        return;
    std::size_t buckets = 1;
    while (buckets < ghosts_.size())
        buckets *= 2;
    buckets_.assign(buckets, -1);
    for (std::size_t i = ghosts_.size(); i-- > 0;) {
        std::int32_t& bucket = buckets_[bucketOf(ghosts_[i].painted.look)];
        ghosts_[i].next = bucket;
        bucket = static_cast<std::int32_t>(i);
    }
}

std::size_t FrameComposer::bucketOf(const Look& look) const noexcept {
    const auto mixed = static_cast<std::uint64_t>(look.rect.x) * 0x9E3779B97F4A7C15U ^
                       static_cast<std::uint64_t>(look.rect.y) * 0xC2B2AE3D27D4EB4FU ^
                       look.among * 0x165667B19E3779F9U ^ static_cast<std::uint64_t>(look.bitmap);
    return static_cast<std::size_t>(mixed >> 32) & (buckets_.size() - 1);
}

/// Lets the node at `index`, which the frame does not show yet, take the place of a sprite that is
/// gone, if it looks exactly like it and nothing painted would now lie on the other side of it.
bool FrameComposer::takeOver(std::int32_t index, const Look& look) {
    if (ghosts_.empty() || !painted(index).look.rect.Empty() || look.rect.Empty())
        return false;
    for (std::int32_t at = buckets_[bucketOf(look)]; at >= 0;) {
        Ghost& ghost = ghosts_[static_cast<std::size_t>(at)];
        at = ghost.next;
        if (!(ghost.painted.look == look))
            continue;
        if (!liesAlike(index, ghost.painted))
            return false;
        painted(index).age = ghost.painted.age;
        ghost.painted.look = {};
        return true;
    }
    return false;
}

/// Whether every sibling that may meet it lies on the same side of the node at `index` as it lay of
/// the one that is gone.
bool FrameComposer::liesAlike(std::int32_t index, const Painted& gone) {
    const SpriteTree::Node& fresh = tree_[index];
    for (std::int32_t other = tree_.FirstChildOf(fresh.parent); other != SpriteTree::None;
         other = tree_[other].next) {
        const SpriteTree::Node& sibling = tree_[other];
        if (other == index || sibling.level != gone.look.level)
            continue;
        const bool mayMeet = sibling.kind == SpriteTree::Kind::Group ||
                             sibling.firstChild != SpriteTree::None ||
                             painted(other).look.rect.Overlaps(gone.look.rect);
        if (mayMeet && (painted(other).age < gone.age) != (sibling.age < fresh.age))
            return false;
    }
    return true;
}

void FrameComposer::damage(const Rect& rect) {
    Rect grown = rect.Intersected({0, 0, frame_.width, frame_.height});
    if (grown.Empty())
        return;
    // Rectangles that overlap become one, so that no pixel is painted twice and the beads of one
    // wire end up as one rectangle.
    for (std::size_t i = 0; i < damaged_.size();) {
        if (!damaged_[i].Overlaps(grown)) {
            ++i;
            continue;
        }
        grown = grown.United(damaged_[i]);
        damaged_[i] = damaged_.back();
        damaged_.pop_back();
        i = 0;
    }
    damaged_.push_back(grown);
}

void FrameComposer::compose(const Rect& rect) {
    for (std::int32_t y = rect.y; y < rect.y + rect.height; ++y)
        std::fill_n(frame_.Row(y) + rect.x, rect.width, 0xFF000000U);
    for (const std::int32_t index : tree_.Order())
        if (const Look& look = painted(index).look; look.rect.Overlaps(rect))
            paint(look, rect);
}

void FrameComposer::paint(const Look& look, const Rect& clip) {
    const Picture& picture = *bitmaps_.Find(look.bitmap)->picture;
    const BitmapStore::Bitmap* mask = bitmaps_.Find(look.mask);
    const Rect shown = look.rect.Intersected(clip);
    const std::int32_t sourceX = look.sourceX + shown.x - look.rect.x;
    for (std::int32_t y = shown.y; y < shown.y + shown.height; ++y) {
        const std::int32_t sourceY = look.sourceY + y - look.rect.y;
        const std::uint32_t* in = picture.Row(sourceY) + sourceX;
        const std::uint32_t* through =
            mask != nullptr ? mask->picture->Row(sourceY) + sourceX : nullptr;
        std::uint32_t* out = frame_.Row(y) + shown.x;
        for (std::int32_t x = 0; x < shown.width; ++x) {
            std::uint32_t alpha = in[x] >> 24;
            if (through != nullptr)
                alpha = (alpha * (through[x] & 0xFF) + 127) / 255;
            if (alpha == 255)
                out[x] = in[x];
            else if (alpha != 0)
                out[x] = blend(out[x], in[x], alpha);
        }
    }
}

FrameComposer::Look FrameComposer::lookOf(std::int32_t index) const {
    const SpriteTree::Node& sprite = tree_[index];
    const BitmapStore::Bitmap* bitmap = bitmaps_.Find(sprite.bitmap);
    const BitmapStore::Bitmap* mask = bitmaps_.Find(sprite.mask);
    if (bitmap == nullptr || bitmap->picture->Empty() || !tree_.Shown(index) ||
        sprite.place.Empty())
        return {};
    if (sprite.mask != 0 && (mask == nullptr || mask->picture->Empty()))
        return {};

    const Rect board = tree_.BoardRect(index);
    Look look{{},
              sprite.bitmap,
              sprite.mask,
              bitmap->Column(sprite.source.x),
              bitmap->RowAt(sprite.source.y),
              sprite.level,
              sprite.parent == SpriteTree::None ? 0 : tree_[sprite.parent].rank};
    look.rect.x = toFrame(board.x);
    look.rect.y = toFrame(board.y);
    look.rect.width =
        bitmap->Column(std::int64_t{sprite.source.x} + sprite.place.width) - look.sourceX;
    look.rect.height =
        bitmap->RowAt(std::int64_t{sprite.source.y} + sprite.place.height) - look.sourceY;

    // Only what lies inside the picture, and inside the mask if there is one, is drawn.
    Rect available{0, 0, bitmap->picture->width, bitmap->picture->height};
    if (mask != nullptr)
        available = available.Intersected({0, 0, mask->picture->width, mask->picture->height});
    const Rect wanted{look.sourceX, look.sourceY, look.rect.width, look.rect.height};
    const Rect found = wanted.Intersected(available);
    look.rect = {look.rect.x + found.x - wanted.x, look.rect.y + found.y - wanted.y, found.width,
                 found.height};
    look.sourceX = found.x;
    look.sourceY = found.y;
    if (look.rect.Empty())
        return {};
    return look;
}

std::int32_t FrameComposer::toFrame(std::int64_t board) const noexcept {
    // Far outside every frame, yet safe to add to.
    return static_cast<std::int32_t>(std::clamp(
        std::floor(static_cast<double>(board) * scale_ + 0.5), -268435456.0, 268435456.0));
}

} // namespace veltrix
