#include "sim/clsGraph2.h"

#include <gtest/gtest.h>

#include <random>

namespace veltrix {
namespace {

struct Ends {
    std::string naam1;
    std::string naam2;
};

Collection<clsLine> wired(const std::vector<Ends>& wires) {
    Collection<clsLine> lines;
    for (const Ends& ends : wires) {
        auto line = std::make_shared<clsLine>();
        line->naam1 = ends.naam1;
        line->naam2 = ends.naam2;
        lines.Add(line);
    }
    return lines;
}

std::string report(const std::vector<Ends>& wires) {
    return clsGraph2().Check(wired(wires), clsSnaps());
}

const std::string sensor = "Sensor 1 Uit Geel";
const std::string button = "Drukknop 1 Uit Geel";
const std::string andIn1 = "EN-poort Ingang 1";
const std::string andIn2 = "EN-poort Ingang 2";
const std::string andOut = "EN-poort Uit";
const std::string orIn = "OF-poort Ingang 1";
const std::string orOut = "OF-poort Uit";

// Whether outputs are wired together

TEST(clsGraph2, WithoutWiresAllIsWell) {
    EXPECT_EQ(report({}), "");
}

TEST(clsGraph2, OneOutputToAnyNumberOfInputsIsWell) {
    EXPECT_EQ(report({{sensor, andIn1}, {andIn1, andIn2}, {orIn, sensor}}), "");
}

TEST(clsGraph2, TwoOutputsOnOneInputAreReportedInTheOrderInWhichTheyAreReached) {
    EXPECT_EQ(report({{sensor, andIn1}, {andIn1, button}}),
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
    EXPECT_EQ(report({{andIn1, button}, {sensor, andIn1}}),
              "\"Drukknop 1 Uit Geel\" en \"Sensor 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, TwoOutputsWiredDirectlyAreReported) {
    EXPECT_EQ(report({{andOut, orOut}}), "\"EN-poort Uit\" en \"OF-poort Uit\"\r\n");
}

TEST(clsGraph2, TwoOutputsJoinedThroughAChainOfThreeWiresGiveOneLine) {
    EXPECT_EQ(report({{sensor, andIn1}, {andIn2, andIn1}, {andIn2, button}}),
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, ThreeOutputsStandInOneLine) {
    EXPECT_EQ(report({{sensor, andIn1}, {button, andIn1}, {andOut, andIn1}}),
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\" en \"EN-poort Uit\"\r\n");
}

TEST(clsGraph2, TwoNetsGiveTwoLinesInTheOrderOfTheirFirstWires) {
    EXPECT_EQ(report({{andOut, andIn1}, {sensor, orIn}, {button, orIn}, {orOut, andIn1}}),
              "\"EN-poort Uit\" en \"OF-poort Uit\"\r\n"
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, ALoopWhoseWalkMeetsItselfAtAnOutputReportsThatOutputTwice) {
    EXPECT_EQ(report({{andIn1, sensor}, {andIn1, andIn2}, {andIn2, sensor}}),
              "\"Sensor 1 Uit Geel\" en \"Sensor 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, ALoopWhoseWalkMeetsItselfAtAnInputIsWell) {
    EXPECT_EQ(report({{sensor, andIn1}, {andIn1, andIn2}, {andIn2, sensor}}), "");
}

TEST(clsGraph2, RelayContactsAndTheBlackTerminalAreNoOutputs) {
    EXPECT_EQ(report({{sensor, "Relais Ingang 1 (in/uit)"},
                      {"Relais Ingang 1 (in/uit)", "Relais Uitgang 1 (in/uit)"}}),
              "");
    EXPECT_EQ(report({{sensor, "Var. Spanning In Zwart"}}), "");
}

TEST(clsGraph2, NamesThatTheBoardDoesNotHaveAreNoOutputs) {
    EXPECT_EQ(report({{sensor, "onbekend"}, {"", ""}, {"onbekend", ""}}), "");
    EXPECT_EQ(report({{sensor, "onbekend"}, {"onbekend", button}}),
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, ANameWithABarFallsApartIntoItsPieces) {
    EXPECT_EQ(report({{sensor + "|" + button, andIn1}}),
              "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
    EXPECT_EQ(report({{"|" + sensor + "|", andIn1}}), "");
}

TEST(clsGraph2, AWireFromAnOutputToItselfCountsItAtBothEnds) {
    EXPECT_EQ(report({{sensor, sensor}}), "\"Sensor 1 Uit Geel\" en \"Sensor 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, TheMarkOfEveryWireIsClearedBeforeAndSetAfterwards) {
    const Collection<clsLine> lines = wired({{sensor, andIn1}, {andIn1, button}, {orIn, orOut}});
    for (const auto& line : lines)
        line->done = true;
    EXPECT_NE(clsGraph2().Check(lines, clsSnaps()), "");
    for (const auto& line : lines)
        EXPECT_TRUE(line->done);
}

// The walk

std::string walked(const std::vector<Ends>& wires, const std::string& from) {
    return clsGraph2().Check2(wired(wires), from);
}

TEST(clsGraph2, AWalkNamesEverySocketAfterABarWithEmptyPiecesInBetween) {
    EXPECT_EQ(walked({}, "A"), "");
    EXPECT_EQ(walked({{"B", "C"}}, "A"), "");
    EXPECT_EQ(walked({{"A", "B"}}, "A"), "|B|");
    EXPECT_EQ(walked({{"B", "A"}}, "A"), "|B|");
    EXPECT_EQ(walked({{"A", "B"}, {"A", "C"}}, "A"), "|B||C|");
    EXPECT_EQ(walked({{"A", "B"}, {"B", "C"}}, "A"), "|B||C|");
    EXPECT_EQ(walked({{"B", "C"}, {"A", "B"}, {"A", "D"}}, "A"), "|B||C||D|");
}

TEST(clsGraph2, AWalkRoundALoopNamesTheSocketWhereItBeganOnceMore) {
    EXPECT_EQ(walked({{"A", "B"}, {"B", "C"}, {"C", "A"}}, "A"), "|B||C||A|");
    EXPECT_EQ(walked({{"A", "B"}, {"B", "A"}}, "A"), "|B||A|");
}

TEST(clsGraph2, AWireFromASocketToItselfIsFollowedBothWays) {
    EXPECT_EQ(walked({{"A", "A"}}, "A"), "|A||A|");
    EXPECT_EQ(walked({{"A", "A"}, {"A", "B"}}, "A"), "|A||B||A|");
}

TEST(clsGraph2, AWalkKeepsOffWiresThatAreDone) {
    const Collection<clsLine> lines = wired({{"A", "B"}, {"A", "C"}, {"B", "D"}});
    lines.Item(1)->done = true;
    EXPECT_EQ(clsGraph2().Check2(lines, "A"), "|C|");
    EXPECT_TRUE(lines.Item(2)->done);
    EXPECT_FALSE(lines.Item(3)->done);
}

/// The walk in its plainest form.
std::string plainWalk(const Collection<clsLine>& lines, const std::string& from) {
    std::string net;
    for (const auto& line : lines) {
        if (line->done)
            continue;
        if (line->naam1 == from) {
            net += "|" + line->naam2.Text();
            line->done = true;
            net += "|" + plainWalk(lines, line->naam2);
        }
        if (line->naam2 == from) {
            net += "|" + line->naam1.Text();
            line->done = true;
            net += "|" + plainWalk(lines, line->naam1);
        }
    }
    return net;
}

/// The report in its plainest form.
std::string plainReport(const Collection<clsLine>& lines, const clsSnaps& snaps) {
    for (const auto& line : lines)
        line->done = false;
    std::string report;
    for (const auto& line : lines) {
        if (line->done)
            continue;
        std::string net = line->naam1.Text() + "|" + line->naam2.Text();
        line->done = true;
        net += "|" + plainWalk(lines, line->naam1);
        net += "|" + plainWalk(lines, line->naam2);
        net += "|";
        std::string outputs;
        int count = 0;
        for (std::size_t at = 0; at < net.size(); at = net.find('|', at) + 1) {
            const std::string piece = net.substr(at, net.find('|', at) - at);
            if (snaps.GetSoortbyName(piece) != 2)
                continue;
            outputs += (count == 0 ? "\"" : " en \"") + piece + "\"";
            ++count;
        }
        if (count >= 2)
            report += outputs + "\r\n";
    }
    return report;
}

TEST(clsGraph2, RandomBoardsAreWalkedLikeThePlainestWalk) {
    const clsSnaps snaps;
    const std::string names[] = {sensor, button, andIn1, andIn2, orOut, orIn, "", "a|b"};
    std::mt19937 random(1);
    int conflicts = 0;
    for (int board = 0; board < 2000; ++board) {
        std::vector<Ends> wires;
        for (auto count = random() % 9; count > 0; --count)
            wires.push_back({names[random() % 8], names[random() % 8]});
        const Collection<clsLine> lines = wired(wires);
        const std::string expected = plainReport(lines, snaps);
        ASSERT_EQ(clsGraph2().Check(lines, snaps), expected) << "board " << board;
        conflicts += expected.empty() ? 0 : 1;

        const std::string& from = names[random() % 8];
        std::vector<bool> marks(wires.size());
        for (std::size_t i = 0; i < marks.size(); ++i)
            marks[i] = random() % 4 == 0;
        const auto mark = [&] {
            for (std::size_t i = 0; i < marks.size(); ++i)
                lines.Item(static_cast<std::int32_t>(i) + 1)->done = static_cast<bool>(marks[i]);
        };
        mark();
        const std::string net = plainWalk(lines, from);
        mark();
        ASSERT_EQ(clsGraph2().Check2(lines, from), net) << "board " << board;
    }
    EXPECT_GT(conflicts, 200);
}

// Boards that no hand has wired

TEST(clsGraph2, AChainOfAHundredThousandWiresIsFollowedToItsEnd) {
    std::vector<Ends> wires;
    std::string from = sensor;
    for (int i = 0; i < 100000; ++i) {
        std::string to = i == 99999 ? button : "schakel " + std::to_string(i);
        wires.push_back({from, to});
        from = std::move(to);
    }
    EXPECT_EQ(report(wires), "\"Sensor 1 Uit Geel\" en \"Drukknop 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, AHundredThousandWiresOnOneSocketAreEachFollowedOnce) {
    std::vector<Ends> wires;
    for (int i = 0; i < 100000; ++i)
        wires.push_back({andIn1, "ster " + std::to_string(i)});
    wires.push_back({sensor, andIn1});
    EXPECT_EQ(report(wires), "");
    wires.push_back({"ster 7", button});
    EXPECT_EQ(report(wires), "\"Drukknop 1 Uit Geel\" en \"Sensor 1 Uit Geel\"\r\n");
}

TEST(clsGraph2, AHundredThousandWiresBetweenTheSameTwoSocketsAreEachFollowedOnce) {
    const std::vector<Ends> wires(100000, Ends{andIn1, andIn2});
    EXPECT_EQ(report(wires), "");
}

} // namespace
} // namespace veltrix
