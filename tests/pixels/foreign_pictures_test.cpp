// Pictures as other programs write them: every kind of PNG, written by libpng, and bitmaps byte by byte.

#include "pixels/picture_formats.h"
#include "tests/support/files.h"
#include "tests/support/tiles.h"
#include "tileset/picture_tiles.h"
#include "tileset/sheet_export.h"
#include "tileset/tileset_file.h"

#include <png.h>
#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <cstdlib>
#include <string_view>

namespace quadrelle::testing {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr Size png_size{13, 10};

struct Png_Kind {
    const char* name;
    int color_type;
    int depth;
    bool has_transparency = false; // a table of alphas, or one colour that is transparent
};

int channels_of(const Png_Kind& kind) {
    constexpr std::array<int, 7> channels{1, 0, 3, 1, 2, 0, 4};
    return channels.at(static_cast<std::size_t>(kind.color_type));
}

// Every kind of alpha, and colours under alpha 0.
int sample(const Png_Kind& kind, int x, int y, int channel) {
    return (x * 5 + y * 3 + channel * 11 + x * y * y) % (1 << std::min(kind.depth, 8));
}

Bytes row_of(const Png_Kind& kind, int y) {
    Bytes row;
    int bits = 0;
    for (int x = 0; x < png_size.width; ++x) {
        for (int channel = 0; channel < channels_of(kind); ++channel, bits += kind.depth) {
            const int value = sample(kind, x, y, channel);
            if (bits % 8 == 0) {
                row.push_back(0);
            }
            row.back() =
                static_cast<std::uint8_t>(row.back() | value << std::max(8 - kind.depth - bits % 8, 0));
            if (kind.depth == 16) {
                row.push_back(static_cast<std::uint8_t>(value)); // 257 times the value
            }
        }
    }
    return row;
}

Bytes write_png(const Png_Kind& kind, int interlacing, int texts = 0) {
    Bytes bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &bytes,
        [](png_structp writer, png_bytep data, std::size_t length) {
            auto& target = *static_cast<Bytes*>(png_get_io_ptr(writer));
            target.insert(target.end(), data, data + length);
        },
        nullptr);
    png_set_IHDR(png, info, png_size.width, png_size.height, kind.depth, kind.color_type, interlacing, 0, 0);
    png_set_gAMA(png, info, 0.2);
    std::string key_word = "Comment";
    std::string long_text(texts == 0 ? 0 : std::size_t{7} << 20U, ' ');
    png_text text{};
    text.compression = PNG_TEXT_COMPRESSION_zTXt;
    text.key = key_word.data();
    text.text = long_text.data();
    for (int i = 0; i < texts; ++i) {
        png_set_text(png, info, &text, 1);
    }
    std::array<png_color, 256> palette{};
    std::array<png_byte, 256> alphas{};
    for (std::size_t i = 0; i < palette.size(); ++i) {
        palette[i] = {static_cast<png_byte>(255 - i), static_cast<png_byte>(i), static_cast<png_byte>(i * 7)};
        alphas[i] = static_cast<png_byte>(i * 9);
    }
    const auto key = static_cast<png_uint_16>(sample(kind, 4, 2, 0) * (kind.depth == 16 ? 257 : 1));
    const png_color_16 color{
        0, key, static_cast<png_uint_16>(sample(kind, 4, 2, 1) * (kind.depth == 16 ? 257 : 1)),
        static_cast<png_uint_16>(sample(kind, 4, 2, 2) * (kind.depth == 16 ? 257 : 1)), key};
    const bool has_palette = kind.color_type == PNG_COLOR_TYPE_PALETTE;
    if (has_palette) {
        png_set_PLTE(png, info, palette.data(), 1 << kind.depth);
    }
    if (kind.has_transparency) {
        png_set_tRNS(png, info, has_palette ? alphas.data() : nullptr, has_palette ? 1 << kind.depth : 0,
                     &color);
    }
    std::vector<Bytes> rows;
    std::vector<png_bytep> starts;
    for (int y = 0; y < png_size.height; ++y) {
        rows.push_back(row_of(kind, y));
        starts.push_back(rows.back().data());
    }
    png_set_rows(png, info, starts.data());
    png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    png_destroy_write_struct(&png, &info);
    return bytes;
}

