// One tick: evaluation, and exchange with a surface on which nothing changes.

#include "bench/Boards.h"

namespace veltrix::bench {
namespace {

void settle(Bench& bench) {
    for (int tick = 0; tick < 10; ++tick)
        bench.simulation.RunTick();
}

void Tick(benchmark::State& state, Builder build) {
    Bench bench;
    build(bench);
    settle(bench);
    for (auto _ : state)
        bench.simulation.RunTick();
    state.counters["wires"] = bench.board().Lines.Count();
}

/// A tick reads both ends of each wire and writes a level for each socket that it reaches.
void TickMemcpy(benchmark::State& state, Builder build) {
    Bench bench;
    build(bench);
    settle(bench);
    const auto wires = static_cast<std::size_t>(bench.board().Lines.Count());
    copyBytes(state, wires * 2 * sizeof(std::uint32_t) + bench.levels() * sizeof(std::int32_t));
}

BENCHMARK_CAPTURE(Tick, empty, &empty);
BENCHMARK_CAPTURE(TickMemcpy, empty, &empty);
BENCHMARK_CAPTURE(Tick, typical, &typical);
BENCHMARK_CAPTURE(TickMemcpy, typical, &typical);
BENCHMARK_CAPTURE(Tick, fullest, &fullest);
BENCHMARK_CAPTURE(TickMemcpy, fullest, &fullest);

} // namespace
} // namespace veltrix::bench
