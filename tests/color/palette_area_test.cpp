#include "color/palette_area.h"

#include "tests/color/scratch_files.h"
#include "tests/support/window_test.h"

#include <optional>
#include <string>

namespace quadrelle::testing {
namespace {

constexpr Point position{31, 427};

class Palette_Area_Test : public Window_Test {
protected:
    // Loaded palettes are black, which is enough to tell how their cells lie.
    static Palette_Store store_with(int entries) {
        const std::string path = "palette.dat";
        test::put_bytes(path, test::record_bytes("1," + std::to_string(entries) + ",Own"));
        return Palette_Store(path);
    }
    // The middle of a cell of the built-in palettes: eight columns of 24 pixels below the palette's name.
    static Point cell(const Palette_Area& area, int column, int row) {
        const Rectangle client = area.client_area();
        return {client.x + column * 24 + 12, client.y + 19 + row * 24 + 12};
    }
    static Point more(const Palette_Area& area) {
        return {area.client_area().right() - 5, area.client_area().y + 5};
    }
    static Point less(const Palette_Area& area) { return {more(area).x - 19, more(area).y}; }
};

TEST_F(Palette_Area_Test, shows_and_selects_the_entries) {
    const Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    area.draw();
    for (const Point entry : {Point{0, 0}, {7, 0}, {3, 2}, {7, 3}}) {
        const Color color = store.color(0, entry.y * 8 + entry.x);
        EXPECT_EQ(pixel_at(cell(area, entry.x, entry.y)), color);
        EXPECT_EQ(area.click(cell(area, entry.x, entry.y)), color);
        EXPECT_EQ(area.selected_color(), color);
    }
    const Color selected = area.selected_color();
    for (const Point outside : {Point{position.x - 1, position.y}, cell(area, 8, 0), cell(area, 0, 4),
                                Point{cell(area, 0, 0).x, area.client_area().y + 18}}) {
        EXPECT_EQ(area.click(outside), std::nullopt);
    }
    EXPECT_EQ(area.selected_color(), selected);
}

TEST_F(Palette_Area_Test, selection_moves_by_steps_and_stays_at_the_edges) {
    const Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    struct Step {
        int dx, dy, entry;
    };
    for (const Step& step : {Step{-1, 0, 0},
                             {0, -1, 0},
                             {1, 0, 1},
                             {0, 1, 9},
                             {0, 1, 17},
                             {0, 1, 25},
                             {0, 1, 25},
                             {-1, 0, 24},
                             {-1, 0, 24},
                             {0, -1, 16}}) {
        EXPECT_EQ(area.move_selection(step.dx, step.dy), store.color(0, step.entry));
    }
    area.click(cell(area, 7, 0));
    EXPECT_EQ(area.move_selection(1, 0), store.color(0, 7));
}

TEST_F(Palette_Area_Test, buttons_step_through_the_palettes_and_around) {
    const Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    area.click(cell(area, 4, 1));
    EXPECT_EQ(area.click(more(area)), std::nullopt);
    EXPECT_EQ(area.selected_color(), store.color(1, 0));
    area.click(more(area));
    EXPECT_EQ(area.selected_color(), store.color(2, 0));
    area.move_selection(1, 0);
    area.click(more(area));
    EXPECT_EQ(area.selected_color(), store.color(0, 0));
    area.click(less(area));
    EXPECT_EQ(area.click(cell(area, 1, 0)), store.color(2, 1));
}

TEST_F(Palette_Area_Test, every_number_of_entries_has_its_room) {
    for (const int entries : {1, 33, 1024}) {
        const Palette_Store store = store_with(entries);
        ASSERT_EQ(store.count(0), entries);
        Palette_Area area(position, store);
        area.draw();
        const Rectangle client = area.client_area();
        int hits = 0;
        for (int y = client.y; y < client.bottom(); ++y) {
            for (int x = client.x; x < client.right(); ++x) {
                hits += area.click({x, y}) ? 1 : 0;
            }
        }
        // All cells are squares of one size, and all lie inside.
        int edge = 24;
        while (edge * edge * entries > hits) {
            --edge;
        }
        EXPECT_EQ(edge * edge * entries, hits) << entries;
        EXPECT_GE(edge, 4) << entries;
        for (int i = 0; i < entries; ++i) {
            area.move_selection(1, 0);
            area.move_selection(0, 1);
        }
        area.draw();
    }
}

TEST_F(Palette_Area_Test, a_palette_without_entries_has_nothing_to_select) {
    const Palette_Store store = store_with(0);
    ASSERT_EQ(store.count(0), 0);
    Palette_Area area(position, store);
    area.draw();
    EXPECT_FALSE(has_picture({cell(area, 0, 0).x - 12, cell(area, 0, 0).y - 12, 192, 96}));
    EXPECT_EQ(area.click(cell(area, 0, 0)), std::nullopt);
    EXPECT_EQ(area.click(more(area)), std::nullopt);
    EXPECT_EQ(area.move_selection(1, 0), Color());
    EXPECT_EQ(area.move_selection(0, -1), Color());
}

TEST_F(Palette_Area_Test, selected_colour_is_shown_beside_its_numbers) {
    const Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    const Selected_Color_Area selected({31, 600}, area);
    area.click(cell(area, 3, 1));
    selected.draw();
    const Rectangle client = selected.client_area();
    EXPECT_EQ(pixel_at({client.x + 11, client.y + 11}), store.color(0, 11));
    EXPECT_TRUE(has_picture({client.x + 30, client.y, 100, 20}));
}

} // namespace
} // namespace quadrelle::testing
