#pragma once

#include "board/AppPath.h"
#include "board/Picture.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace veltrix::test {

/// A picture in one colour, 0xAARRGGBB.
inline Picture plain(std::int32_t width, std::int32_t height, std::uint32_t colour) {
    Picture picture{width, height, {}};
    picture.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                          colour);
    return picture;
}

/// A BMP of 24 bits a pixel, for opaque pictures: far quicker to write than a PNG.
inline void writeBmp(const Picture& picture, const std::filesystem::path& file) {
    constexpr std::uint32_t headers = 54;
    const std::int32_t rowSize = (picture.width * 3 + 3) / 4 * 4;
    const auto size = headers + static_cast<std::uint32_t>(rowSize * picture.height);
    std::string bytes = "BM";
    const auto put = [&](std::uint32_t number, int count) {
        for (; count > 0; --count, number >>= 8)
            bytes.push_back(static_cast<char>(number & 0xFF));
    };
    put(size, 4);
    put(0, 4);
    put(headers, 4);
    put(headers - 14, 4);
    put(static_cast<std::uint32_t>(picture.width), 4);
    put(static_cast<std::uint32_t>(picture.height), 4);
    put(1, 2);
    put(24, 2);
    put(0, 24);
    for (std::int32_t y = picture.height - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < picture.width; ++x)
            put(picture.Row(y)[x], 3);
        put(0, rowSize - picture.width * 3);
    }
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(size));
}

/// Puts a picture where the program looks for `name` ("\\images2\\Bord.bmp"). One that is not
/// opaque becomes a PNG whatever the name says, since pictures are told apart by their content.
inline void writePicture(const std::filesystem::path& folder, const std::string& name,
                         const Picture& picture) {
    const std::filesystem::path file = AppPath(folder, name);
    std::filesystem::create_directories(file.parent_path());
    const bool opaque = std::all_of(picture.pixels.begin(), picture.pixels.end(),
                                    [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
    if (opaque)
        writeBmp(picture, file);
    else
        WritePng(picture, file);
}

/// Every picture that a board loads, as large as the real ones but each in one colour of its own,
/// all masks white: what a test sees in the frame then tells which picture it was.
namespace boardColours {
inline constexpr std::uint32_t Board = 0xFF204060;
inline constexpr std::uint32_t RedLight = 0xFFFF0000;
inline constexpr std::uint32_t Scale = 0xFF000080;
inline constexpr std::uint32_t VPointer = 0xFFFFFF00;

constexpr std::uint32_t line(std::uint32_t colourNumber) {
    return 0xFF00A000 + colourNumber;
}

constexpr std::uint32_t digit(std::uint32_t digit) {
    return 0xFFA00000 + digit;
}

constexpr std::uint32_t sensor(std::uint32_t mode) {
    return 0xFFA0A000 + mode;
}
} // namespace boardColours

inline void writeBoardPictures(const std::filesystem::path& folder) {
    constexpr std::uint32_t white = 0xFFFFFFFF;
    writePicture(folder, "\\images2\\Bord.bmp", plain(415, 376, boardColours::Board));
    writePicture(folder, "\\images2\\RedLight.bmp", plain(32, 32, boardColours::RedLight));
    writePicture(folder, "\\images2\\RedLightMask.bmp", plain(32, 32, white));
    writePicture(folder, "\\images2\\0-5V.bmp", plain(213, 48, boardColours::Scale));
    writePicture(folder, "\\images2\\VPointer.bmp", plain(15, 18, boardColours::VPointer));
    writePicture(folder, "\\images2\\VPointerMask.bmp", plain(15, 18, white));
    writePicture(folder, "\\images1\\LineMask.bmp", plain(1024, 32, white));
    for (std::uint32_t i = 1; i <= 9; ++i)
        writePicture(folder, "\\images1\\Line" + std::to_string(i) + ".bmp",
                     plain(1024, 32, boardColours::line(i)));
    for (std::uint32_t i = 0; i <= 9; ++i)
        writePicture(folder, "\\images2\\Display" + std::to_string(i) + ".bmp",
                     plain(20, 27, boardColours::digit(i)));
    Picture sensors = plain(144, 48, 0);
    for (std::int32_t y = 0; y < sensors.height; ++y)
        for (std::int32_t x = 0; x < sensors.width; ++x)
            sensors.Row(y)[x] = boardColours::sensor(static_cast<std::uint32_t>(x / 48));
    writePicture(folder, "\\images2\\Sensors.bmp", sensors);
}

/// A folder with these pictures, for as long as a test lasts.
struct PictureFolder : TempFolder {
    PictureFolder() { writeBoardPictures(Path()); }
};

} // namespace veltrix::test
