#include "board/Picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

// An analyzer that looked inside the library would report what is not ours to mend.
#ifndef __clang_analyzer__
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#endif
#define STBI_ONLY_BMP
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#define STBI_WRITE_NO_STDIO
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace veltrix {

namespace {

/// One output pixel's share of a run of input pixels: [from, to) with fractional ends.
struct Span {
    std::int32_t first = 0;
    std::vector<double> weights;
};

std::vector<Span> spans(std::int32_t in, std::int32_t out) {
    std::vector<Span> result(static_cast<std::size_t>(out));
    const double step = static_cast<double>(in) / out;
    for (std::int32_t i = 0; i < out; ++i) {
        const double from = i * step;
        const double to = std::min<double>(in, (i + 1) * step);
        Span& span = result[static_cast<std::size_t>(i)];
        span.first = std::min(in - 1, static_cast<std::int32_t>(from));
        for (std::int32_t j = span.first; j < in && (j == span.first || j < to); ++j)
            span.weights.push_back(
                std::max(1e-9, std::min<double>(to, j + 1) - std::max<double>(from, j)));
    }
    return result;
}

} // namespace

Picture ReadPicture(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot be opened");
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    int width = 0;
    int height = 0;
    int channels = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> rgba(
        stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(bytes.data()),
                              static_cast<int>(bytes.size()), &width, &height, &channels, 4),
        &stbi_image_free);
    if (rgba == nullptr)
        throw std::runtime_error(std::string("is no picture: ") + stbi_failure_reason());
    Picture picture{width, height, {}};
    picture.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const stbi_uc* in = rgba.get();
    for (std::uint32_t& pixel : picture.pixels) {
        pixel = std::uint32_t{in[3]} << 24 | std::uint32_t{in[0]} << 16 |
                std::uint32_t{in[1]} << 8 | std::uint32_t{in[2]};
        in += 4;
    }
    return picture;
}

void WritePng(const Picture& picture, const std::filesystem::path& file) {
    std::vector<unsigned char> rgba;
    rgba.reserve(picture.pixels.size() * 4);
    for (const std::uint32_t pixel : picture.pixels)
        for (const int shift : {16, 8, 0, 24})
            rgba.push_back(static_cast<unsigned char>(pixel >> shift & 0xFF));
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    const auto write = [](void* context, void* data, int size) {
        static_cast<std::ofstream*>(context)->write(static_cast<const char*>(data), size);
    };
    if (stream)
        stbi_write_png_to_func(write, &stream, picture.width, picture.height, 4, rgba.data(),
                               picture.width * 4);
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot be written");
}

Picture ResampleFrames(const Picture& picture, std::int32_t frames, std::int32_t width,
                       std::int32_t height) {
    const std::int32_t frameWidth = picture.width / frames;
    if (frameWidth == width && picture.height == height)
        return picture;
    Picture result{width * frames, height, {}};
    result.pixels.resize(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(height));
    const std::vector<Span> across = spans(frameWidth, width);
    const std::vector<Span> down = spans(picture.height, height);
    for (std::int32_t y = 0; y < height; ++y) {
        const Span& rows = down[static_cast<std::size_t>(y)];
        for (std::int32_t x = 0; x < result.width; ++x) {
            const Span& columns = across[static_cast<std::size_t>(x % width)];
            const std::int32_t left = x / width * frameWidth + columns.first;
            std::array<double, 4> sum{};
            double total = 0;
            for (std::size_t j = 0; j < rows.weights.size(); ++j) {
                const std::uint32_t* in =
                    picture.Row(rows.first + static_cast<std::int32_t>(j)) + left;
                for (std::size_t i = 0; i < columns.weights.size(); ++i) {
                    const double weight = rows.weights[j] * columns.weights[i];
                    for (std::size_t c = 0; c < 4; ++c)
                        sum[c] += weight * (in[i] >> (8 * c) & 0xFF);
                    total += weight;
                }
            }
            std::uint32_t pixel = 0;
            for (std::size_t c = 0; c < 4; ++c)
                pixel |= static_cast<std::uint32_t>(std::lround(sum[c] / total)) << (8 * c);
            result.Row(y)[x] = pixel;
        }
    }
    return result;
}

} // namespace veltrix
