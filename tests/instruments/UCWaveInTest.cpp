#include "instruments/UCWaveIn.h"
#include "tests/support/FakeSound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

using testing::ElementsAre;

struct UCWaveInTest : testing::Test {
    /// The sensor of a computer with so many inputs, "in 1", "in 2", ...
    UCWaveIn& withInputs(int count) {
        for (int i = 1; i <= count; ++i)
            sound.computer.inputs.push_back({"in " + std::to_string(i)});
        return create();
    }

    UCWaveIn& create() {
        wi.emplace(sound.Captures(), sound.settings);
        return *wi;
    }

    /// What the sensor shows when input 1 has this level.
    std::int32_t volumeAt(std::int32_t level) {
        sound.taps[0].level = level;
        return wi->GetVolume();
    }

    [[nodiscard]] std::vector<int> starts() const {
        std::vector<int> counts;
        for (const FakeTap& tap : sound.taps)
            counts.push_back(tap.starts);
        return counts;
    }

    FakeSoundInputs sound;
    std::optional<UCWaveIn> wi;
};

TEST_F(UCWaveInTest, WithoutInputsItIsSilent) {
    withInputs(0);
    EXPECT_EQ(wi->GetUsedCount(), 0);
    EXPECT_EQ(volumeAt(1000), 0);
    EXPECT_EQ(sound.taps[0].reads, 0);
}

TEST_F(UCWaveInTest, EveryInputIsBoundToItsNumber) {
    withInputs(3);
    EXPECT_EQ(wi->GetUsedCount(), 3);
    EXPECT_EQ(sound.taps[0].index, 1);
    EXPECT_EQ(sound.taps[1].index, 2);
    EXPECT_EQ(sound.taps[2].index, 3);
    EXPECT_EQ(sound.taps[3].index, 0);
}

TEST_F(UCWaveInTest, OfManyInputsTheFirstFiveAreUsed) {
    EXPECT_EQ(withInputs(7).GetUsedCount(), 5);
    wi->Timer1_Timer();
    EXPECT_THAT(starts(), ElementsAre(1, 1, 1, 1, 1));
}

TEST_F(UCWaveInTest, TheUsersSettingIsAskedByItsName) {
    withInputs(1);
    EXPECT_THAT(sound.settings.asked, ElementsAre("VELTRIX2/Sound/Value"));
}

