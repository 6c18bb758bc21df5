// Turns rendered pictures (PNG) into the files that the program loads. Runs at build time only.
//
//   picture_convert opaque  IN.png OUT.bmp           [IN.png OUT.bmp ...]
//   picture_convert masked  IN.png OUT.bmp MASK.bmp  [IN.png OUT.bmp MASK.bmp ...]
//   picture_convert icon    OUT.ico IN.png [IN.png ...]
//
// All bitmaps are 24 bit, uncompressed. A mask is white where its picture covers, black where it
// does not, grey in between.

#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_PNG
#include <stb/stb_image.h>
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Pixel {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;
};

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;

    Pixel& at(int x, int y) { return pixels[index(x, y)]; }

    const Pixel& at(int x, int y) const { return pixels[index(x, y)]; }

    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }

    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
};

[[noreturn]] void fail(const std::string& file, const std::string& reason) {
    throw std::runtime_error(file + ": " + reason);
}

Picture readPng(const std::string& file) {
    Picture picture;
    int channels = 0;
    stbi_uc* bytes =
        stbi_load(file.c_str(), &picture.width, &picture.height, &channels, STBI_rgb_alpha);
    if (bytes == nullptr) {
        fail(file, stbi_failure_reason());
    }
    const std::size_t count =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    picture.pixels.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const stbi_uc* p = bytes + 4 * i;
        picture.pixels.push_back({p[0], p[1], p[2], p[3]});
    }
    stbi_image_free(bytes);
    return picture;
}

void writeBmp(const std::string& file, const Picture& picture) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(3 * picture.pixels.size());
    for (const Pixel& p : picture.pixels) {
        bytes.insert(bytes.end(), {p.red, p.green, p.blue});
    }
    if (stbi_write_bmp(file.c_str(), picture.width, picture.height, 3, bytes.data()) == 0) {
        fail(file, "cannot be written");
    }
}

Picture alphaOf(const Picture& picture) {
    Picture mask = picture;
    for (Pixel& p : mask.pixels) {
        p = {p.alpha, p.alpha, p.alpha, 255};
    }
    return mask;
}

// Hardly visible pixels carry too few bits of colour to be believed.
constexpr std::uint8_t kBelievable = 16;

std::optional<Pixel> meanOfNeighbours(const Picture& picture, const std::vector<bool>& known, int x,
                                      int y) {
    int red = 0;
    int green = 0;
    int blue = 0;
    int count = 0;
    for (int v = y - 1; v <= y + 1; ++v) {
        for (int u = x - 1; u <= x + 1; ++u) {
            if (picture.contains(u, v) && known[picture.index(u, v)]) {
                const Pixel& p = picture.at(u, v);
                red += p.red;
                green += p.green;
                blue += p.blue;
                ++count;
            }
        }
    }
    if (count == 0) {
        return std::nullopt;
    }
    return Pixel{static_cast<std::uint8_t>(red / count), static_cast<std::uint8_t>(green / count),
                 static_cast<std::uint8_t>(blue / count), picture.at(x, y).alpha};
}

// The colour beside a picture's edge takes part in resampling, although the mask hides it. It is
// therefore continued outward from the nearest believable colour, ring by ring.
void bleedColourOutward(Picture& picture) {
    std::vector<bool> known;
    known.reserve(picture.pixels.size());
    for (const Pixel& p : picture.pixels) {
        known.push_back(p.alpha >= kBelievable);
    }
    bool grew = true;
    while (grew) {
        grew = false;
        const std::vector<bool> before = known;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                if (before[picture.index(x, y)]) {
                    continue;
                }
                if (const auto colour = meanOfNeighbours(picture, before, x, y)) {
                    picture.at(x, y) = *colour;
                    known[picture.index(x, y)] = true;
                    grew = true;
                }
            }
        }
    }
}

void convertOpaque(const std::string& in, const std::string& out) {
    const Picture picture = readPng(in);
    for (const Pixel& p : picture.pixels) {
        if (p.alpha != 255) {
            fail(in, "has transparent pixels, but the program draws it without a mask");
        }
    }
    writeBmp(out, picture);
}

