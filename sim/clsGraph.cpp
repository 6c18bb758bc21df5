#include "sim/clsGraph.h"

#include "board/Arithmetic.h"
#include "instruments/clsDisplay.h"

#include <algorithm>
#include <stdexcept>

namespace veltrix {

namespace {

const Sockets& s() {
    return Sockets::Get();
}

/// The colour number that shows a level: 8 at 0 V, 1 at 5 V.
std::int32_t colorOf(std::int32_t value) {
    return RoundToLong(8 - static_cast<double>(value) * 7 / level::High);
}

/// From this level on the transistor conducts and pulls its output low: 0.7 V.
constexpr std::int32_t conduction = 7;

} // namespace

// The table of known levels

void clsGraph::Clear() noexcept {
    count_ = 0;
    ++table_;
}

void clsGraph::AddPunt(const SocketName& naam, std::int32_t Value) {
    const auto index = static_cast<std::size_t>(count_) + 1;
    if (index >= punten_.size())
        throw std::out_of_range("the evaluator knows at most 100 levels");
    Note& note = noteOf(naam);
    // Held, so that the number of the name, where the note stands, means no other name meanwhile.
    punten_[index] = naam;
    ++count_;
    if (note.knownIn == table_)
        return;
    note.knownIn = table_;
    note.value = Value;
}

void clsGraph::AddBits(const FourBits& outputs, std::int32_t number) {
    for (std::size_t bit = 0; bit < outputs.size(); ++bit)
        AddPunt(outputs[bit], level::Of((number >> bit & 1) != 0));
}

std::int32_t clsGraph::GetPuntValueByName(const SocketName& naam,
                                          std::int32_t standard) const noexcept {
    return Level(naam).value_or(standard);
}

std::optional<std::int32_t> clsGraph::Level(const SocketName& naam) const noexcept {
    const Note* note = findNote(naam);
    if (note == nullptr || note->knownIn != table_)
        return std::nullopt;
    return note->value;
}

bool clsGraph::PuntExists(const SocketName& naam) const noexcept {
    return Level(naam).has_value();
}

bool clsGraph::IsConnected(const SocketName& naam) const noexcept {
    const Note* note = findNote(naam);
    return note != nullptr && note->connectedIn == run_;
}

bool clsGraph::ready(const SocketName& naam) const noexcept {
    return PuntExists(naam) || !IsConnected(naam);
}

std::optional<std::int32_t> clsGraph::wiredLevel(const SocketName& naam) const noexcept {
    return IsConnected(naam) ? Level(naam) : std::nullopt;
}

bool clsGraph::IsHigh(const SocketName& naam) const noexcept {
    return GetPuntValueByName(naam, level::Low) == level::High;
}

void clsGraph::noteConnections(const Collection<clsLine>& lines) {
    ++run_;
    for (const auto& line : lines) {
        noteOf(line->naam1).connectedIn = run_;
        noteOf(line->naam2).connectedIn = run_;
    }
}

clsGraph::Note& clsGraph::noteOf(const SocketName& naam) {
    if (naam.Id() >= notes_.size())
        notes_.resize(naam.Id() + std::size_t{1});
    return notes_[naam.Id()];
}

const clsGraph::Note* clsGraph::findNote(const SocketName& naam) const noexcept {
    return naam.Id() < notes_.size() ? &notes_[naam.Id()] : nullptr;
}

// The run

bool clsGraph::Run(const Collection<clsLine>& lines) {
    noteConnections(lines);
    bool changedW = false;
    bool changedM = false;
    do {
        changedW = PropagateWires(lines);
        changedM = EvaluateModules();
    } while (changedW || changedM);
    return false;
}

bool clsGraph::PropagateWires(const Collection<clsLine>& lines) {
    bool changed = false;
    for (const auto& line : lines) {
        if (line->done)
            continue;
        const auto carry = [&](const SocketName& from, const SocketName& to) {
            if (!PuntExists(from) || PuntExists(to))
                return;
            const std::int32_t value = GetPuntValueByName(from, level::Low);
            AddPunt(to, value);
            line->SetColor(colorOf(value));
            line->done = true;
            changed = true;
        };
        // Both ends known, and neither way carries: two sources hold each other, and the wire keeps
        // the colour it had.
        carry(line->naam1, line->naam2);
        carry(line->naam2, line->naam1);
    }
    return changed;
}

bool clsGraph::EvaluateModules() {
    bool changed = false;
    // The order shows on the board: a relay whose control comes later in the run stays open.
    changed |= orGate();
    changed |= andGate();
    changed |= memoryCell();
    changed |= invertor();
    changed |= comparator();
    changed |= transistor();
    changed |= relayContact(s().RelaisIngang1, s().RelaisUitgang1);
    changed |= relayContact(s().RelaisUitgang1, s().RelaisIngang1);
    changed |= relayContact(s().RelaisIngang2, s().RelaisUitgang2);
    changed |= relayContact(s().RelaisUitgang2, s().RelaisIngang2);
    changed |= pulseCounter();
    changed |= adConverter();
    return changed;
}

bool clsGraph::orGate() {
    if (PuntExists(s().OfUit) || !ready(s().OfIngang1) || !ready(s().OfIngang2))
        return false;
    AddPunt(s().OfUit, level::Of(IsHigh(s().OfIngang1) || IsHigh(s().OfIngang2)));
    return true;
}

bool clsGraph::andGate() {
    if (PuntExists(s().EnUit) || !ready(s().EnIngang1) || !ready(s().EnIngang2))
        return false;
    AddPunt(s().EnUit, level::Of(IsHigh(s().EnIngang1) && IsHigh(s().EnIngang2)));
    return true;
}

bool clsGraph::memoryCell() {
    if (PuntExists(s().GeheugenUit) || !ready(s().GeheugenSet) || !ready(s().GeheugenReset))
        return false;
    if (IsHigh(s().GeheugenReset))
        memoryLevel_ = level::Low;
    if (IsHigh(s().GeheugenSet)) // after Reset, so that Set wins when both are high
        memoryLevel_ = level::High;
    AddPunt(s().GeheugenUit, memoryLevel_);
    return true;
}

bool clsGraph::invertor() {
    if (PuntExists(s().InvertorUitgang) || !ready(s().InvertorIngang))
        return false;
    AddPunt(s().InvertorUitgang,
            CheckedSubtract(level::High, wiredLevel(s().InvertorIngang).value_or(level::Low)));
    return true;
}

bool clsGraph::comparator() {
    if (PuntExists(s().ComparatorUit) || !ready(s().ComparatorIn))
        return false;
    const std::optional<std::int32_t> in = wiredLevel(s().ComparatorIn);
    AddPunt(s().ComparatorUit, level::Of(in.has_value() && *in >= comparatorValue_));
    return true;
}

bool clsGraph::transistor() {
    if (PuntExists(s().TransistorUit) || !ready(s().TransistorIn))
        return false;
    const std::optional<std::int32_t> in = wiredLevel(s().TransistorIn);
    AddPunt(s().TransistorUit, level::Of(in.has_value() && *in < conduction));
    return true;
}

bool clsGraph::relayContact(const SocketName& from, const SocketName& to) {
    if (PuntExists(to) || !PuntExists(from))
        return false;
    AddPunt(to, IsHigh(s().RelaisControle) ? GetPuntValueByName(from, level::Low) : level::Low);
    return true;
}

bool clsGraph::pulseCounter() {
    if (PuntExists(s().TellerUitgangen) || !ready(s().TellerPulsen) || !ready(s().TellerAanUit) ||
        !ready(s().TellerReset))
        return false;
    const std::optional<std::int32_t> pulse = Level(s().TellerPulsen);
    const bool enabled = GetPuntValueByName(s().TellerAanUit, level::High) == level::High;
    if (IsHigh(s().TellerReset)) {
        display_->SetValue(0);
    } else if (enabled && pulse.has_value()) {
        if (*pulse == level::High && lastPulseLevel_ == level::Low)
            display_->IncreaseValue();
        lastPulseLevel_ = *pulse;
    }
    AddPunt(s().TellerUitgangen, 0);
    return true;
}

bool clsGraph::adConverter() {
    if (PuntExists(s().AdUitgang.front()) || !ready(s().AdIn))
        return false;
    const double in = wiredLevel(s().AdIn).value_or(level::Low);
    const std::int32_t n = MinOf({RoundToLong(in * 16 / level::High), 15});
    AddBits(s().AdUitgang, n);
    return true;
}

std::int32_t clsGraph::MinOf(Levels values) noexcept {
    return std::min(values);
}

} // namespace veltrix
