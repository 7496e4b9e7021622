#include "screen/sprite_sheet.h"

#include "base/fatal.h"
#include "color/standard_colors.h"
#include "screen/image.h"
#include "screen/raster.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Rgba_Quad start_marker{0, 255, 0, 255};
constexpr Rgba_Quad end_marker{255, 255, 0, 255};
constexpr Rgba_Quad last_marker{0, 0, 255, 255};
constexpr Color header_outline(183, 183, 183);
constexpr Point title_position{5, 1};

struct Glyph_Row {
    int marker_y;
    int glyph_height;
};

// Walks one marker line. A marker closes the span before it and is itself the first column of the next one.
void scan_row(const Surface& sheet, Glyph_Row row, std::vector<Rectangle>& glyphs) {
    int start = 0;
    int width = 0;
    bool expects_start = true;
    for (int x = 0; x < sheet.size().width;) {
        const Rgba_Quad pixel = sheet.get_pixel(x, row.marker_y);
        const bool is_last = pixel == last_marker;
        if (!is_last && pixel != (expects_start ? start_marker : end_marker)) {
            ++width;
            ++x;
            continue;
        }
        glyphs.push_back({start, row.marker_y + 1, width, row.glyph_height});
        if (is_last) {
            return;
        }
        start = x;
        width = 0;
        expects_start = !expects_start;
    }
}

} // namespace

std::vector<Rectangle> scan_glyphs(const Surface& sheet, const Font_Row& font) {
    std::vector<Rectangle> glyphs;
    for (int row = 0; row < font.glyph_rows; ++row) {
        scan_row(sheet, {font.marker_y + row * (font.glyph_height + 1), font.glyph_height}, glyphs);
    }
    return glyphs;
}

Sprite_Sheet::Sprite_Sheet() : surface_("pool.bmp", default_color_key), texture_(surface_) {
    for (const Font_Row& font : font_table) {
        glyphs_.at(static_cast<std::size_t>(font.id)) = scan_glyphs(surface_, font);
    }
    if (!holds_all()) {
        fatal("Could not load SDL surface from %s.", "pool.bmp", {"pool.bmp", Remedy::unpack_again});
    }
}

// A sheet of another version or a damaged one may end too early.
bool Sprite_Sheet::holds_all() const {
    const Rectangle sheet{0, 0, surface_.size().width, surface_.size().height};
    const auto lies_inside = [&sheet](const Rectangle& part) { return sheet.encloses(part); };
    return std::ranges::all_of(sprite_table,
                               [&](const Sprite_Row& row) { return lies_inside(sprite_rect(row.id)); }) &&
           std::ranges::all_of(glyphs_,
                               [&](const auto& glyphs) { return std::ranges::all_of(glyphs, lies_inside); });
}

int Sprite_Sheet::glyph_index(Font font, char character) const {
    const int index = static_cast<unsigned char>(character) - first_character;
    const auto count = static_cast<int>(glyphs_.at(static_cast<std::size_t>(font)).size());
    return index >= 0 && index < count ? index : -1;
}

Rectangle Sprite_Sheet::glyph_rect(Font font, int glyph) const {
    return glyphs_.at(static_cast<std::size_t>(font)).at(static_cast<std::size_t>(glyph));
}

int Sprite_Sheet::text_width(Font font, std::string_view text) const {
    int width = 0;
    for (const char character : text) {
        const int glyph = glyph_index(font, character);
        width += glyph < 0 ? 0 : glyph_rect(font, glyph).width;
    }
    return width;
}

void Sprite_Sheet::draw_text(Font font, std::string_view text, const Rectangle& area,
                             const Clipped_Target& target) const {
    Point position{area.x, area.y};
    for (const char character : text) {
        const int glyph = glyph_index(font, character);
        if (glyph < 0) {
            continue;
        }
        const Rectangle source = glyph_rect(font, glyph);
        const Rectangle place{position.x, position.y, source.width, source.height};
        if (character != ' ' && !intersection(place, target.clip).is_empty()) {
            draw_image(target, *texture_.image(), source, place);
        }
        position.x += source.width;
    }
}

void Sprite_Sheet::draw_text(Font font, std::string_view text, Point position, Surface& target) const {
    for (const char character : text) {
        const int glyph = glyph_index(font, character);
        if (glyph < 0) {
            continue;
        }
        const Rectangle source = glyph_rect(font, glyph);
        surface_.blit_to(target, source, {position.x, position.y, source.width, source.height});
        position.x += source.width;
    }
}

std::unique_ptr<Texture> Sprite_Sheet::make_pane_header(int width, std::string_view title) const {
    return make_header({Sprite::pane_header_start, Sprite::pane_header_end}, width, title);
}

std::unique_ptr<Texture> Sprite_Sheet::make_passive_pane_header(int width, std::string_view title) const {
    return make_header({Sprite::passive_pane_header_start, Sprite::passive_pane_header_end}, width, title);
}

std::unique_ptr<Texture> Sprite_Sheet::make_header(Header_Ends ends, int width,
                                                   std::string_view title) const {
    const Rectangle start = sprite_rect(ends.start);
    const Rectangle end = sprite_rect(ends.end);
    const Rectangle band{start.width, 0, width, start.height};
    Surface header(Size{start.width + width + end.width, start.height});
    surface_.blit_to(header, start, {0, 0, start.width, start.height});
    header.fill_rect(band, header_outline);
    header.fill_rect(band.inset(1), standard_color(Standard_Color::pane_frame));
    surface_.blit_to(header, end, {band.right(), 0, end.width, end.height});
    draw_text(Font::pane_header, title, title_position, header);
    return std::make_unique<Texture>(header);
}

} // namespace quadrelle
