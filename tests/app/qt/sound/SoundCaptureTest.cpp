#include "app/qt/sound/SoundCapture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace veltrix {
namespace {

template <typename Sample>
std::int32_t peakOf(const std::vector<Sample>& samples, QAudioFormat::SampleFormat sampleFormat) {
    QAudioFormat format;
    format.setSampleRate(22050);
    format.setChannelCount(1);
    format.setSampleFormat(sampleFormat);
    const QByteArray buffer(reinterpret_cast<const char*>(samples.data()),
                            static_cast<qsizetype>(samples.size() * sizeof(Sample)));
    return PeakOf(buffer, format);
}

std::int32_t peakOf16(const std::vector<std::int16_t>& samples) {
    return peakOf(samples, QAudioFormat::Int16);
}

TEST(PeakOf, IsTheLargestAbsoluteSample) {
    EXPECT_EQ(peakOf16({}), 0);
    EXPECT_EQ(peakOf16({0, 0}), 0);
    EXPECT_EQ(peakOf16({1}), 1);
    EXPECT_EQ(peakOf16({-1}), 1);
    EXPECT_EQ(peakOf16({100, -300, 200}), 300);
    EXPECT_EQ(peakOf16({32767, 5}), 32767);
    EXPECT_EQ(peakOf16({5, -32768}), 32768);
}

TEST(PeakOf, AnyFormatHasTheSameScale) {
    EXPECT_EQ(peakOf<std::uint8_t>({128, 0}, QAudioFormat::UInt8), 32768);
    EXPECT_EQ(peakOf<std::int32_t>({0, -1073741824}, QAudioFormat::Int32), 16384);
    EXPECT_EQ(peakOf<float>({0.25F, -0.5F}, QAudioFormat::Float), 16384);
    EXPECT_EQ(peakOf<float>({4.0F}, QAudioFormat::Float), 32768) << "louder than it can be";
}

TEST(PeakOf, HalfASampleIsNone) {
    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Int16);
    EXPECT_EQ(PeakOf(QByteArray("\x01\x00\x7F", 3), format), 1);
    EXPECT_EQ(PeakOf("what no format describes", QAudioFormat()), 0);
}

} // namespace
} // namespace veltrix
