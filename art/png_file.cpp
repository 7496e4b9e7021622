#include "picture_files.h"

#include <png.h>

#include <cstdint>
#include <vector>

namespace quadrelle {

namespace {

constexpr int enlargement = 2;
constexpr int checker_size = 8;
constexpr Rgb checker_light{137, 137, 137};
constexpr Rgb checker_dark{122, 122, 122};

Rgb shown_colour(const Sheet_Picture& sheet, int x, int y) {
    const Rgb colour = sheet.at(x / enlargement, y / enlargement);
    if (colour != transparent_colour) {
        return colour;
    }
    const bool is_dark = (x / checker_size + y / checker_size) % 2 != 0;
    return is_dark ? checker_dark : checker_light;
}

// Row by row from the top: red, green, blue.
std::vector<std::uint8_t> enlarged_pixels(const Sheet_Picture& sheet) {
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < sheet_height * enlargement; ++y) {
        for (int x = 0; x < sheet_width * enlargement; ++x) {
            const Rgb colour = shown_colour(sheet, x, y);
            pixels.insert(pixels.end(), {colour.r, colour.g, colour.b});
        }
    }
    return pixels;
}

} // namespace

bool write_enlarged_png(const Sheet_Picture& sheet, const std::filesystem::path& path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = sheet_width * enlargement;
    image.height = sheet_height * enlargement;
    image.format = PNG_FORMAT_RGB;
    const std::vector<std::uint8_t> pixels = enlarged_pixels(sheet);
    return png_image_write_to_file(&image, path.c_str(), 0, pixels.data(), 0, nullptr) != 0;
}

} // namespace quadrelle
