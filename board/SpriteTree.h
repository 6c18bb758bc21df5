#pragma once

#include "board/Rect.h"
#include "board/Types.h"

#include <cstdint>
#include <vector>

namespace veltrix {

/// The states of a sprite.
namespace spriteState {
inline constexpr std::int32_t Shown = 0;
inline constexpr std::int32_t Leaving = 1; ///< no longer drawn, about to be deleted
inline constexpr std::int32_t Hidden = 3;
} // namespace spriteState

/// The flags of a sprite. A lamp on a push button must let the click through to the board.
namespace spriteFlags {
inline constexpr std::int32_t ReportsMouse = 1; ///< events over it name it
inline constexpr std::int32_t Overlay = 4;      ///< a mere picture, as is all that does not report
} // namespace spriteFlags

/// The sprites and groups of a surface: what hangs on what, where each of them is, and what lies
/// over what. Nodes are known to the outside by their numbers, and in here and to who paints them
/// by their index. An index is used again once its node is gone, a number only when its index has
/// been used 512 times more.
class SpriteTree {
public:
    static constexpr std::int32_t None = -1; ///< in place of an index

    enum class Kind : std::uint8_t { Unused, Sprite, Group };

    struct Node {
        Kind kind = Kind::Unused;
        bool touched = false;
        std::int32_t generation = 0; // how often the index was used before
        std::int32_t bitmap = 0;
        std::int32_t mask = 0;
        Rect place; ///< relative to the parent, board pixels
        Point source;
        std::int32_t flags = 0;
        std::int32_t level = 0;
        std::int32_t state = spriteState::Shown;
        std::int32_t parent = None;
        std::int32_t firstChild = None;
        std::int32_t lastChild = None;
        std::int32_t previous = None;
        std::int32_t next = None; ///< of the same parent, in no particular order
        std::uint64_t age = 0;    ///< grows with every node made, so that no two are alike
        std::uint64_t rank = 0;   ///< another one whenever its place in the order changes
    };

    /// A new node without a parent, shown, at the origin. Its index.
    std::int32_t Make(Kind kind);

    /// Takes a node away with everything attached to it.
    void Erase(std::int32_t index);

    /// Takes away everything attached to a node.
    void EraseChildren(std::int32_t index);

    [[nodiscard]] std::int32_t NumberOf(std::int32_t index) const noexcept;

    /// The index of the node with a number; None when no node has it (any more).
    [[nodiscard]] std::int32_t Find(std::int32_t number) const noexcept;

    [[nodiscard]] Node& operator[](std::int32_t index) noexcept {
        return nodes_[static_cast<std::size_t>(index)];
    }

    [[nodiscard]] const Node& operator[](std::int32_t index) const noexcept {
        return nodes_[static_cast<std::size_t>(index)];
    }

    /// How many indexes have been used at the same time at most.
    [[nodiscard]] std::size_t Size() const noexcept { return nodes_.size(); }

    /// How many nodes there are.
    [[nodiscard]] std::int32_t Count() const noexcept {
        return static_cast<std::int32_t>(nodes_.size() - unused_.size());
    }

    /// Attaches a node to a parent; ignored where it would become its own ancestor.
    void SetParent(std::int32_t index, std::int32_t parent);
    void SetLevel(std::int32_t index, std::int32_t level);

    /// The first node of those with this parent, or of those without when it is None.
    [[nodiscard]] std::int32_t FirstChildOf(std::int32_t parent) const noexcept;

    /// Whether a node and everything that it hangs on is in the state spriteState::Shown.
    [[nodiscard]] bool Shown(std::int32_t index) const noexcept;

    /// A node's place on the board, its corner no further out than 2^28.
    [[nodiscard]] Rect BoardRect(std::int32_t index) const noexcept;

    /// All nodes from the lowest to the highest.
    [[nodiscard]] const std::vector<std::int32_t>& Order();

    /// Notes that a node may look different; TouchTree also what hangs on it.
    void Touch(std::int32_t index);
    void TouchTree(std::int32_t index);
    void TouchAll();

    /// Everything touched, made or erased since ClearTouched, each once.
    [[nodiscard]] const std::vector<std::int32_t>& Touched() const noexcept { return touched_; }

    void ClearTouched() noexcept;

private:
    void attach(std::int32_t index, std::int32_t parent) noexcept;
    void detach(std::int32_t index) noexcept;
    void rankTree(std::int32_t index);
    void orderChildren(std::int32_t parent);

    std::vector<Node> nodes_;
    std::vector<std::int32_t> unused_;
    std::int32_t firstRoot_ = None;
    std::int32_t lastRoot_ = None;
    std::uint64_t ages_ = 0;
    std::vector<std::int32_t> touched_;
    std::vector<std::int32_t> order_;
    bool orderStale_ = true;
};

} // namespace veltrix
