#include "tests/sim/GraphFixture.h"

namespace veltrix::test {
namespace {

using clsGraphRelay = GraphFixture;

TEST_F(clsGraphRelay, ARelayCopiesALevelBothWaysWhileItsControlIsHigh) {
    for (const std::string path : {"1", "2"}) {
        const std::string in = "Relais Ingang " + path + " (in/uit)";
        const std::string out = "Relais Uitgang " + path + " (in/uit)";
        const auto contact = [&](const std::string& from, const std::string& to,
                                 std::int32_t level) {
            check({{"Relais Controle (In)", 50}, {from, level}}, {{from, level}, {to, level}});
            check({{"Relais Controle (In)", 49}, {from, level}}, {{to, 0}});
            check({{"Relais Controle (In)", unreached}, {from, level}}, {{to, 0}});
            check({{from, level}}, {{to, 0}});
        };
        contact(in, out, 50);
        contact(in, out, 23);
        contact(in, out, 0);
        contact(out, in, 50);
        contact(out, in, 23);
    }
}

TEST_F(clsGraphRelay, ARelayContactThatNobodyKnowsPassesNothing) {
    check({{"Relais Controle (In)", 50}}, {{"Relais Ingang 1 (in/uit)", unreached},
                                           {"Relais Uitgang 1 (in/uit)", unreached},
                                           {"Relais Ingang 2 (in/uit)", unreached},
                                           {"Relais Uitgang 2 (in/uit)", unreached}});
    check({{"Relais Controle (In)", 50}, {"Relais Ingang 1 (in/uit)", 50}},
          {{"Relais Uitgang 1 (in/uit)", 50}, {"Relais Uitgang 2 (in/uit)", unreached}});
}

TEST_F(clsGraphRelay, ARelayWithBothSidesKnownChangesNeither) {
    check({{"Relais Controle (In)", 50},
           {"Relais Ingang 1 (in/uit)", 20},
           {"Relais Uitgang 1 (in/uit)", 30}},
          {{"Relais Ingang 1 (in/uit)", 20}, {"Relais Uitgang 1 (in/uit)", 30}});
}

TEST_F(clsGraphRelay, ARelayIsOpenForARunInWhichItsControlComesAfterItsContact) {
    connect("bron", "Relais Ingang 1 (in/uit)");
    connect("Invertor Uitgang", "Relais Controle (In)"); // known only after the first pass
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Controle (In)"), 50);
    EXPECT_EQ(levelOf("Relais Uitgang 1 (in/uit)"), 0);
}

TEST_F(clsGraphRelay, ARelayClosesWhenItsControlComesNoLaterThanItsContact) {
    connect("bron", "EN-poort Ingang 1");
    connect("bron", "EN-poort Ingang 2");
    connect("EN-poort Uit", "Relais Ingang 1 (in/uit)");
    connect("Invertor Uitgang", "Relais Controle (In)");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Uitgang 1 (in/uit)"), 50);
}

TEST_F(clsGraphRelay, AModuleOfALaterRowSeesTheRelayInTheNextPass) {
    connect("bron", "Relais Ingang 1 (in/uit)");
    connect("bron", "Relais Controle (In)");
    connect("Relais Uitgang 1 (in/uit)", "Relais Ingang 2 (in/uit)");
    connect("Relais Uitgang 2 (in/uit)", "Transistor In");
    run({{"bron", 50}});
    EXPECT_EQ(levelOf("Relais Uitgang 2 (in/uit)"), 50);
    EXPECT_EQ(levelOf("Transistor Uit"), 0);
}

} // namespace
} // namespace veltrix::test
