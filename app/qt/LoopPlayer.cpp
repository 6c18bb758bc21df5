#include "app/qt/LoopPlayer.h"

#include "board/AppPath.h"

#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include <utility>

namespace veltrix {

LoopPlayer::LoopPlayer(std::filesystem::path applicationFolder, QObject* parent)
    : QObject(parent), applicationFolder_(std::move(applicationFolder)) {}

LoopPlayer::~LoopPlayer() = default;

void LoopPlayer::Load(const std::string& name) {
    followOutput();
    (void)effect(name);
}

void LoopPlayer::Play(const std::string& name) {
    // Stopping is heard at once; a file that takes over would let the old one sound on from the
    // sound server's buffer.
    if (playing_ != nullptr)
        playing_->stop();
    followOutput();
    playing_ = &effect(name);
    playing_->play();
}

void LoopPlayer::followOutput() {
    // An effect stays with the output that it was made for, even when that is gone.
    const QAudioDevice output = QMediaDevices::defaultAudioOutput();
    if (output == output_)
        return;
    output_ = output;
    playing_ = nullptr;
    effects_.clear();
}

QSoundEffect& LoopPlayer::effect(const std::string& name) {
    std::unique_ptr<QSoundEffect>& effect = effects_[name];
    if (effect != nullptr && effect->status() != QSoundEffect::Error)
        return *effect;
    const QString file = QString::fromStdString(Utf8FromPath(AppPath(applicationFolder_, name)));
    effect = std::make_unique<QSoundEffect>(output_);
    effect->setLoopCount(QSoundEffect::Infinite);
    connect(effect.get(), &QSoundEffect::statusChanged, this, [this, name, e = effect.get()] {
        if (e->status() == QSoundEffect::Error && !output_.isNull() &&
            reported_.insert(name).second)
            emit Fault("sound: " + QString::fromStdString(name) + " cannot be played");
    });
    effect->setSource(QUrl::fromLocalFile(file));
    return *effect;
}

} // namespace veltrix
