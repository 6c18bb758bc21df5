#include "instruments/Board.h"

#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veltrix::test {
namespace {

namespace colours = boardColours;

struct BoardTest : testing::Test {
    [[nodiscard]] std::uint32_t pixel(std::int32_t x, std::int32_t y) {
        test.surface.Refresh();
        return test.surface.Frame().Row(y)[x];
    }

    TestBoard test{boardPictures()};
};

TEST_F(BoardTest, ANewBoardHasNoWiresAndAllItsInstrumentsAtRest) {
    const Board& board = test.board;
    EXPECT_EQ(board.Lines.Count(), 0);
    EXPECT_EQ(board.Display.Value(), 0);
    for (const clsLED& led : board.LEDs)
        EXPECT_FALSE(led.Value());
    for (const clsLED& button : board.PushButtons)
        EXPECT_FALSE(button.Value());
    for (const clsSensor& sensor : board.Sensors)
        EXPECT_EQ(sensor.Value(), 0);
    EXPECT_FALSE(board.Knob.Visible());
    EXPECT_EQ(board.Knob.Value(), 0);
    EXPECT_EQ(board.Knobs.Comparator, 0);
    EXPECT_EQ(board.Knobs.VariableVoltage, 0);
    EXPECT_EQ(board.Knobs.PulseGenerator, 0);
}

TEST_F(BoardTest, TheBoardsPictureLiesBelowTheInstruments) {
    EXPECT_EQ(pixel(0, 0), colours::Board);
    EXPECT_EQ(pixel(414, 375), colours::Board);
    EXPECT_EQ(pixel(266, 282), colours::digit(0));
    EXPECT_EQ(pixel(20, 25), colours::sensor(0));
    EXPECT_EQ(pixel(20 + 47, 78 + 47), colours::sensor(0));
}

TEST_F(BoardTest, EachLampLightsAtItsOwnPlace) {
    const auto check = [&](clsLED& lamp, std::int32_t x, std::int32_t y) {
        EXPECT_EQ(pixel(x, y), colours::Board);
        lamp.SetValue(true);
        EXPECT_EQ(pixel(x, y), colours::RedLight);
        EXPECT_EQ(pixel(x + 31, y + 31), colours::RedLight);
        EXPECT_EQ(pixel(x - 1, y), colours::Board);
        lamp.SetValue(false);
        EXPECT_EQ(pixel(x, y), colours::Board);
    };
    check(test.board.LEDs[0], 373, 27);
    check(test.board.LEDs[1], 373, 61);
    check(test.board.LEDs[2], 373, 95);
    check(test.board.LEDs[3], 373, 130);
    check(test.board.PushButtons[0], 14, 164);
    check(test.board.PushButtons[1], 13, 198);
}

TEST_F(BoardTest, AWireIsPlacedByTheCatalogueInTheColourOfFiveVolts) {
    const std::shared_ptr<clsLine> line = wire(test.board, "EN-poort Uit", "Zoemer");
    EXPECT_EQ(line->naam1, "EN-poort Uit");
    EXPECT_EQ(line->naam2, "Zoemer");
    EXPECT_EQ(line->X1(), 199);
    EXPECT_EQ(line->Y1(), 128);
    EXPECT_EQ(line->X2(), 323);
    EXPECT_EQ(line->Y2(), 197);
    EXPECT_EQ(line->Color(), 1);
    EXPECT_EQ(pixel((199 + 323) / 2, (128 + 197) / 2), colours::line(1));
}

TEST_F(BoardTest, WiresKeepTheirOrderAndAnUnknownNameLiesAtTheOrigin) {
    wire(test.board, "EN-poort Uit", "Zoemer");
    test.board.AddLine("nergens", "LED 1 Ingang");
    ASSERT_EQ(test.board.Lines.Count(), 2);
    const clsLine& line = *test.board.Lines.Item(2);
    EXPECT_EQ(line.naam1, "nergens");
    EXPECT_EQ(line.X1(), 0);
    EXPECT_EQ(line.Y1(), 0);
    EXPECT_EQ(line.X2(), 322);
}

TEST_F(BoardTest, ASlipInTheNameOfATestsWireIsFound) {
    EXPECT_THROW(wire(test.board, "EN-poort", "Zoemer"), std::invalid_argument);
}

TEST_F(BoardTest, WithoutPicturesEverythingWorksUnseen) {
    TestBoard blind;
    blind.board.LEDs[0].SetValue(true);
    blind.board.Sensors[1].NextValue();
    blind.board.Display.SetValue(9);
    blind.board.Knob.Move(10, 10);
    blind.board.Knob.SetValue(30);
    wire(blind.board, "EN-poort Uit", "Zoemer")->SetColor(3);
    blind.surface.MouseDown(MouseButton::Left, 20, 20);
    blind.surface.Refresh();
    for (const std::uint32_t seen : blind.surface.Frame().pixels)
        ASSERT_EQ(seen, nothing);
    EXPECT_EQ(blind.board.Knob.Value(), 30);
    EXPECT_TRUE(blind.board.LEDs[0].Value());
}

TEST_F(BoardTest, MasksCutOutTheBeadsTheLampsAndTheKnobsPointer) {
    const TempFolder folder;
    writeBoardPictures(folder.Path());
    const auto hideUpperRow = [&](const char* name, std::int32_t width, std::int32_t height) {
        Picture mask = plain(width, height, white);
        std::fill_n(mask.Row(0), width, nothing);
        writePicture(folder.Path(), name, mask);
    };
    hideUpperRow("\\images1\\LineMask.bmp", 1024, 32);
    hideUpperRow("\\images2\\RedLightMask.bmp", 32, 32);
    hideUpperRow("\\images2\\VPointerMask.bmp", 15, 18);
    TestBoard masked(folder.Path());
    wire(masked.board, "EN-poort Uit", "Zoemer");
    masked.board.LEDs[0].SetValue(true);
    masked.board.Knob.Move(100, 300);
    masked.board.Knob.SetValue(25);
    masked.surface.Refresh();
    const Picture& frame = masked.surface.Frame();
    // The first bead begins at (187, 114); the second one lies to the right of this column.
    EXPECT_EQ(frame.Row(114)[187], colours::Board);
    EXPECT_EQ(frame.Row(115)[187], colours::line(1));
    EXPECT_EQ(frame.Row(114 + 31)[187], colours::line(1));
    EXPECT_EQ(frame.Row(114 + 32)[187], colours::Board);
    EXPECT_EQ(frame.Row(27)[373], colours::Board);
    EXPECT_EQ(frame.Row(28)[373], colours::RedLight);
    EXPECT_EQ(frame.Row(305)[199], colours::Scale);
    EXPECT_EQ(frame.Row(306)[199], colours::VPointer);
}

} // namespace
} // namespace veltrix::test
