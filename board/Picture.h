#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace veltrix {

/// Pixels in rows from the top; each is 0xAARRGGBB, not premultiplied.
struct Picture {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint32_t> pixels;

    [[nodiscard]] bool Empty() const noexcept { return pixels.empty(); }

    [[nodiscard]] std::uint32_t* Row(std::int32_t y) noexcept {
        return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
    }

    [[nodiscard]] const std::uint32_t* Row(std::int32_t y) const noexcept {
        return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
    }
};

/// Reads a BMP or PNG file. Throws std::runtime_error with the reason when it cannot be read.
[[nodiscard]] Picture ReadPicture(const std::filesystem::path& file);

/// Writes a PNG file. Throws std::runtime_error with the reason when it cannot be written.
void WritePng(const Picture& picture, const std::filesystem::path& file);

/// The picture, `frames` of equal width side by side, with each frame made `width` by `height`
/// pixels. Each frame is averaged by itself, so that neighbours in a strip do not bleed into one
/// another. `frames` divides the picture's width.
[[nodiscard]] Picture ResampleFrames(const Picture& picture, std::int32_t frames,
                                     std::int32_t width, std::int32_t height);

} // namespace veltrix
