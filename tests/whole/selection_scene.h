#pragma once

// What the tests of selections, of what floats and of copies have in common.

#include "tests/whole/program_test.h"

#include <algorithm>
#include <random>

namespace quadrelle::testing {

class Selection_Test : public Program_Test {
protected:
    static Tile& tile() { return *document().tileset().current_tile(); }
    static Work_Area& work() { return editor->canvas().work_area(); }
    static int count(Color color) { return static_cast<int>(std::ranges::count(tile().pixels(), color)); }

    // The corner of a cell.
    static constexpr Point corner(int column, int row) { return {400 + 10 * column, 200 + 10 * row}; }
    void select_rectangle(Tile_Point from, Tile_Point to, Mouse_Button button = Mouse_Button::left) {
        execute(Command::rectangle_selector);
        play(script().drag({corner(from.x, from.y), corner(to.x, to.y)}, button));
    }
    void drag(Tile_Point from, Tile_Point to, Mouse_Button button = Mouse_Button::left) {
        script().press(cell(from.x, from.y), button).motion(cell(8, 17)).motion(cell(to.x, to.y));
        play(script().release(cell(to.x, to.y), button));
    }
    void click(Tile_Point pixel) { play(script().click(cell(pixel.x, pixel.y))); }
    static void paint_noise(unsigned seed) {
        std::mt19937 random(seed);
        tile().map_colours([&](Color) {
            return Color(static_cast<int>(random() % 256), static_cast<int>(random() % 256),
                         static_cast<int>(random() % 256));
        });
    }
};

} // namespace quadrelle::testing
