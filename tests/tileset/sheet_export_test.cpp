#include "tileset/sheet_export.h"

#include "tests/support/tiles.h"
#include "tileset/picture_tiles.h"

#include <string>

namespace quadrelle::testing {
namespace {

std::vector<Tile> some_tiles(Size size, int count) {
    std::vector<Tile> tiles;
    for (int i = 0; i < count; ++i) {
        tiles.push_back(random_tile(size, static_cast<unsigned>(i + 1)));
    }
    return tiles;
}

std::vector<const Tile*> pointers_to(const std::vector<Tile>& tiles) {
    std::vector<const Tile*> pointers;
    for (const Tile& tile : tiles) {
        pointers.push_back(&tile);
    }
    return pointers;
}

// The number that the attribute has in the text.
int number_of(const std::string& text, const std::string& attribute) {
    const std::string start = " " + attribute + "=\"";
    return std::stoi(text.substr(text.find(start) + start.size()));
}

constexpr std::array layouts{Sheet_Layout{}, Sheet_Layout{2, 0, 0, 0, 1}, Sheet_Layout{3, 4, 2, 0, 1},
                             Sheet_Layout{4, 0, 1, 2, 1}, Sheet_Layout{3, 1, 3, 1, 3}};

TEST(Sheet_Export, tiles_lie_where_the_description_says) {
    const std::vector<Tile> tiles = some_tiles({9, 6}, 7);
    for (const Sheet_Layout& layout : layouts) {
        SCOPED_TRACE(layout.columns * 100 + layout.scale);
        const Tile sheet = sheet_picture(pointers_to(tiles), layout);
        EXPECT_EQ(sheet.size(), sheet_size({9, 6}, 7, layout));
        const std::string text = sheet_description("a & b.png", {9, 6}, 7, layout);
        EXPECT_NE(text.find("name=\"a &amp; b\""), std::string::npos);
        EXPECT_NE(text.find("source=\"a &amp; b.png\""), std::string::npos);
        EXPECT_EQ(number_of(text, "width"), sheet.width());
        EXPECT_EQ(number_of(text, "height"), sheet.height());
        EXPECT_EQ(number_of(text, "tilecount"), 7);
        const Picture_Grid grid{{number_of(text, "tilewidth"), number_of(text, "tileheight")},
                                number_of(text, "margin"),
                                number_of(text, "spacing")};
        const int columns = number_of(text, "columns");
        for (int i = 0; i < 7; ++i) {
            const Point corner = grid.corner(i % columns, i / columns);
            for (int y = 0; y < grid.tile.height; ++y) {
                for (int x = 0; x < grid.tile.width; ++x) {
                    ASSERT_EQ(
                        sheet.get_pixel(corner.x + x, corner.y + y),
                        tiles[static_cast<std::size_t>(i)].get_pixel(x / layout.scale, y / layout.scale))
                        << i << ": " << x << ", " << y;
                }
            }
        }
        EXPECT_EQ(sheet.get_pixel(sheet.width() - 1, sheet.height() - 1).a,
                  7 % columns == 0 && layout.margin == 0 ? tiles.back().get_pixel(8, 5).a : 0);
    }
}

TEST(Sheet_Export, outermost_pixels_are_repeated_around_a_tile) {
    const std::vector<Tile> tiles = some_tiles({4, 3}, 2);
    const Tile sheet = sheet_picture(pointers_to(tiles), {2, 1, 1, 2, 2});
    ASSERT_EQ(sheet.size(), (Size{2 * (2 + 2 * 8 + 1), 2 * (2 + 7)}));
    for (int y = 0; y < 14; ++y) {
        for (int x = 0; x < 16; ++x) {
            const Color expected = tiles[1].get_pixel_clamped(x / 2 - 2, y / 2 - 2);
            EXPECT_EQ(sheet.get_pixel(2 * (1 + 8 + 1) + x, 2 + y), expected) << x << ", " << y;
        }
    }
    EXPECT_EQ(sheet.alpha_at(2 * 9, 2), 0); // the spacing
}

TEST(Sheet_Export, pictures_that_would_be_too_large_are_known) {
    EXPECT_TRUE(is_possible_sheet({8192, 8192}));
    EXPECT_TRUE(is_possible_sheet({16384, 4096}));
    EXPECT_FALSE(is_possible_sheet({16385, 1}));
    EXPECT_FALSE(is_possible_sheet({8193, 8192}));
    EXPECT_FALSE(is_possible_sheet({0, 5}));
}

} // namespace
} // namespace quadrelle::testing
