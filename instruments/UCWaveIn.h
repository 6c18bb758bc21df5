#pragma once

#include "instruments/AudioTap2.h"
#include "instruments/Settings.h"
#include "instruments/SoundSensor.h"

#include <array>
#include <cstdint>
#include <string>

namespace veltrix {

/// The sound sensor: up to five sound inputs of the computer, the first of which gives the level.
class UCWaveIn : public SoundSensor {
public:
    static constexpr std::int32_t Inputs = 5;
    static constexpr std::int32_t Interval = 10; ///< of Timer1, ms

    /// One capture for each input; none may be null, and all must outlive this.
    using Captures = std::array<AudioTap2*, Inputs>;

    /// Counts the inputs, unless the user has switched the sound off; listens to none of them yet.
    UCWaveIn(const Captures& captures, Settings& settings);

    /// Starts the captures the first time that the inputs are known; opening one may take long, and
    /// the window is there before. Does nothing from then on.
    void Timer1_Timer();

    /// The number of inputs in use, 0 to 5.
    [[nodiscard]] std::int32_t GetUsedCount() const noexcept { return usedCount_; }

    /// The name of input `i`, counted from 1.
    [[nodiscard]] std::string GetWaveName(std::int32_t i) const;

    /// Whether input `i` can be used.
    [[nodiscard]] bool GetWaveInValid(std::int32_t i) const;

    /// The level of input `i` relative to the loudest of input 1 so far, so that it may exceed 1.
    /// Throws std::overflow_error when `i` is no 16-bit number, else std::out_of_range when it is
    /// not 1 to 5.
    [[nodiscard]] float GetWaveVolume(std::int32_t i) const;

    /// The level of the sensor, 0 to 50: that of input 1, where 50 is the loudest heard since the
    /// program started.
    [[nodiscard]] std::int32_t GetVolume() override;

private:
    void UserControl_Initialize(Settings& settings);
    void takeInputs();
    [[nodiscard]] AudioTap2& TheWaveIn(std::int32_t index) const;

    Captures captures_;
    std::int32_t usedCount_ = 0;
    std::int32_t peak_ = 1;
    bool waiting_ = false; // for the computer to tell how many inputs it has
    bool started_ = false;
};

} // namespace veltrix
