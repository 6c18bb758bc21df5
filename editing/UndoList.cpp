#include "editing/UndoList.h"

#include "document/BoardDocument.h"

namespace veltrix {

void UndoList::Undo_AddThisState() {
    while (snapshots_.Count() > pointer_)
        snapshots_.Remove(snapshots_.Count());
    auto snapshot = std::make_shared<clsKorvelRWRam>();
    WriteTo(board_, *snapshot);
    snapshots_.Add(std::move(snapshot));
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
    if (pointer_ > snapshots_.Count()) {
        pointer_ = snapshots_.Count();
        messages_.Show("No more Redo's possible", ProgramTitle, Buttons::Ok);
        return;
    }
    load();
}

void UndoList::Undo_RemoveLastState() {
    snapshots_.Remove(pointer_);
    mnuUndo_Click();
}

void UndoList::Reset() {
    // The wire in hand belonged to the board that was replaced.
    looseWire_.Line.reset();
    snapshots_ = {};
    pointer_ = 0;
    Undo_AddThisState();
}

void UndoList::load() {
    clsKorvelRWRam& snapshot = *snapshots_.Item(pointer_);
    snapshot.ResetToStart();
    ReadFrom(board_, snapshot);
    enableMenu();
}

void UndoList::enableMenu() {
    menu_.SetUndoEnabled(pointer_ >= 2);
    menu_.SetRedoEnabled(pointer_ < snapshots_.Count());
}

} // namespace veltrix
