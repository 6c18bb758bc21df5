#pragma once

#include "sim/clsGraph.h"
#include "tests/support/NumberRange.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace veltrix::test {

/// What a check expects of a socket that the run does not reach.
inline constexpr std::int32_t unreached = -1000000;

struct Socket {
    std::string naam;
    std::int32_t level;
};

using Sockets = std::vector<Socket>;

/// An evaluator, and wires that are not drawn: its tests look at levels and colour numbers.
struct GraphFixture : testing::Test {
    GraphFixture() { graph.Constructor(test.board.Display); }

    std::shared_ptr<clsLine> connect(const std::string& naam1, const std::string& naam2) {
        auto line = test.board.BordLines.CreateLine();
        line->naam1 = naam1;
        line->naam2 = naam2;
        lines.Add(line);
        return line;
    }

    void disconnectAll() {
        while (lines.Count() > 0)
            lines.Remove(1);
    }

    /// A run as a tick makes it, with the levels of the sources.
    void run(const Sockets& sources = {}) {
        for (const auto& line : lines)
            line->done = false;
        graph.Clear();
        for (const Socket& source : sources)
            graph.AddPunt(source.naam, source.level);
        EXPECT_FALSE(graph.Run(lines));
    }

    [[nodiscard]] std::int32_t levelOf(const std::string& naam) const {
        return graph.GetPuntValueByName(naam, unreached);
    }

    /// Wires each input to a source of its own with that level (`unreached`: to a socket that
    /// nobody knows), runs, and compares the outputs. An input that is not named has no wire.
    void check(const Sockets& inputs, const Sockets& outputs) {
        std::string row;
        Sockets sources;
        disconnectAll();
        for (const Socket& input : inputs) {
            const std::string source = "bron van " + input.naam;
            connect(source, input.naam);
            if (input.level != unreached)
                sources.push_back({source, input.level});
            row += input.naam + " = " + std::to_string(input.level) + "; ";
        }
        run(sources);
        for (const Socket& output : outputs)
            EXPECT_EQ(levelOf(output.naam), output.level) << output.naam << " where " << row;
    }

    TestBoard test;
    Collection<clsLine> lines;
    clsGraph graph;
};

} // namespace veltrix::test
