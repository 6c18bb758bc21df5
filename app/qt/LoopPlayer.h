#pragma once

#include <QAudioDevice>
#include <QObject>

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>

class QSoundEffect;

namespace veltrix {

/// Plays wave files over and over, one at a time. It lives in one thread of the sound, where it may
/// hang.
class LoopPlayer : public QObject {
    Q_OBJECT

public:
    LoopPlayer(std::filesystem::path applicationFolder, QObject* parent);
    ~LoopPlayer() override;

    /// Loads a file of the application folder, so that it can sound at once.
    void Load(const std::string& name);

    /// Plays a file instead of the one before. When it cannot be played there is silence.
    void Play(const std::string& name);

signals:
    /// A file cannot be played; told once for each file.
    void Fault(const QString& line);

private:
    QSoundEffect& effect(const std::string& name);
    void followOutput();

    std::filesystem::path applicationFolder_;
    QAudioDevice output_;
    std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
    std::set<std::string> reported_;
    QSoundEffect* playing_ = nullptr;
};

} // namespace veltrix
