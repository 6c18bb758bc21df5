#include "cli/VcdRows.h"

#include "board/clsSnaps.h"
#include "tests/cli/RowsUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <sstream>

namespace veltrix::cli {
namespace {

using testing::HasSubstr;

constexpr const char* unknown32 = "bx A\n";

TEST(VcdRows, DeclaresAVariableAPlace) {
    const std::string text = test::rowsAs(Format::Vcd, {{"Geheugen Set (In)"}, {"LED 1", 1}}, {});
    EXPECT_EQ(text, "$comment one unit of time is one tick of the board $end\n"
                    "$timescale 10 ms $end\n"
                    "$scope module veltrix $end\n"
                    "$var wire 32 A Geheugen_Set_In $end\n"
                    "$var wire 1 B LED_1 $end\n"
                    "$upscope $end\n"
                    "$enddefinitions $end\n");
}

TEST(VcdRows, FirstRowHoldsAllValuesAndLaterOnesWhatChanged) {
    const std::string text = test::rowsAs(Format::Vcd, {{"A", 4}, {"B", 1}, {"C", 1}},
                                          {{1, {{9, true}, {0, true}, {}}},
                                           {2, {{9, true}, {0, true}, {}}},
                                           {5, {{9, true}, {1, true}, {0, true}}},
                                           {6, {{0, true}, {1, true}, {}}}});
    EXPECT_THAT(text, HasSubstr("$enddefinitions $end\n"
                                "#1\n$dumpvars\nb1001 A\n0B\nxC\n$end\n"
                                "#2\n"
                                "#5\n1B\n0C\n"
                                "#6\nb0000 A\nxC\n"));
}

TEST(VcdRows, LevelsAreThirtyTwoBitsWide) {
    const auto values = [](const Cell& cell) {
        const std::string text = test::rowsAs(Format::Vcd, {{"A"}}, {{1, {cell}}});
        const std::size_t begin = text.find("$dumpvars\n") + 10;
        return text.substr(begin, text.rfind("$end") - begin);
    };
    EXPECT_EQ(values({50, true}), "b00000000000000000000000000110010 A\n");
    EXPECT_EQ(values({-1, true}), "b11111111111111111111111111111111 A\n");
    EXPECT_EQ(values({INT32_MIN, true}), "b10000000000000000000000000000000 A\n");
    EXPECT_EQ(values({}), unknown32);
}

TEST(VcdRows, SignalNamesAreLettersDigitsAndUnderscores) {
    EXPECT_EQ(VcdRows::SignalName("Geheugen Set (In)"), "Geheugen_Set_In");
    EXPECT_EQ(VcdRows::SignalName("Relais Ingang 1 (in/uit)"), "Relais_Ingang_1_in_uit");
    EXPECT_EQ(VcdRows::SignalName("Var. Spanning Uit Geel"), "Var_Spanning_Uit_Geel");
    EXPECT_EQ(VcdRows::SignalName(" (x) "), "x");
    EXPECT_EQ(VcdRows::SignalName(""), "");
}

TEST(VcdRows, NoTwoSocketsShareASignalName) {
    const clsSnaps snaps;
    std::set<std::string> names;
    for (std::int32_t i = 1; i <= snaps.GetSnapCount(); ++i)
        EXPECT_TRUE(names.insert(VcdRows::SignalName(snaps.GetSnapItemName(i))).second)
            << snaps.GetSnapItemName(i);
}

TEST(VcdRows, NoTwoVariablesShareACode) {
    const std::size_t many = 3000;
    std::istringstream text(
        test::rowsAs(Format::Vcd, test::Places(many, Readings::Place{"A"}), {}));
    std::set<std::string> codes;
    for (std::string word; text >> word;) {
        if (word != "$var")
            continue;
        std::string type;
        std::string bits;
        std::string code;
        text >> type >> bits >> code;
        for (const char c : code)
            EXPECT_NE(std::isalpha(static_cast<unsigned char>(c)), 0);
        EXPECT_TRUE(codes.insert(code).second) << code;
    }
    EXPECT_EQ(codes.size(), many);
}

} // namespace
} // namespace veltrix::cli
