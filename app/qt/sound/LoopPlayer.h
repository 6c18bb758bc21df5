#pragma once

#include "app/qt/sound/LoopSource.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QObject>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace veltrix {

/// Plays wave files over and over, one at a time, to the loudspeaker that the user has chosen for
/// all programs. It lives in one thread of the sound, where it may hang.
class LoopPlayer : public QObject {
    Q_OBJECT

public:
    /// Opens the loudspeaker by calling what it is given, or leaves that undone.
    using Opener = std::function<void(const std::function<void()>& open)>;

    LoopPlayer(std::filesystem::path applicationFolder, Opener opener, QObject* parent);

    /// Reads a file of the application folder, so that it can sound at once.
    void Load(const std::string& name) { (void)loop(name); }

    /// Plays a file instead of the one before. When it cannot be played there is silence.
    void Play(const std::string& name);

    /// Goes on where the loudspeaker has failed or the user has chosen another one. To be called
    /// now and then.
    void Follow();

signals:
    /// A file cannot be played; told once for each file.
    void Fault(const QString& line);

private:
    const Loop& loop(const std::string& name);
    void open();
    [[nodiscard]] bool sounds() const;

    std::filesystem::path applicationFolder_;
    Opener opener_;
    std::map<std::string, Loop> loops_;
    const Loop* playing_ = nullptr; // of loops_
    LoopSource source_;
    std::unique_ptr<QAudioSink> sink_; // null while there is only silence
    QAudioDevice output_;              // of sink_
    QTimer rest_;
};

} // namespace veltrix
