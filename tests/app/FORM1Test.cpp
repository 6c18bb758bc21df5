#include "tests/support/MemoryDesktop.h"
#include "tests/support/TempFolder.h"

#include "board/AppPath.h"
#include "document/BoardDocument.h"
#include "document/clsKorvelWFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include <fstream>

namespace veltrix::test {

namespace {

using testing::ElementsAre;

struct FORM1Test : testing::Test {
    MemoryDesktop desktop;
};

void save(const Board& board, const std::string& path) {
    clsKorvelWFile file;
    file.OpenFile(path);
    WriteTo(board, file);
    file.CloseFile();
}

/// A board with one wire and a pressed button, in a file of its own.
struct SavedBoard {
    SavedBoard() {
        TestBoard made;
        wire(made.board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
        made.board.PushButtons[0].SetValue(true);
        save(made.board, path);
    }

    TempFolder folder;
    std::string path = Utf8FromPath(folder.Path() / PathFromUtf8("bord één.vtx"));
};

TEST_F(FORM1Test, StartsInOrderWithAnEmptyBoard) {
    desktop.Start();
    EXPECT_THAT(desktop.window.events, ElementsAre("splash shown", "splash gone", "window shown"));
    EXPECT_EQ(desktop.window.caption, "Veltrix versie 2.0");
    EXPECT_FALSE(desktop.window.saveEnabled);
    EXPECT_FALSE(desktop.menu.undoEnabled);
    EXPECT_FALSE(desktop.menu.redoEnabled);
    EXPECT_EQ(desktop.menu.mode, EditMode::DrawWires);
    EXPECT_TRUE(desktop.timer.enabled);
    EXPECT_EQ(desktop.Wires(), 0);
    EXPECT_FALSE(desktop.form.TheBoard().Knob.Visible());
    for (const clsLED& led : desktop.form.TheBoard().LEDs)
        EXPECT_FALSE(led.Value());
    EXPECT_TRUE(desktop.messages.shown.empty());
}

TEST_F(FORM1Test, ASurfaceThatCannotStartEndsTheProgramBeforeAnythingElseIsShown) {
    desktop.window.scale = -1;
    desktop.Start();
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_EQ(desktop.messages.shown[0].text, "Can't load Pictor");
    EXPECT_EQ(desktop.messages.shown[0].title, "Error");
    EXPECT_EQ(desktop.messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(desktop.program.ended, 1);
    EXPECT_THAT(desktop.window.events, ElementsAre("splash shown"));
    EXPECT_EQ(desktop.window.caption, "");
    EXPECT_FALSE(desktop.timer.enabled);
}

TEST_F(FORM1Test, ADocumentOnTheCommandLineIsOpenWithTwoEqualUndoStates) {
    const SavedBoard saved;
    desktop.Start("\"" + saved.path + "\"");
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_TRUE(desktop.form.TheBoard().PushButtons[0].Value());
    EXPECT_EQ(desktop.window.caption, "Veltrix versie 2.0 - bord één.vtx");
    EXPECT_TRUE(desktop.window.saveEnabled);
    EXPECT_EQ(desktop.form.TheUndoList().Position(), 2);
    EXPECT_TRUE(desktop.menu.undoEnabled);
    EXPECT_TRUE(desktop.timer.enabled);
}

TEST_F(FORM1Test, ADocumentThatBreaksOffInAnErrorDoesNotKeepTheBoardFromStarting) {
    const TempFolder folder;
    const std::filesystem::path path = folder.Path() / "teller.vtx";
    // A counter reading of 99 cannot be shown.
    const std::string document("\xDA\xDA\x2E\0\0\0\0\x10\x22\0\0\0\0\0\0\0\0\0\0\0\x63\0\0\0", 24);
    std::ofstream(path, std::ios::binary) << document;
    desktop.edge.Command([&](FORM1& form) {
        desktop.program.commandLine = Utf8FromPath(path);
        form.Form_Load();
    });
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_EQ(desktop.form.TheUndoList().Position(), 1);
    EXPECT_TRUE(desktop.timer.enabled);
    desktop.RunTicks(3);
    EXPECT_TRUE(desktop.notice.shown.empty());
}

TEST_F(FORM1Test, ADocumentTooLargeForAnUndoStateDoesNotKeepTheBoardFromRunning) {
    const TempFolder folder;
    const std::string path = Utf8FromPath(folder.Path() / "vol.vtx");
    TestBoard made;
    for (int i = 0; i < 2000; ++i)
        made.board.AddLine("Pulsenteller Tel pulsen (In)", "LED 1 Ingang");
    save(made.board, path);
    desktop.edge.Command([&](FORM1& form) {
        desktop.program.commandLine = path;
        form.Form_Load();
    });
    EXPECT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_EQ(desktop.Wires(), 2000);
    ASSERT_TRUE(desktop.timer.enabled);
    desktop.RunTicks(2);
    EXPECT_TRUE(desktop.notice.shown.empty());
}

TEST_F(FORM1Test, APressedButtonLightsTheLedOfItsWire) {
    desktop.Start();
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.RunTicks(1);
    EXPECT_FALSE(desktop.form.TheBoard().LEDs[0].Value());
    desktop.Click("Drukknop 1");
    desktop.RunTicks(1);
    EXPECT_TRUE(desktop.form.TheBoard().LEDs[0].Value());
    EXPECT_EQ(desktop.form.TheBoard().Lines.Item(1)->Color(), 1);
}

TEST_F(FORM1Test, ClosingAnUnchangedBoardAsksNothing) {
    desktop.Start();
    desktop.form.mnuSluiten_Click();
    EXPECT_TRUE(desktop.messages.shown.empty());
    EXPECT_EQ(desktop.program.ended, 0);
    EXPECT_TRUE(desktop.form.Ended());
    EXPECT_FALSE(desktop.timer.enabled);
}

TEST_F(FORM1Test, TheEndTakesAllWiresOffTheBoard) {
    desktop.Start();
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.Click("Drukknop 2 Uit Geel");
    ASSERT_NE(desktop.form.TheBoard().LooseWire, nullptr);
    desktop.messages.answers = {Answer::No};
    desktop.form.mnuSluiten_Click();
    EXPECT_EQ(desktop.form.TheBoard().Lines.Count(), 0);
    EXPECT_EQ(desktop.form.TheBoard().LooseWire, nullptr);
}

TEST_F(FORM1Test, AfterItsEndNoEventReachesTheProgram) {
    desktop.Start();
    desktop.form.mnuSluiten_Click();
    const std::int32_t phase = desktop.form.TheTick().Phase();
    desktop.RunTicks(3);
    desktop.edge.Command([](FORM1& form) { form.mnuVerwijderVerbindingen_Click(); });
    EXPECT_EQ(desktop.form.TheTick().Phase(), phase);
    EXPECT_EQ(desktop.menu.mode, EditMode::DrawWires);
}

TEST_F(FORM1Test, AnEditMakesClosingAskAndTheAnswerCounts) {
    desktop.Start();
    desktop.Click("Drukknop 1");
    desktop.messages.answers = {Answer::Cancel, Answer::No};

    std::int32_t Cancel = 0;
    desktop.form.Form_Unload(Cancel);
    EXPECT_EQ(Cancel, 1);
    EXPECT_FALSE(desktop.form.Ended());

    Cancel = 0;
    desktop.form.Form_Unload(Cancel);
    EXPECT_EQ(Cancel, 0);
    EXPECT_TRUE(desktop.form.Ended());
    EXPECT_EQ(desktop.program.ended, 0);
    EXPECT_EQ(desktop.messages.shown.size(), 2U);
}

TEST_F(FORM1Test, ADroppedDocumentIsOpened) {
    const SavedBoard saved;
    desktop.Start();
    desktop.form.Document_Drop(saved.path);
    EXPECT_EQ(desktop.Wires(), 1);
    EXPECT_EQ(desktop.form.TheUndoList().Position(), 1);
}

TEST_F(FORM1Test, ResizingPutsTheSurfaceInItsPlace) {
    desktop.form.Form_Resize();
    EXPECT_THAT(desktop.window.events, ElementsAre("surface placed"));
}

/// Tells when it is started.
struct WatchedTimer : TickTimer {
    void SetEnabled(bool Enabled) override { whenSet(Enabled); }

    void SetInterval(std::int32_t /*Interval*/) override {}

    std::function<void(bool)> whenSet;
};

TEST_F(FORM1Test, TheTimerStartsAfterTheCommandLineAndTheFirstUndoState) {
    WatchedTimer timer;
    FORM1 form{{desktop.window, desktop.program, desktop.menu, desktop.menu, desktop.messages,
                desktop.files, timer, desktop.clock, desktop.pointer, desktop.sound.Captures(),
                desktop.sound.settings, desktop.waveInputs, desktop.programs, desktop.aboutWindows,
                desktop.helpWindows, desktop.shell, desktop.fileTypes, desktop.player,
                desktop.log}};
    int times = 0;
    timer.whenSet = [&](bool enabled) {
        ++times;
        EXPECT_TRUE(enabled);
        EXPECT_EQ(desktop.messages.shown.size(), 1U) << "the missing document was told of";
        EXPECT_EQ(form.TheUndoList().Position(), 1);
    };
    desktop.program.commandLine = "C:\\x.vtx";
    form.Form_Load();
    EXPECT_EQ(times, 1);
}

} // namespace

} // namespace veltrix::test
