#include "app/qt/SoundWorker.h"

#include <QMediaDevices>
#include <QThread>

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
                         std::filesystem::path applicationFolder)
    : inputs_(std::move(inputs)),
      wish_(std::move(wish)),
      player_(std::move(applicationFolder), this),
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
    if (wish == playing_)
        return;
    playing_ = wish;
    player_.Play(wish);
}

void SoundWorker::OpenInputs() {
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs && !abandoned_; ++i)
        if (captures_[static_cast<std::size_t>(i - 1)] == nullptr)
            open(i);
}

void SoundWorker::watch() {
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs; ++i) {
        const auto& capture = captures_[static_cast<std::size_t>(i - 1)];
        if (capture == nullptr || !capture->Deaf())
            continue;
        close(i);
        tellFailed(i);
    }
    if (++watches_ % watchesPerListing != 0)
        return;
    list();
    OpenInputs();
}

void SoundWorker::list() {
    QList<QAudioDevice> devices = QMediaDevices::audioInputs();
    // The first input moves the sensor: let it be the one that the user chose for all programs.
    std::stable_partition(devices.begin(), devices.end(),
                          [](const QAudioDevice& device) { return device.isDefault(); });
    inputs_->Update(devices);
}

void SoundWorker::open(std::int32_t i) {
    const auto device = inputs_->ToOpen(i);
    if (!device)
        return;
    auto capture =
        std::make_unique<SoundCapture>(*device, [inputs = inputs_, i](std::int32_t peak) {
            inputs->SetLevel(i, peak);
            inputs->SetFailed(i, false);
        });
    inputs_->BeginOpening(i);
    const bool opened = capture->Open();
    inputs_->EndOpening(i);
    if (abandoned_)
        thread()->quit();
    else if (opened)
        captures_[static_cast<std::size_t>(i - 1)] = std::move(capture);
    else
        tellFailed(i);
}

void SoundWorker::close(std::int32_t i) {
    captures_[static_cast<std::size_t>(i - 1)].reset();
    inputs_->SetLevel(i, 0);
}

void SoundWorker::tellFailed(std::int32_t i) {
    if (inputs_->SetFailed(i, true))
        emit Fault("sound: input " + QString::fromStdString(inputs_->Name(i)) + " gives no sound");
}

} // namespace veltrix
