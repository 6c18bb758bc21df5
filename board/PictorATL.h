#pragma once

#include "board/BitmapStore.h"
#include "board/Log.h"
#include "board/Picture.h"
#include "board/Types.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace veltrix {

/// A rectangle in pixels; empty when it has no width or no height.
struct Rect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    [[nodiscard]] constexpr bool Empty() const noexcept { return width <= 0 || height <= 0; }

    [[nodiscard]] bool Overlaps(const Rect& other) const noexcept;
    [[nodiscard]] Rect Intersected(const Rect& other) const noexcept;
    [[nodiscard]] Rect United(const Rect& other) const noexcept;

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

/// Mouse buttons, by the numbers that the surface's events carry.
enum class MouseButton : std::int32_t { Left = 1, Right = 2 };

/// Receives the surface's mouse events. `sprite` is the mouse-sensitive sprite under the pointer,
/// 0 when there is none; x and y are board pixels and may lie outside the board.
class SurfaceEvents {
public:
    virtual ~SurfaceEvents() = default;
    virtual void MouseDown(std::int32_t sprite, MouseButton button, std::int32_t x,
                           std::int32_t y) = 0;
    virtual void MouseUp(std::int32_t sprite, MouseButton button, std::int32_t x,
                         std::int32_t y) = 0;
    virtual void MouseMove(std::int32_t sprite, std::int32_t x, std::int32_t y) = 0;
};

/// The states of a sprite.
namespace spriteState {
inline constexpr std::int32_t Shown = 0;
inline constexpr std::int32_t Leaving = 1; ///< no longer drawn, about to be deleted
inline constexpr std::int32_t Hidden = 3;
} // namespace spriteState

/// The flags of a sprite. A lamp on a push button must let the click through to the board.
namespace spriteFlags {
inline constexpr std::int32_t ReportsMouse = 1; ///< events over it name it
inline constexpr std::int32_t Overlay = 4;      ///< a mere picture: the mouse looks through it
} // namespace spriteFlags

/// The surface that the board is drawn on: pictures, sprites cut from them, and groups of sprites,
/// composed in software into one frame of pixels.
///
/// Positions and sizes are whole board pixels. A sprite or group that is attached to a parent is
/// placed relative to the parent's top left corner, moves with it, is hidden with it and is deleted
/// with it. Among the children of one parent (and among those without a parent) a higher level lies
/// above a lower one and a younger one above an older one; children lie above their parent.
///
/// A number that belongs to nothing (any more) is ignored by every operation. Operations change the
/// frame only at the next Refresh, which paints what differs from the frame before and nothing
/// else: a sprite that is deleted and made again alike costs no pixel.
class PictorATL {
public:
    PictorATL() = default;
    PictorATL(const PictorATL&) = delete;
    PictorATL& operator=(const PictorATL&) = delete;

    /// Makes the surface ready for `width` by `height` board pixels on a screen on which one board
    /// pixel is `scale` pixels wide. Pictures are found from `applicationFolder`; where that is
    /// empty nobody looks, so that no picture is loaded and none is missed. Comes before every
    /// other operation; `log` must outlive the surface. False when it cannot start (a size or scale
    /// that is not positive or too large).
    [[nodiscard]] bool Start(const std::filesystem::path& applicationFolder, std::int32_t width,
                             std::int32_t height, double scale, Log& log);

    /// The same surface with the same sprites for a screen of another scale. Ignores a scale that
    /// Start would refuse.
    void Restart(double scale);

    [[nodiscard]] double Scale() const noexcept { return scale_; }

    // Pictures

    /// Loads "\\folder\\name.bmp" from the application folder, or "name@2x.bmp" or "name@3x.bmp"
    /// where the scale asks for more pixels. A picture whose width is a whole multiple of its
    /// height is a strip of square frames. A picture that is missing or broken yields a bitmap that
    /// draws nothing, and one line in the log.
    std::int32_t LoadBitmap(const std::string& name);

    /// `colour` is 0xRRGGBB. A position outside the picture is ignored.
    void SetBitmapPixel(std::int32_t bitmap, std::int32_t x, std::int32_t y, std::int32_t colour);

    // Sprites and groups

    /// A new sprite is shown, at the origin, as large as its bitmap. Never 0.
    std::int32_t CreateSprite(std::int32_t bitmap);

    /// The same, drawn through a mask: white is opaque, black transparent, grey in between.
    std::int32_t CreateMaskedSprite(std::int32_t bitmap, std::int32_t mask);

    /// A new group is an empty container at the origin without a size. Given a size it shields the
    /// sprites beneath it from the mouse: events over it name no sprite.
    std::int32_t NewGroup();

    void PlaceSprite(std::int32_t sprite, std::int32_t x, std::int32_t y);
    void SetSpriteSize(std::int32_t sprite, std::int32_t width, std::int32_t height);

    /// Where in its bitmap the sprite's picture begins. What lies outside the bitmap is not drawn.
    void SetSpriteSource(std::int32_t sprite, std::int32_t x, std::int32_t y);
    void SetSpriteFlags(std::int32_t sprite, std::int32_t flags);
    void SetLevel(std::int32_t sprite, std::int32_t level);
    void SetSpriteState(std::int32_t sprite, std::int32_t state);

    /// Attaches a sprite or group to a parent; ignored where it would become its own ancestor.
    void AddToGroup(std::int32_t sprite, std::int32_t parent);

    /// Deletes everything attached to the group; the group itself stays.
    void ClearGroup(std::int32_t group);

    /// Deletes a sprite or group and everything attached to it.
    void DeleteSprite(std::int32_t sprite);