void convertMasked(const std::string& in, const std::string& out, const std::string& mask) {
    Picture picture = readPng(in);
    writeBmp(mask, alphaOf(picture));
    bleedColourOutward(picture);
    writeBmp(out, picture);
}

class LittleEndian {
public:
    void add(std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) {
            bytes_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        }
    }

    void add(const std::vector<std::uint8_t>& more) {
        bytes_.insert(bytes_.end(), more.begin(), more.end());
    }

    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

private:
    std::vector<std::uint8_t> bytes_;
};

// An icon's small images are bitmaps of double height, colour first and then one bit a pixel that
// says what is transparent, bottom row first.
std::vector<std::uint8_t> iconBitmap(const Picture& picture) {
    LittleEndian image;
    image.add(40, 4);
    image.add(static_cast<std::uint32_t>(picture.width), 4);
    image.add(static_cast<std::uint32_t>(2 * picture.height), 4);
    image.add(1, 2);
    image.add(32, 2);
    for (int field = 0; field < 6; ++field) {
        image.add(0, 4);
    }
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const Pixel& p = picture.at(x, y);
            image.add({p.blue, p.green, p.red, p.alpha});
        }
    }
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; x += 32) {
            for (int byte = 0; byte < 4; ++byte) {
                std::uint32_t bits = 0;
                for (int bit = 0; bit < 8; ++bit) {
                    const int column = x + 8 * byte + bit;
                    const bool hidden =
                        !picture.contains(column, y) || picture.at(column, y).alpha == 0;
                    bits = bits << 1 | (hidden ? 1U : 0U);
                }
                image.add(bits, 1);
            }
        }
    }
    return image.bytes();
}

std::vector<std::uint8_t> contents(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        fail(file, "cannot be read");
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// From this size on an icon's image is kept as a PNG, which every reader of such sizes knows.
constexpr int kIconPngSize = 256;

void makeIcon(const std::string& out, std::span<const std::string> pictures) {
    LittleEndian directory;
    LittleEndian images;
    directory.add(0, 2);
    directory.add(1, 2);
    directory.add(static_cast<std::uint32_t>(pictures.size()), 2);
    const std::size_t start = 6 + 16 * pictures.size();
    for (const std::string& file : pictures) {
        const Picture picture = readPng(file);
        const std::vector<std::uint8_t> image =
            picture.width >= kIconPngSize ? contents(file) : iconBitmap(picture);
        directory.add(static_cast<std::uint32_t>(picture.width % 256), 1);
        directory.add(static_cast<std::uint32_t>(picture.height % 256), 1);
        directory.add(0, 2);
        directory.add(1, 2);
        directory.add(32, 2);
        directory.add(static_cast<std::uint32_t>(image.size()), 4);
        directory.add(static_cast<std::uint32_t>(start + images.bytes().size()), 4);
        images.add(image);
    }
    std::ofstream file(out, std::ios::binary);
    for (const std::vector<std::uint8_t>* part : {&directory.bytes(), &images.bytes()}) {
        for (const std::uint8_t byte : *part) {
            file.put(static_cast<char>(byte));
        }
    }
    file.close();
    if (!file) {
        fail(out, "cannot be written");
    }
}

void run(std::span<const std::string> arguments) {
    if (arguments.size() < 3) {
        throw std::runtime_error("use: picture_convert opaque|masked|icon FILES...");
    }
    const std::string& job = arguments[0];
    const std::span<const std::string> files = arguments.subspan(1);
    if (job == "opaque" && files.size() % 2 == 0) {
        for (std::size_t i = 0; i < files.size(); i += 2) {
            convertOpaque(files[i], files[i + 1]);
        }
    } else if (job == "masked" && files.size() % 3 == 0) {
        for (std::size_t i = 0; i < files.size(); i += 3) {
            convertMasked(files[i], files[i + 1], files[i + 2]);
        }
    } else if (job == "icon") {
        makeIcon(files[0], files.subspan(1));
    } else {
        throw std::runtime_error("unknown job, or a wrong number of files: " + job);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "picture_convert: %s\n", error.what());
        return 1;
    }
    return 0;
}
