#include "sim/Tick.h"
#include "tests/sound/SoundTest.h"
#include "tests/support/Folders.h"
#include "tests/support/TestSimulation.h"

#include <QDebug>

namespace veltrix {
namespace {

using test::RealSound;
using test::Recording;
using test::samplesPerSecond;
using test::waitUntil;

constexpr std::size_t milliseconds = samplesPerSecond / 1000;

/// A board whose first push button rings the buzzer, ticking every 10 ms with real sound.
struct RingingBoard : test::TestBoard {
    explicit RingingBoard(SoundPlayer& buzzer) : player(buzzer) {
        graph.Constructor(board.Display);
        test::wire(board, "Drukknop 1 Uit Geel", "Zoemer");
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { tick.Timer1_Timer(); });
        timer.start(Tick::Interval);
    }

    /// Presses or lets go, and waits for the tick that changes the buzzer's state.
    void Press(bool down) {
        board.PushButtons[0].SetValue(down);
        ASSERT_TRUE(waitUntil([&] { return tick.BuzzerOn() == down; }));
    }

    SoundPlayer& player;
    clsGraph graph;
    test::FakeClock clock;
    test::FakePointer pointer;
    test::FakeSoundSensor ear;
    test::FakeTickTimer tickTimer;
    test::FakeFollower follower;
    Tick tick{{surface, board, graph, clock, pointer, ear, player, tickTimer, follower}};
    QTimer timer;
};

class BuzzerTest : public test::SoundTest {
protected:
    /// Waits until the recording runs, which is when silence comes in.
    static void waitForRecording(Recording& recording) {
        ASSERT_TRUE(waitUntil([&] { return recording.Length() > 100 * milliseconds; }));
    }

    /// How long it takes from the state's change until the recording is loud, or silent for good.
    static std::size_t delayOf(RingingBoard& ringing, Recording& recording, bool on) {
        ringing.Press(on);
        const std::size_t change = recording.Length();
        std::size_t at = change;
        constexpr std::size_t step = 5 * milliseconds;
        // Silence must last: the pauses of a sound that goes on are shorter.
        const std::size_t lasting = on ? step : 300 * milliseconds;
        EXPECT_TRUE(waitUntil([&] {
            const std::size_t length = recording.Length();
            for (; at + lasting <= length; at += step)
                if (recording.Loud(at, lasting) == on)
                    return true;
            return false;
        }));
        return (at - change) / milliseconds;
    }
};

TEST_F(BuzzerTest, SoundsAndFallsSilentWithTheState) {
    RealSound real;
    RingingBoard ringing(real.sound->Player());
    Recording recording;
    waitForRecording(recording);
    EXPECT_FALSE(recording.Loud(0, recording.Length()));
    // How long it takes is for whoever reads it to judge: a busy machine is late.
    std::size_t start = SIZE_MAX;
    std::size_t stop = SIZE_MAX;
    for (int i = 0; i < 5; ++i) {
        start = std::min(start, delayOf(ringing, recording, true));
        stop = std::min(stop, delayOf(ringing, recording, false));
    }
    qInfo() << "sound after" << start << "ms, silence after" << stop << "ms";
}

TEST_F(BuzzerTest, RingsOnBeyondTheLengthOfItsFile) {
    RealSound real;
    RingingBoard ringing(real.sound->Player());
    Recording recording;
    waitForRecording(recording);
    const std::size_t file =
        (std::filesystem::file_size(test::ApplicationFolder() / "Ringin.wav") - 44) / 2;
    (void)delayOf(ringing, recording, true);
    const std::size_t from = recording.Length();
    const std::size_t all = 5 * file / 2;
    ASSERT_TRUE(waitUntil([&] { return recording.Length() >= from + all; }));
    constexpr std::size_t pause = 100 * milliseconds;
    for (std::size_t at = from; at + pause <= from + all; at += pause)
        EXPECT_TRUE(recording.Loud(at, pause)) << (at - from) / milliseconds << " ms";
    ringing.Press(false);
}

TEST_F(BuzzerTest, ManyChangesEndWithTheLast) {
    RealSound real;
    RingingBoard ringing(real.sound->Player());
    Recording recording;
    waitForRecording(recording);
    for (int i = 0; i < 60; ++i)
        ringing.Press(i % 2 == 0);
    (void)delayOf(ringing, recording, true); // which fails where the sound does not come
    (void)delayOf(ringing, recording, false);
}

TEST_F(BuzzerTest, AServerThatHangsHoldsUpNoTick) {
    RealSound real;
    RingingBoard ringing(real.sound->Player());
    server->Stop();
    for (int i = 0; i < 100; ++i)
        ringing.Press(i % 2 == 0);
    ringing.Press(true);
    server->Continue();
    Recording recording;
    EXPECT_TRUE(waitUntil([&] { return recording.Loud(0, recording.Length()); }));
    EXPECT_TRUE(real.log.Lines.empty());
}

TEST_F(BuzzerTest, MissingWaveFilesAreToldOnceEach) {
    const test::TempFolder nothing;
    RealSound real(nothing.Path());
    RingingBoard ringing(real.sound->Player());
    for (int i = 0; i < 4; ++i) {
        ringing.Press(true);
        EXPECT_TRUE(waitUntil([&] { return real.Lines("Ringin.wav") == 1; }));
        ringing.Press(false);
        EXPECT_TRUE(waitUntil([&] { return real.Lines("SILENCE.wav") == 1; }));
    }
    EXPECT_EQ(real.log.Lines.size(), 2U);
}

TEST_F(BuzzerTest, WithoutTheSilentFileItFallsSilentToo) {
    const test::TempFolder folder;
    std::filesystem::copy(test::ApplicationFolder() / "Ringin.wav", folder.Path());
    RealSound real(folder.Path());
    RingingBoard ringing(real.sound->Player());
    Recording recording;
    waitForRecording(recording);
    (void)delayOf(ringing, recording, true);
    (void)delayOf(ringing, recording, false);
    EXPECT_EQ(real.Lines("SILENCE.wav"), 1);
}

} // namespace
} // namespace veltrix
