#pragma once

// The picture of the whole interface: sprites cut out by the sprite table, glyphs found by their markers.

#include "base/geometry.h"
#include "screen/font_table.h"
#include "screen/sprite_table.h"
#include "screen/surface.h"
#include "screen/texture.h"

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace quadrelle {

struct Clipped_Target;

// The glyph rectangles of one font in the order of the character codes from 32 on, read from the coloured
// marker pixels above each glyph row.
[[nodiscard]] std::vector<Rectangle> scan_glyphs(const Surface& sheet, const Font_Row& font);

[[nodiscard]] constexpr Rectangle sprite_rect(Sprite sprite) {
    const Sprite_Row& row = sprite_table.at(static_cast<std::size_t>(sprite));
    return {row.x, row.y, row.width, row.height};
}

[[nodiscard]] constexpr int line_height(Font font) {
    return font_table.at(static_cast<std::size_t>(font)).glyph_height;
}

class Sprite_Sheet {
public:
    // Loads "pool.bmp" from the current directory; a missing file, or a picture too small for it, is fatal.
    Sprite_Sheet();

    // Returns -1 for a character that the font has no glyph for.
    [[nodiscard]] int glyph_index(Font font, char character) const;
    [[nodiscard]] Rectangle glyph_rect(Font font, int glyph) const;
    // Returns the width of one line; characters without a glyph take no room.
    [[nodiscard]] int text_width(Font font, std::string_view text) const;

    // One line of text, its top-left corner at that of the area.
    void draw_text(Font font, std::string_view text, const Rectangle& area,
                   const Clipped_Target& target) const;
    void draw_text(Font font, std::string_view text, Point position, Surface& target) const;
    // Title bars 21 pixels high: both end sprites and between them a band of `width` that holds the title.
    [[nodiscard]] std::unique_ptr<Texture> make_pane_header(int width, std::string_view title) const;
    [[nodiscard]] std::unique_ptr<Texture> make_passive_pane_header(int width, std::string_view title) const;

    [[nodiscard]] const Surface& surface() const { return surface_; }
    [[nodiscard]] const std::shared_ptr<const Image>& image() const { return texture_.image(); }

private:
    [[nodiscard]] bool holds_all() const;
    struct Header_Ends {
        Sprite start;
        Sprite end;
    };
    [[nodiscard]] std::unique_ptr<Texture> make_header(Header_Ends ends, int width,
                                                       std::string_view title) const;

    Surface surface_;
    Texture texture_;
    std::array<std::vector<Rectangle>, font_count> glyphs_;
};

} // namespace quadrelle
