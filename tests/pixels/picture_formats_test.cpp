#include "pixels/picture_formats.h"
#include "pixels/picture_rows.h"

#include "tests/support/files.h"
#include "tests/support/tiles.h"

#include <string_view>

namespace quadrelle::testing {
namespace {

// A bitmap of one pixel that says so of another size, in four bytes for the width and four for the height.
Decoded_Picture decoded_as(const std::array<std::uint8_t, 8>& size) {
    Bytes bytes = encode_bitmap(Tile(1, 1));
    std::ranges::copy(size, bytes.begin() + 18);
    return decode_bitmap(bytes);
}

TEST(Picture_Formats, give_back_what_they_took) {
    for (const Picture_Format& format : picture_formats) {
        SCOPED_TRACE(format.media_type);
        for (const Size size : {Size{1, 1}, Size{3, 5}, Size{7, 1}, Size{255, 200}}) {
            const Tile tile = random_tile(size, 3);
            const Decoded_Picture decoded = format.decode(format.encode(tile));
            ASSERT_TRUE(decoded.picture);
            EXPECT_EQ(decoded.picture->size(), size);
            EXPECT_TRUE(std::ranges::equal(decoded.picture->pixels(), tile.pixels()));
        }
    }
}

TEST(Picture_Rows, give_the_same_pictures) {
    const Tile picture = random_tile({700, 390}, 3);
    for (const auto& write : {write_png_rows, write_bitmap_rows}) {
        const auto write_to = [&](const std::string& path) {
            return write(path, picture.size(), [&](int y, std::span<Color> row) {
                for (int x = 0; x < picture.width(); ++x) {
                    row[static_cast<std::size_t>(x)] = picture.get_pixel(x, y);
                }
            });
        };
        const Temporary_Folder folder;
        EXPECT_TRUE(write_to(folder.path("picture")));
        EXPECT_TRUE(read_picture(folder.path("picture")).picture->same_pixels(picture));
    }
}

TEST(Picture_Formats, refuse_what_is_cut_off_or_no_picture) {
    for (const Picture_Format& format : picture_formats) {
        SCOPED_TRACE(format.media_type);
        const Bytes whole = format.encode(random_tile({9, 6}, 4));
        // The end of a PNG holds no pixels.
        const std::size_t needed =
            whole.size() - (std::string_view(format.media_type) == "image/png" ? 20 : 0);
        for (std::size_t length = 0; length < needed; ++length) {
            const Decoded_Picture decoded = format.decode(Picture_Bytes(whole).first(length));
            ASSERT_FALSE(decoded.picture) << length;
            ASSERT_EQ(decoded.fault, Picture_Fault::broken) << length;
        }
        EXPECT_EQ(format.decode(Bytes(100, 0)).fault, Picture_Fault::broken);
    }
}

// Some are pictures still.
TEST(Picture_Formats, survive_every_changed_byte) {
    for (const Picture_Format& format : picture_formats) {
        const Bytes whole = format.encode(random_tile({9, 6}, 5));
        for (std::size_t i = 0; i < whole.size(); ++i) {
            for (const int value : {0x00, 0x7f, 0xff}) {
                Bytes changed = whole;
                changed[i] = static_cast<std::uint8_t>(value);
                const Decoded_Picture decoded = format.decode(changed);
                EXPECT_EQ(decoded.picture.has_value(), decoded.fault == Picture_Fault::none)
                    << format.media_type << " " << i;
            }
        }
    }
}

TEST(Picture_Formats, take_no_memory_for_announced_sizes) {
    // Width, height: more than there is, and more than could be counted.
    for (const std::array<std::uint8_t, 8>& size : {std::array<std::uint8_t, 8>{0x01, 0x10, 0, 0, 1, 0, 0, 0},
                                                    {1, 0, 0, 0, 0xff, 0xef, 0xff, 0xff},
                                                    {0xff, 0xff, 0xff, 0x7f, 0xff, 0xff, 0xff, 0x7f},
                                                    {1, 0, 0, 0, 0, 0, 0, 0x80}}) {
        EXPECT_EQ(decoded_as(size).fault, Picture_Fault::too_large);
    }
    EXPECT_EQ(decoded_as({0, 0, 0, 0, 1, 0, 0, 0}).fault, Picture_Fault::broken);
    EXPECT_EQ(decoded_as({1, 0, 0, 0, 0, 0, 0, 0}).fault, Picture_Fault::broken);
    for (const Picture_Format& format : picture_formats) {
        EXPECT_EQ(format.decode(format.encode(Tile(largest_picture_edge + 1, 1))).fault,
                  Picture_Fault::too_large);
        EXPECT_EQ(format.decode(format.encode(Tile(1, largest_picture_edge + 1))).fault,
                  Picture_Fault::too_large);
        EXPECT_TRUE(format.decode(format.encode(Tile(largest_picture_edge, 1))).picture);
    }
}

} // namespace
} // namespace quadrelle::testing
