#pragma once

#include "board/SocketName.h"
#include "instruments/Board.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace veltrix::examples {

/// A board with a lesson, as it stands in examples/.
struct Example {
    struct Wire {
        SocketName From;
        SocketName To;
    };

    std::string Name; ///< of its file, without the extension
    std::vector<Wire> Wires{};
    std::array<std::int32_t, 2> SensorModes{};
    KnobLevels Knobs{};
};

/// All boards of examples/. A new one is added here; what else belongs to it stands in the
/// folder's README.
[[nodiscard]] const std::vector<Example>& AllExamples();

/// Writes the board's document, NAME.vtx, into a folder. Throws std::invalid_argument when a pupil
/// could not have wired the board like that: at a name that no wire can end on, a wire that is
/// there already, or outputs that are joined.
void WriteExample(const Example& example, const std::filesystem::path& folder);

} // namespace veltrix::examples
