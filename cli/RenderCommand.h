#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>

namespace veltrix::cli {

/// Runs a board and writes the picture of it, as the window would show it.
struct RenderCommand {
    std::string BoardPath;
    std::int64_t Ticks = 100;
    int Scale = 1; ///< pixels to a board pixel
    std::string OutPath;
    std::filesystem::path ApplicationFolder; ///< where the pictures are found

    /// Throws Fault. Ticks that fail and pictures that are missing are told on `errors`.
    void Execute(std::ostream& errors) const;
};

} // namespace veltrix::cli
