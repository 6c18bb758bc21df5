#include "app/qt/sound/LoopPlayer.h"

#include "board/AppPath.h"

#include <QMediaDevices>

#include <utility>

namespace veltrix {

namespace {

// A buzzer may be switched many times a second, and a loudspeaker that is opened and closed as
// often chokes; so it stays open for a while. Then it is closed, for even silence takes work.
constexpr int restAfter = 2000; // ms

constexpr qint64 buffered = 60000; // microseconds that are not changed any more

} // namespace

LoopPlayer::LoopPlayer(std::filesystem::path applicationFolder, Opener opener, QObject* parent)
    : QObject(parent),
      applicationFolder_(std::move(applicationFolder)),
      opener_(std::move(opener)),
      rest_(this) {
    rest_.setSingleShot(true);
    rest_.setInterval(restAfter);
    connect(&rest_, &QTimer::timeout, this, [this] { sink_.reset(); });
}

void LoopPlayer::Play(const std::string& name) {
    playing_ = &loop(name);
    if (playing_->Silent())
        rest_.start();
    else
        rest_.stop();
    if (sink_ != nullptr && !playing_->samples.isEmpty() && sink_->format() != playing_->format)
        sink_.reset();
    source_.Play(*playing_);
    if (sink_ == nullptr && !playing_->Silent())
        open();
}

void LoopPlayer::Follow() {
    if (playing_ == nullptr || playing_->Silent())
        return;
    if (!sounds() || output_ != QMediaDevices::defaultAudioOutput())
        open();
}

const Loop& LoopPlayer::loop(const std::string& name) {
    const auto known = loops_.find(name);
    if (known != loops_.end())
        return known->second;
    const Loop& read = loops_[name] = ReadLoop(AppPath(applicationFolder_, name));
    if (read.samples.isEmpty())
        emit Fault("sound: " + QString::fromStdString(name) + " cannot be played");
    return read;
}

void LoopPlayer::open() {
    sink_.reset();
    output_ = QMediaDevices::defaultAudioOutput();
    if (output_.isNull())
        return;
    opener_([this] {
        auto sink = std::make_unique<QAudioSink>(output_, playing_->format);
        sink->setBufferSize(playing_->format.bytesForDuration(buffered));
        sink->start(&source_);
        sink_ = std::move(sink);
    });
}

bool LoopPlayer::sounds() const {
    return sink_ != nullptr && sink_->state() != QAudio::StoppedState;
}

} // namespace veltrix
