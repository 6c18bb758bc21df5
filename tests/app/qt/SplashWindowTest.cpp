#include "app/qt/SplashWindow.h"
#include "tests/app/qt/Centred.h"
#include "tests/app/qt/PaintWatch.h"
#include "tests/support/Folders.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

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
    EXPECT_TRUE(centred(splash));
}

TEST(SplashWindow, IsPaintedBeforeTheStartGoesOn) {
    const TempFolder folder;
    SplashWindow splash(folder.Path());
    const PaintWatch watch(splash);
    splash.ShowPainted();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_GE(watch.Times, 1);
}

TEST(SplashWindow, ADesktopThatDoesNotShowItDoesNotStopTheStart) {
    const TempFolder folder;
    SplashWindow splash(folder.Path());
    splash.setUpdatesEnabled(false);
    const PaintWatch watch(splash);
    splash.ShowPainted();
    EXPECT_EQ(watch.Times, 0);
}

/// Whether the words stand out against the dark that they stand on.
void expectReadable(SplashWindow& splash) {
    const QImage picture = splash.grab(QRect(0, 260, 300, 40)).toImage();
    int light = 0;
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const int lightness = picture.pixelColor(x, y).lightness();
            light += lightness > 200 ? 1 : 0;
            dark += lightness < 80 ? 1 : 0;
        }
    EXPECT_GT(light, 50);
    EXPECT_GT(dark, picture.width() * picture.height() * 8 / 10);
}

TEST(SplashWindow, ItsWordsCanBeReadOnThePicture) {
    SplashWindow splash(ApplicationFolder());
    expectReadable(splash);
}

TEST(SplashWindow, ItsWordsCanBeReadWithoutThePicture) {
    const TempFolder folder;
    SplashWindow splash(folder.Path());
    EXPECT_EQ(splash.size(), QSize(300, 300));
    expectReadable(splash);
}

} // namespace

} // namespace veltrix::test
