#pragma once

#include "board/BitmapStore.h"
#include "board/Picture.h"
#include "board/SpriteTree.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veltrix {

/// Paints a tree of sprites into a frame of pixels, and of it only what looks different: it
/// compares how every touched sprite looks now with how the frame shows it.
class FrameComposer {
public:
    /// Both must outlive the composer.
    FrameComposer(SpriteTree& tree, const BitmapStore& bitmaps) noexcept
        : tree_(tree), bitmaps_(bitmaps) {}

    /// A new frame, black until the next Refresh, for so many board pixels, each `scale` pixels
    /// wide.
    void Start(std::int32_t width, std::int32_t height, double scale);

    /// A bitmap has other pixels now: what is cut from it is painted at the next Refresh.
    void Repaint(std::int32_t bitmap);

    /// Brings the frame up to date with the tree, and clears what was touched there.
    void Refresh();

    /// The rectangles that the last Refresh painted.
    [[nodiscard]] const std::vector<Rect>& Changed() const noexcept { return changed_; }

    [[nodiscard]] const Picture& Frame() const noexcept { return frame_; }

private:
    /// What the frame shows of a sprite, in frame pixels; nothing when the rectangle is empty.
    struct Look {
        Rect rect;
        std::int32_t bitmap = 0;
        std::int32_t mask = 0;
        std::int32_t sourceX = 0;
        std::int32_t sourceY = 0;
        std::int32_t level = 0;
        std::uint64_t among = 0; // the rank of the parent

        friend bool operator==(const Look&, const Look&) = default;
    };

    /// What the frame shows at an index of the tree, and the age of the node that it shows.
    struct Painted {
        Look look;
        std::uint64_t age = 0;
    };

    /// What the frame still shows of a sprite that is gone.
    struct Ghost {
        Painted painted;
        std::int32_t next = -1; // in its bucket
    };

    [[nodiscard]] Painted& painted(std::int32_t index) noexcept {
        return painted_[static_cast<std::size_t>(index)];
    }

    [[nodiscard]] Look lookOf(std::int32_t index) const;
    [[nodiscard]] std::int32_t toFrame(std::int64_t board) const noexcept;
    void findGhosts();
    [[nodiscard]] std::size_t bucketOf(const Look& look) const noexcept;
    bool takeOver(std::int32_t index, const Look& look);
    [[nodiscard]] bool liesAlike(std::int32_t index, const Painted& gone);
    void damage(const Rect& rect);
    void compose(const Rect& rect);
    void paint(const Look& look, const Rect& clip);

    SpriteTree& tree_;
    const BitmapStore& bitmaps_;
    double scale_ = 1;
    Picture frame_;
    std::vector<Painted> painted_; // by the index of the tree
    std::vector<Ghost> ghosts_;
    std::vector<std::int32_t> buckets_; // the first ghost of each
    std::vector<Rect> damaged_;         // will be painted by the next Refresh
    std::vector<Rect> changed_;         // was painted by the last one
};

} // namespace veltrix
