#include "app/qt/sound/LoopSource.h"

#include "board/AppPath.h"

#include <QFile>
#include <QWaveDecoder>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace veltrix {

namespace {

/// The byte that silence is made of.
char silenceOf(const QAudioFormat& format) {
    return format.sampleFormat() == QAudioFormat::UInt8 ? '\x80' : '\0';
}

/// The next bytes of an endless loop, from a position that moves on.
QByteArray turn(const QByteArray& samples, qsizetype& position, qsizetype size) {
    QByteArray bytes;
    bytes.reserve(size);
    while (bytes.size() < size) {
        const qsizetype part = std::min(size - bytes.size(), samples.size() - position);
        bytes.append(samples.constData() + position, part);
        position = (position + part) % samples.size();
    }
    return bytes;
}

void fadeOut(QByteArray& bytes) {
    const qsizetype count = bytes.size() / qsizetype{sizeof(std::int16_t)};
    for (qsizetype i = 0; i < count; ++i) {
        char* const at = bytes.data() + i * qsizetype{sizeof(std::int16_t)};
        std::int16_t sample = 0;
        std::memcpy(&sample, at, sizeof sample);
        sample = static_cast<std::int16_t>(sample * (count - i) / count);
        std::memcpy(at, &sample, sizeof sample);
    }
}

} // namespace

bool Loop::Silent() const {
    const char quiet = silenceOf(format);
    return std::all_of(samples.begin(), samples.end(), [quiet](char c) { return c == quiet; });
}

Loop ReadLoop(const std::filesystem::path& file) {
    constexpr qint64 largest = 64 << 20; // bytes; a loop is kept in memory
    QFile in(QString::fromStdString(Utf8FromPath(file)));
    if (!in.open(QIODevice::ReadOnly) || in.size() > largest)
        return {};
    QWaveDecoder decoder(&in);
    if (!decoder.open(QIODevice::ReadOnly) || !decoder.audioFormat().isValid())
        return {};
    Loop loop{decoder.audioFormat(), {}};
    for (QByteArray part = decoder.readAll(); !part.isEmpty(); part = decoder.readAll())
        loop.samples += part;
    loop.samples.chop(loop.samples.size() % loop.format.bytesPerFrame());
    return loop;
}

void LoopSource::Play(const Loop& loop) {
    constexpr qint64 fade = 5000; // microseconds
    fading_.clear();
    if (!samples_.isEmpty() && format_.sampleFormat() == QAudioFormat::Int16) {
        fading_ = turn(samples_, position_, format_.bytesForDuration(fade));
        fadeOut(fading_);
    }
    if (loop.format.isValid())
        format_ = loop.format;
    samples_ = loop.samples;
    position_ = 0;
}

qint64 LoopSource::readData(char* data, qint64 maxSize) {
    const qsizetype faded = std::min<qsizetype>(fading_.size(), maxSize);
    QByteArray bytes = fading_.first(faded);
    fading_.remove(0, faded);
    // Without a single byte the loudspeaker would take the stream for ended.
    if (samples_.isEmpty())
        bytes.append(maxSize - faded, silenceOf(format_));
    else
        bytes += turn(samples_, position_, maxSize - faded);
    std::memcpy(data, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return bytes.size();
}

} // namespace veltrix
