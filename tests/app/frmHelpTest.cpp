#include "app/frmHelp.h"

#include "board/AppPath.h"
#include "tests/support/MemoryDesktop.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace veltrix::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct frmHelpTest : testing::Test {
    void HavePage(const std::string& name) {
        std::filesystem::create_directories(folder.Path() / "html");
        std::ofstream(folder.Path() / "html" / name) << "<p>help</p>";
    }

    [[nodiscard]] std::string Page(const std::string& name) const {
        return Utf8FromPath(folder.Path() / "html" / name);
    }

    [[nodiscard]] FakeHelpViews::Window& Window() { return views.windows.back(); }

    TempFolder folder;
    FakeHelpViews views;
    FakeMessageBox messages;
    FakeShell shell;
    WebPages webPages{shell, messages};
    frmHelp help{views, messages, webPages, folder.Path()};
};

TEST_F(frmHelpTest, ShowingMakesAVisibleBrowserBeforeTheWindowIsSeen) {
    help.Show();
    ASSERT_EQ(views.windows.size(), 1U);
    EXPECT_EQ(Window().help, &help);
    EXPECT_EQ(Window().shown, 1);
    EXPECT_TRUE(Window().hasBrowser);
    EXPECT_TRUE(Window().visible);
    EXPECT_THAT(Window().pages, IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(frmHelpTest, GoesToThePageOfTheLanguage) {
    HavePage("HelpNL.htm");
    HavePage("HelpENG.htm");
    help.Show();
    help.Constructor("NL");
    help.Constructor("ENG");
    EXPECT_THAT(Window().pages, ElementsAre(Page("HelpNL.htm"), Page("HelpENG.htm")));
}

TEST_F(frmHelpTest, WithoutAPageOfTheLanguageTheEnglishOneIsShown) {
    HavePage("HelpENG.htm");
    help.Show();
    help.Constructor("NL");
    EXPECT_THAT(Window().pages, ElementsAre(Page("HelpENG.htm")));
}

TEST_F(frmHelpTest, WhetherThereIsAnEnglishPageIsLeftToTheBrowser) {
    help.Show();
    help.Constructor("NL");
    EXPECT_THAT(Window().pages, ElementsAre(Page("HelpENG.htm")));
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(frmHelpTest, AFolderIsNoPage) {
    std::filesystem::create_directories(folder.Path() / "html/HelpNL.htm");
    help.Show();
    help.Constructor("NL");
    EXPECT_THAT(Window().pages, ElementsAre(Page("HelpENG.htm")));
}

TEST_F(frmHelpTest, WithoutABrowserTheUserIsToldAndTheWindowStays) {
    views.noBrowser = true;
    help.Show();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, "Kan webbrowser niet opstarten..");
    EXPECT_EQ(messages.shown[0].title, "Foutmelding");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(Window().shown, 1);

    help.Constructor("NL");
    help.Form_Resize();
    EXPECT_EQ(messages.shown.size(), 1U) << "nobody is told twice";
    EXPECT_THAT(Window().pages, IsEmpty());
    EXPECT_FALSE(Window().place);
}

TEST_F(frmHelpTest, ABrowserThatDoesNotShowIsNoBrowser) {
    views.visibilityFails = true;
    help.Show();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_FALSE(Window().hasBrowser);
    help.Constructor("NL");
    EXPECT_THAT(Window().pages, IsEmpty());
}

TEST_F(frmHelpTest, AnErrorWhileNavigatingIsNotTold) {
    views.navigationFails = true;
    help.Show();
    EXPECT_NO_THROW(help.Constructor("NL"));
    EXPECT_EQ(Window().pages.size(), 1U);
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(frmHelpTest, TheBrowserFillsTheWindow) {
    help.Show();
    for (const auto& [width, height] : {std::pair{686, 418}, std::pair{1, 2000}}) {
        Window().width = width;
        Window().height = height;
        help.Form_Resize();
        ASSERT_TRUE(Window().place);
        EXPECT_EQ(Window().place->x, 0);
        EXPECT_EQ(Window().place->y, 0);
        EXPECT_EQ(Window().place->width, width);
        EXPECT_EQ(Window().place->height, height);
    }
}

TEST_F(frmHelpTest, BeforeThereIsAWindowNothingIsResizedOrNavigated) {
    help.Form_Resize();
    help.Constructor("NL");
    EXPECT_THAT(views.windows, IsEmpty());
}

TEST_F(frmHelpTest, ShowingAgainBringsBackTheSameWindow) {
    help.Show();
    help.Show();
    ASSERT_EQ(views.windows.size(), 1U);
    EXPECT_EQ(Window().shown, 2);
    EXPECT_EQ(Window().browsers, 1);
}

TEST_F(frmHelpTest, AfterItWasClosedItIsLoadedAnewWithABrowserOfItsOwn) {
    help.Show();
    help.Form_Unload();
    EXPECT_FALSE(views.windows[0].hasBrowser) << "a closed window keeps no pages";
    help.Constructor("NL");
    EXPECT_THAT(views.windows[0].pages, IsEmpty());

    help.Show();
    ASSERT_EQ(views.windows.size(), 2U);
    EXPECT_TRUE(views.windows[0].gone);
    EXPECT_TRUE(views.windows[1].hasBrowser);
    EXPECT_EQ(views.windows[1].shown, 1);
}

TEST_F(frmHelpTest, TriesAgainForABrowserAfterTheEmptyWindowWasClosed) {
    views.noBrowser = true;
    help.Show();
    help.Form_Unload();
    views.noBrowser = false;
    help.Show();
    EXPECT_TRUE(Window().hasBrowser);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(frmHelpTest, ALinkToTheInternetIsOpenedOutside) {
    help.Show();
    help.WebLink_Click("https://veltrix.example/lessen");
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_EQ(shell.opened[0].address, "https://veltrix.example/lessen");
    EXPECT_THAT(Window().pages, IsEmpty());
}

} // namespace

} // namespace veltrix::test
