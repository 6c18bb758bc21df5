#include "sim/clsGraph2.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace veltrix {

namespace {

/// The wires, found by the sockets they end on. The walk over a net keeps its own stack, so that a
/// chain of any length can be followed, and looks at no wire twice.
class Wiring {
public:
    explicit Wiring(const Collection<clsLine>& lines) {
        for (const auto& line : lines) {
            ends_[line->naam1.Id()].lines.push_back(line.get());
            ends_[line->naam2.Id()].lines.push_back(line.get());
        }
    }

    /// Appends to `net` what is reached from a socket over wires that are not yet done.
    void Walk(const SocketName& start, std::string& net) {
        std::vector<Step> steps{{start, nullptr}};
        const auto go = [&](const SocketName& to) {
            net += "|" + to.Text() + "|";
            steps.push_back({to, nullptr});
        };
        while (!steps.empty()) {
            Step& step = steps.back();
            if (const clsLine* line = std::exchange(step.both, nullptr)) {
                if (line->naam2 == step.at)
                    go(line->naam1);
                continue;
            }
            clsLine* line = next(step.at);
            if (line == nullptr) {
                steps.pop_back();
                continue;
            }
            line->done = true;
            if (line->naam1 == step.at) {
                step.both = line; // a wire from a socket to itself is followed both ways
                go(line->naam2);
            } else {
                go(line->naam1);
            }
        }
    }

private:
    struct Step {
        SocketName at;
        const clsLine* both = nullptr;
    };

    struct End {
        std::vector<clsLine*> lines;
        std::size_t firstOpen = 0; // every wire before it is done
    };

    clsLine* next(const SocketName& naam) {
        End& end = ends_[naam.Id()];
        while (end.firstOpen < end.lines.size() && end.lines[end.firstOpen]->done)
            ++end.firstOpen;
        return end.firstOpen < end.lines.size() ? end.lines[end.firstOpen] : nullptr;
    }

    std::unordered_map<std::uint32_t, End> ends_;
};

std::vector<std::string> split(const std::string& net) {
    std::vector<std::string> pieces;
    std::size_t begin = 0;
    for (std::size_t bar = net.find('|'); bar != std::string::npos; bar = net.find('|', begin)) {
        pieces.push_back(net.substr(begin, bar - begin));
        begin = bar + 1;
    }
    pieces.push_back(net.substr(begin));
    return pieces;
}

/// The outputs of a net in quotes with "en" in between, or nothing when there are fewer than two.
std::string reportOf(const std::string& net, const clsSnaps& snaps) {
    constexpr std::string_view between = " en ";
    std::string line;
    int outputs = 0;
    for (const std::string& piece : split(net)) {
        if (snaps.GetSoortbyName(piece) != static_cast<std::int32_t>(Soort::Output))
            continue;
        ++outputs;
        line.append("\"").append(piece).append("\"").append(between);
    }
    if (outputs < 2)
        return {};
    line.resize(line.size() - between.size());
    return line + "\r\n";
}

} // namespace

std::string clsGraph2::Check(const Collection<clsLine>& lines, const clsSnaps& snaps) {
    for (const auto& line : lines)
        line->done = false;
    Wiring wiring(lines);
    std::string report;
    for (const auto& line : lines) {
        if (line->done)
            continue;
        std::string net = line->naam1.Text() + "|" + line->naam2.Text();
        line->done = true;
        net += "|";
        wiring.Walk(line->naam1, net);
        net += "|";
        wiring.Walk(line->naam2, net);
        report += reportOf(net, snaps);
    }
    return report;
}

std::string clsGraph2::Check2(const Collection<clsLine>& lines, const SocketName& puntnaam) {
    std::string net;
    Wiring(lines).Walk(puntnaam, net);
    return net;
}

} // namespace veltrix
