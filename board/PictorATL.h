#pragma once

#include "board/BitmapStore.h"
#include "board/FrameComposer.h"
#include "board/Log.h"
#include "board/Picture.h"
#include "board/SpriteTree.h"
#include "board/Types.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace veltrix {

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

    /// The same surface with the same sprites for a screen of another scale; the frame is black
    /// until the next Refresh. Ignores a scale that Start would refuse.
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

    /// spriteState::Hidden for a number that belongs to nothing.
    [[nodiscard]] std::int32_t GetSpriteState(std::int32_t sprite) const noexcept;

    /// The left edge, relative to the parent; 0 for a number that belongs to nothing.
    [[nodiscard]] std::int32_t GetSpriteX(std::int32_t sprite) const noexcept;

    /// Whether the pointer, where the last mouse event left it, is over the sprite or group. False
    /// while it is hidden.
    [[nodiscard]] bool IsPointerOver(std::int32_t sprite) const noexcept;

    /// The sprites and groups attached to a group.
    [[nodiscard]] std::int32_t CountInGroup(std::int32_t group) const noexcept;

    /// All sprites and groups there are.
    [[nodiscard]] std::int32_t CountAll() const noexcept { return tree_.Count(); }

    // The frame

    /// Brings the frame up to date. Afterwards Changed() lists what it painted.
    void Refresh() { composer_.Refresh(); }

    /// The rectangles of the frame, in frame pixels, that the last Refresh painted.
    [[nodiscard]] const std::vector<Rect>& Changed() const noexcept { return composer_.Changed(); }

    /// The picture as of the last Refresh: board size times scale, rounded up; every pixel opaque.
    [[nodiscard]] const Picture& Frame() const noexcept { return composer_.Frame(); }

    // The mouse: the front end hands events in, the surface hands them on with the sprite they hit.

    /// Listeners are called in the order in which they were added, and must outlive the surface or
    /// be removed; neither adds nor removes one while an event is handed on.
    void AddListener(SurfaceEvents& listener);
    void RemoveListener(SurfaceEvents& listener);

    void MouseDown(MouseButton button, std::int32_t x, std::int32_t y);
    void MouseUp(MouseButton button, std::int32_t x, std::int32_t y);
    void MouseMove(std::int32_t x, std::int32_t y);

private:
    std::int32_t movePointer(std::int32_t x, std::int32_t y);
    [[nodiscard]] bool isPointerOver(std::int32_t index) const noexcept;

    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    double scale_ = 1;
    BitmapStore bitmaps_;
    SpriteTree tree_;
    FrameComposer composer_{tree_, bitmaps_};
    std::vector<SurfaceEvents*> listeners_;
    Point pointer_{-1, -1};
};

} // namespace veltrix
