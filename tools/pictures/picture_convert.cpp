// Turns rendered pictures (PNG) into the files that the program loads. Runs at build time only.
//
//   picture_convert opaque  IN.png OUT.bmp           [IN.png OUT.bmp ...]
//   picture_convert masked  IN.png OUT.bmp MASK.bmp  [IN.png OUT.bmp MASK.bmp ...]
//
// All bitmaps are 24 bit, uncompressed. A mask is white where its picture covers, black where it
// does not, grey in between.

#include "board/Picture.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix {

namespace {

/// What is known of a picture's pixels, one entry each.
using Marks = std::vector<bool>;

std::uint32_t alphaOf(std::uint32_t pixel) {
    return pixel >> 24;
}

Picture read(const std::string& file) {
    try {
        return ReadPicture(file);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(file + ": " + error.what());
    }
}

void writeBmp(const std::string& file, const Picture& picture) {
    std::vector<unsigned char> bytes;
    bytes.reserve(3 * picture.pixels.size());
    for (const std::uint32_t pixel : picture.pixels)
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<unsigned char>(pixel >> shift & 0xFF));
    if (stbi_write_bmp(file.c_str(), picture.width, picture.height, 3, bytes.data()) == 0)
        throw std::runtime_error(file + ": cannot be written");
}

Picture maskOf(Picture picture) {
    for (std::uint32_t& pixel : picture.pixels)
        pixel = alphaOf(pixel) * 0x010101U;
    return picture;
}

/// The mean colour of the neighbours that are known; nothing when none is.
std::optional<std::uint32_t> meanOfNeighbours(const Picture& picture, const Marks& known,
                                              std::int32_t x, std::int32_t y) {
    std::uint32_t sums[3] = {0, 0, 0};
    std::uint32_t count = 0;
    for (std::int32_t v = std::max(y - 1, 0); v <= std::min(y + 1, picture.height - 1); ++v) {
        for (std::int32_t u = std::max(x - 1, 0); u <= std::min(x + 1, picture.width - 1); ++u) {
            const std::uint32_t* pixel = picture.Row(v) + u;
            if (!known[static_cast<std::size_t>(pixel - picture.pixels.data())])
                continue;
            for (int channel = 0; channel < 3; ++channel)
                sums[channel] += *pixel >> (8 * channel) & 0xFF;
            ++count;
        }
    }
    if (count == 0)
        return std::nullopt;
    return sums[2] / count << 16 | sums[1] / count << 8 | sums[0] / count;
}

/// The colour beside a picture's edge takes part in resampling, although the mask hides it. It is
/// therefore continued outward from the nearest believable colour, ring by ring.
void bleedColourOutward(Picture& picture) {
    // Hardly visible pixels carry too few bits of colour to be believed.
    constexpr std::uint32_t believable = 16;
    Marks known;
    known.reserve(picture.pixels.size());
    for (const std::uint32_t pixel : picture.pixels)
        known.push_back(alphaOf(pixel) >= believable);
    for (bool grew = true; grew;) {
        grew = false;
        const Marks before = known;
        for (std::int32_t y = 0; y < picture.height; ++y) {
            for (std::int32_t x = 0; x < picture.width; ++x) {
                std::uint32_t& pixel = picture.Row(y)[x];
                const auto at = static_cast<std::size_t>(&pixel - picture.pixels.data());
                if (before[at])
                    continue;
                if (const auto colour = meanOfNeighbours(picture, before, x, y)) {
                    pixel = *colour;
                    known[at] = true;
                    grew = true;
                }
            }
        }
    }
}

void convertOpaque(const std::string& in, const std::string& out) {
    const Picture picture = read(in);
    if (std::any_of(picture.pixels.begin(), picture.pixels.end(),
                    [](std::uint32_t pixel) { return alphaOf(pixel) != 255; }))
        throw std::runtime_error(
            in + ": has transparent pixels, but the program draws it without a mask");
    writeBmp(out, picture);
}

void convertMasked(const std::string& in, const std::string& out, const std::string& mask) {
    Picture picture = read(in);
    writeBmp(mask, maskOf(picture));
    bleedColourOutward(picture);
    writeBmp(out, picture);
}

void run(std::span<const std::string> arguments) {
    if (arguments.size() < 3)
        throw std::runtime_error("use: picture_convert opaque|masked FILES...");
    const std::string& job = arguments[0];
    const std::span<const std::string> files = arguments.subspan(1);
    if (job == "opaque" && files.size() % 2 == 0) {
        for (std::size_t i = 0; i < files.size(); i += 2)
            convertOpaque(files[i], files[i + 1]);
    } else if (job == "masked" && files.size() % 3 == 0) {
        for (std::size_t i = 0; i < files.size(); i += 3)
            convertMasked(files[i], files[i + 1], files[i + 2]);
    } else {
        throw std::runtime_error("unknown job, or a wrong number of files: " + job);
    }
}

} // namespace

} // namespace veltrix

int main(int argc, char** argv) {
    try {
        veltrix::run(std::vector<std::string>(argv + 1, argv + argc));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "picture_convert: %s\n", error.what());
        return 1;
    }
}
