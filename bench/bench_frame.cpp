// Composing a frame of the typical board: the change and the painting of what it changed.

#include "bench/Boards.h"

namespace veltrix::bench {
namespace {

/// Changes the board one way when `odd`, and back when not.
using Change = void (*)(Board& board, bool odd);

void nothing(Board& /*board*/, bool /*odd*/) {}

void oneLed(Board& board, bool odd) {
    board.LEDs[3].SetValue(odd);
}

void everyWire(Board& board, bool odd) {
    for (const auto& line : board.Lines)
        line->SetColor(odd ? 2 : 7);
}

struct FrameBench : Bench {
    FrameBench() {
        typical(*this);
        simulation.RunTick();
        (void)simulation.Frame();
    }

    /// The bytes of the frame that a change makes different.
    std::size_t changedBytes(Change change) {
        change(board(), false);
        const Picture before = simulation.Frame();
        change(board(), true);
        const Picture& after = simulation.Frame();
        std::size_t pixels = 0;
        for (std::size_t i = 0; i < before.pixels.size(); ++i)
            pixels += before.pixels[i] != after.pixels[i] ? 1U : 0U;
        return pixels * sizeof(std::uint32_t);
    }
};

void Frame(benchmark::State& state, Change change) {
    FrameBench bench;
    bool odd = false;
    for (auto _ : state) {
        odd = !odd;
        change(bench.board(), odd);
        benchmark::DoNotOptimize(bench.simulation.Frame().pixels.data());
    }
}

void FrameMemcpy(benchmark::State& state, Change change) {
    copyBytes(state, FrameBench().changedBytes(change));
}

BENCHMARK_CAPTURE(Frame, nothing, &nothing);
BENCHMARK_CAPTURE(FrameMemcpy, nothing, &nothing);
BENCHMARK_CAPTURE(Frame, one_led, &oneLed);
BENCHMARK_CAPTURE(FrameMemcpy, one_led, &oneLed);
BENCHMARK_CAPTURE(Frame, every_wire, &everyWire);
BENCHMARK_CAPTURE(FrameMemcpy, every_wire, &everyWire);

} // namespace
} // namespace veltrix::bench
