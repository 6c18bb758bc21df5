#pragma once

#include "board/Log.h"
#include "board/PictorATL.h"
#include "cli/Surroundings.h"
#include "instruments/Board.h"
#include "sim/Tick.h"
#include "sim/clsGraph.h"

#include <cstdint>
#include <filesystem>

namespace veltrix::cli {

/// A board with its tick, run by a simulated clock instead of a timer: tick k comes k times 10 ms
/// after the start, and the clock reads 0 before the first.
class Simulation {
public:
    /// The pictures are found from `applicationFolder`, for a screen on which one board pixel is
    /// `scale` pixels wide; without a folder no picture is loaded and the frame stays black. `log`
    /// must outlive the simulation. Throws std::runtime_error when there can be no such screen.
    Simulation(const std::filesystem::path& applicationFolder, double scale, Log& log);
    Simulation(const Simulation&) = delete;
    Simulation& operator=(const Simulation&) = delete;

    /// The next tick. What a part of the board throws ends this tick where it stands; the next one
    /// can run all the same.
    void RunTick();

    /// How many ticks there have been.
    [[nodiscard]] std::int64_t Ticks() const noexcept { return ticks_; }

    [[nodiscard]] Board& TheBoard() noexcept { return board_; }

    [[nodiscard]] const Board& TheBoard() const noexcept { return board_; }

    [[nodiscard]] const clsGraph& Graph() const noexcept { return graph_; }

    [[nodiscard]] bool BuzzerOn() const noexcept { return tick_.BuzzerOn(); }

    /// Where the pointer is and how loud the room is.
    [[nodiscard]] Surroundings& Around() noexcept { return around_; }

    /// The picture of the board as it is now, ticked or not.
    [[nodiscard]] const Picture& Frame();

private:
    PictorATL surface_; // before the board, whose wires leave it when they are destroyed
    Board board_;
    clsGraph graph_;
    Surroundings around_;
    Tick tick_;
    std::int64_t ticks_ = 0;
};

} // namespace veltrix::cli