    /// Looks at the sprite anew at the next Refresh.
    void RedrawSprite(std::int32_t sprite);

    [[nodiscard]] std::int32_t GetSpriteState(std::int32_t sprite) const noexcept;

    /// Relative to the parent; 0 for a number that belongs to nothing.
    [[nodiscard]] std::int32_t GetSpriteX(std::int32_t sprite) const noexcept;
    [[nodiscard]] std::int32_t GetSpriteY(std::int32_t sprite) const noexcept;

    /// Whether the pointer, where the last mouse event left it, is over the sprite or group. False
    /// while it is hidden.
    [[nodiscard]] bool IsPointerOver(std::int32_t sprite) const noexcept;

    /// The sprites and groups attached to a group.
    [[nodiscard]] std::int32_t CountInGroup(std::int32_t group) const noexcept;

    /// All sprites and groups there are.
    [[nodiscard]] std::int32_t CountAll() const noexcept { return live_; }

    // The frame

    /// Brings the frame up to date. Afterwards Changed() lists what it painted.
    void Refresh();

    /// The rectangles of the frame, in frame pixels, that the last Refresh painted.
    [[nodiscard]] const std::vector<Rect>& Changed() const noexcept { return changed_; }

    /// The picture as of the last Refresh: board size times scale, rounded up; every pixel opaque.
    [[nodiscard]] const Picture& Frame() const noexcept { return frame_; }

    // The mouse: the front end hands events in, the surface hands them on with the sprite they hit.

    /// Listeners are called in the order in which they were added, and must outlive the surface or
    /// be removed.
    void AddListener(SurfaceEvents& listener);
    void RemoveListener(SurfaceEvents& listener);

    void MouseDown(MouseButton button, std::int32_t x, std::int32_t y);
    void MouseUp(MouseButton button, std::int32_t x, std::int32_t y);
    void MouseMove(std::int32_t x, std::int32_t y);

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

    enum class Kind : std::uint8_t { Unused, Sprite, Group };

    struct Node {
        Kind kind = Kind::Unused;
        bool touched = false;
        std::int32_t generation = 0;
        std::int32_t bitmap = 0;
        std::int32_t mask = 0;
        Rect place; // relative to the parent, board pixels
        Point source;
        std::int32_t flags = 0;
        std::int32_t level = 0;
        std::int32_t state = spriteState::Shown;
        std::int32_t parent = -1;
        std::int32_t firstChild = -1;
        std::int32_t lastChild = -1;
        std::int32_t previous = -1;
        std::int32_t next = -1;
        std::uint64_t rank = 0;       // another one whenever its place in the order changes
        std::uint64_t age = 0;        // grows with every sprite made
        std::uint64_t paintedAge = 0; // that of the sprite whose look this one took over
        Look painted;
    };

    struct Ghost {
        Look look;
        std::uint64_t age = 0;
        std::int32_t next = -1; // in its bucket
    };

    // Nodes
    std::int32_t make(Kind kind);
    [[nodiscard]] std::int32_t indexOf(std::int32_t number) const noexcept;
    [[nodiscard]] std::int32_t numberOf(std::int32_t index) const noexcept;
    [[nodiscard]] Node* nodeOf(std::int32_t number) noexcept;
    [[nodiscard]] const Node* nodeOf(std::int32_t number) const noexcept;

    [[nodiscard]] Node& node(std::int32_t index) noexcept {
        return nodes_[static_cast<std::size_t>(index)];
    }

    [[nodiscard]] const Node& node(std::int32_t index) const noexcept {
        return nodes_[static_cast<std::size_t>(index)];
    }

    void attach(std::int32_t index, std::int32_t parent) noexcept;
    void detach(std::int32_t index) noexcept;
    void touch(std::int32_t index);
    void touchTree(std::int32_t index);
    void rankTree(std::int32_t index);
    void erase(std::int32_t index);
    [[nodiscard]] bool shown(std::int32_t index) const noexcept;
    [[nodiscard]] Rect boardRect(std::int32_t index) const noexcept;
    [[nodiscard]] std::int32_t firstChildOf(std::int32_t index) const noexcept;

    // Painting
    [[nodiscard]] std::int32_t toFrame(std::int64_t board) const noexcept;
    [[nodiscard]] Look lookOf(std::int32_t index) const;
    void indexGhosts();
    [[nodiscard]] std::size_t bucketOf(const Look& look) const noexcept;
    bool takeOver(Node& fresh, const Look& look);
    void damage(const Rect& rect);
    void order();
    void orderChildren(std::int32_t parent);
    void compose(const Rect& rect);
    void paint(const Look& look, const Rect& clip);

    [[nodiscard]] std::int32_t spriteAt(std::int32_t x, std::int32_t y);

    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    double scale_ = 1;
    BitmapStore bitmaps_;
    std::vector<Node> nodes_;
    std::vector<std::int32_t> unused_;
    std::int32_t firstRoot_ = -1;
    std::int32_t lastRoot_ = -1;
    std::int32_t live_ = 0;
    std::uint64_t ages_ = 0;

    std::vector<std::int32_t> touched_;
    std::vector<Ghost> ghosts_;
    std::vector<std::int32_t> buckets_; // the first ghost of each
    std::vector<Rect> damaged_;         // will be painted by the next Refresh
    std::vector<Rect> changed_;         // was painted by the last one
    std::vector<std::int32_t> order_;   // all nodes, from the lowest to the highest
    bool orderStale_ = true;
    Picture frame_;

    std::vector<SurfaceEvents*> listeners_;
    Point pointer_{-1, -1};
};

} // namespace veltrix
