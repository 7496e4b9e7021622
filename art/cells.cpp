#include "cells.h"

namespace quadrelle {

Cells::Cells(int width, int height)
    : width_(width), height_(height), cells_(static_cast<std::size_t>(width * height)) {}

void Cells::draw(const Cells& other, int x, int y) {
    for (int row = 0; row < other.height_; ++row) {
        for (int column = 0; column < other.width_; ++column) {
            const Cell& cell = other.at(column, row);
            if (!cell.is_transparent() && contains(x + column, y + row)) {
                at(x + column, y + row) = cell;
            }
        }
    }
}

void Cells::recolour(const std::map<char, Cell>& changes) {
    for (Cell& cell : cells_) {
        if (const auto change = changes.find(cell.character); change != changes.end()) {
            cell = change->second;
        }
    }
}

Cells read_cells(const Block& block, const Palette& palette, Problems& problems) {
    if (block.rows.empty()) {
        return {};
    }
    Cells cells(static_cast<int>(block.rows[0].text.size()), static_cast<int>(block.rows.size()));
    for (int y = 0; y < cells.height(); ++y) {
        const Row& row = block.rows[static_cast<std::size_t>(y)];
        if (static_cast<int>(row.text.size()) != cells.width()) {
            problems.add(row.place, block.name + ": the row is " + std::to_string(row.text.size()) +
                                        " wide, the first one " + std::to_string(cells.width()));
            continue;
        }
        for (int x = 0; x < cells.width(); ++x) {
            const char character = row.text[static_cast<std::size_t>(x)];
            const auto colour = palette.colour(character);
            if (colour) {
                cells.at(x, y) = {character, *colour};
            } else {
                problems.add(row.place, block.name + ": the palette has no '" + character + "'");
            }
        }
    }
    return cells;
}

void apply_recolour(Cells& cells, const Block& block, const Palette& palette, Problems& problems) {
    const auto clause = block.clauses.find("recolour");
    if (clause == block.clauses.end()) {
        return;
    }
    std::map<char, Cell> changes;
    for (const std::string& word : split_words(clause->second)) {
        const auto colour = palette.colour(word.back());
        if (word.size() != 2 || !colour) {
            problems.add(block.place, "\"recolour\" takes pairs of characters of the palette: " + word);
        } else {
            changes[word[0]] = {word[1], *colour};
        }
    }
    cells.recolour(changes);
}

} // namespace quadrelle
