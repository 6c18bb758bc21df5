#include "app/qt/sound/LoopSource.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace veltrix {
namespace {

constexpr int rate = 8000;
constexpr std::size_t fade = 40; // samples in 5 ms

Loop loopOf(const std::vector<std::int16_t>& samples) {
    Loop loop;
    loop.format.setSampleRate(rate);
    loop.format.setChannelCount(1);
    loop.format.setSampleFormat(QAudioFormat::Int16);
    loop.samples = QByteArray(reinterpret_cast<const char*>(samples.data()),
                              static_cast<qsizetype>(samples.size() * sizeof(std::int16_t)));
    return loop;
}

std::vector<std::int16_t> heard(LoopSource& source, std::size_t count) {
    std::vector<std::int16_t> samples(count);
    const auto size = static_cast<qint64>(count * sizeof(std::int16_t));
    EXPECT_EQ(source.read(reinterpret_cast<char*>(samples.data()), size), size);
    return samples;
}

using Samples = std::vector<std::int16_t>;

TEST(LoopSource, PlaysOverAndOver) {
    LoopSource source;
    source.Play(loopOf({1, 2, 3}));
    EXPECT_EQ(heard(source, 2), (Samples{1, 2}));
    EXPECT_EQ(heard(source, 8), (Samples{3, 1, 2, 3, 1, 2, 3, 1}));
}

TEST(LoopSource, NeverEnds) {
    LoopSource source;
    EXPECT_FALSE(source.atEnd());
    EXPECT_EQ(heard(source, 3), (Samples{0, 0, 0})) << "before the first loop";
    source.Play(loopOf({}));
    EXPECT_EQ(heard(source, 3), (Samples{0, 0, 0}));
    EXPECT_FALSE(source.atEnd());
}

TEST(LoopSource, FadesIntoTheBeginningOfTheNext) {
    LoopSource source;
    source.Play(loopOf({4000}));
    (void)heard(source, 5);
    source.Play(loopOf({7, 8}));
    const Samples after = heard(source, fade + 3);
    for (std::size_t i = 1; i < fade; ++i)
        EXPECT_LT(after[i], after[i - 1]) << i;
    EXPECT_LE(after[fade - 1], 100);
    EXPECT_EQ(Samples(after.begin() + fade, after.end()), (Samples{7, 8, 7}));
}

TEST(LoopSource, FadesAcrossSmallReads) {
    LoopSource whole;
    LoopSource parts;
    for (LoopSource* source : {&whole, &parts}) {
        source->Play(loopOf({100, -100, 50}));
        (void)heard(*source, 1);
        source->Play(loopOf({}));
    }
    Samples together;
    for (int i = 0; i < 20; ++i)
        for (const std::int16_t sample : heard(parts, 7))
            together.push_back(sample);
    EXPECT_EQ(heard(whole, 140), together);
    EXPECT_EQ(together.back(), 0);
}

TEST(Loop, IsSilentWithoutASampleThatIsHeard) {
    EXPECT_TRUE(Loop().Silent());
    EXPECT_TRUE(loopOf({0, 0}).Silent());
    EXPECT_FALSE(loopOf({0, 256}).Silent());
    Loop bytes = loopOf({});
    bytes.format.setSampleFormat(QAudioFormat::UInt8);
    bytes.samples = QByteArray(3, '\x80');
    EXPECT_TRUE(bytes.Silent());
    bytes.samples[1] = '\x7F';
    EXPECT_FALSE(bytes.Silent());
}

class ReadLoopTest : public testing::Test {
protected:
    [[nodiscard]] Loop content(const std::string& bytes) const {
        std::ofstream(file, std::ios::binary) << bytes;
        return ReadLoop(file);
    }

    test::TempFolder folder;
    std::filesystem::path file = folder.Path() / "sound.wav";
};

TEST_F(ReadLoopTest, AFileThatIsNotThereIsEmpty) {
    EXPECT_TRUE(ReadLoop(file).samples.isEmpty());
    EXPECT_TRUE(ReadLoop(folder.Path()).samples.isEmpty());
}

TEST_F(ReadLoopTest, AWaveFileIsItsSamples) {
    const Loop bell = ReadLoop(test::ApplicationFolder() / "Ringin.wav");
    EXPECT_EQ(bell.format.sampleRate(), 44100);
    EXPECT_EQ(bell.format.channelCount(), 1);
    EXPECT_EQ(bell.format.sampleFormat(), QAudioFormat::Int16);
    EXPECT_EQ(static_cast<std::uintmax_t>(bell.samples.size()),
              std::filesystem::file_size(test::ApplicationFolder() / "Ringin.wav") - 44);
    EXPECT_FALSE(bell.Silent());
    EXPECT_TRUE(ReadLoop(test::ApplicationFolder() / "SILENCE.wav").Silent());
}

TEST_F(ReadLoopTest, DamagedFilesAreEmptyOrShort) {
    std::ifstream in(test::ApplicationFolder() / "Ringin.wav", std::ios::binary);
    std::string whole(2000, '\0');
    in.read(whole.data(), static_cast<std::streamsize>(whole.size()));
    for (std::size_t length = 0; length < 60; ++length)
        EXPECT_LE(content(whole.substr(0, length)).samples.size(), 16) << length;
    EXPECT_EQ(content(whole.substr(0, 1001)).samples.size() % 2, 0) << "half a sample is none";
    EXPECT_TRUE(content(std::string(5000, '\xA5')).samples.isEmpty());
}

} // namespace
} // namespace veltrix
