#include "icon_files.h"

#include "byte_file.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <vector>

namespace quadrelle {

namespace {

constexpr std::size_t entry_size = 16;
constexpr std::size_t picture_header_size = 40;
constexpr std::size_t palette_size = 256;

const Cell& cell_at(const Scaled_Icon& scaled, int x, int y) {
    return scaled.icon->at(x / scaled.times, y / scaled.times);
}

int size_of(const Scaled_Icon& scaled) {
    return scaled.icon->width() * scaled.times;
}

// The palette is the characters' own numbers.
void put_palette(Bytes& bytes, const Cells& icon) {
    std::array<Rgb, palette_size> colours{};
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            if (const Cell& cell = icon.at(x, y); !cell.is_transparent()) {
                colours.at(static_cast<unsigned char>(cell.character)) = cell.colour;
            }
        }
    }
    for (const Rgb colour : colours) {
        bytes.insert(bytes.end(), {colour.b, colour.g, colour.r, 0});
    }
}

// Rows stand from the bottom to the top.
void put_pixels(Bytes& bytes, const Scaled_Icon& scaled) {
    for (int y = size_of(scaled); y-- > 0;) {
        for (int x = 0; x < size_of(scaled); ++x) {
            const Cell& cell = cell_at(scaled, x, y);
            bytes.push_back(cell.is_transparent() ? 0 : static_cast<std::uint8_t>(cell.character));
        }
    }
}

// One bit a pixel, set where nothing is drawn; a row takes whole words of 32 bits.
void put_mask(Bytes& bytes, const Scaled_Icon& scaled) {
    const int size = size_of(scaled);
    for (int y = size; y-- > 0;) {
        Bytes row(static_cast<std::size_t>((size + 31) / 32 * 4));
        for (int x = 0; x < size; ++x) {
            if (cell_at(scaled, x, y).is_transparent()) {
                row.at(static_cast<std::size_t>(x / 8)) |= static_cast<std::uint8_t>(128 >> x % 8);
            }
        }
        bytes.insert(bytes.end(), row.begin(), row.end());
    }
}

Bytes picture_of(const Scaled_Icon& scaled) {
    const auto size = static_cast<std::size_t>(size_of(scaled));
    Bytes bytes;
    put_number(bytes, picture_header_size, 4);
    put_number(bytes, size, 4);
    put_number(bytes, 2 * size, 4); // with the mask
    put_number(bytes, 1, 2);
    put_number(bytes, 8, 2);
    for (int i = 0; i < 4; ++i) {
        put_number(bytes, 0, 4);
    }
    put_number(bytes, palette_size, 4);
    put_number(bytes, 0, 4);
    put_palette(bytes, *scaled.icon);
    put_pixels(bytes, scaled);
    put_mask(bytes, scaled);
    return bytes;
}

// A size of 256 is told as 0.
void put_entry(Bytes& bytes, const Scaled_Icon& scaled, std::size_t start, std::size_t length) {
    const auto size = static_cast<std::uint8_t>(size_of(scaled));
    bytes.insert(bytes.end(), {size, size, 0, 0});
    put_number(bytes, 1, 2);
    put_number(bytes, 8, 2);
    put_number(bytes, length, 4);
    put_number(bytes, start, 4);
}

} // namespace

bool write_icon_png(const Cells& icon, int times, const std::filesystem::path& path) {
    const Scaled_Icon scaled{&icon, times};
    Bytes pixels;
    for (int y = 0; y < size_of(scaled); ++y) {
        for (int x = 0; x < size_of(scaled); ++x) {
            const Cell& cell = cell_at(scaled, x, y);
            const Rgb colour = cell.is_transparent() ? Rgb{} : cell.colour;
            const auto alpha = static_cast<std::uint8_t>(cell.is_transparent() ? 0 : 255);
            pixels.insert(pixels.end(), {colour.r, colour.g, colour.b, alpha});
        }
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(size_of(scaled));
    image.height = image.width;
    image.format = PNG_FORMAT_RGBA;
    return png_image_write_to_file(&image, path.c_str(), 0, pixels.data(), 0, nullptr) != 0;
}

bool write_ico(const std::vector<Scaled_Icon>& icons, const std::filesystem::path& path) {
    Bytes bytes;
    put_number(bytes, 0, 2);
    put_number(bytes, 1, 2);
    put_number(bytes, icons.size(), 2);
    Bytes pictures;
    const std::size_t start = bytes.size() + icons.size() * entry_size;
    for (const Scaled_Icon& scaled : icons) {
        const Bytes picture = picture_of(scaled);
        put_entry(bytes, scaled, start + pictures.size(), picture.size());
        pictures.insert(pictures.end(), picture.begin(), picture.end());
    }
    bytes.insert(bytes.end(), pictures.begin(), pictures.end());
    return write_bytes(bytes, path);
}

} // namespace quadrelle
