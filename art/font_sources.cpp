#include "font_sources.h"

#include "cells.h"
#include "screen/font_table.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace quadrelle {

namespace {

// Every glyph row begins by expecting green, and an even number of glyphs leaves that so behind it.
constexpr Rgb start_marker{0, 255, 0};
constexpr Rgb end_marker{255, 255, 0};
constexpr Rgb last_marker{0, 0, 255};

struct Offset {
    int x = 0;
    int y = 0;
};

// The strokes once more in another colour, behind them and moved by each of the offsets.
struct Shadow {
    char character = transparent_character;
    std::vector<Offset> offsets;
};

struct Font_Source {
    const Block* head = nullptr;
    const Palette* palette = nullptr;
    int top = 0;
    Shadow shadow;
    std::map<int, Cells> glyphs;
};

using Font_Sources = std::map<std::string, Font_Source>;

// "A" is the character itself, "65" its code. 0 when it is neither.
int character_code(const std::string& name) {
    if (name.size() == 1) {
        return static_cast<unsigned char>(name[0]);
    }
    const bool is_number = std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
    return is_number && name.size() <= 3 ? std::stoi(name) : 0;
}

Shadow read_shadow(const Block& head, const Palette& palette, Problems& problems) {
    Shadow shadow;
    const auto clause = head.clauses.find("shadow");
    if (clause == head.clauses.end()) {
        return shadow;
    }
    std::istringstream text(clause->second);
    text >> shadow.character;
    for (Offset offset; text >> offset.x >> offset.y;) {
        shadow.offsets.push_back(offset);
    }
    if (!text.eof() || shadow.offsets.empty() || !palette.colour(shadow.character)) {
        problems.add(head.place, "\"shadow\" takes a colour and pairs of numbers");
    }
    return shadow;
}

int read_top(const Block& head, Problems& problems) {
    int top = 0;
    std::istringstream text(head.clauses.at("top"));
    if (!(text >> top) || top < 0) {
        problems.add(head.place, "\"top\" takes the first row of the glyphs");
    }
    return top;
}

Font_Source read_font_head(const Block& head, const Palette& palette, Problems& problems) {
    Font_Source font{&head, &palette, 0, read_shadow(head, palette, problems), {}};
    if (head.clauses.contains("top")) {
        font.top = read_top(head, problems);
    }
    return font;
}

void read_glyph(Font_Source& font, const Block& block, Problems& problems) {
    const int code = character_code(block.name);
    if (code < first_character || code > last_character) {
        problems.add(block.place, "no character of a font: " + block.name);
        return;
    }
    if (block.rows.empty()) {
        problems.add(block.place, "a glyph without rows");
    }
    if (!font.glyphs.try_emplace(code, read_cells(block, *font.palette, problems)).second) {
        problems.add(block.place, "the glyph " + block.name + " is drawn twice");
    }
}

void read_font(Font_Sources& fonts, const Source_File& file, Problems& problems) {
    Font_Source* font = nullptr;
    for (const Block& block : file.blocks) {
        if (block.sign == '@') {
            font = &(fonts[block.name] = read_font_head(block, file.palette, problems));
        } else if (font == nullptr) {
            problems.add(block.place, "a glyph before the font's name");
        } else {
            read_glyph(*font, block, problems);
        }
    }
}

// Fonts are derived from fonts with own glyphs only.
void derive_glyphs(Font_Source& font, const Font_Sources& fonts, Problems& problems) {
    const auto from = font.head->clauses.find("from");
    if (from == font.head->clauses.end()) {
        return;
    }
    const auto origin = fonts.find(from->second);
    if (origin == fonts.end() || origin->second.head->clauses.contains("from")) {
        problems.add(font.head->place, "there is no font \"" + from->second + "\" with glyphs of its own");
        return;
    }
    if (!font.head->clauses.contains("top")) {
        font.top = origin->second.top;
    }
    for (const auto& [code, cells] : origin->second.glyphs) {
        Cells& glyph = font.glyphs.try_emplace(code, cells).first->second;
        apply_recolour(glyph, *font.head, *font.palette, problems);
    }
}

// The glyph in its cell of the sheet, with its shadow behind it.
Cells cell_of(const Font_Source& font, const Cells& glyph, int height) {
    Cells shadow = glyph;
    const Rgb colour = font.palette->colour(font.shadow.character).value_or(transparent_colour);
    for (int y = 0; y < glyph.height(); ++y) {
        for (int x = 0; x < glyph.width(); ++x) {
            if (!shadow.at(x, y).is_transparent()) {
                shadow.at(x, y) = {font.shadow.character, colour};
            }
        }
    }

    Cells cell(glyph.width(), height);
    for (const Offset offset : font.shadow.offsets) {
        cell.draw(shadow, offset.x, font.top + offset.y);
    }
    cell.draw(glyph, 0, font.top);
    return cell;
}

class Font_Drawing {
public:
    Font_Drawing(Sheet_Picture& sheet, const Font_Row& row, const Font_Source& font, Problems& problems)
        : sheet_(sheet), row_(row), font_(font), problems_(problems) {}

