#include "editing/BoardInteraction.h"

#include "editing/CorrectInputOutput.h"

namespace veltrix {

namespace {

// Beside the module that each regulator belongs to, clear of its sockets.
constexpr Point comparatorKnob{100, 150};
constexpr Point variableVoltageKnob{236, 90};
constexpr Point pulseGeneratorKnob{276, 90};

} // namespace

void BoardInteraction::SetMode(EditMode Mode) {
    menu_.SetCheckedMode(Mode);
    mode_ = Mode;
    if (Mode == EditMode::DrawWires)
        for (const auto& line : board_.Lines)
            line->SetHighlight(false);
}

void BoardInteraction::MouseDown(std::int32_t sprite, MouseButton button, std::int32_t x,
                                 std::int32_t y) {
    if (board_.Knob.InBound() || sprite != 0)
        return;
    if (mode_ == EditMode::RemoveWires) {
        if (button == MouseButton::Left)
            remove(x, y);
        return;
    }
    if (button == MouseButton::Right) {
        board_.LooseWire.reset();
        return;
    }
    const SocketName name = board_.Snaps.GetSnapName(x, y);
    operate(name);
    if (mode_ == EditMode::DrawWires && board_.Snaps.GetConnectablebyName(name) != 0)
        draw(name);
}

void BoardInteraction::MouseUp(std::int32_t /*sprite*/, MouseButton /*button*/, std::int32_t /*x*/,
                               std::int32_t /*y*/) {}

void BoardInteraction::MouseMove(std::int32_t sprite, std::int32_t x, std::int32_t y) {
    if (board_.Knob.InBound() || sprite != 0)
        return;
    if (mode_ == EditMode::RemoveWires) {
        const clsLine* marked = nearest(x, y);
        for (const auto& line : board_.Lines)
            line->SetHighlight(marked != nullptr && line.get() == marked);
        return;
    }
    pointer_ = {x, y};
    const SocketName name = board_.Snaps.GetSnapName(x, y);
    hover_ = {board_.Snaps.GetXbyName(name), board_.Snaps.GetYbyName(name)};
    const bool onlyWired =
        mode_ == EditMode::Operate && board_.Snaps.GetConnectablebyName(name) != 0;
    hovering_ = !name.empty() && !onlyWired;
}

void BoardInteraction::Escape() {
    if (board_.LooseWire != nullptr)
        board_.LooseWire.reset();
    else
        board_.Knob.Hide();
}

PointerShape BoardInteraction::ShapeAt(std::int32_t x, std::int32_t y) const {
    if (board_.Knob.InBound())
        return PointerShape::Hand;
    if (mode_ == EditMode::RemoveWires)
        return PointerShape::Arrow;
    const SocketName name = board_.Snaps.GetSnapName(x, y);
    if (board_.Snaps.GetConnectablebyName(name) != 0)
        return mode_ == EditMode::DrawWires ? PointerShape::Cross : PointerShape::Arrow;
    // The sound sensor has a place in the catalogue, but a click does nothing to it.
    return name.empty() || name == "Geluids Sensor" ? PointerShape::Arrow : PointerShape::Hand;
}

void BoardInteraction::MoveLooseEnd() {
    if (board_.LooseWire != nullptr && board_.LooseWire->Valid1() != 0)
        board_.LooseWire->SetCoords(2, pointer_.x, pointer_.y);
}

void BoardInteraction::MarkSocket() {
    if (hovering_)
        cursor_.ShowPoint(hover_.x, hover_.y);
    else
        cursor_.Hide();
}

void BoardInteraction::operate(const SocketName& name) {
    if (name == "Sensor 1")
        nextMode(board_.Sensors[0]);
    else if (name == "Sensor 2")
        nextMode(board_.Sensors[1]);
    else if (name == "Drukknop 1")
        toggle(board_.PushButtons[0]);
    else if (name == "Drukknop 2")
        toggle(board_.PushButtons[1]);
    else if (name == "Comparator Regelaar")
        openKnob(name, comparatorKnob.x, comparatorKnob.y, board_.Knobs.Comparator);
    else if (name == "Var. Spanning Regelaar")
        openKnob(name, variableVoltageKnob.x, variableVoltageKnob.y, board_.Knobs.VariableVoltage);
    else if (name == "Puls Generator Regelaar")
        openKnob(name, pulseGeneratorKnob.x, pulseGeneratorKnob.y, board_.Knobs.PulseGenerator);
    else if (name == "Pulsenteller Reset Drukknop")
        board_.Display.SetValue(0); // makes no undo state, as counting makes none
}

void BoardInteraction::toggle(clsLED& button) {
    button.SetValue(!button.Value());
    undo_.Undo_AddThisState();
}

void BoardInteraction::nextMode(clsSensor& sensor) {
    sensor.NextValue();
    undo_.Undo_AddThisState();
}

void BoardInteraction::openKnob(const SocketName& name, std::int32_t x, std::int32_t y,
                                std::int32_t value) {
    board_.Knob.Move(x, y);
    board_.Knob.naam = name;
    board_.Knob.SetValue(value);
}

void BoardInteraction::draw(const SocketName& name) {
    if (board_.LooseWire == nullptr)
        board_.LooseWire = board_.BordLines.CreateLine();
    clsLine& line = *board_.LooseWire;
    if (line.Valid1() == 0) {
        line.SetCoords(1, board_.Snaps.GetXbyName(name), board_.Snaps.GetYbyName(name));
        line.SetColor(clsBordLines::ColorLow);
        line.naam1 = name;
    } else if (!(line.naam1 == name)) {
        finishWire(name);
    }
}

void BoardInteraction::finishWire(const SocketName& name) {
    clsLine& line = *board_.LooseWire;
    if (LineExists(line.naam1, name)) {
        messages_.Show("Deze lijn bestaat al.", "Veltrix 2", Buttons::Ok);
        return;
    }
    line.SetCoords(2, board_.Snaps.GetXbyName(name), board_.Snaps.GetYbyName(name));
    line.naam2 = name;
    board_.Lines.Add(std::move(board_.LooseWire));
    undo_.Undo_AddThisState();
    if (!CorrectInputOutput(board_, messages_))
        undo_.Undo_RemoveLastState();
}

void BoardInteraction::remove(std::int32_t x, std::int32_t y) {
    const clsLine* removed = nearest(x, y);
    // The walk goes on to the position that was the last one before the removal. Unless that very
    // wire was removed, nothing is there any more, and the collection's error ends the click: the
    // wire is gone, but no undo state is recorded.
    const std::int32_t count = board_.Lines.Count();
    for (std::int32_t i = 1; i <= count; ++i)
        if (board_.Lines.Item(i).get() == removed)
            board_.Lines.Remove(i);
    undo_.Undo_AddThisState();
}

bool BoardInteraction::LineExists(const SocketName& a, const SocketName& b) const noexcept {
    for (const auto& line : board_.Lines)
        if ((line->naam1 == a && line->naam2 == b) || (line->naam1 == b && line->naam2 == a))
            return true;
    return false;
}

const clsLine* BoardInteraction::nearest(std::int32_t x, std::int32_t y) const {
    const clsLine* nearest = nullptr;
    std::int32_t best = 10000000;
    for (const auto& line : board_.Lines) {
        const std::int32_t distance = line->Distance(x, y);
        if (distance < best) {
            best = distance;
            nearest = line.get();
        }
    }
    return nearest;
}

} // namespace veltrix
