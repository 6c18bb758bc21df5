#include "tests/support/Folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace veltrix {
namespace {

/// The samples of a 16-bit mono wave file of the application folder.
std::vector<std::int16_t> samplesOf(const std::string& name) {
    std::ifstream in(test::ApplicationFolder() / name, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(in), {});
    const auto number = [&](std::size_t at, std::size_t length) {
        std::uint32_t value = 0;
        std::memcpy(&value, bytes.data() + at, length);
        return value;
    };
    constexpr std::size_t head = 44;
    if (bytes.size() < head)
        return {};
    EXPECT_EQ(bytes.substr(0, 4), "RIFF");
    EXPECT_EQ(number(4, 4), bytes.size() - 8);
    EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(number(20, 2), 1U) << "plain samples";
    EXPECT_EQ(number(22, 2), 1U) << "mono";
    EXPECT_EQ(number(24, 4), 44100U);
    EXPECT_EQ(number(28, 4), 88200U);
    EXPECT_EQ(number(32, 2), 2U);
    EXPECT_EQ(number(34, 2), 16U);
    EXPECT_EQ(bytes.substr(36, 4), "data");
    EXPECT_EQ(number(40, 4), bytes.size() - head);
    std::vector<std::int16_t> samples((bytes.size() - head) / 2);
    std::memcpy(samples.data(), bytes.data() + head, samples.size() * 2);
    return samples;
}

TEST(WaveFiles, SilenceIsSilent) {
    const std::vector<std::int16_t> samples = samplesOf("SILENCE.wav");
    EXPECT_GT(samples.size(), 4410U);
    EXPECT_TRUE(
        std::all_of(samples.begin(), samples.end(), [](int sample) { return sample == 0; }));
}

TEST(WaveFiles, TheBellIsHeardThroughoutAndNeverTooLoud) {
    const std::vector<std::int16_t> samples = samplesOf("Ringin.wav");
    ASSERT_GT(samples.size(), 44100U);
    constexpr std::size_t window = 2205;
    for (std::size_t at = 0; at + window <= samples.size(); at += window) {
        int loudest = 0;
        for (std::size_t i = at; i < at + window; ++i)
            loudest = std::max(loudest, std::abs(int{samples[i]}));
        EXPECT_GT(loudest, 1000) << at;
        EXPECT_LT(loudest, 20000) << at;
    }
}

TEST(WaveFiles, TheBellHasNoSeam) {
    const std::vector<std::int16_t> samples = samplesOf("Ringin.wav");
    ASSERT_GT(samples.size(), 4U);
    // A click is a step or a bend that the sound itself does not have just before and after it.
    const std::size_t n = samples.size();
    const auto bendAt = [&](std::size_t i) {
        const int a = samples[(i + n - 1) % n];
        const int b = samples[i % n];
        const int c = samples[(i + 1) % n];
        return std::abs(a - 2 * b + c);
    };
    int around = 0;
    for (std::size_t i = 2; i < 400; ++i)
        around = std::max({around, bendAt(i), bendAt(n - i)});
    EXPECT_LE(bendAt(0), around);
    EXPECT_LE(bendAt(n - 1), around);
}

} // namespace
} // namespace veltrix
