#include "board/PictorATL.h"

#include <algorithm>
#include <cmath>

namespace veltrix {

namespace {

// A sprite's number holds its place in the list and how often that place was used before, so that
// the number of a deleted sprite does not name its successor.
constexpr std::int32_t placeBits = 22;
constexpr std::int32_t placeMask = (1 << placeBits) - 1;
constexpr std::int32_t generationMask = 0x1FF;

constexpr double largestFrame = 16384;

bool fits(std::int32_t boardPixels, double scale) {
    return boardPixels > 0 && scale > 0 && boardPixels * scale <= largestFrame;
}

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

bool Rect::Overlaps(const Rect& other) const noexcept {
    return !Intersected(other).Empty();
}

Rect Rect::Intersected(const Rect& other) const noexcept {
    const auto right = std::min(std::int64_t{x} + width, std::int64_t{other.x} + other.width);
    const auto bottom = std::min(std::int64_t{y} + height, std::int64_t{other.y} + other.height);
    Rect both{std::max(x, other.x), std::max(y, other.y), 0, 0};
    if (right > both.x && bottom > both.y) {
        both.width = static_cast<std::int32_t>(right - both.x);
        both.height = static_cast<std::int32_t>(bottom - both.y);
    }
    return both;
}

Rect Rect::United(const Rect& other) const noexcept {
    const std::int32_t left = std::min(x, other.x);
    const std::int32_t top = std::min(y, other.y);
    return {left, top, std::max(x + width, other.x + other.width) - left,
            std::max(y + height, other.y + other.height) - top};
}

bool PictorATL::Start(const std::filesystem::path& applicationFolder, std::int32_t width,
                      std::int32_t height, double scale, Log& log) {
    if (!fits(width, scale) || !fits(height, scale))
        return false;
    width_ = width;
    height_ = height;
    bitmaps_.Start(applicationFolder, scale, log);
    Restart(scale);
    return true;
}

void PictorATL::Restart(double scale) {
    if (!fits(width_, scale) || !fits(height_, scale))
        return;
    scale_ = scale;
    bitmaps_.Restart(scale);
    frame_.width = static_cast<std::int32_t>(std::ceil(width_ * scale));
    frame_.height = static_cast<std::int32_t>(std::ceil(height_ * scale));
    frame_.pixels.assign(static_cast<std::size_t>(frame_.width) *
                             static_cast<std::size_t>(frame_.height),
                         0xFF000000U);
    for (std::int32_t root = firstRoot_; root >= 0; root = node(root).next)
        touchTree(root);
    damaged_.clear(); // those were places in the frame of the other scale
    damage({0, 0, frame_.width, frame_.height});
}

std::int32_t PictorATL::LoadBitmap(const std::string& name) {
    return bitmaps_.Load(name);
}

void PictorATL::SetBitmapPixel(std::int32_t bitmap, std::int32_t x, std::int32_t y,
                               std::int32_t colour) {
    if (!bitmaps_.SetPixel(bitmap, x, y, colour))
        return;
    for (const Node& sprite : nodes_)
        if (sprite.kind == Kind::Sprite && (sprite.bitmap == bitmap || sprite.mask == bitmap))
            damage(sprite.painted.rect);
    for (const Ghost& ghost : ghosts_)
        if (ghost.look.bitmap == bitmap || ghost.look.mask == bitmap)
            damage(ghost.look.rect);
}

std::int32_t PictorATL::CreateSprite(std::int32_t bitmap) {
    return CreateMaskedSprite(bitmap, 0);
}

std::int32_t PictorATL::CreateMaskedSprite(std::int32_t bitmap, std::int32_t mask) {
    const std::int32_t index = make(Kind::Sprite);
    Node& sprite = node(index);
    sprite.bitmap = bitmap;
    sprite.mask = mask;
    if (const BitmapStore::Bitmap* picture = bitmaps_.Find(bitmap)) {
        sprite.place.width = picture->width;
        sprite.place.height = picture->height;
    }
    touch(index);
    return numberOf(index);
}

std::int32_t PictorATL::NewGroup() {
    return numberOf(make(Kind::Group));
}

void PictorATL::PlaceSprite(std::int32_t sprite, std::int32_t x, std::int32_t y) {
    Node* found = nodeOf(sprite);
    if (found == nullptr || (found->place.x == x && found->place.y == y))
        return;
    found->place.x = x;
    found->place.y = y;
    touchTree(indexOf(sprite));
}

void PictorATL::SetSpriteSize(std::int32_t sprite, std::int32_t width, std::int32_t height) {
    if (Node* found = nodeOf(sprite)) {
        found->place.width = width;
        found->place.height = height;
        touch(indexOf(sprite));
    }
}

void PictorATL::SetSpriteSource(std::int32_t sprite, std::int32_t x, std::int32_t y) {
    if (Node* found = nodeOf(sprite)) {
        found->source = {x, y};
        touch(indexOf(sprite));
    }
}

void PictorATL::SetSpriteFlags(std::int32_t sprite, std::int32_t flags) {
    if (Node* found = nodeOf(sprite))
        found->flags = flags;
}

void PictorATL::SetLevel(std::int32_t sprite, std::int32_t level) {
    Node* found = nodeOf(sprite);
    if (found == nullptr || found->level == level)
        return;
    found->level = level;
    orderStale_ = true;
    rankTree(indexOf(sprite));
}

void PictorATL::SetSpriteState(std::int32_t sprite, std::int32_t state) {
    Node* found = nodeOf(sprite);
    if (found == nullptr || found->state == state)
        return;
    found->state = state;
    touchTree(indexOf(sprite));
}

void PictorATL::AddToGroup(std::int32_t sprite, std::int32_t parent) {
    if (nodeOf(sprite) == nullptr || nodeOf(parent) == nullptr)
        return;
    const std::int32_t index = indexOf(sprite);
    for (std::int32_t above = indexOf(parent); above >= 0; above = node(above).parent)
        if (above == index)
            return;
    detach(index);
    attach(index, indexOf(parent));
    rankTree(index);
}

void PictorATL::ClearGroup(std::int32_t group) {
    if (nodeOf(group) == nullptr)
        return;
    const std::int32_t index = indexOf(group);
    while (node(index).firstChild >= 0)
        erase(node(index).firstChild);
}

void PictorATL::DeleteSprite(std::int32_t sprite) {
    if (nodeOf(sprite) != nullptr)
        erase(indexOf(sprite));
}

void PictorATL::RedrawSprite(std::int32_t sprite) {
    // What looks different is found at the next Refresh; painting what looks the same would only
    // cost time.
    if (nodeOf(sprite) != nullptr)
        touch(indexOf(sprite));
}

std::int32_t PictorATL::GetSpriteState(std::int32_t sprite) const noexcept {
    const Node* found = nodeOf(sprite);
    return found != nullptr ? found->state : spriteState::Hidden;
}

std::int32_t PictorATL::GetSpriteX(std::int32_t sprite) const noexcept {
    const Node* found = nodeOf(sprite);
    return found != nullptr ? found->place.x : 0;
}

std::int32_t PictorATL::GetSpriteY(std::int32_t sprite) const noexcept {
    const Node* found = nodeOf(sprite);
    return found != nullptr ? found->place.y : 0;
}

bool PictorATL::IsPointerOver(std::int32_t sprite) const noexcept {
    if (nodeOf(sprite) == nullptr)
        return false;
    const std::int32_t index = indexOf(sprite);
    return shown(index) && boardRect(index).Overlaps({pointer_.x, pointer_.y, 1, 1});
}

std::int32_t PictorATL::CountInGroup(std::int32_t group) const noexcept {
    const Node* found = nodeOf(group);
    std::int32_t count = 0;
    for (std::int32_t child = found != nullptr ? found->firstChild : -1; child >= 0;
         child = node(child).next)
        ++count;
    return count;
}

// The frame

void PictorATL::Refresh() {
    indexGhosts();
    for (const std::int32_t index : touched_) {
        Node& sprite = node(index);
        sprite.touched = false;
        if (sprite.kind != Kind::Sprite)
            continue;
        const Look look = lookOf(index);
        if (!(look == sprite.painted) && !takeOver(sprite, look)) {
            damage(sprite.painted.rect);
            damage(look.rect);
        }
        sprite.painted = look;
    }
    for (const Ghost& ghost : ghosts_)
        damage(ghost.look.rect);
    for (const std::int32_t index : touched_)
        node(index).paintedAge = node(index).age;
    touched_.clear();
    ghosts_.clear();

    changed_.swap(damaged_);
    damaged_.clear();
    if (changed_.empty())
        return;
    order();
    for (const Rect& rect : changed_)
        compose(rect);
}

std::size_t PictorATL::bucketOf(const Look& look) const noexcept {
    const auto mixed = static_cast<std::uint64_t>(look.rect.x) * 0x9E3779B97F4A7C15U ^
                       static_cast<std::uint64_t>(look.rect.y) * 0xC2B2AE3D27D4EB4FU ^
                       look.among * 0x165667B19E3779F9U ^ static_cast<std::uint64_t>(look.bitmap);
    return static_cast<std::size_t>(mixed >> 32) & (buckets_.size() - 1);
}

/// Finds ghosts by their looks, so that a board of thousands of beads need not compare each with
/// each.
void PictorATL::indexGhosts() {
    if (ghosts_.empty())
        return;
    std::size_t buckets = 1;
    while (buckets < ghosts_.size())
        buckets *= 2;
    buckets_.assign(buckets, -1);
    for (std::size_t i = ghosts_.size(); i-- > 0;) {
        std::int32_t& bucket = buckets_[bucketOf(ghosts_[i].look)];
        ghosts_[i].next = bucket;
        bucket = static_cast<std::int32_t>(i);
    }
}

/// Whether `fresh`, which the last frame does not show, looks exactly like a sprite that has been
/// deleted since, with nothing painted between the two that would now lie on the other side.
bool PictorATL::takeOver(Node& fresh, const Look& look) {
    if (ghosts_.empty() || !fresh.painted.rect.Empty() || look.rect.Empty())
        return false;
    for (std::int32_t place = buckets_[bucketOf(look)]; place >= 0;) {
        const auto at = static_cast<std::size_t>(place);
        place = ghosts_[at].next;
        if (!(ghosts_[at].look == look))
            continue;
        const std::uint64_t before = ghosts_[at].age;
        for (std::int32_t other = firstChildOf(fresh.parent); other >= 0;
             other = node(other).next) {
            const Node& sibling = node(other);
            if (&sibling == &fresh || sibling.level != look.level)
                continue;
            const bool mayMeet = sibling.kind == Kind::Group || sibling.firstChild >= 0 ||
                                 sibling.painted.rect.Overlaps(look.rect);
            if (mayMeet && (sibling.paintedAge < before) != (sibling.age < fresh.age))
                return false;
        }
        fresh.paintedAge = before;
        ghosts_[at].look = {};
        return true;
    }
    return false;
}

void PictorATL::damage(const Rect& rect) {
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

void PictorATL::order() {
    if (!orderStale_)
        return;
    order_.clear();
    orderChildren(-1);
    orderStale_ = false;
}

void PictorATL::orderChildren(std::int32_t parent) {
    std::vector<std::int32_t> children;
    for (std::int32_t child = firstChildOf(parent); child >= 0; child = node(child).next)
        children.push_back(child);
    std::sort(children.begin(), children.end(), [this](std::int32_t a, std::int32_t b) {
        return node(a).level != node(b).level ? node(a).level < node(b).level
                                              : node(a).age < node(b).age;
    });
    for (const std::int32_t child : children) {
        order_.push_back(child);
        if (node(child).firstChild >= 0)
            orderChildren(child);
    }
}

void PictorATL::compose(const Rect& rect) {
    for (std::int32_t y = rect.y; y < rect.y + rect.height; ++y)
        std::fill_n(frame_.Row(y) + rect.x, rect.width, 0xFF000000U);
    for (const std::int32_t index : order_)
        if (const Look& look = node(index).painted; look.rect.Overlaps(rect))
            paint(look, rect);
}

void PictorATL::paint(const Look& look, const Rect& clip) {
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

PictorATL::Look PictorATL::lookOf(std::int32_t index) const {
    const Node& sprite = node(index);
    const BitmapStore::Bitmap* bitmap = bitmaps_.Find(sprite.bitmap);
    const BitmapStore::Bitmap* mask = bitmaps_.Find(sprite.mask);
    if (bitmap == nullptr || bitmap->picture->Empty() || !shown(index) || sprite.place.Empty())
        return {};
    if (sprite.mask != 0 && (mask == nullptr || mask->picture->Empty()))
        return {};

    const Rect board = boardRect(index);
    Look look{{},
              sprite.bitmap,
              sprite.mask,
              bitmap->Column(sprite.source.x),
              bitmap->RowAt(sprite.source.y),
              sprite.level,
              sprite.parent < 0 ? 0 : node(sprite.parent).rank};
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

std::int32_t PictorATL::toFrame(std::int64_t board) const noexcept {
    // Far outside every frame, yet safe to add to.
    return static_cast<std::int32_t>(std::clamp(
        std::floor(static_cast<double>(board) * scale_ + 0.5), -268435456.0, 268435456.0));
}

// Sprites and groups

std::int32_t PictorATL::make(Kind kind) {
    if (unused_.empty()) {
        unused_.push_back(static_cast<std::int32_t>(nodes_.size()));
        nodes_.emplace_back();
    }
    const std::int32_t index = unused_.back();
    unused_.pop_back();
    Node& fresh = node(index);
    const std::int32_t generation = fresh.generation;
    const bool touched = fresh.touched;
    fresh = Node{};
    fresh.kind = kind;
    fresh.touched = touched;
    fresh.generation = generation;
    fresh.age = fresh.paintedAge = fresh.rank = ++ages_;
    attach(index, -1);
    ++live_;
    return index;
}

void PictorATL::erase(std::int32_t index) {
    while (node(index).firstChild >= 0)
        erase(node(index).firstChild);
    detach(index);
    Node& gone = node(index);
    if (!gone.painted.rect.Empty())
        ghosts_.push_back({gone.painted, gone.paintedAge});
    gone.painted = {};
    gone.kind = Kind::Unused;
    gone.generation = (gone.generation + 1) & generationMask;
    unused_.push_back(index);
    --live_;
}

std::int32_t PictorATL::numberOf(std::int32_t index) const noexcept {
    return node(index).generation << placeBits | (index + 1);
}

std::int32_t PictorATL::indexOf(std::int32_t number) const noexcept {
    return (number & placeMask) - 1;
}

const PictorATL::Node* PictorATL::nodeOf(std::int32_t number) const noexcept {
    const std::int32_t index = indexOf(number);
    if (number <= 0 || index < 0 || index >= static_cast<std::int32_t>(nodes_.size()))
        return nullptr;
    const Node& found = node(index);
    return found.kind != Kind::Unused && number >> placeBits == found.generation ? &found : nullptr;
}

PictorATL::Node* PictorATL::nodeOf(std::int32_t number) noexcept {
    return const_cast<Node*>(static_cast<const PictorATL&>(*this).nodeOf(number));
}

std::int32_t PictorATL::firstChildOf(std::int32_t index) const noexcept {
    return index < 0 ? firstRoot_ : node(index).firstChild;
}

void PictorATL::attach(std::int32_t index, std::int32_t parent) noexcept {
    std::int32_t& first = parent < 0 ? firstRoot_ : node(parent).firstChild;
    std::int32_t& last = parent < 0 ? lastRoot_ : node(parent).lastChild;
    Node& child = node(index);
    child.parent = parent;
    child.previous = last;
    child.next = -1;
    (last < 0 ? first : node(last).next) = index;
    last = index;
    orderStale_ = true;
}

void PictorATL::detach(std::int32_t index) noexcept {
    Node& child = node(index);
    std::int32_t& first = child.parent < 0 ? firstRoot_ : node(child.parent).firstChild;
    std::int32_t& last = child.parent < 0 ? lastRoot_ : node(child.parent).lastChild;
    (child.previous < 0 ? first : node(child.previous).next) = child.next;
    (child.next < 0 ? last : node(child.next).previous) = child.previous;
    child.parent = child.previous = child.next = -1;
    orderStale_ = true;
}

void PictorATL::touch(std::int32_t index) {
    if (!node(index).touched) {
        touched_.push_back(index);
        node(index).touched = true;
    }
}

void PictorATL::touchTree(std::int32_t index) {
    touch(index);
    for (std::int32_t child = node(index).firstChild; child >= 0; child = node(child).next)
        touchTree(child);
}

/// For what now lies elsewhere between the others. A new rank makes all that is attached to it look
/// different, also where it comes back alike after it was cleared.
void PictorATL::rankTree(std::int32_t index) {
    touch(index);
    node(index).rank = ++ages_;
    for (std::int32_t child = node(index).firstChild; child >= 0; child = node(child).next)
        rankTree(child);
}

bool PictorATL::shown(std::int32_t index) const noexcept {
    for (; index >= 0; index = node(index).parent)
        if (node(index).state != spriteState::Shown)
            return false;
    return true;
}

Rect PictorATL::boardRect(std::int32_t index) const noexcept {
    const Node& placed = node(index);
    std::int64_t x = placed.place.x;
    std::int64_t y = placed.place.y;
    for (std::int32_t above = placed.parent; above >= 0; above = node(above).parent) {
        x += node(above).place.x;
        y += node(above).place.y;
    }
    constexpr std::int64_t far = 1 << 28;
    return {static_cast<std::int32_t>(std::clamp(x, -far, far)),
            static_cast<std::int32_t>(std::clamp(y, -far, far)), placed.place.width,
            placed.place.height};
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
    const std::int32_t sprite = spriteAt(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseDown(sprite, button, x, y);
}

void PictorATL::MouseUp(MouseButton button, std::int32_t x, std::int32_t y) {
    const std::int32_t sprite = spriteAt(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseUp(sprite, button, x, y);
}

void PictorATL::MouseMove(std::int32_t x, std::int32_t y) {
    const std::int32_t sprite = spriteAt(x, y);
    for (SurfaceEvents* listener : listeners_)
        listener->MouseMove(sprite, x, y);
}

std::int32_t PictorATL::spriteAt(std::int32_t x, std::int32_t y) {
    pointer_ = {x, y};
    order();
    for (auto at = order_.rbegin(); at != order_.rend(); ++at) {
        const Node& hit = node(*at);
        const bool reports =
            hit.kind == Kind::Sprite && (hit.flags & spriteFlags::ReportsMouse) != 0;
        if ((reports || hit.kind == Kind::Group) && IsPointerOver(numberOf(*at)))
            return reports ? numberOf(*at) : 0;
    }
    return 0;
}

} // namespace veltrix
