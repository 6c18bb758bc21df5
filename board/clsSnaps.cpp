#include "board/clsSnaps.h"

#include "board/Arithmetic.h"

#include <stdexcept>

namespace veltrix {

namespace {

/// What the mouse does with a snap.
enum class Use {
    Wire,    // a wire may end here
    Operate, // a push button, knob or reset button
    Area     // a sensor: clicked, but its wires end on the yellow socket beside it
};

struct Fact {
    const char* naam;
    std::int32_t x;
    std::int32_t y;
    std::int32_t Radius;
    Use use;
    Soort soort;
};

// The coordinates follow the printed board, uneven pixels included. The order is that of the hit
// test: where the zones of two AD converter outputs overlap, the earlier row wins.
constexpr Fact facts[] = {
    {"Sensor 1", 44, 49, 24, Use::Area, Soort::Output},
    {"Sensor 2", 44, 102, 24, Use::Area, Soort::Output},
    {"Geluids Sensor", 31, 145, 10, Use::Area, Soort::Output},
    {"Sensor 1 Uit Geel", 98, 50, 10, Use::Wire, Soort::Output},
    {"Sensor 2 Uit Geel", 98, 101, 10, Use::Wire, Soort::Output},
    {"Geluids Sensor Uit Geel", 98, 144, 10, Use::Wire, Soort::Output},
    {"Drukknop 1 Uit Geel", 98, 179, 10, Use::Wire, Soort::Output},
    {"Drukknop 2 Uit Geel", 98, 214, 10, Use::Wire, Soort::Output},
    {"Var. Spanning Uit Geel", 98, 256, 10, Use::Wire, Soort::Output},
    {"Puls Generator Uit Geel", 98, 295, 10, Use::Wire, Soort::Output},
    {"Transistor In", 133, 41, 10, Use::Wire, Soort::Input},
    {"EN-poort Ingang 1", 133, 110, 10, Use::Wire, Soort::Input},
    {"EN-poort Ingang 2", 133, 145, 10, Use::Wire, Soort::Input},
    {"Geheugen Set (In)", 134, 180, 10, Use::Wire, Soort::Input},
    {"Geheugen Reset (In)", 134, 215, 10, Use::Wire, Soort::Input},
    {"Transistor Uit", 199, 41, 10, Use::Wire, Soort::Output},
    {"EN-poort Uit", 199, 128, 10, Use::Wire, Soort::Output},
    {"Geheugen Uit", 200, 198, 10, Use::Wire, Soort::Output},
    {"Comparator In", 222, 42, 10, Use::Wire, Soort::Input},
    {"Comparator Uit", 287, 41, 10, Use::Wire, Soort::Output},
    {"OF-poort Ingang 1", 222, 111, 10, Use::Wire, Soort::Input},
    {"OF-poort Ingang 2", 222, 145, 10, Use::Wire, Soort::Input},
    {"OF-poort Uit", 287, 128, 10, Use::Wire, Soort::Output},
    {"Invertor Ingang", 222, 197, 10, Use::Wire, Soort::Input},
    {"Invertor Uitgang", 288, 197, 10, Use::Wire, Soort::Output},
    {"LED 1 Ingang", 322, 41, 10, Use::Wire, Soort::Input},
    {"LED 2 Ingang", 322, 75, 10, Use::Wire, Soort::Input},
    {"LED 3 Ingang", 323, 110, 10, Use::Wire, Soort::Input},
    {"LED 4 Ingang", 323, 145, 10, Use::Wire, Soort::Input},
    {"Zoemer", 323, 197, 10, Use::Wire, Soort::Input},
    {"Relais Controle (In)", 323, 245, 10, Use::Wire, Soort::Input},
    {"Relais Ingang 1 (in/uit)", 368, 246, 10, Use::Wire, Soort::Contact},
    {"Relais Ingang 2 (in/uit)", 393, 245, 10, Use::Wire, Soort::Contact},
    {"Relais Uitgang 1 (in/uit)", 369, 285, 10, Use::Wire, Soort::Contact},
    {"Relais Uitgang 2 (in/uit)", 394, 285, 10, Use::Wire, Soort::Contact},
    {"Pulsenteller Uitgang 1", 288, 250, 10, Use::Wire, Soort::Output},
    {"Pulsenteller Uitgang 2", 266, 249, 10, Use::Wire, Soort::Output},
    {"Pulsenteller Uitgang 4", 244, 249, 10, Use::Wire, Soort::Output},
    {"Pulsenteller Uitgang 8", 222, 250, 10, Use::Wire, Soort::Output},
    {"Pulsenteller Tel pulsen (In)", 133, 249, 10, Use::Wire, Soort::Input},
    {"Pulsenteller Teller aan/uit (In)", 133, 281, 10, Use::Wire, Soort::Input},
    {"Pulsenteller Reset (In)", 134, 305, 10, Use::Wire, Soort::Input},
    {"AD-omzetter In", 30, 336, 10, Use::Wire, Soort::Input},
    {"AD-omzetter Uitgang 8", 51, 335, 10, Use::Wire, Soort::Output},
    {"AD-omzetter Uitgang 4", 70, 335, 10, Use::Wire, Soort::Output},
    {"AD-omzetter Uitgang 2", 87, 335, 10, Use::Wire, Soort::Output},
    {"AD-omzetter Uitgang 1", 104, 335, 10, Use::Wire, Soort::Output},
    {"Drukknop 1", 30, 180, 10, Use::Operate, Soort::None},
    {"Drukknop 2", 29, 214, 10, Use::Operate, Soort::None},
    {"Var. Spanning In Zwart", 31, 256, 10, Use::Wire, Soort::None},
    {"Var. Spanning Regelaar", 63, 256, 10, Use::Operate, Soort::None},
    {"Puls Generator Regelaar", 64, 296, 10, Use::Operate, Soort::None},
    {"Pulsenteller Reset Drukknop", 200, 305, 10, Use::Operate, Soort::None},
    {"Comparator Regelaar", 266, 72, 10, Use::Operate, Soort::None},
};

} // namespace

clsSnaps::clsSnaps() {
    for (const Fact& fact : facts)
        AddSnap(fact.x, fact.y, static_cast<float>(fact.Radius), fact.naam, fact.use == Use::Wire,
                fact.use == Use::Operate, static_cast<std::int32_t>(fact.soort));
}

void clsSnaps::AddSnap(std::int32_t x, std::int32_t y, float Radius, const std::string& naam,
                       Bool16 Connectable, Bool16 Changeable, std::int32_t soort) {
    const auto index = static_cast<std::size_t>(count_) + 1;
    if (index >= snaps_.size())
        throw std::out_of_range("the catalogue holds at most 100 snaps");
    snaps_[index] = {x,          y,    RoundToLong(static_cast<double>(Radius)), naam, Connectable,
                     Changeable, soort};
    ++count_;
}

std::string clsSnaps::GetSnapItemName(std::int32_t Index) const {
    if (Index < 0 || Index >= static_cast<std::int32_t>(snaps_.size()))
        throw std::out_of_range("no snap can have that position");
    return snaps_[static_cast<std::size_t>(Index)].naam;
}

std::int32_t clsSnaps::GetXbyName(const SocketName& naam) const noexcept {
    const Snap* snap = find(naam);
    return snap != nullptr ? snap->x : 0;
}

std::int32_t clsSnaps::GetYbyName(const SocketName& naam) const noexcept {
    const Snap* snap = find(naam);
    return snap != nullptr ? snap->y : 0;
}

std::int32_t clsSnaps::GetConnectablebyName(const SocketName& naam) const noexcept {
    const Snap* snap = find(naam);
    return snap != nullptr ? snap->Connectable.AsLong() : 0;
}

std::int32_t clsSnaps::GetSoortbyName(const SocketName& naam) const noexcept {
    const Snap* snap = find(naam);
    return snap != nullptr ? snap->soort : 0;
}

std::string clsSnaps::GetSnapName(std::int32_t x, std::int32_t y) const {
    for (std::int32_t i = 1; i <= count_; ++i) {
        const Snap& snap = snaps_[static_cast<std::size_t>(i)];
        if (x > CheckedSubtract(snap.x, snap.Radius) && x < CheckedAdd(snap.x, snap.Radius) &&
            y > CheckedSubtract(snap.y, snap.Radius) && y < CheckedAdd(snap.y, snap.Radius))
            return snap.naam;
    }
    return {};
}

const clsSnaps::Snap* clsSnaps::find(const SocketName& naam) const noexcept {
    for (std::int32_t i = 1; i <= count_; ++i) {
        const Snap& snap = snaps_[static_cast<std::size_t>(i)];
        if (snap.naam == naam)
            return &snap;
    }
    return nullptr;
}

} // namespace veltrix
