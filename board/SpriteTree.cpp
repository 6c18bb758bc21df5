#include "board/SpriteTree.h"

#include <algorithm>

namespace veltrix {

namespace {

// A number holds the index and how often that was used before, so that the number of a node that is
// gone does not name its successor.
constexpr std::int32_t indexBits = 22;
constexpr std::int32_t indexMask = (1 << indexBits) - 1;
constexpr std::int32_t generationMask = 0x1FF;

} // namespace

std::int32_t SpriteTree::Make(Kind kind) {
    if (unused_.empty()) {
        unused_.push_back(static_cast<std::int32_t>(nodes_.size()));
        nodes_.emplace_back();
    }
    const std::int32_t index = unused_.back();
    unused_.pop_back();
    Node& fresh = (*this)[index];
    fresh.kind = kind;
    fresh.age = fresh.rank = ++ages_;
    attach(index, None);
    Touch(index);
    return index;
}

void SpriteTree::Erase(std::int32_t index) {
    EraseChildren(index);
    detach(index);
    Touch(index);
    Node& gone = (*this)[index];
    const std::int32_t generation = (gone.generation + 1) & generationMask;
    gone = Node{};
    gone.generation = generation;
    gone.touched = true;
    unused_.push_back(index);
}

void SpriteTree::EraseChildren(std::int32_t index) {
    while ((*this)[index].firstChild != None)
        Erase((*this)[index].firstChild);
}

std::int32_t SpriteTree::NumberOf(std::int32_t index) const noexcept {
    return (*this)[index].generation << indexBits | (index + 1);
}

std::int32_t SpriteTree::Find(std::int32_t number) const noexcept {
    const std::int32_t index = (number & indexMask) - 1;
    if (number <= 0 || index < 0 || index >= static_cast<std::int32_t>(nodes_.size()))
        return None;
    const Node& found = (*this)[index];
    return found.kind != Kind::Unused && number >> indexBits == found.generation ? index : None;
}

void SpriteTree::SetParent(std::int32_t index, std::int32_t parent) {
    for (std::int32_t above = parent; above != None; above = (*this)[above].parent)
        if (above == index)
            return;
    detach(index);
    attach(index, parent);
    rankTree(index);
}

void SpriteTree::SetLevel(std::int32_t index, std::int32_t level) {
    if ((*this)[index].level == level)
        return;
    (*this)[index].level = level;
    orderStale_ = true;
    rankTree(index);
}

std::int32_t SpriteTree::FirstChildOf(std::int32_t parent) const noexcept {
    return parent == None ? firstRoot_ : (*this)[parent].firstChild;
}

bool SpriteTree::Shown(std::int32_t index) const noexcept {
    for (; index != None; index = (*this)[index].parent)
        if ((*this)[index].state != spriteState::Shown)
            return false;
    return true;
}

Rect SpriteTree::BoardRect(std::int32_t index) const noexcept {
    const Node& placed = (*this)[index];
    std::int64_t x = placed.place.x;
    std::int64_t y = placed.place.y;
    for (std::int32_t above = placed.parent; above != None; above = (*this)[above].parent) {
        x += (*this)[above].place.x;
        y += (*this)[above].place.y;
    }
    constexpr std::int64_t far = 1 << 28; // outside every board, yet safe to add to
    return {static_cast<std::int32_t>(std::clamp(x, -far, far)),
            static_cast<std::int32_t>(std::clamp(y, -far, far)), placed.place.width,
            placed.place.height};
}

const std::vector<std::int32_t>& SpriteTree::Order() {
    if (orderStale_) {
        order_.clear();
        orderChildren(None);
        orderStale_ = false;
    }
    return order_;
}

void SpriteTree::Touch(std::int32_t index) {
    if (!(*this)[index].touched) {
        touched_.push_back(index);
        (*this)[index].touched = true;
    }
}

void SpriteTree::TouchTree(std::int32_t index) {
    Touch(index);
    for (std::int32_t child = (*this)[index].firstChild; child != None; child = (*this)[child].next)
        TouchTree(child);
}

void SpriteTree::TouchAll() {
    for (std::int32_t root = firstRoot_; root != None; root = (*this)[root].next)
        TouchTree(root);
}

void SpriteTree::ClearTouched() noexcept {
    for (const std::int32_t index : touched_)
        (*this)[index].touched = false;
    touched_.clear();
}

void SpriteTree::attach(std::int32_t index, std::int32_t parent) noexcept {
    std::int32_t& first = parent == None ? firstRoot_ : (*this)[parent].firstChild;
    std::int32_t& last = parent == None ? lastRoot_ : (*this)[parent].lastChild;
    Node& child = (*this)[index];
    child.parent = parent;
    child.previous = last;
    child.next = None;
    (last == None ? first : (*this)[last].next) = index;
    last = index;
    orderStale_ = true;
}

void SpriteTree::detach(std::int32_t index) noexcept {
    Node& child = (*this)[index];
    std::int32_t& first = child.parent == None ? firstRoot_ : (*this)[child.parent].firstChild;
    std::int32_t& last = child.parent == None ? lastRoot_ : (*this)[child.parent].lastChild;
    (child.previous == None ? first : (*this)[child.previous].next) = child.next;
    (child.next == None ? last : (*this)[child.next].previous) = child.previous;
    child.parent = child.previous = child.next = None;
    orderStale_ = true;
}

/// For a node whose place in the order has changed. The new rank makes all that is attached to it
/// count as different, even where it is cleared and made again alike.
void SpriteTree::rankTree(std::int32_t index) {
    Touch(index);
    (*this)[index].rank = ++ages_;
    for (std::int32_t child = (*this)[index].firstChild; child != None; child = (*this)[child].next)
        rankTree(child);
}

void SpriteTree::orderChildren(std::int32_t parent) {
    std::vector<std::int32_t> children;
    for (std::int32_t child = FirstChildOf(parent); child != None; child = (*this)[child].next)
        children.push_back(child);
    std::sort(children.begin(), children.end(), [this](std::int32_t a, std::int32_t b) {
        const Node& left = (*this)[a];
        const Node& right = (*this)[b];
        return left.level != right.level ? left.level < right.level : left.age < right.age;
    });
    for (const std::int32_t child : children) {
        order_.push_back(child);
        if ((*this)[child].firstChild != None)
            orderChildren(child);
    }
}

} // namespace veltrix
