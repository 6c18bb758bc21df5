#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <stdexcept>
#include <vector>

namespace veltrix::test {

/// Of everything that is played and recorded here.
inline constexpr int samplesPerSecond = 44100;

/// The arguments by which the server's tools play to or record from a device without a file's head.
inline QStringList rawMono(const QString& device) {
    return {"-d",
            device,
            "--raw",
            "--format=s16le",
            "--channels=1",
            "--latency-msec=10",
            "--rate=" + QString::number(samplesPerSecond)};
}

/// A tone that is played into a sink for as long as this lives.
class Tone {
public:
    explicit Tone(const QString& sink, double loudness = 0.5) {
        constexpr int hertz = 441; // a whole number of samples a swing
        std::vector<std::int16_t> second(samplesPerSecond);
        for (std::size_t i = 0; i < second.size(); ++i)
            second[i] = static_cast<std::int16_t>(
                std::lround(32767 * loudness *
                            std::sin(2 * std::numbers::pi * hertz * static_cast<double>(i) /
                                     samplesPerSecond)));
        second_ = QByteArray(reinterpret_cast<const char*>(second.data()),
                             static_cast<qsizetype>(second.size() * sizeof(second[0])));
        QObject::connect(&player_, &QProcess::bytesWritten, &player_, [this] {
            if (player_.bytesToWrite() == 0)
                player_.write(second_);
        });
        player_.start("pacat", QStringList("--playback") + rawMono(sink));
        if (!player_.waitForStarted())
            throw std::runtime_error("pacat does not start");
        player_.write(second_);
    }

    ~Tone() {
        player_.disconnect();
        player_.kill();
        player_.waitForFinished();
    }

    Tone(const Tone&) = delete;
    Tone& operator=(const Tone&) = delete;

private:
    QByteArray second_;
    QProcess player_;
};

/// Hears what the program plays, from the moment on that the recording runs.
class Recording {
public:
    Recording() {
        recorder_.start("parec", rawMono("out.monitor"));
        if (!recorder_.waitForStarted())
            throw std::runtime_error("parec does not start");
    }

    ~Recording() {
        recorder_.kill();
        recorder_.waitForFinished();
    }

    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    /// How many samples there are by now.
    [[nodiscard]] std::size_t Length() {
        bytes_ += recorder_.readAllStandardOutput();
        return static_cast<std::size_t>(bytes_.size()) / sizeof(std::int16_t);
    }

    /// Whether a stretch of the recording is loud, of which as much is taken as there is.
    [[nodiscard]] bool Loud(std::size_t from, std::size_t length) const {
        constexpr int audible = 200;
        for (std::size_t i = from; i < from + length && (i + 1) * 2 <= bytesHere(); ++i) {
            std::int16_t sample = 0;
            std::memcpy(&sample, bytes_.constData() + 2 * i, sizeof sample);
            if (std::abs(sample) > audible)
                return true;
        }
        return false;
    }

private:
    [[nodiscard]] std::size_t bytesHere() const { return static_cast<std::size_t>(bytes_.size()); }

    QProcess recorder_;
    QByteArray bytes_;
};

} // namespace veltrix::test
