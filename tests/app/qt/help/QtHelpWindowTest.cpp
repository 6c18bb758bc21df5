#include "app/qt/help/QtHelpWindow.h"

#include "app/qt/QtDialogs.h"
#include "app/qt/help/PageView.h"
#include "app/qt/help/QtBrowser.h"
#include "tests/app/qt/BoxAnswers.h"
#include "tests/app/qt/Centred.h"
#include "tests/app/qt/PrintTo.h"
#include "tests/support/MemoryDesktop.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace veltrix::test {

namespace {

struct QtHelpWindowTest : testing::Test {
    QtHelpWindowTest() { std::filesystem::create_directory(folder.Path() / "html"); }

    void HavePage(const std::string& name, const std::string& text) {
        std::ofstream(folder.Path() / "html" / name) << "<p>" + text + "</p>";
    }

    void Click() { // on "Uitleg"
        help.Show();
        help.Constructor("NL");
    }

    /// The window that is to be seen.
    [[nodiscard]] static QtHelpWindow* Window() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<QtHelpWindow*>(widget); window && window->isVisible())
                return window;
        return nullptr;
    }

    [[nodiscard]] static std::string Text() {
        return Window()->findChild<PageView*>()->toPlainText().toStdString();
    }

    TempFolder folder;
    QWidget parent;
    QtHelpWindows views{folder.Path()};
    QtMessageBox messages{parent};
    FakeShell shell;
    WebPages webPages{shell, messages};
    frmHelp help{views, messages, webPages, folder.Path()};
};

TEST_F(QtHelpWindowTest, IsAWindowThatCanBeResizedMinimisedAndMaximised) {
    Click();
    ASSERT_NE(Window(), nullptr);
    EXPECT_EQ(Window()->windowTitle(), "Hulp");
    EXPECT_EQ(Window()->size(), QSize(686, 418));
    EXPECT_LT(Window()->minimumWidth(), 686);
    EXPECT_GT(Window()->maximumWidth(), 10000);
    EXPECT_EQ(Window()->windowType(), Qt::Window);
    EXPECT_FALSE(Window()->windowFlags() & Qt::CustomizeWindowHint) << "it has every button";
    EXPECT_FALSE(Window()->isModal());
}

TEST_F(QtHelpWindowTest, StandsInTheMiddleOfTheScreen) {
    Click();
    EXPECT_TRUE(centred(*Window(), 16));
}

TEST_F(QtHelpWindowTest, HasAnIconOfItsOwn) {
    std::filesystem::create_directory(folder.Path() / "images2");
    WritePng(plain(16, 16, 0xFF00FF00), folder.Path() / "images2/help-16.png");
    Click();
    EXPECT_EQ(Window()->windowIcon().pixmap(16, 16).toImage().pixel(8, 8), 0xFF00FF00);
}

TEST_F(QtHelpWindowTest, TheBrowserFillsItExactlyWhateverItsSize) {
    Click();
    for (const QSize size : {QSize(686, 418), QSize(900, 300), QSize(281, 700)}) {
        Window()->resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(Window()->findChild<QtBrowser*>("browser")->geometry(), QRect({0, 0}, size));
    }
}

TEST_F(QtHelpWindowTest, ASecondClickBringsTheSameWindowBack) {
    Click();
    QtHelpWindow* const first = Window();
    first->resize(500, 500);
    first->showMinimized();
    Click();
    EXPECT_EQ(Window(), first);
    EXPECT_FALSE(first->isMinimized());
    EXPECT_EQ(first->size(), QSize(500, 500));
}

TEST_F(QtHelpWindowTest, AfterItWasClosedItComesAnew) {
    HavePage("HelpNL.htm", "hulp");
    Click();
    Window()->resize(500, 500);
    Window()->close();
    EXPECT_EQ(Window(), nullptr);
    Click();
    ASSERT_NE(Window(), nullptr);
    EXPECT_EQ(Window()->size(), QSize(686, 418));
    EXPECT_EQ(Text(), "hulp");
}

TEST_F(QtHelpWindowTest, ALinkToTheInternetGoesToTheShell) {
    Click();
    emit Window()->findChild<PageView*>()->anchorClicked(QUrl("https://school.example/a b"));
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_EQ(shell.opened[0].address, "https://school.example/a%20b");
}

/// A computer without a browser, but with the real window.
struct WithoutBrowser : HelpViews {
    struct View : QtHelpWindow {
        using QtHelpWindow::QtHelpWindow;

        std::unique_ptr<Browser> AddBrowser() override { throw std::runtime_error("none"); }
    };

    std::unique_ptr<HelpView> Create(frmHelp& help) override {
        return std::make_unique<View>(help, QIcon());
    }
};

TEST_F(QtHelpWindowTest, WithoutABrowserABoxSaysSoAndTheWindowStaysEmpty) {
    WithoutBrowser none;
    frmHelp empty(none, messages, webPages, folder.Path());
    BoxAnswers answers;
    answers.Press("OK");
    empty.Show();
    empty.Constructor("NL");
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].text, "Kan webbrowser niet opstarten..");
    EXPECT_EQ(answers.boxes[0].title, "Foutmelding");
    EXPECT_EQ(answers.boxes[0].buttons, QStringList("OK"));
    ASSERT_NE(Window(), nullptr);
    EXPECT_EQ(Window()->findChild<QtBrowser*>(), nullptr);
    Window()->resize(300, 300);
    QCoreApplication::processEvents();
}

} // namespace

} // namespace veltrix::test
