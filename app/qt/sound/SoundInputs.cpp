#include "app/qt/sound/SoundInputs.h"

#include <algorithm>
#include <utility>

namespace veltrix {

std::int32_t SoundInputs::Count() const {
    const std::lock_guard lock(mutex_);
    return known_ ? static_cast<std::int32_t>(inputs_.size()) : -1;
}

std::string SoundInputs::Name(std::int32_t i) const {
    const std::lock_guard lock(mutex_);
    const Input* input = find(i);
    return input != nullptr ? input->name : std::string();
}

bool SoundInputs::Valid(std::int32_t i) const {
    const std::lock_guard lock(mutex_);
    const Input* input = find(i);
    return input != nullptr && !input->device.isNull() && !input->failed;
}

void SoundInputs::Want(std::int32_t i) {
    const std::lock_guard lock(mutex_);
    if (Input* input = find(i))
        input->wanted = true;
}

std::int32_t SoundInputs::Level(std::int32_t i) const noexcept {
    if (i < 1 || i > UCWaveIn::Inputs)
        return 0;
    return levels_[static_cast<std::size_t>(i - 1)].load(std::memory_order_relaxed);
}

void SoundInputs::Update(const QList<QAudioDevice>& devices) {
    const std::lock_guard lock(mutex_);
    for (Input& input : inputs_)
        input.device = {};
    for (const QAudioDevice& device : devices) {
        const auto same = std::find_if(inputs_.begin(), inputs_.end(),
                                       [&](const Input& input) { return input.id == device.id(); });
        Input& input = same != inputs_.end() ? *same : inputs_.emplace_back();
        input.device = device;
        input.id = device.id();
        input.name = device.description().toStdString();
    }
    known_ = true;
}

QAudioDevice SoundInputs::Wanted(std::int32_t i) const {
    const std::lock_guard lock(mutex_);
    const Input* input = find(i);
    return input != nullptr && input->wanted ? input->device : QAudioDevice();
}

bool SoundInputs::SetFailed(std::int32_t i, bool failed) {
    const std::lock_guard lock(mutex_);
    Input* input = find(i);
    return input != nullptr && std::exchange(input->failed, failed) != failed;
}

void SoundInputs::SetLevel(std::int32_t i, std::int32_t level) noexcept {
    if (i >= 1 && i <= UCWaveIn::Inputs)
        levels_[static_cast<std::size_t>(i - 1)].store(level, std::memory_order_relaxed);
}

const SoundInputs::Input* SoundInputs::find(std::int32_t i) const {
    if (i < 1 || static_cast<std::size_t>(i) > inputs_.size())
        return nullptr;
    return &inputs_[static_cast<std::size_t>(i - 1)];
}

SoundInputs::Input* SoundInputs::find(std::int32_t i) {
    return const_cast<Input*>(std::as_const(*this).find(i));
}

} // namespace veltrix
