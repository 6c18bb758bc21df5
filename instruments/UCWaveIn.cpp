#include "instruments/UCWaveIn.h"

#include "board/Arithmetic.h"
#include "board/Types.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace veltrix {

UCWaveIn::UCWaveIn(const Captures& captures, Settings& settings) : captures_(captures) {
    UserControl_Initialize(settings);
}

void UCWaveIn::UserControl_Initialize(Settings& settings) {
    if (settings.Get("VELTRIX2", "Sound", "Value", "On") == "Off")
        return;
    takeInputs();
}

void UCWaveIn::takeInputs() {
    const std::int32_t count = TheWaveIn(1).DeviceCount();
    waiting_ = count < 0;
    usedCount_ = std::clamp(count, std::int32_t{0}, Inputs);
    for (std::int32_t i = 1; i <= usedCount_; ++i)
        TheWaveIn(i).SetDeviceIndex(i);
}

void UCWaveIn::Timer1_Timer() {
    if (started_)
        return;
    if (waiting_)
        takeInputs();
    if (waiting_)
        return;
    for (std::int32_t i = 1; i <= usedCount_; ++i)
        if (TheWaveIn(1).DeviceValid(i))
            TheWaveIn(i).Start();
    started_ = true;
}

std::string UCWaveIn::GetWaveName(std::int32_t i) const {
    return TheWaveIn(1).DeviceName(i);
}

bool UCWaveIn::GetWaveInValid(std::int32_t i) const {
    return TheWaveIn(1).DeviceValid(i);
}

float UCWaveIn::GetWaveVolume(std::int32_t i) const {
    using Index = std::numeric_limits<std::int16_t>;
    if (i < Index::min() || i > Index::max())
        throw std::overflow_error("the number of a sound input does not fit in 16 bits");
    return static_cast<float>(static_cast<double>(TheWaveIn(i).Level()) / peak_);
}

std::int32_t UCWaveIn::GetVolume() {
    if (usedCount_ < 1)
        return 0;
    // Only the first input moves the sensor. Reading it once more for every input in use gives a
    // loud moment more chances to be caught.
    std::int32_t loud = TheWaveIn(1).Level();
    for (std::int32_t i = 1; i <= usedCount_; ++i)
        loud = std::max(loud, TheWaveIn(1).Level());
    peak_ = std::max(peak_, loud);
    return RoundToLong(static_cast<double>(loud) * level::High / peak_);
}

AudioTap2& UCWaveIn::TheWaveIn(std::int32_t index) const {
    if (index < 1 || index > Inputs)
        throw std::out_of_range("there is no such sound input");
    return *captures_[static_cast<std::size_t>(index - 1)];
}

} // namespace veltrix
