#pragma once

#include "board/Log.h"
#include "board/Picture.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace veltrix {

/// The pictures that the surface's sprites are cut from, each held at the surface's scale.
class BitmapStore {
public:
    struct Bitmap {
        std::string name;
        std::shared_ptr<Picture> picture; ///< frame pixels; empty when it could not be loaded
        std::int32_t width = 0;           ///< board pixels
        std::int32_t height = 0;
        std::int32_t frames = 1;

        /// The column or row of `picture` where board pixel `x` or `y` begins.
        [[nodiscard]] std::int32_t Column(std::int64_t x) const noexcept;
        [[nodiscard]] std::int32_t RowAt(std::int64_t y) const noexcept;
    };

    /// `log` must outlive the store. See PictorATL::Start.
    void Start(const std::filesystem::path& applicationFolder, Log& log);

    /// The scale from now on. Every picture is loaded anew; pixels that were set stay set.
    void Restart(double scale);

    /// The number of a new bitmap, counted from 1. See PictorATL::LoadBitmap.
    std::int32_t Load(const std::string& name);

    /// False when the position lies outside the picture.
    bool SetPixel(std::int32_t bitmap, std::int32_t x, std::int32_t y, std::int32_t colour);

    /// Null for a number that no bitmap has.
    [[nodiscard]] const Bitmap* Find(std::int32_t number) const noexcept;

private:
    struct Edit {
        std::int32_t bitmap = 0;
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::uint32_t pixel = 0;
    };

    void load(Bitmap& bitmap);
    void apply(const Edit& edit);

    std::filesystem::path folder_;
    double scale_ = 1;
    Log* log_ = nullptr;
    std::unordered_set<std::string> reported_;
    std::vector<Bitmap> bitmaps_;
    std::vector<Edit> edits_; // made again when the pictures are loaded for another scale
};

} // namespace veltrix
