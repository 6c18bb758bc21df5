#include "app/qt/QtAboutWindow.h"

#include "tests/app/qt/Centred.h"
#include "tests/app/qt/PrintTo.h"
#include "tests/app/qt/WhenUp.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <system_error>

namespace veltrix::test {

namespace {

struct QtAboutWindowTest : testing::Test {
    QtAboutWindowTest() {
        writePicture(folder.Path(), "\\images2\\about.bmp", plain(300, 300, 0xFF306090));
        parent.show();
    }

    /// Shows the window as the menu does; `look` sees it, and has to close it.
    void Show(const std::function<void(QtAboutWindow&)>& look) {
        const WhenUp<QtAboutWindow> shown(look);
        frmAbout(views.Create()).Show();
    }

    static void PressOk(QtAboutWindow& window) { window.findChild<QPushButton*>("btnOK")->click(); }

    TempFolder folder;
    QWidget parent;
    QtAboutWindows views{parent, folder.Path()};
};

TEST_F(QtAboutWindowTest, IsAPictureWithoutAFrame) {
    Show([](QtAboutWindow& window) {
        EXPECT_EQ(window.size(), QSize(300, 300));
        EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
        EXPECT_EQ(window.windowTitle(), "Over Veltrix Simulator versie 2");
        EXPECT_EQ(window.findChild<QLabel*>("picSplash")->geometry(), QRect(0, 0, 300, 300));
        EXPECT_EQ(window.grab().toImage().pixel(150, 100), 0xFF306090);
        PressOk(window);
    });
}

TEST_F(QtAboutWindowTest, StandsInTheMiddleOfTheScreen) {
    Show([](QtAboutWindow& window) {
        EXPECT_TRUE(centred(window));
        PressOk(window);
    });
}

TEST_F(QtAboutWindowTest, BlocksTheMainWindowUntilOk) {
    Show([&](QtAboutWindow& window) {
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(window.findChild<QPushButton*>("btnOK")->text(), "OK");
        QTest::mouseClick(&parent, Qt::LeftButton);
        EXPECT_TRUE(window.isVisible());
        PressOk(window);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(QtAboutWindowTest, EnterAndEscapeCloseItToo) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
        Show([key](QtAboutWindow& window) { QTest::keyClick(&window, key); });
}

TEST_F(QtAboutWindowTest, TheButtonLiesOnTheRailOfThePicture) {
    Show([](QtAboutWindow& window) {
        const QRect button = window.findChild<QPushButton*>("btnOK")->geometry();
        EXPECT_TRUE(QRect(0, 256, 300, 44).contains(button));
        EXPECT_LE(std::abs(button.center().x() - 149), 1);
        PressOk(window);
    });
}

TEST_F(QtAboutWindowTest, ComesEveryTime) {
    Show(PressOk);
    Show(PressOk);
}

TEST_F(QtAboutWindowTest, WithoutItsPictureItIsNotShown) {
    const TempFolder empty;
    QtAboutWindows without(parent, empty.Path());
    EXPECT_THROW(frmAbout(without.Create()).Show(), std::system_error);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace

} // namespace veltrix::test
