#pragma once

#include "instruments/UCWaveIn.h"

#include <QAudioDevice>
#include <QByteArray>
#include <QList>

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace veltrix {

/// What is known of the sound inputs, by the window's thread and those of the sound. Nothing here
/// waits for the sound server. Inputs are counted from 1; asking for one that
/// there is not is allowed, and it is of no use.
class SoundInputs {
public:
    // For the window's thread

    /// How many inputs there have been; negative until the sound server has been asked.
    [[nodiscard]] std::int32_t Count() const;
    [[nodiscard]] std::string Name(std::int32_t i) const;

    /// Whether the input is there and has not failed.
    [[nodiscard]] bool Valid(std::int32_t i) const;

    /// Asks for an input to be listened to from now on. Only the first five can be.
    void Want(std::int32_t i);

    /// The latest level of an input, 0 to 32768, free of locks.
    [[nodiscard]] std::int32_t Level(std::int32_t i) const noexcept;

    // For the threads of the sound

    /// Takes over the list as it is now. An input keeps its number while it is away, and a new one
    /// comes behind the others.
    void Update(const QList<QAudioDevice>& devices);

    /// The device of an input that is wanted and there; a null device otherwise.
    [[nodiscard]] QAudioDevice Wanted(std::int32_t i) const;

    /// An input works as soon as it gives sound, and has failed when it does not. True when that
    /// is news.
    bool SetFailed(std::int32_t i, bool failed);

    void SetLevel(std::int32_t i, std::int32_t level) noexcept;

private:
    struct Input {
        QAudioDevice device; // null while it is away
        QByteArray id;
        std::string name;
        bool wanted = false;
        bool failed = false;
    };

    [[nodiscard]] const Input* find(std::int32_t i) const;
    [[nodiscard]] Input* find(std::int32_t i);

    mutable std::mutex mutex_; // guards all below but the levels
    std::vector<Input> inputs_;
    bool known_ = false;
    std::array<std::atomic<std::int32_t>, UCWaveIn::Inputs> levels_{};
};

} // namespace veltrix
