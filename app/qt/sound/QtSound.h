#pragma once

#include "app/qt/sound/OpeningWatch.h"
#include "app/qt/sound/Sound.h"
#include "app/qt/sound/SoundInputs.h"
#include "app/qt/sound/SoundWorker.h"

#include <QThread>
#include <QTimer>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace veltrix {

class QtSound;

/// One capture, as the program sees it.
class QtAudioTap : public AudioTap2 {
public:
    explicit QtAudioTap(QtSound& sound) : sound_(sound) {}

    [[nodiscard]] std::int32_t DeviceCount() override;

    void SetDeviceIndex(std::int32_t DeviceIndex) override { index_ = DeviceIndex; }

    [[nodiscard]] std::string DeviceName(std::int32_t i) override;
    [[nodiscard]] bool DeviceValid(std::int32_t i) override;
    void Start() override;
    [[nodiscard]] std::int32_t Level() override;

private:
    QtSound& sound_;
    std::int32_t index_ = 0;
};

/// Hands the wishes of the program on to the thread of the sound.
class QtSoundPlayer : public SoundPlayer {
public:
    explicit QtSoundPlayer(QtSound& sound) : sound_(sound) {}

    void Play(const std::string& name) override;

private:
    QtSound& sound_;
};

/// Sound by Qt Multimedia. The window's thread only leaves wishes and reads what came of them; the
/// work is done in a thread of its own, and by another one as soon as that does not come back.
class QtSound : public QObject, public Sound {
    Q_OBJECT

public:
    /// Begins to ask the sound server for its inputs.
    QtSound(std::filesystem::path applicationFolder, Log& log);

    /// Close must have been called.
    ~QtSound() override = default;

    UCWaveIn::Captures Captures() override;

    SoundPlayer& Player() override { return player_; }

    [[nodiscard]] bool Close() override;

    [[nodiscard]] SoundInputs& Inputs() noexcept { return *inputs_; }

    void Play(const std::string& name);

signals:
    // What the worker is told; it finds the details where both can see them.
    void InputsWanted();
    void SoundWished();

private:
    void startWorker();
    void replaceHangingWorker();

    std::filesystem::path applicationFolder_;
    Log& log_;
    // The worker holds these as well: one that hangs outlives the sound.
    std::shared_ptr<SoundInputs> inputs_ = std::make_shared<SoundInputs>();
    std::shared_ptr<SoundWish> wish_ = std::make_shared<SoundWish>();
    std::shared_ptr<OpeningWatch> openings_ = std::make_shared<OpeningWatch>();
    std::vector<QThread*> threads_; // the last one works, those before it hang or have ended
    SoundWorker* worker_ = nullptr; // in the last thread
    QTimer supervision_;
    std::vector<QtAudioTap> taps_;
    QtSoundPlayer player_{*this};
};

} // namespace veltrix
