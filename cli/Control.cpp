#include "cli/Control.h"

#include "cli/Simulation.h"
#include "cli/WholeNumber.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

namespace veltrix::cli {

constexpr Control Control::all[] = {
    {"Sensor 1", Takes::Mode,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().Sensors[0].SetValue(value.x);
     }},
    {"Sensor 2", Takes::Mode,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().Sensors[1].SetValue(value.x);
     }},
    {"Drukknop 1", Takes::OnOff,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().PushButtons[0].SetValue(value.x != 0);
     }},
    {"Drukknop 2", Takes::OnOff,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().PushButtons[1].SetValue(value.x != 0);
     }},
    {"Comparator Regelaar", Takes::Level,
     [](Simulation& simulation, Point value) { simulation.TheBoard().Knobs.Comparator = value.x; }},
    {"Var. Spanning Regelaar", Takes::Level,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().Knobs.VariableVoltage = value.x;
     }},
    {"Puls Generator Regelaar", Takes::Level,
     [](Simulation& simulation, Point value) {
         simulation.TheBoard().Knobs.PulseGenerator = value.x;
     }},
    {"Geluids Sensor", Takes::Level,
     [](Simulation& simulation, Point value) { simulation.Around().SoundLevel = value.x; }},
    {"Pulsenteller Reset Drukknop", Takes::Nothing,
     [](Simulation& simulation, Point /*value*/) { simulation.TheBoard().Display.SetValue(0); }},
    {"Aanwijzer", Takes::Position,
     [](Simulation& simulation, Point value) { simulation.Around().PointerAt = value; }},
};

namespace {

std::int32_t numberUpTo(std::string_view text, std::int32_t most, const char* wanted) {
    const std::optional<std::int32_t> number = WholeNumber<std::int32_t>(text);
    if (!number.has_value() || *number < 0 || *number > most)
        throw std::runtime_error(wanted);
    return *number;
}

Point position(std::string_view text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::size_t begin = std::min(text.find_first_not_of(' ', end), text.size());
    const std::optional<std::int32_t> x = WholeNumber<std::int32_t>(text.substr(0, end));
    const std::optional<std::int32_t> y = WholeNumber<std::int32_t>(text.substr(begin));
    if (!x.has_value() || !y.has_value())
        throw std::runtime_error("two whole numbers, x y");
    return {*x, *y};
}

} // namespace

const Control* Control::Find(std::string_view name) noexcept {
    for (const Control& control : all)
        if (control.name_ == name)
            return &control;
    return nullptr;
}

std::string Control::Names() {
    std::string names;
    for (const Control& control : all)
        names.append(names.empty() ? "" : ", ").append(control.name_);
    return names;
}

Point Control::Parse(std::string_view text) const {
    switch (takes_) {
    case Takes::Mode:
        return {numberUpTo(text, 2, "a mode, 0, 1 or 2"), 0};
    case Takes::OnOff:
        return {numberUpTo(text, 1, "0 or 1"), 0};
    case Takes::Level:
        return {numberUpTo(text, level::High, "a level, a whole number from 0 to 50"), 0};
    case Takes::Position:
        return position(text);
    case Takes::Nothing:
        break;
    }
    return {};
}

} // namespace veltrix::cli