    void draw() {
        if (!has_every_glyph()) {
            return;
        }
        int code = first_character;
        for (int row = 0; row < row_.glyph_rows && code <= last_character; ++row) {
            const int end = end_of_row(code);
            draw_row(row_.marker_y + row * (row_.glyph_height + 1), code, end);
            code = end;
        }
        if (code <= last_character) {
            problems_.add(font_.head->place, "the glyphs are too wide for the rows of the sheet");
        }
    }

private:
    bool has_every_glyph() {
        bool complete = true;
        for (int code = first_character; code <= last_character; ++code) {
            const auto glyph = font_.glyphs.find(code);
            const std::string name = font_.head->name + ": the glyph " + std::to_string(code);
            if (glyph == font_.glyphs.end()) {
                problems_.add(font_.head->place, name + " is missing");
            } else if (font_.top + glyph->second.height() > row_.glyph_height) {
                problems_.add(font_.head->place, name + " is too high");
            } else {
                continue;
            }
            complete = false;
        }
        return complete;
    }

    int width(int code) const { return font_.glyphs.at(code).width(); }

    // The code behind the last glyph that fits into the row together with the row's last marker.
    int end_of_row(int start) const {
        int code = start;
        for (int used = 0; code <= last_character && used + width(code) < sheet_width; ++code) {
            used += width(code);
        }
        const bool leaves_green_expected = (code - start) % 2 == 0;
        return code > last_character || leaves_green_expected ? code : code - 1;
    }

    void draw_row(int marker_y, int start, int end) {
        int x = 0;
        for (int code = start; code < end; ++code) {
            draw_glyph(x, marker_y + 1, font_.glyphs.at(code));
            x += width(code);
            const Rgb between = (code - start) % 2 == 0 ? start_marker : end_marker;
            draw_pixel(x, marker_y, code + 1 == end ? last_marker : between);
        }
    }

    void draw_glyph(int x, int y, const Cells& glyph) {
        const Cells cell = cell_of(font_, glyph, row_.glyph_height);
        for (int row = 0; row < cell.height(); ++row) {
            for (int column = 0; column < cell.width(); ++column) {
                draw_pixel(x + column, y + row, cell.at(column, row).colour);
            }
        }
    }

    void draw_pixel(int x, int y, Rgb colour) {
        const std::string former = sheet_.draw(x, y, colour, font_.head->name);
        if (!former.empty()) {
            problems_.add(font_.head->place, font_.head->name + " lies on " + former);
        }
    }

    Sheet_Picture& sheet_;
    const Font_Row& row_;
    const Font_Source& font_;
    Problems& problems_;
};

} // namespace

void draw_fonts(Sheet_Picture& sheet, const std::vector<Source_File>& files, Problems& problems) {
    Font_Sources fonts;
    for (const Source_File& file : files) {
        read_font(fonts, file, problems);
    }
    for (auto& [name, font] : fonts) {
        derive_glyphs(font, fonts, problems);
    }

    for (const Font_Row& row : font_table) {
        const auto font = fonts.find(std::string(row.name));
        if (font == fonts.end()) {
            problems.add("no glyphs for the \"" + std::string(row.name) + "\"");
        } else {
            Font_Drawing(sheet, row, font->second, problems).draw();
        }
    }
}

} // namespace quadrelle
