#include "app/qt/QtPictures.h"
#include "tests/app/qt/Centred.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QImage>
#include <QWidget>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

/// Renditions of one picture, each in a colour of its own.
struct QtPictures : testing::Test {
    QtPictures() {
        writePicture(folder.Path(), "\\images2\\splash.bmp", plain(10, 8, one));
        writePicture(folder.Path(), "\\images2\\splash@2x.bmp", plain(20, 16, two));
        writePicture(folder.Path(), "\\images2\\splash@3x.bmp", plain(30, 24, three));
    }

    QPixmap Load(double scale) const {
        return LoadPixmap(folder.Path(), "\\images2\\splash.bmp", scale);
    }

    static QRgb Colour(const QPixmap& picture) { return picture.toImage().pixel(3, 3); }

    static constexpr std::uint32_t one = 0xFFFF0000;
    static constexpr std::uint32_t two = 0xFF00FF00;
    static constexpr std::uint32_t three = 0xFF0000FF;
    TempFolder folder;
};

TEST_F(QtPictures, TheRenditionHasAtLeastAsManyPixelsAsTheScreenShows) {
    EXPECT_EQ(Colour(Load(1)), one);
    EXPECT_EQ(Colour(Load(1.25)), two);
    EXPECT_EQ(Colour(Load(2)), two);
    EXPECT_EQ(Colour(Load(2.5)), three);
    EXPECT_EQ(Colour(Load(4)), three);
}

TEST_F(QtPictures, EveryRenditionIsAsLargeOnTheScreen) {
    for (const double scale : {1.0, 1.5, 2.0, 3.0})
        EXPECT_EQ(Load(scale).deviceIndependentSize(), QSizeF(10, 8)) << scale;
}

TEST_F(QtPictures, WhereARenditionIsMissingThePlainOneServes) {
    std::filesystem::remove(AppPath(folder.Path(), "\\images2\\splash@3x.bmp"));
    EXPECT_EQ(Colour(Load(3)), one);
    EXPECT_EQ(Load(3).deviceIndependentSize(), QSizeF(10, 8));
}

TEST_F(QtPictures, APictureThatIsNotThereIsNone) {
    EXPECT_TRUE(LoadPixmap(folder.Path(), "\\images2\\weg.bmp", 1).isNull());
    EXPECT_TRUE(LoadPixmap(folder.Path(), "\\images2\\weg.bmp", 2).isNull());
}

TEST_F(QtPictures, AWindowIsPutInTheMiddleOfItsScreen) {
    QWidget window;
    window.setFixedSize(101, 60);
    CentreOnScreen(window);
    EXPECT_TRUE(centred(window));
}

} // namespace

} // namespace veltrix::test
