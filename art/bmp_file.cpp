#include "byte_file.h"
#include "picture_files.h"

#include <algorithm>
#include <vector>

namespace quadrelle {

namespace {

constexpr std::size_t file_header_size = 14;
constexpr std::size_t picture_header_size = 40;
constexpr std::size_t largest_palette = 256;
constexpr unsigned pixels_per_metre = 2835;

void put_colour(Bytes& bytes, Rgb colour) {
    bytes.push_back(colour.b);
    bytes.push_back(colour.g);
    bytes.push_back(colour.r);
}

// In the order of their first pixels, the colour key first.
std::vector<Rgb> colours_of(const Sheet_Picture& sheet) {
    std::vector<Rgb> colours{transparent_colour};
    for (int y = 0; y < sheet_height; ++y) {
        for (int x = 0; x < sheet_width; ++x) {
            if (std::find(colours.begin(), colours.end(), sheet.at(x, y)) == colours.end()) {
                colours.push_back(sheet.at(x, y));
            }
        }
    }
    return colours;
}

void put_headers(Bytes& bytes, std::size_t palette_size, int bits_a_pixel) {
    const std::size_t pixels_start = file_header_size + picture_header_size + 4 * palette_size;
    const std::size_t pixels_size = static_cast<std::size_t>(sheet_width * sheet_height * bits_a_pixel / 8);
    bytes.push_back('B');
    bytes.push_back('M');
    put_number(bytes, pixels_start + pixels_size, 4);
    put_number(bytes, 0, 4);
    put_number(bytes, pixels_start, 4);

    put_number(bytes, picture_header_size, 4);
    put_number(bytes, sheet_width, 4);
    put_number(bytes, sheet_height, 4);
    put_number(bytes, 1, 2);
    put_number(bytes, static_cast<std::size_t>(bits_a_pixel), 2);
    put_number(bytes, 0, 4);
    put_number(bytes, pixels_size, 4);
    put_number(bytes, pixels_per_metre, 4);
    put_number(bytes, pixels_per_metre, 4);
    put_number(bytes, palette_size, 4);
    put_number(bytes, 0, 4);
}

// Rows stand from the bottom to the top; 512 pixels need no padding in either depth.
Bytes encode_bmp(const Sheet_Picture& sheet) {
    const std::vector<Rgb> colours = colours_of(sheet);
    const bool has_palette = colours.size() <= largest_palette;
    Bytes bytes;
    put_headers(bytes, has_palette ? colours.size() : 0, has_palette ? 8 : 24);
    if (has_palette) {
        for (const Rgb colour : colours) {
            put_colour(bytes, colour);
            bytes.push_back(0);
        }
    }
    for (int y = sheet_height - 1; y >= 0; --y) {
        for (int x = 0; x < sheet_width; ++x) {
            if (!has_palette) {
                put_colour(bytes, sheet.at(x, y));
                continue;
            }
            const auto colour = std::find(colours.begin(), colours.end(), sheet.at(x, y));
            bytes.push_back(static_cast<std::uint8_t>(colour - colours.begin()));
        }
    }
    return bytes;
}

} // namespace

bool write_bmp(const Sheet_Picture& sheet, const std::filesystem::path& path) {
    return write_bytes(encode_bmp(sheet), path);
}

} // namespace quadrelle