Color expected_color(const Png_Kind& kind, int x, int y) {
    const auto at = [&](int channel) { return sample(kind, x, y, channel); };
    const int value = at(0);
    const int grey = value * 255 / ((1 << std::min(kind.depth, 8)) - 1);
    const auto is_key = [&](int channel) { return at(channel) == sample(kind, 4, 2, channel); };
    const bool keyed = kind.has_transparency && is_key(0);
    switch (kind.color_type) {
    case PNG_COLOR_TYPE_GRAY: return {grey, grey, grey, keyed ? 0 : 255};
    case PNG_COLOR_TYPE_PALETTE:
        return {255 - value, value, value * 7 % 256, kind.has_transparency ? value * 9 % 256 : 255};
    case PNG_COLOR_TYPE_GRAY_ALPHA: return {grey, grey, grey, at(1)};
    case PNG_COLOR_TYPE_RGB: return {at(0), at(1), at(2), keyed && is_key(1) && is_key(2) ? 0 : 255};
    default: return {at(0), at(1), at(2), at(3)};
    }
}

// What the file's picture is after it was cut into tiles, saved, loaded and exported with the same grid,
// where it is the same pixels; what no tile covers is transparent.
Tile through_a_set(const Temporary_Folder& folder, const Bytes& file, const Picture_Grid& grid) {
    store(folder.path("picture"), file);
    const Tile picture = read_picture(folder.path("picture")).picture.value();
    const Cut_Plan plan = plan_cut(picture, {grid, Skip::no, Skip::no});
    EXPECT_GT(save_tileset(cut_tiles(picture, grid, plan), folder.path("set")), 0);
    const Loaded_Tileset loaded = load_tileset(folder.path("set"));
    store(folder.path("sheet"),
          encode_png(sheet_picture(loaded.tileset->tiles(), {plan.cells.width, grid.margin, grid.spacing})));
    return read_picture(folder.path("sheet")).picture.value();
}

Tile seen_through(const Tile& picture, const Picture_Grid& grid) {
    const Size cells = grid.cells(picture.size());
    const Point end = grid.corner(cells.width, cells.height);
    Tile expected(end.x - grid.spacing + grid.margin, end.y - grid.spacing + grid.margin);
    expected.fill({0, 0, 0, 0});
    for (int i = 0; i < cells.width * cells.height; ++i) {
        const Point corner = grid.corner(i % cells.width, i / cells.width);
        for (int p = 0; p < grid.tile.width * grid.tile.height; ++p) {
            const int x = corner.x + p % grid.tile.width;
            const int y = corner.y + p / grid.tile.width;
            expected.set_pixel(x, y, picture.get_pixel(x, y));
        }
    }
    return expected;
}

constexpr std::array grids{Picture_Grid{{1, 1}, 0, 0}, Picture_Grid{{13, 5}, 0, 0},
                           Picture_Grid{{5, 4}, 1, 1}, Picture_Grid{{2, 1}, 0, 1}};

void expect_whole_through_sets(const Bytes& file, const Tile& picture) {
    const Temporary_Folder folder;
    for (const Picture_Grid& grid : grids) {
        const Size cells = grid.cells(picture.size());
        if (cells.width * cells.height > 0) {
            EXPECT_EQ(picture_of(through_a_set(folder, file, grid)), picture_of(seen_through(picture, grid)))
                << grid.tile.width;
        }
    }
}

TEST(Foreign_Pictures, every_kind_of_png_gives_its_colours) {
    // clang-format off
    for (const Png_Kind& kind : {Png_Kind{"grey 1", 0, 1}, {"grey 2", 0, 2}, {"grey 4", 0, 4}, {"grey 8", 0, 8}, {"grey 16", 0, 16},
                                 {"grey 4 with a key", 0, 4, true}, {"grey 16 with a key", 0, 16, true},
                                 {"rgb 8", 2, 8}, {"rgb 16", 2, 16}, {"rgb 8 with a key", 2, 8, true}, {"rgb 16 with a key", 2, 16, true},
                                 {"palette 1", 3, 1}, {"palette 2", 3, 2}, {"palette 4", 3, 4}, {"palette 8", 3, 8},
                                 {"palette 2 with alpha", 3, 2, true}, {"palette 8 with alpha", 3, 8, true},
                                 {"grey 8 with alpha", 4, 8}, {"grey 16 with alpha", 4, 16}, {"rgba 8", 6, 8}, {"rgba 16", 6, 16}}) {
        // clang-format on
        for (const int interlacing : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
            SCOPED_TRACE(std::string(kind.name) + (interlacing == 0 ? "" : ", interlaced"));
            const Bytes file = write_png(kind, interlacing);
            const std::optional<Tile> picture = decode_png(file).picture;
            ASSERT_TRUE(picture);
            ASSERT_EQ(picture->size(), png_size);
            Tile expected(png_size.width, png_size.height);
            for (int i = 0; i < expected.pixel_count(); ++i) {
                expected.set_pixel_at(i, expected_color(kind, i % png_size.width, i / png_size.width));
            }
            EXPECT_EQ(picture_of(*picture), picture_of(expected));
            if (interlacing == PNG_INTERLACE_NONE) {
                expect_whole_through_sets(file, expected);
            }
        }
    }
}

