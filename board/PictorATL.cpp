#include "board/PictorATL.h"

#include <algorithm>

namespace veltrix {

namespace {

constexpr double largestFrame = 16384;

bool fits(std::int32_t boardPixels, double scale) {
    return boardPixels > 0 && scale > 0 && boardPixels * scale <= largestFrame;
}

} // namespace

bool PictorATL::Start(const std::filesystem::path& applicationFolder, std::int32_t width,
                      std::int32_t height, double scale, Log& log) {
    if (!fits(width, scale) || !fits(height, scale))
        return false;
    width_ = width;
    height_ = height;
    bitmaps_.Start(applicationFolder, log);
    Restart(scale);
    return true;
}

void PictorATL::Restart(double scale) {
    if (!fits(width_, scale) || !fits(height_, scale))
        return;
    scale_ = scale;
    bitmaps_.Restart(scale);
    composer_.Start(width_, height_, scale);
}

std::int32_t PictorATL::LoadBitmap(const std::string& name) {
    return bitmaps_.Load(name);
}

void PictorATL::SetBitmapPixel(std::int32_t bitmap, std::int32_t x, std::int32_t y,
                               std::int32_t colour) {
    if (bitmaps_.SetPixel(bitmap, x, y, colour))
        composer_.Repaint(bitmap);
}

std::int32_t PictorATL::CreateSprite(std::int32_t bitmap) {
    return CreateMaskedSprite(bitmap, 0);
}

std::int32_t PictorATL::CreateMaskedSprite(std::int32_t bitmap, std::int32_t mask) {
    const std::int32_t index = tree_.Make(SpriteTree::Kind::Sprite);
    SpriteTree::Node& sprite = tree_[index];
    sprite.bitmap = bitmap;
    sprite.mask = mask;
    if (const BitmapStore::Bitmap* picture = bitmaps_.Find(bitmap)) {
        sprite.place.width = picture->width;
        sprite.place.height = picture->height;
    }
    return tree_.NumberOf(index);
}

std::int32_t PictorATL::NewGroup() {
    return tree_.NumberOf(tree_.Make(SpriteTree::Kind::Group));
}

void PictorATL::PlaceSprite(std::int32_t sprite, std::int32_t x, std::int32_t y) {
    const std::int32_t index = tree_.Find(sprite);
    if (index == SpriteTree::None)
        return;
    Rect& place = tree_[index].place;
    if (place.x == x && place.y == y)
        return;
    place.x = x;
    place.y = y;
    tree_.TouchTree(index);
}

void PictorATL::SetSpriteSize(std::int32_t sprite, std::int32_t width, std::int32_t height) {
    const std::int32_t index = tree_.Find(sprite);
    if (index == SpriteTree::None)
        return;
    tree_[index].place.width = width;
    tree_[index].place.height = height;
    tree_.Touch(index);
}

void PictorATL::SetSpriteSource(std::int32_t sprite, std::int32_t x, std::int32_t y) {
    const std::int32_t index = tree_.Find(sprite);
    if (index == SpriteTree::None)
        return;
    tree_[index].source = {x, y};
    tree_.Touch(index);
}

void PictorATL::SetSpriteFlags(std::int32_t sprite, std::int32_t flags) {
    if (const std::int32_t index = tree_.Find(sprite); index != SpriteTree::None)
        tree_[index].flags = flags;
}

void PictorATL::SetLevel(std::int32_t sprite, std::int32_t level) {
    if (const std::int32_t index = tree_.Find(sprite); index != SpriteTree::None)
        tree_.SetLevel(index, level);
}

void PictorATL::SetSpriteState(std::int32_t sprite, std::int32_t state) {
    const std::int32_t index = tree_.Find(sprite);
    if (index == SpriteTree::None || tree_[index].state == state)
        return;
    tree_[index].state = state;
    tree_.TouchTree(index);
}

void PictorATL::AddToGroup(std::int32_t sprite, std::int32_t parent) {
    const std::int32_t index = tree_.Find(sprite);
    const std::int32_t above = tree_.Find(parent);
    if (index != SpriteTree::None && above != SpriteTree::None)
        tree_.SetParent(index, above);
}

void PictorATL::ClearGroup(std::int32_t group) {
    if (const std::int32_t index = tree_.Find(group); index != SpriteTree::None)
        tree_.EraseChildren(index);
}

void PictorATL::DeleteSprite(std::int32_t sprite) {
    if (const std::int32_t index = tree_.Find(sprite); index != SpriteTree::None)
        tree_.Erase(index);
}

void PictorATL::RedrawSprite(std::int32_t sprite) {
    // What looks different is found at the next Refresh; painting what looks the same would only
    // cost time.
    if (const std::int32_t index = tree_.Find(sprite); index != SpriteTree::None)
        tree_.Touch(index);
}

std::int32_t PictorATL::GetSpriteState(std::int32_t sprite) const noexcept {
    const std::int32_t index = tree_.Find(sprite);
    return index != SpriteTree::None ? tree_[index].state : spriteState::Hidden;
}

std::int32_t PictorATL::GetSpriteX(std::int32_t sprite) const noexcept {
    const std::int32_t index = tree_.Find(sprite);
    return index != SpriteTree::None ? tree_[index].place.x : 0;
}

bool PictorATL::IsPointerOver(std::int32_t sprite) const noexcept {
    const std::int32_t index = tree_.Find(sprite);
    return index != SpriteTree::None && isPointerOver(index);
}

std::int32_t PictorATL::CountInGroup(std::int32_t group) const noexcept {
    const std::int32_t index = tree_.Find(group);
    if (index == SpriteTree::None)
        return 0;
    std::int32_t count = 0;
    for (std::int32_t child = tree_.FirstChildOf(index); child != SpriteTree::None;
         child = tree_[child].next)
        ++count;
    return count;
}

// The mouse

void PictorATL::AddListener(SurfaceEvents& listener) {
    listeners_.push_back(&listener);
}

void PictorATL::RemoveListener(SurfaceEvents& listener) {
    listeners_.erase(std::remove(listeners_.begin(), listeners_.end(), &listener),
                     listeners_.end());
}

void PictorATL::MouseDown(MouseButton button, std::int32_t x, std::int32_t y) {
    const std::int32_t sprite = movePointer(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseDown(sprite, button, x, y);
}

void PictorATL::MouseUp(MouseButton button, std::int32_t x, std::int32_t y) {
    const std::int32_t sprite = movePointer(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseUp(sprite, button, x, y);
}

void PictorATL::MouseMove(std::int32_t x, std::int32_t y) {
    const std::int32_t sprite = movePointer(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseMove(sprite, x, y);
}

/// The sprite that an event at the pointer's new place names.
std::int32_t PictorATL::movePointer(std::int32_t x, std::int32_t y) {
    pointer_ = {x, y};
    const std::vector<std::int32_t>& order = tree_.Order();
    for (auto at = order.rbegin(); at != order.rend(); ++at) {
        const SpriteTree::Node& hit = tree_[*at];
        const bool isGroup = hit.kind == SpriteTree::Kind::Group;
        const bool reports = !isGroup && (hit.flags & spriteFlags::ReportsMouse) != 0;
        if ((reports || isGroup) && isPointerOver(*at))
            return reports ? tree_.NumberOf(*at) : 0;
    }
    return 0;
}

bool PictorATL::isPointerOver(std::int32_t index) const noexcept {
    return tree_.Shown(index) && tree_.BoardRect(index).Overlaps({pointer_.x, pointer_.y, 1, 1});
}

} // namespace veltrix
