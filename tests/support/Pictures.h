#pragma once

#include "board/AppPath.h"
#include "board/Picture.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {

/// Opaque colours, 0xAARRGGBB.
inline constexpr std::uint32_t red = 0xFFFF0000;
inline constexpr std::uint32_t green = 0xFF00FF00;
inline constexpr std::uint32_t blue = 0xFF0000FF;
inline constexpr std::uint32_t white = 0xFFFFFFFF;
inline constexpr std::uint32_t nothing = 0xFF000000; ///< what a frame shows where nothing lies

/// A picture in one colour, 0xAARRGGBB.
inline Picture plain(std::int32_t width, std::int32_t height, std::uint32_t colour) {
    Picture picture{width, height, {}};
    picture.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                          colour);
    return picture;
}

/// A picture one pixel high.
inline Picture rowOf(std::vector<std::uint32_t> pixels) {
    const auto width = static_cast<std::int32_t>(pixels.size());
    return {width, 1, std::move(pixels)};
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

/// The colours of the pictures that a board and its cursor load. Each picture is as large as the
/// real one but in one colour of its own, all masks are white: what a test sees in the frame then
/// tells which picture it was.
namespace boardColours {
inline constexpr std::uint32_t Board = 0xFF204060;
inline constexpr std::uint32_t RedLight = 0xFFFF0000;
inline constexpr std::uint32_t Scale = 0xFF000080;
inline constexpr std::uint32_t VPointer = 0xFFFFFF00;
inline constexpr std::uint32_t Ring = 0xFF00C080;

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

/// Puts all of these pictures where the program looks for them.
inline void writeBoardPictures(const std::filesystem::path& folder) {
    writePicture(folder, "\\images2\\Bord.bmp", plain(415, 376, boardColours::Board));
    writePicture(folder, "\\images2\\RedLight.bmp", plain(32, 32, boardColours::RedLight));
    writePicture(folder, "\\images2\\RedLightMask.bmp", plain(32, 32, white));
    writePicture(folder, "\\images2\\0-5V.bmp", plain(213, 48, boardColours::Scale));
    writePicture(folder, "\\images2\\VPointer.bmp", plain(15, 18, boardColours::VPointer));
    writePicture(folder, "\\images2\\VPointerMask.bmp", plain(15, 18, white));
    writePicture(folder, "\\images2\\Cursor.bmp", plain(32, 32, boardColours::Ring));
    writePicture(folder, "\\images2\\CursorMask.bmp", plain(32, 32, white));
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

/// The folder with these pictures that all tests of a program read: writing them takes longer than
/// most tests do.
inline const std::filesystem::path& boardPictures() {
    struct PictureFolder : TempFolder {
        PictureFolder() { writeBoardPictures(Path()); }
    };

    static const PictureFolder folder;
    return folder.Path();
}

} // namespace veltrix::test