#ifndef _WIN32

TEST(Foreign_Pictures, texts_in_a_png_take_no_memory) {
    const Bytes file = write_png({"rgb 8", 2, 8}, PNG_INTERLACE_NONE, 4);
    const auto most_memory = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss; // in kilobytes
    };
    const auto decode = [&] {
        const long before = most_memory();
        const bool is_read = decode_png(file).picture.has_value();
        std::_Exit(is_read && most_memory() - before < 10'000 ? 0 : 1);
    };
    EXPECT_EXIT(decode(), ::testing::ExitedWithCode(0), "");
}

#endif

void append(Bytes& bytes, std::uint32_t number, int length) {
    for (int i = 0; i < length; ++i, number >>= 8U) {
        bytes.push_back(static_cast<std::uint8_t>(number));
    }
}

struct Bitmap_Case {
    const char* name;
    std::uint32_t depth;
    std::uint32_t packing;
    std::uint32_t header; // 12 for the old one
    bool from_top;
    std::vector<std::uint32_t> masks_or_palette;
    Bytes data;
    std::vector<std::string> rows = {"rgb", "wkr"};
};

Bytes file_of(const Bitmap_Case& bitmap, std::uint32_t width, std::uint32_t height) {
    const bool is_old = bitmap.header == 12;
    const std::uint32_t entry = is_old ? 3 : 4;
    const bool has_masks_in_header = bitmap.depth > 8 && bitmap.header > 40;
    Bytes bytes{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0};
    const auto beside = static_cast<std::uint32_t>(bitmap.masks_or_palette.size()) * entry;
    append(bytes, 14 + (has_masks_in_header ? std::max(bitmap.header, 40 + beside) : bitmap.header + beside),
           4);
    append(bytes, bitmap.header, 4);
    append(bytes, width, is_old ? 2 : 4);
    append(bytes, bitmap.from_top ? 0U - height : height, is_old ? 2 : 4);
    append(bytes, 1, 2);
    append(bytes, bitmap.depth, 2);
    if (!is_old) {
        append(bytes, bitmap.packing, 4);
        bytes.resize(46);
        append(bytes, bitmap.depth > 8 ? 0 : static_cast<std::uint32_t>(bitmap.masks_or_palette.size()), 4);
        bytes.resize(has_masks_in_header ? 54 : 14 + bitmap.header);
    }
    for (const std::uint32_t number : bitmap.masks_or_palette) {
        append(bytes, number, static_cast<int>(entry));
    }
    bytes.resize(std::max<std::size_t>(bytes.size(), 14 + bitmap.header));
    bytes.insert(bytes.end(), bitmap.data.begin(), bitmap.data.end());
    return bytes;
}

Color color_of(char letter) {
    switch (letter) {
    case 'r': return {255, 0, 0};
    case 'g': return {0, 255, 0};
    case 'b': return {0, 0, 255};
    case 'w': return {255, 255, 255};
    case 't': return {255, 0, 0, 0};
    default: return {0, 0, 0};
    }
}

const std::vector<std::uint32_t> palette{0x000000, 0xff0000, 0x00ff00, 0x0000ff, 0xffffff};

