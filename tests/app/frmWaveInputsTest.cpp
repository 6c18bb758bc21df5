#include "app/frmWaveInputs.h"
#include "tests/support/MemoryDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// The dialog over a computer with these inputs.
struct Dialog {
    explicit Dialog(std::vector<FakeInputs::Input> inputs, const std::string& setting = {})
        : sound(std::move(inputs)) {
        sound.settings.value = setting;
        wi.emplace(sound.Captures(), sound.settings);
    }

    /// The meter after a tick of the dialog's timer.
    [[nodiscard]] float widthOf(std::int32_t meter) {
        form.Timer1_Timer();
        return seen.widths.at(meter);
    }

    FakeSoundInputs sound;
    FakeWaveInputsViews views;
    FakeProgramStart programs;
    std::optional<UCWaveIn> wi;
    frmWaveInputs form{views.Create(), programs};
    FakeWaveInputs& seen = views.dialogs.back();
};

constexpr std::int32_t sensor = WaveInputsView::SensorMeter;

TEST(frmWaveInputs, InputsAreCountedAndNamed) {
    Dialog dialog({{"Mic"}, {"Webcam"}});
    dialog.form.Constructor(*dialog.wi);
    EXPECT_EQ(dialog.seen.inputCount, "Aantal inputs: 2");
    EXPECT_THAT(dialog.seen.names, ElementsAre(Pair(1, "(Mic)"), Pair(2, "(Webcam)"), Pair(3, ""),
                                               Pair(4, ""), Pair(5, "")));
}

TEST(frmWaveInputs, AnInputThatCannotBeUsedIsMarked) {
    Dialog dialog({{"Mic", false}});
    dialog.form.Constructor(*dialog.wi);
    EXPECT_EQ(dialog.seen.names.at(1), "(Mic) (Cannot be used)");
}

TEST(frmWaveInputs, OfSevenInputsFiveAreShown) {
    Dialog dialog({{"a"}, {"b"}, {"c"}, {"d"}, {"e"}, {"f"}, {"g"}});
    dialog.form.Constructor(*dialog.wi);
    EXPECT_EQ(dialog.seen.inputCount, "Aantal inputs: 5");
    EXPECT_EQ(dialog.seen.names.at(5), "(e)");
}

TEST(frmWaveInputs, SwitchedOffThereIsNothingToShow) {
    Dialog dialog({{"Mic"}}, "Off");
    dialog.form.Constructor(*dialog.wi);
    EXPECT_EQ(dialog.seen.inputCount, "Aantal inputs: 0");
    EXPECT_EQ(dialog.seen.names.at(1), "");
    dialog.sound.taps[0].level = 100;
    EXPECT_EQ(dialog.widthOf(sensor), 0);
    EXPECT_EQ(dialog.seen.widths.count(1), 0U) << "the meters of unused inputs are left alone";
}

TEST(frmWaveInputs, BeforeItIsConstructedTheTimerDoesNothing) {
    Dialog dialog({{"Mic"}});
    dialog.form.Timer1_Timer();
    EXPECT_THAT(dialog.seen.widths, IsEmpty());
    EXPECT_EQ(dialog.sound.taps[0].reads, 0);
}

TEST(frmWaveInputs, MetersShowTheLevelsByTheirWidth) {
    Dialog dialog({{"Mic"}, {"Webcam"}});
    dialog.form.Constructor(*dialog.wi);
    dialog.sound.taps[0].level = 1000;
    EXPECT_EQ(dialog.widthOf(sensor), 200);
    EXPECT_EQ(dialog.widthOf(1), 200);
    dialog.sound.taps[0].level = 333;
    dialog.sound.taps[1].level = 500;
    EXPECT_EQ(dialog.widthOf(sensor), 68) << "the sensor's level is the whole number 17 of 50";
    EXPECT_EQ(dialog.widthOf(1), 0.333F * 200);
    EXPECT_EQ(dialog.widthOf(2), 100);
    EXPECT_EQ(dialog.seen.widths.count(3), 0U);
}

TEST(frmWaveInputs, AMeterIsVisibleExactlyWhenItHasAWidth) {
    Dialog dialog({{"Mic"}, {"Webcam"}});
    dialog.form.Constructor(*dialog.wi);
    dialog.sound.taps[1].level = 1;
    dialog.form.Timer1_Timer();
    EXPECT_THAT(dialog.seen.visible,
                ElementsAre(Pair(1, false), Pair(2, true), Pair(sensor, false)));
    dialog.sound.taps[0].level = 1;
    dialog.form.Timer1_Timer();
    EXPECT_THAT(dialog.seen.visible, ElementsAre(Pair(1, true), Pair(2, true), Pair(sensor, true)));
}

TEST(frmWaveInputs, OkUnloadsTheDialog) {
    Dialog dialog({});
    dialog.form.btnOK_Click();
    EXPECT_TRUE(dialog.seen.unloaded);
}

TEST(frmWaveInputs, TheSoundSettingsThatAreThereAreOpened) {
    Dialog dialog({});
    const std::vector<std::string> all = modControlPanel::SoundSettings();
    dialog.programs.installed = all.back().substr(0, all.back().find(' '));
    dialog.form.Command1_Click();
    EXPECT_EQ(dialog.programs.asked, all);
}

TEST(frmWaveInputs, AfterTheFirstThatStartsNoOtherIsTried) {
    Dialog dialog({});
    const std::string first = modControlPanel::SoundSettings().front();
    dialog.programs.installed = first.substr(0, first.find(' '));
    dialog.form.Command1_Click();
    EXPECT_THAT(dialog.programs.asked, ElementsAre(first));
}

TEST(frmWaveInputs, WithoutSoundSettingsTheButtonIsSilent) {
    Dialog dialog({});
    EXPECT_NO_THROW(dialog.form.Command1_Click());
    EXPECT_EQ(dialog.programs.asked, modControlPanel::SoundSettings());
}

TEST(frmWaveInputs, TheLoudestSoFarCountsForTheMetersOfTheSameTick) {
    Dialog dialog({{"Mic"}});
    dialog.form.Constructor(*dialog.wi);
    dialog.sound.taps[0].level = 1000;
    EXPECT_EQ(dialog.widthOf(1), 200);
}

} // namespace
} // namespace veltrix::test
