#pragma once

#include "document/Dialogs.h"
#include "editing/EditMode.h"
#include "editing/UndoList.h"
#include "editing/clsCursor.h"
#include "instruments/Board.h"
#include "sim/Tick.h"

#include <cstdint>

namespace veltrix {

/// Check marks of the three menu items that choose the edit mode: exactly one is set.
class EditModeMenu {
public:
    virtual ~EditModeMenu() = default;
    virtual void SetCheckedMode(EditMode Mode) = 0;
};

/// Turns mouse events on the board into edits: drawing and removing wires, operating controls.
/// Events over the open knob, or over any other mouse-sensitive sprite, are not the board's.
class BoardInteraction : public SurfaceEvents, public PointerFollower {
public:
    /// All of it must outlive the interaction; `cursor` is constructed by the caller.
    BoardInteraction(Board& board, clsCursor& cursor, UndoList& undo, EditModeMenu& menu,
                     MessageBox& messages) noexcept
        : board_(board), cursor_(cursor), undo_(undo), menu_(menu), messages_(messages) {}

    /// Chooses the mode and checks its menu item. Drawing wires clears the marks that removing
    /// left behind.
    void SetMode(EditMode Mode);

    [[nodiscard]] EditMode Mode() const noexcept { return mode_; }

    /// Throws std::out_of_range when an older wire is removed (see remove()), and what an undo
    /// state throws when the board has grown too large for one.
    void MouseDown(std::int32_t sprite, MouseButton button, std::int32_t x,
                   std::int32_t y) override;
    void MouseUp(std::int32_t sprite, MouseButton button, std::int32_t x, std::int32_t y) override;
    void MouseMove(std::int32_t sprite, std::int32_t x, std::int32_t y) override;

    /// The pointer left the board: no socket is marked.
    void PointerLeft() noexcept { hovering_ = false; }

    /// Lets go of the loose wire, or else closes the knob.
    void Escape();

    /// The shape that tells what a left click at a board position would do.
    [[nodiscard]] PointerShape ShapeAt(std::int32_t x, std::int32_t y) const;

    void MoveLooseEnd() override;
    void MarkSocket() override;

private:
    void operate(const SocketName& name);
    void toggle(clsLED& button);
    void nextMode(clsSensor& sensor);
    void openKnob(const SocketName& name, std::int32_t x, std::int32_t y, std::int32_t value);
    void draw(const SocketName& name);
    void finishWire(const SocketName& name);
    void remove(std::int32_t x, std::int32_t y);
    [[nodiscard]] bool LineExists(const SocketName& a, const SocketName& b) const noexcept;
    [[nodiscard]] const clsLine* nearest(std::int32_t x, std::int32_t y) const;

    Board& board_;
    clsCursor& cursor_;
    UndoList& undo_;
    EditModeMenu& menu_;
    MessageBox& messages_;

    EditMode mode_ = EditMode::DrawWires;
    Point pointer_;
    Point hover_; // the socket under the pointer
    Bool16 hovering_;
};

} // namespace veltrix