// clang-format off
const std::vector<Bitmap_Case> bitmap_cases{
    {"1 bit", 1, 0, 40, false, {0x000000, 0xffffff}, {0x40, 0, 0, 0, 0xa0, 0, 0, 0}, {"wkw", "kwk"}},
    {"1 bit, a header that ends early", 1, 0, 16, false, {0x000000, 0xffffff}, {0x40, 0, 0, 0, 0xa0, 0, 0, 0}, {"wkw", "kwk"}},
    {"2 bits", 2, 0, 40, true, {0x000000, 0xff0000, 0x00ff00, 0x0000ff}, {0x6c, 0, 0, 0, 0x04, 0, 0, 0}, {"rgb", "kkr"}},
    {"4 bits", 4, 0, 40, false, palette, {0x40, 0x10, 0, 0, 0x12, 0x30, 0, 0}},
    {"4 bits, from the top", 4, 0, 108, true, palette, {0x12, 0x30, 0, 0, 0x40, 0x10, 0, 0}},
    {"8 bits", 8, 0, 124, false, palette, {4, 0, 1, 0, 1, 2, 3, 0}},
    {"8 bits, runs", 8, 1, 40, false, palette, {0, 3, 4, 0, 1, 0, 0, 0, 1, 1, 2, 2, 0, 2, 0, 0, 1, 3, 0, 1}, {"rgg", "wkr"}},
    {"8 bits, runs with a jump", 8, 1, 40, false, palette, {1, 4, 0, 2, 1, 1, 1, 3, 9, 2, 0, 1}, {"kkb", "wkk"}},
    {"4 bits, runs", 4, 2, 40, false, palette, {0, 3, 0x40, 0x10, 0, 0, 2, 0x12, 1, 0x30, 0, 1}},
    {"16 bits", 16, 0, 40, false, {}, {0xff, 0x7f, 0, 0, 0, 0x7c, 0, 0, 0, 0x7c, 0xe0, 0x03, 0x1f, 0, 0, 0}},
    {"16 bits, six of green", 16, 3, 40, false, {0xf800, 0x07e0, 0x001f}, {0xff, 0xff, 0, 0, 0, 0xf8, 0, 0, 0, 0xf8, 0xe0, 0x07, 0x1f, 0, 0, 0}},
    {"24 bits, old", 24, 0, 12, false, {}, {255, 255, 255, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0}},
    {"32 bits without alpha", 32, 0, 40, true, {}, {0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0, 0, 0, 0, 0, 0, 0, 255, 0}},
    {"32 bits with alpha", 32, 0, 40, true, {}, {0, 0, 255, 255, 0, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 255, 0, 0, 0, 255, 0, 0, 255, 0}, {"rtb", "wkt"}},
    {"32 bits, the last mask behind the header", 32, 6, 52, true, {0xff0000, 0xff00, 0xff, 0xff000000}, {0, 0, 255, 255, 0, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 255, 0, 0, 0, 255, 0, 0, 255, 0}, {"rtb", "wkt"}},
    {"32 bits, ten of red, masks in the header", 32, 3, 56, true, {0xffc00000, 0x3fc, 0x3fc00, 0x3}, {3, 0, 0xc0, 0xff, 0xff, 3, 0, 0, 3, 0xfc, 3, 0, 0xff, 0xff, 0xc3, 0xff, 3, 0, 0, 0, 0, 0, 0xc0, 0xff}, {"rgb", "wkt"}},
};
// clang-format on

TEST(Foreign_Pictures, every_kind_of_bitmap_gives_its_colours_or_is_broken) {
    for (const Bitmap_Case& bitmap : bitmap_cases) {
        SCOPED_TRACE(bitmap.name);
        const Bytes file = file_of(bitmap, 3, 2);
        const std::optional<Tile> picture = decode_bitmap(file).picture;
        ASSERT_TRUE(picture);
        ASSERT_EQ(picture->size(), (Size{3, 2}));
        for (int i = 0; i < 6; ++i) {
            const char letter = bitmap.rows[static_cast<std::size_t>(i / 3)][static_cast<std::size_t>(i % 3)];
            EXPECT_EQ(picture->get_pixel_at(i), color_of(letter)) << i;
        }
        expect_whole_through_sets(file, *picture);
        // Runs need no end when all rows are there.
        const bool has_runs = bitmap.packing == 1 || bitmap.packing == 2;
        EXPECT_EQ(decode_bitmap(Picture_Bytes(file).first(file.size() - 2)).picture.has_value(), has_runs);
        for (std::size_t length = 0; length < file.size(); ++length) {
            const Decoded_Picture cut = decode_bitmap(Picture_Bytes(file).first(length));
            EXPECT_TRUE(cut.picture ? has_runs && cut.picture->same_pixels(*picture)
                                    : cut.fault == Picture_Fault::broken)
                << length;
        }
        EXPECT_EQ(decode_bitmap(file_of(bitmap, 8192, 8192), 8192).fault, Picture_Fault::broken);
        EXPECT_EQ(decode_bitmap(file_of(bitmap, 8193, 1), 8192).fault, Picture_Fault::too_large);
    }
}

TEST(Foreign_Pictures, files_are_known_by_what_they_hold) {
    const Temporary_Folder folder;
    const std::string path = folder.path("ä.txt");
    const Tile tile = random_tile({9, 6}, 4);
    for (const Picture_Format& format : picture_formats) {
        store(path, format.encode(tile));
        EXPECT_TRUE(read_picture(path).picture.value().same_pixels(tile)) << format.media_type;
    }
    for (const auto& [bytes, fault] :
         {std::pair{Bytes{'Q', 'D', 'L', '\n'}, Picture_Fault::unknown},
          std::pair{Bytes{}, Picture_Fault::unknown}, std::pair{Bytes{0x89, 'P', 7}, Picture_Fault::unknown},
          std::pair{Bytes{'B', 'M'}, Picture_Fault::broken},
          std::pair{encode_png(Tile(8193, 1)), Picture_Fault::too_large}}) {
        store(path, bytes);
        EXPECT_EQ(read_picture(path).fault, fault);
    }
    EXPECT_EQ(read_picture(folder.path("none.png")).fault, Picture_Fault::unreadable);
}

} // namespace
} // namespace quadrelle::testing
