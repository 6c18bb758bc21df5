#include "tests/sound/SoundTest.h"
#include "tests/support/Folders.h"

#include <cstdlib>
#include <optional>

namespace veltrix {
namespace {

using test::RealSound;
using test::Tone;
using test::waitUntil;

using SoundSensorTest = test::SoundTest;

TEST_F(SoundSensorTest, AToneMovesTheLevelUpAndItsEndDown) {
    const auto real = hearing({"Mic"});
    EXPECT_EQ(real->wi.GetVolume(), 0);
    {
        const Tone tone("Mic");
        EXPECT_TRUE(real->LevelBecomes(50));
        // The loudest so far is full scale: a steady tone stays there, but for the buffers that
        // its swings do not fill to the last sample.
        EXPECT_TRUE(waitUntil([&] { return real->wi.GetWaveVolume(1) > 0.9F; }));
    }
    EXPECT_TRUE(real->LevelBecomes(0));
    const Tone quiet("Mic", 0.25);
    EXPECT_TRUE(waitUntil([&] {
        const std::int32_t half = real->wi.GetVolume();
        return half > 20 && half < 30;
    }));
    EXPECT_TRUE(real->log.Lines.empty());
}

TEST_F(SoundSensorTest, OnlyTheFirstInputMovesIt) {
    const auto real = hearing({"Mic", "Webcam"});
    const Tone tone("Webcam");
    bool moved = false;
    EXPECT_TRUE(waitUntil([&] {
        moved = moved || real->wi.GetVolume() != 0;
        return real->wi.GetWaveVolume(2) > 1000;
    }));
    EXPECT_FALSE(moved);
    EXPECT_EQ(real->wi.GetWaveVolume(1), 0);
}

TEST_F(SoundSensorTest, InputsAreListedByName) {
    const auto real = hearing({"Mic", "Webcam"});
    EXPECT_EQ(real->wi.GetWaveName(1), "Mic");
    EXPECT_EQ(real->wi.GetWaveName(2), "Webcam");
    EXPECT_TRUE(real->wi.GetWaveInValid(1));
    EXPECT_TRUE(real->wi.GetWaveInValid(2));
    EXPECT_FALSE(real->wi.GetWaveInValid(3));
}

TEST_F(SoundSensorTest, OfTwentyInputsFiveAreHeard) {
    server->AddInput("Mic");
    for (int i = 2; i <= 20; ++i)
        server->AddInput("Mic" + QString::number(i), "Mic");
    RealSound real;
    ASSERT_TRUE(real.Hears(5));
    const Tone tone("Mic");
    EXPECT_TRUE(real.LevelBecomes(50));
    for (std::int32_t i = 1; i <= 5; ++i)
        EXPECT_TRUE(waitUntil([&] { return real.wi.GetWaveVolume(i) > 0.5F; })) << i;
    EXPECT_TRUE(real.log.Lines.empty());
}

TEST_F(SoundSensorTest, AnInputThatVanishesIsToldOnceAndComesBack) {
    const auto real = hearing({"Mic", "Webcam"});
    {
        const Tone tone("Mic");
        EXPECT_TRUE(real->LevelBecomes(50));
        const Tone other("Webcam");
        EXPECT_TRUE(waitUntil([&] { return real->wi.GetWaveVolume(2) > 0; }));
        server->RemoveInput("Mic");
        EXPECT_TRUE(real->LevelBecomes(0));
        EXPECT_TRUE(waitUntil([&] { return !real->wi.GetWaveInValid(1); }));
        EXPECT_GT(real->wi.GetWaveVolume(2), 0) << "the other one is still heard";
    }
    EXPECT_EQ(real->wi.GetUsedCount(), 2);
    EXPECT_EQ(real->wi.GetWaveName(1), "Mic") << "an input that is away keeps its place";
    server->AddInput("Mic");
    EXPECT_TRUE(waitUntil([&] { return real->wi.GetWaveInValid(1); }));
    const Tone tone("Mic");
    // Starting and stopping overshoot the tone by a few percent, and the scale never shrinks.
    EXPECT_TRUE(waitUntil([&] { return real->wi.GetVolume() > 40; })) << real->wi.GetVolume();
    EXPECT_EQ(real->Lines("Mic"), 1);
    EXPECT_EQ(real->Lines("Webcam"), 0);
}

/// Opening an input that the server refuses does not come back. The program is then left without
/// waiting, so all of this happens in a process of its own.
[[noreturn]] void hearBesideAnInputThatCannotBeOpened(std::optional<test::SoundServer>& server) {
    server->AddInput("Webcam");
    server->AddInput("Mic");
    RealSound real;
    real.timer1.stop(); // the test is the timer
    AudioTap2& first = *real.sound->Captures()[0];
    EXPECT_TRUE(waitUntil([&] { return first.DeviceCount() == 2; }));
    // The list may be asked for again between these two, or not: what is to be seen is the same.
    server->RemoveInput("Webcam");
    real.wi.Timer1_Timer();
    EXPECT_TRUE(waitUntil([&] { return !real.wi.GetWaveInValid(1); }));
    {
        const Tone tone("Mic");
        EXPECT_TRUE(waitUntil([&] { return real.wi.GetWaveVolume(2) > 0; }));
        EXPECT_EQ(real.wi.GetVolume(), 0);
    }
    EXPECT_LE(real.Lines("Webcam"), 1);
    EXPECT_EQ(real.Lines("Mic"), 0);
    (void)real.sound->Close();
    server.reset();
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

TEST_F(SoundSensorTest, AnInputThatCannotBeOpenedSpoilsNothing) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(hearBesideAnInputThatCannotBeOpened(server), testing::ExitedWithCode(0), "");
}

TEST_F(SoundSensorTest, AServerThatIsStartedAnewIsHeardAgain) {
    const auto real = hearing({"Mic"});
    {
        const Tone tone("Mic");
        EXPECT_TRUE(real->LevelBecomes(50));
    }
    server->Restart();
    server->AddInput("Mic");
    const Tone tone("Mic");
    EXPECT_TRUE(waitUntil([&] { return real->wi.GetVolume() == 0; }));
    EXPECT_TRUE(real->LevelBecomes(50));
    EXPECT_LE(real->Lines("Mic"), 1);
}

TEST_F(SoundSensorTest, AServerThatHangsFromTheStartIsTakenWhenItAnswers) {
    server->AddInput("Mic");
    server->Stop();
    RealSound real;
    EXPECT_TRUE(waitUntil([&] { return real.ticks > 50; })) << "the timer must tick";
    EXPECT_EQ(real.wi.GetUsedCount(), 0);
    EXPECT_EQ(real.wi.GetVolume(), 0);
    server->Continue();
    ASSERT_TRUE(real.Hears(1));
    const Tone tone("Mic");
    EXPECT_TRUE(real.LevelBecomes(50));
    EXPECT_LE(real.log.Lines.size(), 1U);
}

TEST_F(SoundSensorTest, AServerThatHangsLaterIsTakenBack) {
    const auto real = hearing({"Mic", "Webcam"});
    std::optional<Tone> tone("Mic");
    EXPECT_TRUE(real->LevelBecomes(50));
    server->Stop();
    EXPECT_TRUE(real->LevelBecomes(0));
    EXPECT_TRUE(waitUntil([&] { return !real->wi.GetWaveInValid(1); }));
    // So long that every input has been tried in vain.
    EXPECT_TRUE(waitUntil([&] { return !real->wi.GetWaveInValid(2); }));
    const int ticks = real->ticks;
    EXPECT_TRUE(waitUntil([&] { return real->ticks > ticks + 600; }));
    server->Continue();
    tone.reset();
    tone.emplace("Mic");
    EXPECT_TRUE(real->LevelBecomes(50));
    EXPECT_TRUE(waitUntil([&] { return real->wi.GetWaveInValid(2); }));
    EXPECT_LE(real->Lines("Mic"), 1);
    EXPECT_LE(real->Lines("Webcam"), 1);
}

TEST_F(SoundSensorTest, AMachineWithoutAServerIsSilent) {
    qputenv("PULSE_SERVER", "unix:/veltrix/no/such/server");
    RealSound real;
    ASSERT_TRUE(waitUntil([&] { return real.sound->Captures()[0]->DeviceCount() == 0; }));
    real.sound->Player().Play("\\Ringin.wav");
    EXPECT_TRUE(waitUntil([&] { return real.ticks > 50; }));
    EXPECT_EQ(real.wi.GetUsedCount(), 0);
    EXPECT_EQ(real.wi.GetVolume(), 0);
    EXPECT_LE(real.log.Lines.size(), 1U);
}

TEST_F(SoundSensorTest, AServerThatHangsKeepsNobodyFromLeaving) {
    server->Stop();
    test::KeptLog log;
    const auto sound = MakeSound(test::ApplicationFolder(), log);
    EXPECT_FALSE(sound->Close()) << "a part of it is still with the server";
    server->Continue();
    EXPECT_TRUE(waitUntil([&] { return sound->Close(); }));
}

} // namespace
} // namespace veltrix
