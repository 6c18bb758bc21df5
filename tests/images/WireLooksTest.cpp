#include "tests/images/RenderedPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace veltrix::test {

namespace {

using Matrix = std::array<std::array<double, 3>, 3>;

struct Eye {
    const char* name;
    Matrix sees; // linear light of the screen to linear light that looks the same to this eye
};

// How a screen looks to people who lack one kind of cone: the model of Machado, Oliveira and
// Fernandes (2009), full severity.
constexpr Eye eyes[] = {
    {"full colour vision", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779},
       {-0.078411, 0.930809, 0.147602},
       {0.004733, 0.691367, 0.303900}}}},
};

double linear(double value) {
    const double c = value / 255;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

/// CIE lightness, 0 to 100, of linear light.
double lightness(const Colour& light) {
    const double y =
        std::clamp(0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2], 0.0, 1.0);
    return y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
}

Colour seen(const Eye& eye, std::uint32_t pixel) {
    const Colour c = colourOf(pixel);
    const Colour light{linear(c[0]), linear(c[1]), linear(c[2])};
    Colour result{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            result[i] += eye.sees[i][j] * light[j];
    for (double& value : result)
        value = std::clamp(value, 0.0, 1.0);
    return result;
}

/// The lightness of a wire in one look, averaged over what its mask lets through.
double lightnessOf(int look, int scale, const Eye& eye) {
    const Picture strip = rendered("\\images1\\Line" + std::to_string(look) + ".bmp", scale);
    const Picture mask = rendered("\\images1\\LineMask.bmp", scale);
    Colour sum{};
    double weights = 0;
    for (std::size_t i = 0; i < strip.pixels.size(); ++i) {
        const double weight = mask.pixels[i] & 0xFF;
        if (weight == 0)
            continue;
        const Colour light = seen(eye, strip.pixels[i]);
        for (std::size_t c = 0; c < 3; ++c)
            sum[c] += weight * light[c];
        weights += weight;
    }
    for (double& c : sum)
        c /= weights;
    return lightness(sum);
}

/// How many pixels across a wire to the right are brighter than its casing.
int coreWidth(int look) {
    const Picture strip = rendered("\\images1\\Line" + std::to_string(look) + ".bmp", 3);
    const std::int32_t middle = strip.height / 2; // of the first frame, which runs to the right
    int width = 0;
    for (std::int32_t y = 0; y < strip.height; ++y)
        width += lightness(seen(eyes[0], strip.Row(y)[middle])) > 25;
    return width;
}

TEST(WireLooks, EveryStepFromZeroToFiveVoltsIsLighterForEveryEye) {
    constexpr double clearStep = 3; // in CIE lightness
    constexpr double clearRange = 40;
    for (const Eye& eye : eyes)
        for (const int scale : {1, 3}) {
            double below = lightnessOf(8, scale, eye);
            const double zeroVolt = below;
            for (int look = 7; look >= 1; --look) {
                const double here = lightnessOf(look, scale, eye);
                EXPECT_GT(here, below + clearStep)
                    << eye.name << ", look " << look << " at scale " << scale;
                below = here;
            }
            EXPECT_GT(below, zeroVolt + clearRange) << eye.name;
        }
}

TEST(WireLooks, TheCoreGrowsWithTheVoltage) {
    int below = coreWidth(8);
    const int zeroVolt = below;
    for (int look = 7; look >= 1; --look) {
        const int here = coreWidth(look);
        EXPECT_GE(here, below) << "look " << look;
        below = here;
    }
    EXPECT_GE(below, zeroVolt + 6);
}

} // namespace

} // namespace veltrix::test
