#include "app/qt/help/QtBrowser.h"

#include "app/qt/help/FindBar.h"
#include "app/qt/help/PageView.h"
#include "tests/support/TempFolder.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>

namespace veltrix::test {

namespace {

struct QtBrowserTest : testing::Test {
    QtBrowserTest() {
        window.resize(500, 400);
        browser.SetVisible(true);
        browser.Move(0, 0, 500, 400);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 60000));
    }

    [[nodiscard]] PageView& Page() const { return *browser.findChild<PageView*>(); }

    [[nodiscard]] FindBar& Find() const { return *browser.findChild<FindBar*>(); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    QWidget window;
    QtBrowser browser{&window};
};

TEST_F(QtBrowserTest, IsInvisibleUntilItIsShown) {
    QWidget other;
    QtBrowser hidden(&other);
    other.show();
    EXPECT_FALSE(hidden.isVisible());
    hidden.SetVisible(true);
    EXPECT_TRUE(hidden.isVisible());
    hidden.SetVisible(false);
    EXPECT_FALSE(hidden.isVisible());
}

TEST_F(QtBrowserTest, LiesWhereItIsPutAndThePageFillsIt) {
    browser.Move(10, 20, 300, 200);
    EXPECT_EQ(browser.geometry(), QRect(10, 20, 300, 200));
    QCoreApplication::processEvents();
    EXPECT_EQ(Page().geometry(), QRect(0, 0, 300, 200));
}

TEST_F(QtBrowserTest, GoesToThePageOfAPath) {
    const TempFolder folder;
    const auto path = folder.Path() / "een & één #1.htm";
    std::ofstream(path) << "<p>gevonden</p>";
    browser.Navigate(path.string());
    EXPECT_EQ(Page().toPlainText(), "gevonden");
}

TEST_F(QtBrowserTest, ThePageHasTheKeyboard) {
    EXPECT_TRUE(Page().hasFocus());
}

TEST_F(QtBrowserTest, TheKeysFindAndZoom) {
    Page().setPlainText("een bus en nog een bus");
    Key(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(Find().isVisible());
    QTest::keyClicks(QApplication::focusWidget(), "bus");
    EXPECT_EQ(Page().textCursor().selectionStart(), 4);
    Key(Qt::Key_F3);
    EXPECT_EQ(Page().textCursor().selectionStart(), 19);
    Key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Page().textCursor().selectionStart(), 4);
    Key(Qt::Key_Escape);
    EXPECT_TRUE(Page().hasFocus());

    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Page().Zoom(), 110);
    Key(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(Page().Zoom(), 125);
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Page().Zoom(), 110);
    Key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Page().Zoom(), 100);
}

TEST_F(QtBrowserTest, TellsOfLinksToTheInternet) {
    QSignalSpy told(&browser, &QtBrowser::WebLinkClicked);
    emit Page().anchorClicked(QUrl("https://school.example/"));
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0][0].toUrl(), QUrl("https://school.example/"));
}

} // namespace

} // namespace veltrix::test
