#include "screen/sprite_sheet.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {
namespace {

constexpr int glyph_height = 2;

constexpr std::array<Rgba_Quad, 6> kinds{{{0, 255, 0, 255},
                                          {255, 255, 0, 255},
                                          {0, 0, 255, 255},
                                          {0, 254, 0, 255},
                                          {255, 255, 1, 255},
                                          {1, 0, 255, 255}}};

// 'G' green, 'Y' yellow and 'B' blue markers, 'g', 'y' and 'b' almost, anything else none. One string a row.
Surface marked(const std::vector<std::string>& rows) {
    Surface sheet(
        Size{static_cast<int>(rows.front().size()), static_cast<int>(rows.size()) * (glyph_height + 1)});
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t x = 0; x < rows[row].size(); ++x) {
            const std::size_t kind = std::string_view("GYBgyb").find(rows[row][x]);
            const Rgba_Quad pixel = kind < kinds.size() ? kinds.at(kind) : Rgba_Quad{40, 40, 40, 255};
            sheet.set_pixel(static_cast<int>(x), static_cast<int>(row) * (glyph_height + 1), pixel);
        }
    }
    return sheet;
}

struct Span {
    int x;
    int width;
    int row = 0;
};

struct Scan_Case {
    const char* name;
    std::vector<std::string> rows;
    std::vector<Span> glyphs;
};

TEST(Glyph_Scan, finds_the_spans_between_markers) {
    const std::vector<Scan_Case> cases{
        {"alternating", {"...G...Y..B."}, {{0, 3}, {3, 4}, {7, 3}}},
        {"a space without width", {"G..Y.B"}, {{0, 0}, {0, 3}, {3, 2}}},
        {"blue ends the row", {"..B.G.Y.B"}, {{0, 2}}},
        {"blue at once", {"B.G.Y"}, {{0, 0}}},
        {"blue where a start is expected", {"..G..Y.B"}, {{0, 2}, {2, 3}, {5, 2}}},
        {"no marker", {"........"}, {}},
        {"no end", {"..G..Y.."}, {{0, 2}, {2, 3}}},
        {"each kind in its turn", {".Y.G.G.Y"}, {{0, 3}, {3, 4}}},
        {"almost a marker", {".g.G.y.Y.b.B"}, {{0, 3}, {3, 4}, {7, 4}}},
        {"markers side by side", {".GYGB"}, {{0, 1}, {1, 1}, {2, 1}, {3, 1}}},
        {"rows start anew", {".G.", "..G", "B.."}, {{0, 1}, {0, 2, 1}, {0, 0, 2}}},
    };
    for (const Scan_Case& test : cases) {
        const Font_Row font{Font::regular, test.name, 0, 9, glyph_height, static_cast<int>(test.rows.size())};
        std::vector<Rectangle> expected;
        for (const Span& span : test.glyphs) {
            expected.push_back({span.x, span.row * (glyph_height + 1) + 1, span.width, glyph_height});
        }
        EXPECT_EQ(scan_glyphs(marked(test.rows), font), expected) << test.name;
    }
}

TEST(Glyph_Scan, stays_inside_of_a_sheet_that_is_too_small) {
    const Font_Row font{Font::regular, "", 1, 9, glyph_height, 3};
    EXPECT_TRUE(scan_glyphs(marked({"......"}), font).empty());
}

} // namespace
} // namespace quadrelle
