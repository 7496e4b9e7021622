#include "panes/palette_area.h"

#include "tests/support/scratch_files.h"
#include "tests/support/window_test.h"

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

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
};

TEST_F(Palette_Area_Test, shows_and_selects_the_entries) {
    Palette_Store store("missing.dat");
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
    Palette_Store store("missing.dat");
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
    Palette_Store store("missing.dat");
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
    struct Case {
        int entries, width, height;
    };
    for (const Case& test : {Case{1, 24, 20}, {32, 24, 20}, {33, 12, 10}, {1024, 4, 3}}) {
        Palette_Store store = store_with(test.entries);
        ASSERT_EQ(store.count(0), test.entries);
        Palette_Area area(position, store);
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

TEST_F(Palette_Area_Test, a_palette_without_entries_has_nothing_to_select) {
    Palette_Store store = store_with(0);
    ASSERT_EQ(store.count(0), 0);
    Palette_Area area(position, store);
    area.draw();
    EXPECT_FALSE(has_picture({cell(area, 0, 0).x - 12, cell(area, 0, 0).y - 10, 192, 80}));
    EXPECT_EQ(area.click(cell(area, 0, 0)), std::nullopt);
    EXPECT_EQ(area.click(more(area)), std::nullopt);
    EXPECT_EQ(area.move_selection(1, 0), Color());
    EXPECT_EQ(area.move_selection(0, -1), Color());
}

TEST_F(Palette_Area_Test, the_selected_entry_is_outlined_in_dark_and_light) {
    Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    const std::vector<Color> shades{{0, 0, 0}, {255, 255, 255}, {128, 128, 128}, {255, 0, 255, 128}};
    for (int i = 0; i < static_cast<int>(shades.size()); ++i) {
        area.click(cell(area, i, 2));
        area.store(shades[static_cast<std::size_t>(i)]);
        area.draw();
        const Point corner{cell(area, i, 2).x - 12, cell(area, i, 2).y - 10};
        EXPECT_EQ(pixel_at(corner), Color(0, 0, 0));
        EXPECT_EQ(pixel_at({corner.x + 1, corner.y + 1}), Color(255, 255, 255));
    }
}

TEST_F(Palette_Area_Test, a_colour_is_stored_in_the_selected_entry) {
    Palette_Store store("stored.dat");
    Palette_Area area(position, store);
    area.click(more(area));
    area.click(cell(area, 2, 3));
    EXPECT_FALSE(store.changed());
    area.store({1, 2, 3, 4});
    EXPECT_TRUE(store.changed());
    EXPECT_EQ(store.color(1, 26), Color(1, 2, 3, 4));
    EXPECT_EQ(area.selected_color(), Color(1, 2, 3, 4));
}

TEST_F(Palette_Area_Test, selected_colour_is_shown_beside_its_numbers) {
    Palette_Store store("missing.dat");
    Palette_Area area(position, store);
    const Selected_Color_Area selected({31, 577}, area);
    area.click(cell(area, 3, 1));
    selected.draw();
    const Rectangle client = selected.client_area();
    EXPECT_EQ(pixel_at({client.x + 11, client.y + 11}), store.color(0, 11));
    EXPECT_TRUE(has_picture({client.x + 45, client.y, 100, 16}));
    EXPECT_TRUE(has_picture({client.x + 45, client.y + 24, 80, 16}));
    EXPECT_TRUE(has_picture(selected.set_button().inset(3)));
}

TEST_F(Palette_Area_Test, a_long_name_ends_before_the_buttons) {
    test::put_bytes("palette.dat", test::record_bytes("1,4,W\r" + std::string(5000, 'W')));
    Palette_Store store("palette.dat");
    const Palette_Area area(position, store);
    area.draw();
    const Rectangle client = area.client_area();
    EXPECT_TRUE(has_picture({client.x + 100, client.y, 40, 16}));
    EXPECT_FALSE(has_picture({less(area).x - 13, client.y, 3, 16}));
    EXPECT_FALSE(has_picture({client.x, client.y + 17, 150, 2}));
}

// Parts of a written file in any order and number, with some bytes replaced.
std::string mutated(const std::string& text, std::mt19937& random) {
    std::string result;
    for (auto parts = random() % 6; parts > 0; --parts) {
        result += text.substr(random() % text.size(), random() % 120);
    }
    for (auto changes = random() % 4; changes > 0 && !result.empty(); --changes) {
        result[random() % result.size()] = static_cast<char>(random());
    }
    return random() % 3 == 0 ? result : std::to_string(random() % 300) + "," + result;
}

TEST_F(Palette_Area_Test, whatever_the_file_holds_can_be_shown_and_used) {
    {
        Palette_Store store("palette.dat");
        store.set_color(2, 31, {1, 2, 3, 4});
    }
    const std::string written = test::bytes_of_file("palette.dat").substr(4);
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) {
        test::put_bytes("palette.dat", test::record_bytes(mutated(written, random)));
        Palette_Store store("palette.dat");
        Palette_Area area(position, store);
        ASSERT_LE(store.size(), 256);
        for (int step = 0; step < std::min(store.size(), 4); ++step) {
            ASSERT_LE(store.count(step), 1024);
            area.click(cell(area, 1, 1));
            area.store({9, 8, 7});
            area.draw();
            area.click(less(area));
        }
    }
}

} // namespace
} // namespace quadrelle::testing
