#pragma once

#include "board/Collection.h"
#include "document/Dialogs.h"
#include "document/FileCommands.h"
#include "document/clsKorvelRWRam.h"
#include "instruments/Board.h"

#include <cstdint>

namespace veltrix {

/// The two menu items that the undo list enables and disables.
class UndoMenu {
public:
    virtual ~UndoMenu() = default;
    virtual void SetUndoEnabled(bool Enabled) = 0;
    virtual void SetRedoEnabled(bool Enabled) = 0;
};

/// The undo states: the whole board as it was after each edit, and a pointer to the one that the
/// board shows. Once the first state exists the pointer is 1 to the number of states; undo is
/// enabled from 2 on, redo while there are states behind the pointer.
class UndoList : public History {
public:
    /// All of it must outlive the list.
    UndoList(Board& board, UndoMenu& menu, MessageBox& messages) noexcept
        : board_(board), menu_(menu), messages_(messages) {}

    /// Drops the states that were undone and records the board as it is now. Throws
    /// std::out_of_range when the board does not fit in a state; the undone ones are gone then.
    void Undo_AddThisState() override;

    /// Takes the board back one state, or forward one; shows a message when there is none.
    void mnuUndo_Click();
    void mnuRedo_Click();

    /// Drops the state that was just recorded and takes the board back to the one before it.
    void Undo_RemoveLastState();

    [[nodiscard]] std::int32_t Count() const noexcept { return states_.Count(); }

    [[nodiscard]] std::int32_t Position() const noexcept { return pointer_; }

    void Reset() override;

    [[nodiscard]] bool Changed() const override { return pointer_ > 1; }

private:
    void load();
    void enableMenu();

    Board& board_;
    UndoMenu& menu_;
    MessageBox& messages_;
    Collection<clsKorvelRWRam> states_;
    std::int32_t pointer_ = 0;
};

} // namespace veltrix
