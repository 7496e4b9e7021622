#pragma once

// Where the glyph rows of the four fonts lie on the sheet "pool.bmp". The glyphs themselves are found by
// their marker pixels.

#include "base/table.h"
#include "screen/sprite_table.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace quadrelle {

enum class Font : int { regular, pane, pane_header, header, count };

// `marker_y` is the marker line of the first glyph row; each glyph row is its marker line and
// `glyph_height` lines of pixels below it. `spacing` is kept with the font but moves nothing.
struct Font_Row {
    Font id;
    std::string_view name;
    int marker_y;
    int spacing;
    int glyph_height;
    int glyph_rows;
};

constexpr std::size_t font_count = 4;

// The character of glyph 0; glyphs follow in the order of the character codes.
constexpr int first_character = 32;

// clang-format off
constexpr std::array<Font_Row, font_count> font_table{{
    {Font::regular,     "regular font",     310, 16, 23, 3},
    {Font::pane,        "pane font",        226,  8, 20, 2},
    {Font::pane_header, "pane header font", 268,  8, 20, 2},
    {Font::header,      "header font",      382, 16, 23, 3},
}};
// clang-format on

constexpr bool fonts_lie_inside_the_sheet() {
    for (const Font_Row& row : font_table) {
        if (row.marker_y < 0 || row.marker_y + row.glyph_rows * (row.glyph_height + 1) > sheet_height) {
            return false;
        }
    }
    return true;
}

static_assert(font_table.size() == static_cast<std::size_t>(Font::count));
static_assert(rows_follow_their_ids(font_table));
static_assert(fonts_lie_inside_the_sheet());

} // namespace quadrelle
