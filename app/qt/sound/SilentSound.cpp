#include "app/qt/sound/Sound.h"

namespace veltrix {

namespace {

/// A computer without sound inputs.
class NoCapture : public AudioTap2 {
public:
    std::int32_t DeviceCount() override { return 0; }

    void SetDeviceIndex(std::int32_t /*DeviceIndex*/) override {}

    std::string DeviceName(std::int32_t /*i*/) override { return {}; }

    bool DeviceValid(std::int32_t /*i*/) override { return false; }

    void Start() override {}

    std::int32_t Level() override { return 0; }
};

class SilentSound : public Sound, private SoundPlayer {
public:
    UCWaveIn::Captures Captures() override {
        return {&capture_, &capture_, &capture_, &capture_, &capture_};
    }

    SoundPlayer& Player() override { return *this; }

    bool Close() override { return true; }

private:
    void Play(const std::string& /*name*/) override {}

    NoCapture capture_;
};

} // namespace

std::unique_ptr<Sound> MakeSound(const std::filesystem::path& /*applicationFolder*/, Log& /*log*/) {
    return std::make_unique<SilentSound>();
}

} // namespace veltrix
