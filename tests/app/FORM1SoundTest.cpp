#include "tests/support/MemoryDesktop.h"

#include <gtest/gtest.h>

#include <vector>

namespace veltrix::test {

namespace {

TEST(FORM1SoundTest, GeluidSensorShowsADialogOfItsOwnEveryTime) {
    MemoryDesktop desktop;
    desktop.Start();
    desktop.waveInputs.whileShown = [](frmWaveInputs& dialog, FakeWaveInputs& seen) {
        dialog.Timer1_Timer();
        EXPECT_EQ(seen.inputCount, "Aantal inputs: 0") << "it is constructed before it is shown";
        EXPECT_EQ(seen.widths.count(WaveInputsView::SensorMeter), 1U);
        dialog.btnOK_Click();
    };
    desktop.edge.Command([](FORM1& form) { form.mnuGeluidSensor_Click(); });
    desktop.edge.Command([](FORM1& form) { form.mnuGeluidSensor_Click(); });
    ASSERT_EQ(desktop.waveInputs.dialogs.size(), 2U);
    for (const FakeWaveInputs& dialog : desktop.waveInputs.dialogs) {
        EXPECT_EQ(dialog.shown, 1);
        EXPECT_TRUE(dialog.unloaded);
    }
}

TEST(FORM1SoundTest, TheBoardHearsTheFirstInput) {
    MemoryDesktop desktop(std::vector<FakeInputs::Input>{{"Mic"}, {"Webcam"}});
    FORM1& form = desktop.form;
    FakeSoundInputs& sound = desktop.sound;
    form.Form_Load();
    form.UCWaveIn1.Timer1_Timer();
    EXPECT_EQ(sound.taps[0].starts, 1);
    sound.taps[0].level = 100;
    form.Timer1_Timer();
    EXPECT_EQ(form.TheGraph().GetPuntValueByName("Geluids Sensor Uit Geel", 0), 50);
    sound.taps[0].level = 50;
    sound.taps[1].level = 1000;
    form.Timer1_Timer();
    EXPECT_EQ(form.TheGraph().GetPuntValueByName("Geluids Sensor Uit Geel", 0), 25);
}

} // namespace

} // namespace veltrix::test
