#pragma once

#include "board/Log.h"
#include "cli/Simulation.h"
#include "sim/clsGraph2.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::bench {

/// A number measured on a board that is not what it should be would be worse than none.
[[noreturn]] inline void giveUp(const std::string& reason) {
    std::cerr << reason << '\n';
    std::exit(1);
}

class StrictLog final : public Log {
public:
    void Write(const std::string& line) noexcept override { giveUp(line); }
};

/// A board with its tick and its pictures, as the window has it at scale 1.
struct Bench {
    StrictLog log;
    cli::Simulation simulation{VELTRIX_APPLICATION_FOLDER, 1, log};

    Board& board() { return simulation.TheBoard(); }

    void wire(const std::string& from, const std::string& to) {
        for (const std::string& name : {from, to})
            if (board().Snaps.GetConnectablebyName(name) == 0)
                giveUp("no wire can end on " + name);
        board().AddLine(from, to);
    }

    void requireNoConflict() {
        if (const std::string report = clsGraph2().Check(board().Lines, board().Snaps);
            !report.empty())
            giveUp("outputs are wired together: " + report);
    }

    /// How many sockets the last tick gave a level.
    [[nodiscard]] std::size_t levels() {
        const clsSnaps& snaps = board().Snaps;
        std::size_t known = 0;
        for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i)
            known += simulation.Graph().Level(snaps.GetSnapItemName(i)).has_value() ? 1U : 0U;
        return known;
    }
};

/// The boards that are measured. Once they have ticked, nothing about them changes any more.
using Builder = void (*)(Bench& bench);

inline void empty(Bench& /*bench*/) {}

/// 20 wires through every module, with two LEDs lit.
inline void typical(Bench& bench) {
    const std::vector<std::pair<const char*, const char*>> wires = {
        {"Sensor 1 Uit Geel", "Comparator In"},
        {"Comparator Uit", "LED 1 Ingang"},
        {"Sensor 2 Uit Geel", "Transistor In"},
        {"Transistor Uit", "LED 2 Ingang"},
        {"Drukknop 1 Uit Geel", "EN-poort Ingang 1"},
        {"Drukknop 2 Uit Geel", "EN-poort Ingang 2"},
        {"EN-poort Uit", "OF-poort Ingang 1"},
        {"Invertor Uitgang", "OF-poort Ingang 2"},
        {"OF-poort Uit", "LED 3 Ingang"},
        {"Var. Spanning Uit Geel", "AD-omzetter In"},
        {"AD-omzetter Uitgang 8", "Geheugen Set (In)"},
        {"AD-omzetter Uitgang 1", "Geheugen Reset (In)"},
        {"Geheugen Uit", "Zoemer"},
        {"Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)"},
        {"Pulsenteller Uitgang 8", "Pulsenteller Reset (In)"},
        {"Pulsenteller Uitgang 1", "Relais Controle (In)"},
        {"Geluids Sensor Uit Geel", "Relais Ingang 1 (in/uit)"},
        {"Relais Uitgang 1 (in/uit)", "LED 4 Ingang"},
        {"Pulsenteller Uitgang 4", "Invertor Ingang"},
        {"Pulsenteller Uitgang 2", "Relais Ingang 2 (in/uit)"},
    };
    for (const auto& [from, to] : wires)
        bench.wire(from, to);
    if (bench.board().Lines.Count() != 20)
        giveUp("the typical board has 20 wires");
    bench.board().Knobs.Comparator = 25;
    bench.board().Knobs.VariableVoltage = 30;
    bench.requireNoConflict();
}

/// Every input and every relay contact is wired from an output.
inline void fullest(Bench& bench) {
    const clsSnaps& snaps = bench.board().Snaps;
    std::vector<std::string> outputs;
    std::vector<std::string> inputs;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i) {
        const std::string name = snaps.GetSnapItemName(i);
        if (snaps.GetConnectablebyName(name) == 0)
            continue;
        const auto soort = static_cast<Soort>(snaps.GetSoortbyName(name));
        if (soort == Soort::Output)
            outputs.push_back(name);
        else if (soort != Soort::None)
            inputs.push_back(name);
    }
    for (std::size_t i = 0; i < inputs.size(); ++i)
        bench.wire(outputs[i % outputs.size()], inputs[i]);
    bench.requireNoConflict();
    bench.simulation.RunTick();
    if (bench.levels() != outputs.size() + inputs.size())
        giveUp("the fullest board has an input that waits for itself");
}

/// Measures the copying of `bytes` bytes: the least that the work beside it could cost.
inline void copyBytes(benchmark::State& state, std::size_t bytes) {
    const std::vector<char> from(bytes + 1, 'x');
    std::vector<char> to(bytes + 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(to.data());
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::ClobberMemory();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

} // namespace veltrix::bench
