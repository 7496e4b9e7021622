#include "panes/palette_area.h"

#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

constexpr Point position{31, 427};

class Palette_Area_Test : public Window_Test {
protected:
    // Loaded palettes are black, which is enough to tell how their cells lie.
    static Palette_Store store_with(int entries) {
        const std::string path = "palette.dat";
        store_text(path, record_bytes("1," + std::to_string(entries) + ",Own"));
        return Palette_Store(path);
    }
    // The middle of a cell of the built-in palettes: eight columns of 24 x 20 pixels below the palette's
    // name.
    static Point cell(const Palette_Area& area, int column, int row) {
        const Rectangle client = area.client_area();
        return {client.x + column * 24 + 12, client.y + 19 + row * 20 + 10};
    }
    static Point more(const Palette_Area& area) {
        return {area.client_area().right() - 5, area.client_area().y + 5};
    }
    static Point less(const Palette_Area& area) { return {more(area).x - 19, more(area).y}; }

    Tool_Colors colors_;
};

TEST_F(Palette_Area_Test, shows_and_selects_the_entries) {
    Palette_Store store("missing.dat");
    Palette_List list(store, folder().path("palettes"));
    Palette_Area area(position, list, colors_);
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

TEST_F(Palette_Area_Test, entries_after_the_last_colour_do_not_look_black) {
    Palette_Store store("missing.dat");
    Palette_List list(store, folder().path("palettes"));
    Palette_Area area(position, list, colors_);
    const auto looks_black = [&](int column, int row) {
        return pixel_at(cell(area, column, row)) == Color() &&
               pixel_at({cell(area, column, row).x - 6, cell(area, column, row).y}) == Color();
    };
    store.set_color(0, 31, Color());
    store.set_color(0, 30, Color());
    area.draw();
    EXPECT_TRUE(looks_black(1, 0));
    EXPECT_FALSE(looks_black(6, 3) || looks_black(7, 3));
}

TEST_F(Palette_Area_Test, buttons_step_through_the_palettes_and_around) {
    Palette_Store store("missing.dat");
    Palette_List list(store, folder().path("palettes"));
    Palette_Area area(position, list, colors_);
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
    struct Case {
        int entries, width, height;
    };
    for (const Case& test :
         {Case{1, 24, 20}, {32, 24, 20}, {35, 24, 16}, {48, 16, 20}, {256, 8, 7}, {1024, 3, 5}}) {
        Palette_Store store = store_with(test.entries);
        ASSERT_EQ(store.count(0), test.entries);
        Palette_List list(store, folder().path("palettes"));
        Palette_Area area(position, list, colors_);
        area.draw();
        const Rectangle client = area.client_area();
        int hits = 0;
        for (int y = client.y; y < client.bottom(); ++y) {
            for (int x = client.x; x < client.right(); ++x) {
                hits += area.click({x, y}) ? 1 : 0;
            }
        }
        EXPECT_EQ(hits, test.entries * test.width * test.height) << test.entries;
        for (int i = 0; i < test.entries; ++i) {
            area.move_selection(1, 0);
            area.move_selection(0, 1);
        }
        area.draw();
    }
}

} // namespace
} // namespace quadrelle::testing
