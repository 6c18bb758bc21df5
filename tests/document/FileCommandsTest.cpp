#include "tests/document/FileCommandsTest.h"

#include <string>
#include <vector>

namespace veltrix::test {
namespace {

TEST(FileNameOnly, IsWhatFollowsTheLastBackslash) {
    EXPECT_EQ(FileNameOnly("C:\\boards\\test.vtx"), "test.vtx");
    EXPECT_EQ(FileNameOnly("test.vtx"), "test.vtx");
    EXPECT_EQ(FileNameOnly("C:\\boards\\"), "");
    EXPECT_EQ(FileNameOnly("\\"), "");
    EXPECT_EQ(FileNameOnly(""), "");
    EXPECT_EQ(FileNameOnly("/boards/test.vtx"), "/boards/test.vtx");
    EXPECT_EQ(FileNameOnly("\\\\school\\klas 3\\caf\u00E9.vtx"), "caf\u00E9.vtx");
}

TEST(FileExists, IsTrueForWhatCanBeReadOnly) {
    const OneFile file("caf\u00E9.vtx");
    EXPECT_FALSE(FileExists(file.text));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists("C:\\x.vtx"));
    EXPECT_FALSE(FileExists(Utf8FromPath(file.folder.Path())));
    putBytes(file.path, "");
    EXPECT_TRUE(FileExists(file.text));
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST_F(FileCommandsTest, AStartWithoutADocumentChangesNothingAndClosesUnasked) {
    start();
    EXPECT_EQ(window.caption, "Veltrix versie 2.0");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.steps.size(), 1u);
    EXPECT_EQ(commands.Path(), "");
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ANewBoardIsCleared) {
    start(makeDocument("test.vtx"));
    for (clsSensor& sensor : board.Sensors)
        sensor.SetValue(2);
    board.Knobs = {10, 20, 30};
    for (clsLED& lamp : board.PushButtons)
        lamp.SetValue(true);
    board.Knob.Move(10, 10);
    commands.mnuNieuw_Click();
    EXPECT_EQ(board.Lines.Count(), 0);
    for (const clsSensor& sensor : board.Sensors)
        EXPECT_EQ(sensor.Value(), 0);
    EXPECT_EQ(board.Knobs.Comparator, 0);
    EXPECT_EQ(board.Knobs.VariableVoltage, 0);
    EXPECT_EQ(board.Knobs.PulseGenerator, 0);
    for (const clsLED& lamp : board.PushButtons)
        EXPECT_FALSE(lamp.Value());
    EXPECT_FALSE(board.Knob.Visible());
    EXPECT_EQ(commands.Path(), "");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.resets, 2);
    EXPECT_EQ(history.steps, std::vector{documentOf(board)});
}

TEST_F(FileCommandsTest, ANewBoardKeepsTheCounterAndTheCaptionAndAsksNothing) {
    start(makeDocument("test.vtx"));
    edit();
    board.Display.SetValue(6);
    commands.mnuNieuw_Click();
    EXPECT_EQ(board.Display.Value(), 6);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - test.vtx");
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, NoFileStaysOpen) {
    const auto openFiles = [] { return namesIn("/proc/self/fd").size(); };
    start();
    user.file = makeDocument("test.vtx");
    const std::size_t before = openFiles();
    commands.mnuOpenen_Click();
    EXPECT_EQ(openFiles(), before);
    commands.mnuBewaren_Click();
    EXPECT_EQ(openFiles(), before);
    makeDamagedDocument("test.vtx");
    commands.mnuOpenen_Click();
    EXPECT_EQ(openFiles(), before);
}

TEST_F(FileCommandsTest, TheCaptionShowsOnlyTheNameWhateverThePath) {
    start();
    const auto captionAfter = [this](const std::string& name) {
        user.file = path(name);
        commands.mnuBewarenAls_Click();
        return window.caption;
    };
    EXPECT_EQ(captionAfter("bord.vtx"), "Veltrix versie 2.0 - bord.vtx");
    // Where a backslash may stand in a name, the path is that of another system's server.
    EXPECT_EQ(captionAfter("server\\klas\\les.vtx"), "Veltrix versie 2.0 - les.vtx");
}

} // namespace
} // namespace veltrix::test
