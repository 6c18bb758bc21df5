#pragma once

#include "instruments/AudioTap2.h"
#include "instruments/Settings.h"
#include "instruments/UCWaveIn.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {

/// The sound inputs of a computer that is only memory.
struct FakeInputs {
    struct Input {
        std::string name;
        bool valid = true;
    };

    std::vector<Input> inputs;
    bool answered = true; ///< whether the computer has told how many there are
};

/// A capture that listens to an input of such a computer; the test says how loud it is.
struct FakeTap : AudioTap2 {
    std::int32_t DeviceCount() override {
        return computer->answered ? static_cast<std::int32_t>(computer->inputs.size()) : -1;
    }

    void SetDeviceIndex(std::int32_t DeviceIndex) override { index = DeviceIndex; }

    std::string DeviceName(std::int32_t i) override {
        return computer->inputs.at(static_cast<std::size_t>(i - 1)).name;
    }

    bool DeviceValid(std::int32_t i) override {
        return computer->inputs.at(static_cast<std::size_t>(i - 1)).valid;
    }

    void Start() override { ++starts; }

    std::int32_t Level() override {
        ++reads;
        if (next.empty())
            return level;
        const std::int32_t first = next.front();
        next.erase(next.begin());
        return first;
    }

    FakeInputs* computer = nullptr;
    std::int32_t index = 0;
    int starts = 0;
    int reads = 0;
    std::int32_t level = 0;
    std::vector<std::int32_t> next; ///< what the coming reads find, before `level`
};

/// Settings in which every value is the same one, and that keep what was asked.
struct FakeSettings : Settings {
    std::string Get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& standard) override {
        asked.push_back(application + "/" + section + "/" + key);
        return value.empty() ? standard : value;
    }

    std::string value; ///< empty when the user has set nothing
    std::vector<std::string> asked;
};

/// A computer with sound inputs and the five captures that listen to them.
struct FakeSoundInputs {
    explicit FakeSoundInputs(std::vector<FakeInputs::Input> inputs = {}) {
        Become(std::move(inputs));
    }

    FakeSoundInputs(const FakeSoundInputs&) = delete;
    FakeSoundInputs& operator=(const FakeSoundInputs&) = delete;

    /// Another computer, that nobody has listened to yet.
    void Become(std::vector<FakeInputs::Input> inputs) {
        computer = {std::move(inputs)};
        settings = {};
        for (FakeTap& tap : taps) {
            tap = {};
            tap.computer = &computer;
        }
    }

    [[nodiscard]] UCWaveIn::Captures Captures() {
        return {&taps[0], &taps[1], &taps[2], &taps[3], &taps[4]};
    }

    FakeInputs computer;
    std::array<FakeTap, UCWaveIn::Inputs> taps;
    FakeSettings settings;
};

} // namespace veltrix::test
