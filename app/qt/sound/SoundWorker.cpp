#include "app/qt/sound/SoundWorker.h"

#include <QMediaDevices>

#include <algorithm>
#include <utility>

namespace veltrix {

namespace {

constexpr int watchInterval = 250;   // ms
constexpr int watchesPerListing = 4; // the sound server does not tell when its list changes

} // namespace

bool SoundWish::Set(const std::string& name) {
    const std::lock_guard lock(mutex_);
    name_ = name;
    return std::exchange(taken_, false);
}

std::string SoundWish::Take() {
    const std::lock_guard lock(mutex_);
    taken_ = true;
    return name_;
}

SoundWorker::SoundWorker(std::shared_ptr<SoundInputs> inputs, std::shared_ptr<SoundWish> wish,
                         std::shared_ptr<OpeningWatch> openings,
                         std::filesystem::path applicationFolder)
    : inputs_(std::move(inputs)),
      wish_(std::move(wish)),
      openings_(std::move(openings)),
      player_(
          std::move(applicationFolder),
          [this](const std::function<void()>& start) { open(OpeningWatch::Output, start); }, this),
      watch_(this) {
    connect(&player_, &LoopPlayer::Fault, this, &SoundWorker::Fault);
    connect(&watch_, &QTimer::timeout, this, &SoundWorker::watch);
}

void SoundWorker::Begin() {
    list();
    watch_.start(watchInterval);
    player_.Load("\\Ringin.wav");
    player_.Load("\\SILENCE.wav");
    PlayWish();
    OpenInputs();
}

void SoundWorker::PlayWish() {
    const std::string wish = wish_->Take();
    if (wish == playing_ || abandoned_)
        return;
    playing_ = wish;
    player_.Play(wish);
}

void SoundWorker::OpenInputs() {
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs && !abandoned_; ++i)
        if (capture(i) == nullptr)
            listen(i);
}

void SoundWorker::watch() {
    if (abandoned_)
        return;
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs; ++i)
        if (capture(i) != nullptr && capture(i)->Deaf())
            giveUp(i);
    if (++watches_ % watchesPerListing != 0)
        return;
    list();
    player_.Follow();
    OpenInputs();
}

void SoundWorker::list() {
    QList<QAudioDevice> devices = QMediaDevices::audioInputs();
    // The first input moves the sensor: let it be the one that the user chose for all programs.
    std::stable_partition(devices.begin(), devices.end(),
                          [](const QAudioDevice& device) { return device.isDefault(); });
    inputs_->Update(devices);
    // When an input goes away, the sound server gives its listeners another one.
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs; ++i)
        if (capture(i) != nullptr && inputs_->Wanted(i).isNull())
            giveUp(i);
}

void SoundWorker::listen(std::int32_t i) {
    const QAudioDevice device = inputs_->Wanted(i);
    if (device.isNull())
        return;
    open(static_cast<std::size_t>(i), [this, i, &device] {
        auto opening =
            std::make_unique<SoundCapture>(device, [inputs = inputs_, i](std::int32_t peak) {
                inputs->SetLevel(i, peak);
                inputs->SetFailed(i, false);
            });
        if (opening->Open())
            capture(i) = std::move(opening);
        else
            tellFailed(i);
    });
}

void SoundWorker::giveUp(std::int32_t i) {
    capture(i).reset();
    inputs_->SetLevel(i, 0);
    tellFailed(i);
}

void SoundWorker::tellFailed(std::int32_t i) {
    if (inputs_->SetFailed(i, true))
        emit Fault("sound: input " + QString::fromStdString(inputs_->Name(i)) + " gives no sound");
}

void SoundWorker::open(std::size_t device, const std::function<void()>& open) {
    // What hangs in another thread is left alone until it comes back.
    if (abandoned_ || openings_->IsOpening(device))
        return;
    openings_->Begin(device);
    open();
    openings_->End(device);
    if (abandoned_)
        emit Done();
}

std::unique_ptr<SoundCapture>& SoundWorker::capture(std::int32_t i) {
    return captures_.at(static_cast<std::size_t>(i - 1));
}

} // namespace veltrix
