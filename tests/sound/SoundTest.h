#pragma once

#include "app/qt/sound/QtSound.h"
#include "instruments/UCWaveIn.h"
#include "tests/sound/Loudspeaker.h"
#include "tests/sound/SoundServer.h"
#include "tests/support/FakeSound.h"
#include "tests/support/Folders.h"
#include "tests/support/Logs.h"

#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace veltrix::test {

/// The sound of the program, put together as main does: the captures, the sensor with its timer,
/// the player.
struct RealSound {
    explicit RealSound(const std::filesystem::path& folder = ApplicationFolder())
        : sound(MakeSound(folder, log)) {
        QObject::connect(&timer1, &QTimer::timeout, &timer1, [this] {
            ++ticks;
            wi.Timer1_Timer();
        });
        timer1.start(UCWaveIn::Interval);
    }

    ~RealSound() { EXPECT_TRUE(sound->Close()) << "the sound does not come back"; }

    RealSound(const RealSound&) = delete;
    RealSound& operator=(const RealSound&) = delete;

    /// Waits until so many inputs are in use.
    [[nodiscard]] bool Hears(std::int32_t count) {
        return waitUntil([&] { return wi.GetUsedCount() == count; });
    }

    [[nodiscard]] bool LevelBecomes(std::int32_t level) {
        return waitUntil([&] { return wi.GetVolume() == level; });
    }

    [[nodiscard]] std::int64_t Lines(const std::string& part) const {
        return std::count_if(log.Lines.begin(), log.Lines.end(), [&](const std::string& line) {
            return line.find(part) != std::string::npos;
        });
    }

    KeptLog log;
    FakeSettings settings;
    std::unique_ptr<Sound> sound;
    UCWaveIn wi{sound->Captures(), settings};
    QTimer timer1;
    int ticks = 0;
};

/// A test that needs a sound server. Where none can be started, it says why and is skipped. Each
/// takes a process of its own, as ctest gives it: one that has had a server does not hear another.
class SoundTest : public testing::Test {
protected:
    void SetUp() override {
        try {
            server.emplace();
        } catch (const std::runtime_error& error) {
            GTEST_SKIP() << error.what();
        }
    }

    /// The sound of the program on a computer with these inputs, once it hears them all.
    [[nodiscard]] std::unique_ptr<RealSound> hearing(const QStringList& inputs) {
        for (const QString& name : inputs)
            server->AddInput(name);
        auto real = std::make_unique<RealSound>();
        if (!real->Hears(static_cast<std::int32_t>(inputs.size())))
            throw std::runtime_error("the inputs are not heard");
        return real;
    }

    std::optional<SoundServer> server;
};

} // namespace veltrix::test
