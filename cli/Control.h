#pragma once

#include "board/Types.h"

#include <string>
#include <string_view>

namespace veltrix::cli {

class Simulation;

/// Something on the board, or around it, that a script can operate.
class Control {
public:
    /// The control of that name, or null when there is none.
    [[nodiscard]] static const Control* Find(std::string_view name) noexcept;

    /// The names of all controls, separated by ", ".
    [[nodiscard]] static std::string Names();

    /// What `text` means to this control: a number in `x`, or a position. Throws std::runtime_error
    /// with what the control wants instead.
    [[nodiscard]] Point Parse(std::string_view text) const;

    /// Operates the control.
    void Set(Simulation& simulation, Point value) const { set_(simulation, value); }

private:
    /// What a control is set to.
    enum class Takes { Mode, OnOff, Level, Position, Nothing };

    using Setter = void (*)(Simulation& simulation, Point value);

    constexpr Control(std::string_view name, Takes takes, Setter set) noexcept
        : name_(name), takes_(takes), set_(set) {}

    static const Control all[];

    std::string_view name_;
    Takes takes_;
    Setter set_;
};

} // namespace veltrix::cli
