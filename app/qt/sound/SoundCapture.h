#pragma once

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSource>
#include <QByteArray>
#include <QElapsedTimer>

#include <cstdint>
#include <functional>

namespace veltrix {

/// The peak of a buffer: the largest absolute sample of any channel, on the scale of 16-bit
/// samples, 0 to 32768.
[[nodiscard]] std::int32_t PeakOf(const QByteArray& buffer, const QAudioFormat& format);

/// Listens to one sound input. It lives in one thread of the sound, where it may hang.
class SoundCapture {
public:
    /// Milliseconds without sound after which an input that was open is taken to be gone.
    static constexpr std::int64_t DeafAfter = 500;

    /// Called with the peak of each buffer that comes in.
    using Heard = std::function<void(std::int32_t peak)>;

    SoundCapture(const QAudioDevice& device, Heard heard);

    /// False when the input cannot be opened. Does not return while the sound server does not
    /// answer, and with an input that the server refuses it never does.
    [[nodiscard]] bool Open();

    /// Whether the input has stopped giving sound; a quiet room gives sound too.
    [[nodiscard]] bool Deaf() const { return sinceSound_.elapsed() > DeafAfter; }

private:
    void read();

    Heard heard_;
    QAudioSource source_;
    QIODevice* stream_ = nullptr; // of source_
    QElapsedTimer sinceSound_;
};

} // namespace veltrix
