#include "tests/images/RenderedPicture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veltrix::test {

namespace {

struct Expected {
    std::string name;
    std::int32_t width = 0; // board pixels
    std::int32_t height = 0;
};

std::vector<Expected> everyPicture() {
    std::vector<Expected> all = {
        {"\\images1\\LineMask.bmp", 1024, 32}, {"\\images2\\Bord.bmp", 415, 376},
        {"\\images2\\RedLight.bmp", 32, 32},   {"\\images2\\RedLightMask.bmp", 32, 32},
        {"\\images2\\Sensors.bmp", 144, 48},   {"\\images2\\0-5V.bmp", 213, 48},
        {"\\images2\\VPointer.bmp", 15, 18},   {"\\images2\\VPointerMask.bmp", 15, 18},
        {"\\images2\\Cursor.bmp", 32, 32},     {"\\images2\\CursorMask.bmp", 32, 32},
        {"\\images2\\splash.bmp", 300, 300},   {"\\images2\\about.bmp", 300, 300},
    };
    for (int i = 1; i <= 9; ++i)
        all.push_back({"\\images1\\Line" + std::to_string(i) + ".bmp", 1024, 32});
    for (int i = 0; i <= 9; ++i)
        all.push_back({"\\images2\\Display" + std::to_string(i) + ".bmp", 20, 27});
    return all;
}

TEST(PictureSet, HoldsEveryPictureInEveryRendition) {
    for (const Expected& expected : everyPicture())
        for (const int scale : {1, 2, 3}) {
            Picture picture;
            ASSERT_NO_THROW(picture = rendered(expected.name, scale)) << expected.name;
            EXPECT_EQ(picture.width, expected.width * scale) << expected.name;
            EXPECT_EQ(picture.height, expected.height * scale) << expected.name;
        }
}

TEST(PictureSet, MasksAreGrey) {
    for (const char* mask : {"\\images1\\LineMask.bmp", "\\images2\\RedLightMask.bmp",
                             "\\images2\\VPointerMask.bmp", "\\images2\\CursorMask.bmp"})
        for (const std::uint32_t pixel : rendered(mask, 2).pixels) {
            const Colour c = colourOf(pixel);
            ASSERT_TRUE(c[0] == c[1] && c[1] == c[2]) << mask;
        }
}

} // namespace

} // namespace veltrix::test
