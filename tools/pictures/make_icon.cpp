// Gathers rendered pictures (PNG) in an icon of several sizes. Runs at build time only.
//
//   make_icon OUT.ico IN.png...

#include "board/Picture.h"
#include "tools/BinaryFile.h"

#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix {

namespace {

using tools::BinaryFile;

/// An icon's small images are bitmaps of double height, colour first and then one bit a pixel that
/// says what is transparent, bottom row first.
std::string bitmapOf(const Picture& picture) {
    BinaryFile image;
    image.Number(40, 4); // length of this head
    image.Number(static_cast<std::uint32_t>(picture.width), 4);
    image.Number(static_cast<std::uint32_t>(2 * picture.height), 4);
    image.Number(1, 2);  // planes
    image.Number(32, 2); // bits a pixel
    for (int field = 0; field < 6; ++field)
        image.Number(0, 4);
    for (std::int32_t y = picture.height - 1; y >= 0; --y)
        for (std::int32_t x = 0; x < picture.width; ++x)
            image.Number(picture.Row(y)[x], 4);
    for (std::int32_t y = picture.height - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < (picture.width + 31) / 32 * 32; x += 8) {
            std::uint32_t bits = 0;
            for (std::int32_t column = x; column < x + 8; ++column) {
                const bool hidden = column >= picture.width || picture.Row(y)[column] >> 24 == 0;
                bits = bits << 1 | (hidden ? 1U : 0U);
            }
            image.Number(bits, 1);
        }
    }
    return image.Bytes();
}

std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void makeIcon(const std::string& out, std::span<const std::string> pictures) {
    // From this size on an image is kept as a PNG, which every reader of such sizes knows.
    constexpr std::int32_t keptAsPng = 256;
    BinaryFile icon;
    std::string images;
    icon.Number(0, 2);
    icon.Number(1, 2); // an icon, and no pointer
    icon.Number(static_cast<std::uint32_t>(pictures.size()), 2);
    const std::size_t start = 6 + 16 * pictures.size();
    for (const std::string& file : pictures) {
        const Picture picture = ReadPicture(file);
        const std::string image = picture.width >= keptAsPng ? contentOf(file) : bitmapOf(picture);
        icon.Number(static_cast<std::uint32_t>(picture.width % 256), 1);
        icon.Number(static_cast<std::uint32_t>(picture.height % 256), 1);
        icon.Number(0, 2);  // colours of a palette, and a reserved byte
        icon.Number(1, 2);  // planes
        icon.Number(32, 2); // bits a pixel
        icon.Number(static_cast<std::uint32_t>(image.size()), 4);
        icon.Number(static_cast<std::uint32_t>(start + images.size()), 4);
        images += image;
    }
    icon.Text(images);
    icon.Write(out);
}

} // namespace

} // namespace veltrix

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: make_icon OUT.ico IN.png...\n", stderr);
        return 2;
    }
    try {
        veltrix::makeIcon(argv[1], std::vector<std::string>(argv + 2, argv + argc));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_icon: %s\n", error.what());
        return 1;
    }
}
