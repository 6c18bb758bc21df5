#include "app/qt/VolumeMeter.h"
#include "tests/app/qt/PaintWatch.h"
#include "tests/app/qt/WaitUntil.h"

#include <QColor>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace veltrix {
namespace {

constexpr int fullScale = 200;
constexpr int enoughSteps = 100;

class VolumeMeterTest : public testing::Test {
protected:
    /// The meter after it has come to rest at a level.
    void rest(float width, bool visible = true) {
        meter.SetLevel(width, visible);
        for (int i = 0; i < enoughSteps; ++i)
            meter.Step();
    }

    /// How many pixels of the middle line have a colour of the bar.
    [[nodiscard]] int barWidth() {
        const QImage image = meter.grab().toImage().convertToFormat(QImage::Format_RGB32);
        int coloured = 0;
        for (int x = 0; x < image.width(); ++x)
            coloured += QColor(image.pixel(x, image.height() / 2)).hsvSaturation() > 60 ? 1 : 0;
        return qRound(coloured / meter.devicePixelRatioF());
    }

    VolumeMeter meter{fullScale};
};

TEST_F(VolumeMeterTest, IsEmptyAtFirst) {
    EXPECT_EQ(barWidth(), 0);
}

TEST_F(VolumeMeterTest, ShowsItsLevelByItsWidth) {
    for (const int width : {200, 150, 68, 20}) {
        rest(static_cast<float>(width));
        EXPECT_EQ(barWidth(), width);
    }
}

TEST_F(VolumeMeterTest, ShowsNoMoreThanFullScale) {
    rest(1e9F);
    EXPECT_EQ(barWidth(), fullScale);
    meter.SetLevel(0, false);
    meter.Step();
    EXPECT_LT(barWidth(), fullScale) << "it does not take long to come down from far above";
}

TEST_F(VolumeMeterTest, ShowsNothingWhenItIsNotVisible) {
    rest(100);
    rest(100, false);
    EXPECT_EQ(barWidth(), 0);
}

TEST_F(VolumeMeterTest, MovesInSteps) {
    meter.SetLevel(fullScale, true);
    int before = 0;
    for (int i = 0; i < 4; ++i) {
        meter.Step();
        EXPECT_GT(barWidth(), before);
        before = barWidth();
    }
    EXPECT_LT(before, fullScale);
    rest(fullScale);
    meter.SetLevel(0, false);
    meter.Step();
    EXPECT_GT(barWidth(), fullScale / 2) << "it falls slower than it rises";
}

TEST_F(VolumeMeterTest, RepaintsOnlyWhatChanges) {
    meter.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&meter, 60000));
    rest(100);
    test::PaintWatch watch(meter);
    ASSERT_TRUE(test::waitUntil([&] { return watch.Times > 0; })) << "the way to 100";
    watch.Times = 0;
    watch.Region = {};
    rest(100);
    meter.SetLevel(104, true);
    meter.Step();
    ASSERT_TRUE(test::waitUntil([&] { return watch.Times > 0; }));
    EXPECT_EQ(watch.Times, 1);
    EXPECT_LT(watch.Region.boundingRect().width(), 20);
    EXPECT_GT(watch.Region.boundingRect().left(), 80);
}

} // namespace
} // namespace veltrix
