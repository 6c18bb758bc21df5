#include "app/qt/SplashWindow.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QImage>
#include <QLabel>
#include <QScreen>

#include <gtest/gtest.h>

#include <cmath>

namespace veltrix::test {

namespace {

TEST(SplashWindow, ShowsItsPictureInAWindowWithoutAFrame) {
    const TempFolder folder;
    writePicture(folder.Path(), "\\images2\\splash.bmp", plain(300, 300, 0xFF306090));
    SplashWindow splash(folder.Path());
    EXPECT_EQ(splash.size(), QSize(300, 300));
    EXPECT_TRUE(splash.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(splash.windowFlags() & Qt::WindowType_Mask, Qt::SplashScreen);
    EXPECT_EQ(splash.findChild<QLabel*>("Label1")->text(), "Loading...");
    EXPECT_EQ(splash.grab().toImage().pixel(150, 100), 0xFF306090);
}

TEST(SplashWindow, StandsInTheMiddleOfTheScreen) {
    const TempFolder folder;
    SplashWindow splash(folder.Path());
    const QPoint off =
        splash.frameGeometry().center() - splash.screen()->availableGeometry().center();
    EXPECT_LE(std::abs(off.x()), 1);
    EXPECT_LE(std::abs(off.y()), 1);
}

TEST(SplashWindow, DoesWithoutItsPicture) {
    const TempFolder folder;
    SplashWindow splash(folder.Path());
    splash.show();
    EXPECT_EQ(splash.size(), QSize(300, 300));
}

} // namespace

} // namespace veltrix::test
