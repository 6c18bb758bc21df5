#include "app/qt/sound/SoundCapture.h"

#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace veltrix {

namespace {

/// A level needs neither two channels nor the highest tones, and this is a quarter of the work.
QAudioFormat formatFor(const QAudioDevice& device) {
    QAudioFormat format;
    format.setSampleRate(22050);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return device.isFormatSupported(format) ? format : device.preferredFormat();
}

} // namespace

std::int32_t PeakOf(const QByteArray& buffer, const QAudioFormat& format) {
    constexpr float fullScale = 32768;
    const qsizetype size = format.bytesPerSample();
    std::int32_t peak = 0;
    for (qsizetype i = 0; size > 0 && i + size <= buffer.size(); i += size) {
        const char* const at = buffer.constData() + i;
        if (format.sampleFormat() == QAudioFormat::Int16) {
            std::int16_t sample = 0;
            std::memcpy(&sample, at, sizeof sample);
            peak = std::max(peak, std::abs(std::int32_t{sample}));
        } else {
            const float sample = std::min(std::abs(format.normalizedSampleValue(at)), 1.0F);
            peak = std::max(peak, static_cast<std::int32_t>(std::lround(sample * fullScale)));
        }
    }
    return peak;
}

SoundCapture::SoundCapture(const QAudioDevice& device, Heard heard)
    : heard_(std::move(heard)), source_(device, formatFor(device)) {}

bool SoundCapture::Open() {
    // A buffer long enough to hold a whole swing of a low voice, and short enough for a meter.
    constexpr qint64 microseconds = 25000;
    source_.setBufferSize(source_.format().bytesForDuration(microseconds));
    stream_ = source_.start();
    if (stream_ == nullptr || source_.error() != QAudio::NoError)
        return false;
    sinceSound_.start();
    QObject::connect(stream_, &QIODevice::readyRead, &source_, [this] { read(); });
    return true;
}

void SoundCapture::read() {
    const QByteArray buffer = stream_->readAll();
    if (buffer.isEmpty())
        return;
    sinceSound_.start();
    heard_(PeakOf(buffer, source_.format()));
}

} // namespace veltrix
