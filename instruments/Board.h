#pragma once

#include "board/Collection.h"
#include "board/PictorATL.h"
#include "board/clsBordLines.h"
#include "board/clsLine.h"
#include "board/clsSnaps.h"
#include "instruments/clsDisplay.h"
#include "instruments/clsLED.h"
#include "instruments/clsSensor.h"
#include "instruments/clsVoltControl.h"

#include <array>
#include <cstdint>
#include <memory>

namespace veltrix {

/// The levels that the three knobs were turned to, in tenths of a volt. A document may hold any
/// number.
struct KnobLevels {
    std::int32_t Comparator = 0;
    std::int32_t VariableVoltage = 0;
    std::int32_t PulseGenerator = 0;
};

/// Everything that is on the board: the catalogue of sockets, the wires and the instruments. The
/// simulation, the documents and the editing all work on this one object.
struct Board {
    static constexpr std::int32_t Width = 415; ///< board pixels
    static constexpr std::int32_t Height = 376;

    /// Puts the board's picture and, over it, the instruments onto a surface that has been started
    /// and outlives the board. Comes once, before any other use.
    void Constructor(PictorATL& surface);

    /// A wire from one socket to another, placed by the catalogue (an unknown name lies at (0, 0))
    /// and added after all others.
    void AddLine(const SocketName& naam1, const SocketName& naam2);

    clsSnaps Snaps;
    clsBordLines BordLines;
    Collection<clsLine> Lines;
    /// The wire that is being drawn: its first end is placed, its second one follows the pointer.
    /// None between wires.
    std::shared_ptr<clsLine> LooseWire;
    clsDisplay Display;
    std::array<clsLED, 4> LEDs;
    std::array<clsLED, 2> PushButtons; ///< a pressed push button is a lit lamp
    std::array<clsSensor, 2> Sensors;
    clsVoltControl Knob;
    KnobLevels Knobs;
};

} // namespace veltrix
