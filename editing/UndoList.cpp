#include "editing/UndoList.h"

#include "document/BoardDocument.h"

namespace veltrix {

void UndoList::Undo_AddThisState() {
    while (states_.Count() > pointer_)
        states_.Remove(states_.Count());
    enableMenu(); // the board may not fit in a state
    auto state = std::make_shared<clsKorvelRWRam>();
    WriteTo(board_, *state);
    states_.Add(std::move(state));
    ++pointer_;
    enableMenu();
}

void UndoList::mnuUndo_Click() {
    --pointer_;
    if (pointer_ < 1) {
        pointer_ = 1;
        messages_.Show("No more Undo's possible", ProgramTitle, Buttons::Ok);
        return;
    }
    load();
}

void UndoList::mnuRedo_Click() {
    ++pointer_;
    if (pointer_ > states_.Count()) {
        pointer_ = states_.Count();
        messages_.Show("No more Redo's possible", ProgramTitle, Buttons::Ok);
        return;
    }
    load();
}

void UndoList::Undo_RemoveLastState() {
    states_.Remove(pointer_);
    mnuUndo_Click();
}

void UndoList::Reset() {
    // The loose wire belonged to the board that was replaced.
    board_.LooseWire.reset();
    states_ = {};
    pointer_ = 0;
    Undo_AddThisState();
}

void UndoList::load() {
    clsKorvelRWRam& state = *states_.Item(pointer_);
    state.ResetToStart();
    ReadFrom(board_, state);
    enableMenu();
}

void UndoList::enableMenu() {
    menu_.SetUndoEnabled(pointer_ >= 2);
    menu_.SetRedoEnabled(pointer_ < states_.Count());
}

} // namespace veltrix
