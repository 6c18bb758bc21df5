#pragma once

#include <QAudioFormat>
#include <QByteArray>
#include <QIODevice>

#include <filesystem>

namespace veltrix {

/// A sound that is played over and over.
struct Loop {
    QAudioFormat format;
    QByteArray samples; ///< whole frames; empty when there is nothing to be heard

    /// Whether there is not a sample in it that could be heard.
    [[nodiscard]] bool Silent() const;
};

/// Reads a wave file. The loop is empty when there is no such file, or when it holds no sound that
/// can be played.
[[nodiscard]] Loop ReadLoop(const std::filesystem::path& file);

/// What the loudspeaker reads from: an endless stream of one loop.
class LoopSource : public QIODevice {
    Q_OBJECT

public:
    LoopSource() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    /// Goes over to the beginning of another loop, which is of the same format or empty, for
    /// silence. The one before is faded, so that it does not end in a click.
    void Play(const Loop& loop);

    [[nodiscard]] bool isSequential() const override { return true; }

    [[nodiscard]] bool atEnd() const override { return false; }

    [[nodiscard]] qint64 bytesAvailable() const override { return 1 << 20; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;

    qint64 writeData(const char* /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    QAudioFormat format_;
    QByteArray fading_; // the end of the loop before
    QByteArray samples_;
    qsizetype position_ = 0;
};

} // namespace veltrix