TEST_F(UCWaveInTest, SwitchedOffNothingIsCountedStartedOrHeard) {
    sound.settings.value = "Off";
    withInputs(2);
    wi->Timer1_Timer();
    EXPECT_EQ(wi->GetUsedCount(), 0);
    EXPECT_THAT(starts(), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_EQ(volumeAt(1000), 0);
}

TEST_F(UCWaveInTest, SwitchedOffItStaysOffWhenTheComputerAnswersLate) {
    sound.settings.value = "Off";
    sound.computer.answered = false;
    withInputs(2);
    sound.computer.answered = true;
    wi->Timer1_Timer();
    EXPECT_EQ(wi->GetUsedCount(), 0);
}

TEST_F(UCWaveInTest, OnlyTheExactWordSwitchesOff) {
    for (const char* value : {"off", "OFF", "Off ", "0", "False"}) {
        sound.Become({{"mic"}});
        sound.settings.value = value;
        EXPECT_EQ(create().GetUsedCount(), 1) << value;
    }
}

TEST_F(UCWaveInTest, CapturesStartOnTheFirstTimerTickAndOnlyThen) {
    withInputs(2);
    EXPECT_THAT(starts(), ElementsAre(0, 0, 0, 0, 0));
    wi->Timer1_Timer();
    EXPECT_THAT(starts(), ElementsAre(1, 1, 0, 0, 0));
    wi->Timer1_Timer();
    EXPECT_THAT(starts(), ElementsAre(1, 1, 0, 0, 0));
}

TEST_F(UCWaveInTest, AnInputThatCannotBeUsedIsNotStarted) {
    sound.Become({{"a"}, {"b", false}, {"c"}});
    create().Timer1_Timer();
    EXPECT_THAT(starts(), ElementsAre(1, 0, 1, 0, 0));
    EXPECT_TRUE(wi->GetWaveInValid(1));
    EXPECT_FALSE(wi->GetWaveInValid(2));
}

TEST_F(UCWaveInTest, InputsAreTakenWhenTheComputerAnswersLate) {
    sound.computer.answered = false;
    withInputs(2);
    wi->Timer1_Timer();
    EXPECT_EQ(wi->GetUsedCount(), 0);
    EXPECT_EQ(volumeAt(10), 0);
    sound.computer.answered = true;
    wi->Timer1_Timer();
    EXPECT_EQ(wi->GetUsedCount(), 2);
    EXPECT_THAT(starts(), ElementsAre(1, 1, 0, 0, 0));
    EXPECT_EQ(volumeAt(10), 50);
}

TEST_F(UCWaveInTest, InputsThatComeAfterTheAnswerAreNotTaken) {
    withInputs(1);
    sound.computer.inputs.push_back({"plugged in later"});
    wi->Timer1_Timer();
    EXPECT_EQ(wi->GetUsedCount(), 1);
    EXPECT_THAT(starts(), ElementsAre(1, 0, 0, 0, 0));
}

TEST_F(UCWaveInTest, NamesAreAskedOfTheFirstCapture) {
    FakeSoundInputs other({{"wrong"}, {"wrong"}});
    withInputs(2);
    sound.taps[1].computer = &other.computer;
    EXPECT_EQ(wi->GetWaveName(2), "in 2");
}

TEST_F(UCWaveInTest, TheLoudestSoFarIsFullScale) {
    withInputs(1);
    EXPECT_EQ(volumeAt(1), 50) << "the peak begins at 1";
    EXPECT_EQ(volumeAt(1000), 50);
    EXPECT_EQ(volumeAt(500), 25);
    EXPECT_EQ(volumeAt(0), 0);
    EXPECT_EQ(volumeAt(500), 25) << "the scale never shrinks";
}

TEST_F(UCWaveInTest, HalvesGoToTheEvenNumber) {
    const auto check = [this](std::int32_t peak, std::int32_t level, std::int32_t volume) {
        sound.Become({{"mic"}});
        create();
        EXPECT_EQ(volumeAt(peak), 50);
        EXPECT_EQ(volumeAt(level), volume) << level << " of " << peak;
    };
    check(3, 1, 17);
    check(4, 1, 12);
    check(4, 3, 38);
    check(100, 1, 0);
    check(100, 3, 2);
    check(32768, 16384, 25);
    check(2147483647, 2147483647, 50);
    check(2147483647, 1073741824, 25);
}

TEST_F(UCWaveInTest, TheFirstInputIsReadOnceMoreForEveryInputInUse) {
    withInputs(3);
    sound.taps[0].next = {10, 40, 20, 30, 1000};
    EXPECT_EQ(wi->GetVolume(), 50);
    EXPECT_EQ(sound.taps[0].reads, 4);
    EXPECT_EQ(volumeAt(20), 50) << "1000 was still to be read";
    EXPECT_EQ(volumeAt(20), 1);
}

TEST_F(UCWaveInTest, TheLoudestOfTheReadsCounts) {
    withInputs(2);
    EXPECT_EQ(volumeAt(100), 50);
    sound.taps[0].next = {0, 50, 20};
    EXPECT_EQ(wi->GetVolume(), 25);
}

TEST_F(UCWaveInTest, OtherInputsMoveTheirMetersButNotTheSensor) {
    withInputs(2);
    EXPECT_EQ(volumeAt(10), 50);
    sound.taps[0].level = 0;
    sound.taps[1].level = 25;
    EXPECT_EQ(wi->GetVolume(), 0);
    EXPECT_EQ(wi->GetWaveVolume(1), 0.0F);
    EXPECT_EQ(wi->GetWaveVolume(2), 2.5F) << "louder than anything input 1 has heard";
}

TEST_F(UCWaveInTest, MetersAreRelativeToThePeakInSinglePrecision) {
    withInputs(1);
    EXPECT_EQ(volumeAt(3), 50);
    sound.taps[0].level = 1;
    EXPECT_EQ(wi->GetWaveVolume(1), 1.0F / 3.0F);
    sound.taps[0].level = 6;
    EXPECT_EQ(wi->GetWaveVolume(1), 2.0F) << "only the sensor itself raises the peak";
}

TEST_F(UCWaveInTest, AnUnknownInputIsAnError) {
    withInputs(5);
    EXPECT_THROW((void)wi->GetWaveVolume(0), std::out_of_range);
    EXPECT_THROW((void)wi->GetWaveVolume(6), std::out_of_range);
    EXPECT_THROW((void)wi->GetWaveVolume(32767), std::out_of_range);
    EXPECT_THROW((void)wi->GetWaveVolume(32768), std::overflow_error);
    EXPECT_THROW((void)wi->GetWaveVolume(-32769), std::overflow_error);
}

TEST_F(UCWaveInTest, OnlyTheFirstCaptureIsAskedWhichInputsCanBeUsed) {
    FakeSoundInputs other({{"wrong", false}, {"wrong", false}});
    withInputs(2);
    sound.taps[1].computer = &other.computer;
    EXPECT_TRUE(wi->GetWaveInValid(2));
    wi->Timer1_Timer();
    EXPECT_THAT(starts(), ElementsAre(1, 1, 0, 0, 0));
}

} // namespace
} // namespace veltrix::test
