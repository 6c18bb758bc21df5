// Writes the two sounds of the buzzer. Runs at build time only.
//
//   make_sounds RINGIN.wav SILENCE.wav
//
// Both are 16-bit mono files that are played over and over, so each must begin as it ends.

#include "tools/BinaryFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <numbers>
#include <vector>

namespace {

using veltrix::tools::BinaryFile;

constexpr std::uint32_t sampleRate = 44100;

/// The samples of one turn of a loop, full scale at 1.
using Loop = std::vector<double>;

Loop silence(double seconds) {
    return Loop(static_cast<std::size_t>(seconds * sampleRate));
}

/// One tone of a bell's sound.
struct Partial {
    double ratio;  ///< its frequency, as a multiple of the bell's note
    double weight; ///< how loud it begins
    double decay;  ///< seconds until it has faded to a third
};

// The low tones carry the note and stay, the high ones give the stroke and fade at once. All of
// them lie where the small loudspeaker of a school computer still sounds, 0.6 to 7 kHz.
constexpr std::array<Partial, 5> bell{{
    {1.0, 1.0, 0.26},
    {2.0, 0.45, 0.20},
    {2.76, 0.30, 0.12},
    {4.07, 0.12, 0.07},
    {5.43, 0.08, 0.04},
}};

/// Lets a bell strike. What is still sounding at the end of the loop goes on at its beginning, so
/// that there is no seam to be heard.
void strike(Loop& loop, double atSeconds, double note) {
    constexpr double attack = 0.004; // seconds; a tone that is there at once makes a click
    constexpr double tail = 2.5;     // seconds, after which nothing is left of the slowest partial
    const auto start = static_cast<std::size_t>(atSeconds * sampleRate);
    const auto length = static_cast<std::size_t>(tail * sampleRate);
    for (std::size_t i = 0; i < length; ++i) {
        const double t = static_cast<double>(i) / sampleRate;
        const double rise = t < attack ? 0.5 - 0.5 * std::cos(std::numbers::pi * t / attack) : 1.0;
        double sum = 0;
        for (const Partial& partial : bell)
            sum += partial.weight * std::exp(-t / partial.decay) *
                   std::sin(2 * std::numbers::pi * note * partial.ratio * t);
        loop[(start + i) % loop.size()] += rise * sum;
    }
}

/// A doorbell that keeps ringing: two notes a third apart, four strokes a turn.
Loop ringing() {
    constexpr double high = 1318.5; // Hz, E6
    constexpr double low = 1046.5;  // Hz, C6
    constexpr double stroke = 0.4;  // seconds between two strokes
    Loop loop = silence(4 * stroke);
    strike(loop, 0, high);
    strike(loop, stroke, low);
    strike(loop, 2 * stroke, high);
    strike(loop, 3 * stroke, low);
    return loop;
}

/// Makes the loudest sample of a loop as loud as `peak`.
void setPeak(Loop& loop, double peak) {
    double loudest = 0;
    for (const double sample : loop)
        loudest = std::max(loudest, std::abs(sample));
    for (double& sample : loop)
        sample *= peak / loudest;
}

BinaryFile waveFile(const Loop& loop) {
    constexpr int bytesPerSample = 2;
    const auto bytes = static_cast<std::uint32_t>(loop.size()) * bytesPerSample;
    BinaryFile file;
    file.Text("RIFF");
    file.Number(36 + bytes, 4);
    file.Text("WAVE");
    file.Text("fmt ");
    file.Number(16, 4);                          // length of this chunk
    file.Number(1, 2);                           // PCM
    file.Number(1, 2);                           // channels
    file.Number(sampleRate, 4);                  // frames a second
    file.Number(sampleRate * bytesPerSample, 4); // bytes a second
    file.Number(bytesPerSample, 2);              // bytes a frame
    file.Number(8 * bytesPerSample, 2);          // bits a sample
    file.Text("data");
    file.Number(bytes, 4);
    for (const double sample : loop)
        file.Number(static_cast<std::uint32_t>(std::lround(sample * 32767)), bytesPerSample);
    return file;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: make_sounds RINGIN.wav SILENCE.wav\n", stderr);
        return 2;
    }
    try {
        Loop bellLoop = ringing();
        setPeak(bellLoop, 0.5); // headphones are worn in computer rooms
        waveFile(bellLoop).Write(argv[1]);
        waveFile(silence(0.5)).Write(argv[2]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_sounds: %s\n", error.what());
        return 1;
    }
}
