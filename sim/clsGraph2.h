#pragma once

#include "board/Collection.h"
#include "board/SocketName.h"
#include "board/clsLine.h"
#include "board/clsSnaps.h"

#include <string>

namespace veltrix {

/// Finds outputs that wires join together, which on a real board would damage the modules.
class clsGraph2 {
public:
    /// One line for every net that holds two or more outputs, each naming them in the order in
    /// which the net reaches them ("A" en "B", then a line break); empty when all is well. An
    /// output at which a closed loop of wires meets itself counts twice. Leaves `done` of every
    /// wire true.
    [[nodiscard]] std::string Check(const Collection<clsLine>& lines, const clsSnaps& snaps);

    /// The rest of the net that reaches on from a socket over wires that are not yet done: every
    /// name after a "|", with empty pieces in between.
    [[nodiscard]] std::string Check2(const Collection<clsLine>& lines, const SocketName& puntnaam);
};

} // namespace veltrix
