#include "sprite_sources.h"

#include "cells.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace quadrelle {

namespace {

// A sprite from a sprite from a sprite is plenty; a circle never ends.
constexpr int deepest_derivation = 8;

struct Grid_Source {
    const Block* block = nullptr;
    const Palette* palette = nullptr;
};

const Sprite_Row* find_sprite_row(const std::string& name) {
    const auto row = std::find_if(sprite_table.begin(), sprite_table.end(),
                                  [&](const Sprite_Row& candidate) { return candidate.name == name; });
    return row == sprite_table.end() ? nullptr : row;
}

std::string size_text(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

class Sprite_Drawing {
public:
    Sprite_Drawing(Sheet_Picture& sheet, Problems& problems) : sheet_(sheet), problems_(problems) {}

    void take(const Source_File& file) {
        for (const Block& block : file.blocks) {
            check_clauses(block);
            const bool is_plate = block.sign == '@';
            if (!is_plate && find_sprite_row(block.name) == nullptr) {
                problems_.add(block.place, "the table has no sprite \"" + block.name + "\"");
            }
            auto& sources = is_plate ? plates_ : sprites_;
            if (!sources.try_emplace(block.name, Grid_Source{&block, &file.palette}).second) {
                problems_.add(block.place, "\"" + block.name + "\" is drawn twice");
            }
        }
    }

    void draw(const Sprite_Row& row) {
        const auto source = sprites_.find(std::string(row.name));
        if (source == sprites_.end()) {
            return;
        }
        const Cells cells = whole_cells(source->second, 0);
        if (cells.width() != row.width || cells.height() != row.height) {
            problems_.add(source->second.block->place,
                          std::string(row.name) + " is " + size_text(cells.width(), cells.height()) +
                              " pixels, the table wants " + size_text(row.width, row.height));
            return;
        }
        draw_cells(row, cells, source->second.block->place);
    }

    void report_missing() {
        for (const Sprite_Row& row : sprite_table) {
            if (!sprites_.contains(std::string(row.name))) {
                problems_.add("no grid for the sprite \"" + std::string(row.name) + "\"");
            }
        }
    }

private:
    void check_clauses(const Block& block) {
        for (const char* keyword : {"top", "shadow"}) {
            if (block.clauses.contains(keyword)) {
                problems_.add(block.place, std::string("\"") + keyword + "\" is for fonts only");
            }
        }
        if (block.clauses.contains("from") == !block.rows.empty()) {
            problems_.add(block.place, "\"" + block.name + "\" needs either rows or \"from\"");
        }
    }

    void draw_cells(const Sprite_Row& row, const Cells& cells, const Place& place) {
        const std::string name(row.name);
        std::string reported;
        for (int y = 0; y < row.height; ++y) {
            for (int x = 0; x < row.width; ++x) {
                const std::string former = sheet_.draw(row.x + x, row.y + y, cells.at(x, y).colour, name);
                if (former.empty() || former == reported) {
                    continue;
                }
                reported = former;
                std::ostringstream text;
                text << name << " and " << former << " differ in their common pixel " << row.x + x << ", "
                     << row.y + y;
                problems_.add(place, text.str());
            }
        }
    }

    const Grid_Source* find(const Block& block, const std::string& name) {
        for (const auto* sources : {&sprites_, &plates_}) {
            if (const auto source = sources->find(name); source != sources->end()) {
                return &source->second;
            }
        }
        problems_.add(block.place, "there is no grid \"" + name + "\"");
        return nullptr;
    }

    // The grid without its plate.
    Cells own_cells(const Grid_Source& source, int depth) {
        const Block& block = *source.block;
        Cells cells = read_or_derive(source, depth);
        apply_recolour(cells, block, *source.palette, problems_);
        return shifted(cells, block);
    }

    Cells read_or_derive(const Grid_Source& source, int depth) {
        const Block& block = *source.block;
        const auto from = block.clauses.find("from");
        if (from == block.clauses.end()) {
            return read_cells(block, *source.palette, problems_);
        }
        if (depth == deepest_derivation) {
            problems_.add(block.place, "\"" + block.name + "\" is derived from itself");
            return {};
        }
        const Grid_Source* origin = find(block, from->second);
        return origin == nullptr ? Cells{} : own_cells(*origin, depth + 1);
    }

    Cells shifted(const Cells& cells, const Block& block) {
        const auto clause = block.clauses.find("shift");
        if (clause == block.clauses.end()) {
            return cells;
        }
        int x = 0;
        int y = 0;
        std::istringstream numbers(clause->second);
        if (!(numbers >> x >> y) || !(numbers >> std::ws).eof()) {
            problems_.add(block.place, "\"shift\" takes two numbers");
        }
        Cells result(cells.width(), cells.height());
        result.draw(cells, x, y);
        return result;
    }

    Cells whole_cells(const Grid_Source& source, int depth) {
        const Block& block = *source.block;
        Cells own = own_cells(source, depth);
        const auto on = block.clauses.find("on");
        if (on == block.clauses.end()) {
            return own;
        }
        const Grid_Source* plate = depth == deepest_derivation ? nullptr : find(block, on->second);
        if (plate == nullptr) {
            return own;
        }
        Cells cells = whole_cells(*plate, depth + 1);
        if (cells.width() != own.width() || cells.height() != own.height()) {
            problems_.add(block.place, "\"" + block.name + "\" and its plate differ in size");
        }
        cells.draw(own, 0, 0);
        return cells;
    }

    Sheet_Picture& sheet_;
    Problems& problems_;
    std::map<std::string, Grid_Source> sprites_;
    std::map<std::string, Grid_Source> plates_;
};

} // namespace

void draw_sprites(Sheet_Picture& sheet, const std::vector<Source_File>& files, Missing_Sprites missing,
                  Problems& problems) {
    Sprite_Drawing drawing(sheet, problems);
    for (const Source_File& file : files) {
        drawing.take(file);
    }
    for (const Sprite_Row& row : sprite_table) {
        drawing.draw(row);
    }
    if (missing == Missing_Sprites::refused) {
        drawing.report_missing();
    }
}

} // namespace quadrelle
