#include "tests/support/MemoryDesktop.h"
#include "tests/support/TempFolder.h"

#include "board/AppPath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <system_error>

namespace veltrix::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FORM1HelpTest : testing::Test {
    MemoryDesktop desktop;
};

TEST_F(FORM1HelpTest, TheDocumentTypeIsRegisteredBetweenTheWindowAndTheDocument) {
    desktop.fileTypes.whenRegistered = [&] {
        EXPECT_THAT(desktop.window.events,
                    ElementsAre("splash shown", "splash gone", "window shown"));
        EXPECT_THAT(desktop.messages.shown, IsEmpty()) << "the document was not looked for yet";
        EXPECT_EQ(desktop.form.TheUndoList().Position(), 0);
        EXPECT_FALSE(desktop.timer.enabled);
    };
    desktop.Start("C:\\x.vtx");
    EXPECT_EQ(desktop.fileTypes.times, 1);
    EXPECT_EQ(desktop.messages.shown.size(), 1U);
}

TEST_F(FORM1HelpTest, AStartThatFailsRegistersNothing) {
    desktop.window.scale = -1;
    desktop.Start();
    EXPECT_EQ(desktop.program.ended, 1);
    EXPECT_EQ(desktop.fileTypes.times, 0);
}

TEST_F(FORM1HelpTest, InfoShowsTheAboutWindowUntilOk) {
    desktop.Start();
    desktop.aboutWindows.whileShown = [&](frmAbout& about) {
        EXPECT_THAT(desktop.aboutWindows.events,
                    ElementsAre("picture \\images2\\about.bmp", "shown"));
        desktop.RunTicks(2); // the board goes on behind it
        about.btnOK_Click();
    };
    desktop.form.mnuHelpInfo_Click();
    EXPECT_EQ(desktop.aboutWindows.events.back(), "closed");
    EXPECT_THAT(desktop.notice.shown, IsEmpty());
}

TEST_F(FORM1HelpTest, AnAboutPictureThatIsGoneIsToldAndTheBoardStands) {
    desktop.Start();
    desktop.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    desktop.aboutWindows.pictureFails = [] {
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
    };
    desktop.edge.Command([](FORM1& form) { form.mnuHelpInfo_Click(); });
    ASSERT_EQ(desktop.messages.shown.size(), 1U);
    EXPECT_THAT(desktop.messages.shown[0].text, HasSubstr("bestaat niet"));
    EXPECT_EQ(desktop.Wires(), 1);
}

TEST_F(FORM1HelpTest, UitlegShowsTheDutchPageInTheOneHelpWindow) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path() / "html");
    std::ofstream(folder.Path() / "html/HelpNL.htm") << "<p>hulp</p>";
    const std::string page = Utf8FromPath(folder.Path() / "html/HelpNL.htm");
    desktop.program.folder = folder.Path();
    desktop.Start();
    desktop.form.mnuUitleg_Click();
    desktop.RunTicks(2);
    desktop.form.mnuUitleg_Click();
    ASSERT_EQ(desktop.helpWindows.windows.size(), 1U);
    const auto& window = desktop.helpWindows.windows[0];
    EXPECT_EQ(window.shown, 2);
    EXPECT_THAT(window.pages, ElementsAre(page, page));

    window.help->Form_Unload();
    desktop.form.mnuUitleg_Click();
    ASSERT_EQ(desktop.helpWindows.windows.size(), 2U);
    EXPECT_THAT(desktop.helpWindows.windows[1].pages, ElementsAre(page));
}

TEST_F(FORM1HelpTest, OpInternetTellsWhereItGoesAndGoesThere) {
    desktop.Start();
    desktop.shell.unreachable = true; // so that the order can be seen: box, attempt, box
    desktop.form.mnuHelpAbout_Click();
    ASSERT_EQ(desktop.messages.shown.size(), 2U);
    EXPECT_EQ(desktop.messages.shown[0].text,
              "Op internet staat hulp en meer informatie.\r\n"
              "De computer probeert naar de volgende website gaan:\r\n"
              "https://veltrix.example/\r\n");
    EXPECT_EQ(desktop.messages.shown[0].title, "Veltrix Simulator");
    EXPECT_EQ(desktop.messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(desktop.messages.shown[0].icon, Icon::Information);
    EXPECT_EQ(desktop.messages.shown[1].title, "Veltrix");
    ASSERT_EQ(desktop.shell.opened.size(), 1U);
    EXPECT_EQ(desktop.shell.opened[0].address, "https://veltrix.example/");
}

TEST_F(FORM1HelpTest, OpenWebPageAnswersWithTheResultOfTheShell) {
    EXPECT_TRUE(desktop.form.OpenWebPage("https://veltrix.example/x"));
    desktop.shell.answer = 0;
    EXPECT_FALSE(desktop.form.OpenWebPage("https://veltrix.example/x"));
    EXPECT_THAT(desktop.messages.shown, IsEmpty());
}

} // namespace

} // namespace veltrix::test
