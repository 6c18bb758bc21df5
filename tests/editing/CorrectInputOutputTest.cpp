#include "editing/CorrectInputOutput.h"
#include "tests/support/MemoryDesktop.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

namespace veltrix::test {
namespace {

TEST(CorrectInputOutput, SaysNothingOfABoardWithoutAConflict) {
    TestBoard made;
    FakeMessageBox messages;
    EXPECT_TRUE(CorrectInputOutput(made.board, messages));
    wire(made.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    EXPECT_TRUE(CorrectInputOutput(made.board, messages));
    EXPECT_TRUE(messages.shown.empty());
}

TEST(CorrectInputOutput, NamesTheOutputsOfEveryNetInItsOwnLine) {
    TestBoard made;
    wire(made.board, "Sensor 1 Uit Geel", "Sensor 2 Uit Geel");
    wire(made.board, "EN-poort Uit", "LED 1 Ingang");
    wire(made.board, "LED 1 Ingang", "OF-poort Uit");
    FakeMessageBox messages;
    EXPECT_FALSE(CorrectInputOutput(made.board, messages));
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text,
              "Je begaat een fout: Je hebt 2 of meer uitgangen aan elkaar verbonden.\r\n"
              "Het gaat om de uitgangen:\r\n\r\n"
              "\"Sensor 1 Uit Geel\" en \"Sensor 2 Uit Geel\"\r\n"
              "\"EN-poort Uit\" en \"OF-poort Uit\"\r\n");
    EXPECT_EQ(messages.shown[0].title, "Veltrix");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

} // namespace
} // namespace veltrix::test
