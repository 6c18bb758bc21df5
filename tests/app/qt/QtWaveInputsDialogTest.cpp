#include "app/qt/QtWaveInputsDialog.h"

#include "app/qt/VolumeMeter.h"
#include "tests/app/qt/Centred.h"
#include "tests/app/qt/PaintWatch.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/app/qt/WhenUp.h"
#include "tests/support/FakeSound.h"
#include "tests/support/MemoryDesktop.h"

#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace veltrix::test {
namespace {

/// The dialog over a computer with two inputs, as the program shows it.
class QtWaveInputsDialogTest : public testing::Test {
protected:
    /// Shows the dialog; while it is shown the test does this, and closes it.
    void show(const std::function<void(QtWaveInputsDialog&)>& whileShown) {
        UCWaveIn wi(sound.Captures(), sound.settings);
        QtWaveInputsDialogs dialogs(window);
        frmWaveInputs form(dialogs.Create(), programs);
        form.Constructor(wi);
        const WhenUp<QtWaveInputsDialog> shown(whileShown);
        form.Show();
    }

    static QString text(const QtWaveInputsDialog& dialog, const char* name) {
        return dialog.findChild<QLabel*>(name)->text();
    }

    static void press(QtWaveInputsDialog& dialog, const char* name) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(name), Qt::LeftButton);
    }

    QMainWindow window;
    FakeSoundInputs sound{{{"Mic"}, {"Webcam", false}}};
    FakeProgramStart programs;
};

TEST_F(QtWaveInputsDialogTest, SaysWhatThereIs) {
    show([](QtWaveInputsDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Geluid Sensor");
        EXPECT_EQ(text(dialog, "labInputCount"), "Aantal inputs: 2");
        EXPECT_EQ(text(dialog, "Label2_0"), "Input #1");
        EXPECT_EQ(text(dialog, "Label2_4"), "Input #5");
        EXPECT_EQ(text(dialog, "Label2_5"), "Geluids-sensor");
        EXPECT_EQ(text(dialog, "Label3_1"), "(Mic)");
        EXPECT_EQ(text(dialog, "Label3_2"), "(Webcam) (Cannot be used)");
        EXPECT_EQ(text(dialog, "Label3_3"), "");
        EXPECT_EQ(dialog.findChild<QPushButton*>("Command1")->text(), "Windows Sound Settings");
        EXPECT_EQ(dialog.findChild<QPushButton*>("btnOK")->text(), "OK");
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, HasAFrameThatCannotBeResized) {
    show([](QtWaveInputsDialog& dialog) {
        EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
        EXPECT_FALSE(dialog.windowFlags() & Qt::WindowMaximizeButtonHint);
        EXPECT_FALSE(dialog.windowFlags() & Qt::WindowMinimizeButtonHint);
        EXPECT_TRUE(dialog.windowFlags() & Qt::WindowCloseButtonHint);
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, StandsInTheMiddleOfTheScreenWhereverTheProgramIs) {
    window.move(7, 5);
    window.show();
    show([](QtWaveInputsDialog& dialog) {
        EXPECT_TRUE(centred(dialog, 30));
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, MetersFollowTheLevels) {
    show([this](QtWaveInputsDialog& dialog) {
        const auto level = [&](int i) {
            return dialog.findChild<VolumeMeter*>(QString("picVolume_%1").arg(i))->Level();
        };
        sound.taps[0].level = 1000;
        EXPECT_TRUE(waitUntil([&] { return level(6) == 200 && level(1) == 200; }));
        sound.taps[0].level = 500;
        sound.taps[1].level = 250;
        EXPECT_TRUE(
            waitUntil([&] { return level(6) == 100 && level(1) == 100 && level(2) == 50; }));
        EXPECT_EQ(level(3), 0);
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, AtRestNothingIsRepainted) {
    show([this](QtWaveInputsDialog& dialog) {
        const auto shown = [&](int i) {
            return dialog.findChild<VolumeMeter*>(QString("picVolume_%1").arg(i))->Shown();
        };
        const auto rounds = [this](int count) { // of the dialog's timer, which reads input 1
            const int reads = sound.taps[0].reads;
            return waitUntil([&] { return sound.taps[0].reads > reads + 4 * count; });
        };
        sound.taps[0].level = 1000;
        EXPECT_TRUE(waitUntil([&] { return shown(1) == 200 && shown(6) == 200; }));
        EXPECT_TRUE(rounds(3)) << "the last step is painted";
        PaintWatch watch(dialog);
        EXPECT_TRUE(rounds(10));
        EXPECT_EQ(watch.Times, 0);
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, EnterAndEscapeClose) {
    show([](QtWaveInputsDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    show([](QtWaveInputsDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_TRUE(programs.asked.empty());
}

TEST_F(QtWaveInputsDialogTest, TheOtherButtonAsksForTheSoundSettings) {
    show([this](QtWaveInputsDialog& dialog) {
        press(dialog, "Command1");
        EXPECT_EQ(programs.asked, modControlPanel::SoundSettings());
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, ANameTooLongIsShownWholeInItsTip) {
    sound.computer.inputs[0].name = std::string(200, 'x');
    show([](QtWaveInputsDialog& dialog) {
        const auto* name = dialog.findChild<QLabel*>("Label3_1");
        EXPECT_EQ(name->toolTip(), name->text());
        EXPECT_EQ(dialog.findChild<QLabel*>("Label3_2")->toolTip(), "");
        EXPECT_LT(dialog.width(), 700);
        press(dialog, "btnOK");
    });
}

TEST_F(QtWaveInputsDialogTest, HasGreyNamesAndAPaintedBackground) {
    show([](QtWaveInputsDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("Label3_1")->foregroundRole(),
                  QPalette::PlaceholderText);
        const QImage picture = dialog.grab().toImage();
        std::set<QRgb> colours; // of the lowest row, where no control stands
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, picture.height() - 1));
        EXPECT_GT(colours.size(), 1U);
        press(dialog, "btnOK");
    });
}

} // namespace
} // namespace veltrix::test
