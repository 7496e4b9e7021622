#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

constexpr int visible = 51;

constexpr Point strip_cell(int cell) {
    return {4 + 24 * cell + 11, 636 + 13};
}

// Of the numbers below 2000 each has a colour of its own.
Color color_of(int number) {
    return {number % 250, 40 + number / 250 * 20, 90};
}

class Tile_Strip_Test : public Program_Test {
protected:
    static Tileset& tileset() { return document().tileset(); }
    static Tile_Strip& strip() { return document().strip(); }

    // Of one pixel a tile: tile i has the colour of i.
    void make(int count) {
        make_set({1, 1}, count, [](int tile, Point) { return color_of(tile); });
        document().history().reset(tileset());
    }
};

// The middles of the buttons; the number stands between those to the next tiles.
constexpr int button_y = 347;
constexpr int next_button = 36 + 126;

struct Place {
    int current;
    int first;
    bool operator==(const Place&) const = default;
};

TEST_F(Tile_Strip_Test, navigation_buttons_step_and_scroll_up_to_the_ends) {
    struct Row {
        int button_x;
        Place before;
        Place after;
    };
    make(200);
    const std::vector<Row> rows{
        {36 + 12, {0, 0}, {0, 0}},         {36 + 12, {80, 60}, {80, 0}},
        {36 + 36, {80, 60}, {80, 14}},     {36 + 36, {80, 40}, {80, 0}},
        {36 + 60, {0, 0}, {0, 0}},         {36 + 60, {80, 80}, {79, 79}},
        {36 + 60, {1, 0}, {0, 0}},         {36 + 93, {80, 60}, {80, 60}},
        {next_button, {80, 30}, {81, 31}}, {next_button, {198, 60}, {199, 149}},
        {next_button, {199, 0}, {199, 0}}, {36 + 150, {0, 0}, {0, 46}},
        {36 + 150, {0, 130}, {0, 149}},    {36 + 174, {0, 0}, {0, 149}},
        {36 + 174, {0, 149}, {0, 149}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.button_x) + " at " + std::to_string(row.before.current));
        // There by way of the tiles at the strip's ends.
        for (const int tile : {199, row.before.first}) {
            tileset().select(tile);
            strip().show_current();
        }
        tileset().select(row.before.current);
        ASSERT_EQ(strip().first(), row.before.first);
        play(script().click({row.button_x, button_y}));
        EXPECT_EQ((Place{tileset().current_index(), strip().first()}), row.after);
    }
}

TEST_F(Tile_Strip_Test, navigation_button_stays_held_until_the_release_wherever_that_comes) {
    make(200);
    const auto look = [] {
        std::vector<Color> pixels;
        for (int i = -8; i <= 8; ++i) {
            pixels.push_back(pixel_at({next_button + i, button_y + i}));
        }
        return pixels;
    };
    const std::vector<Color> normal = look();
    play(script().press({next_button, button_y}));
    const std::vector<Color> held = look();
    EXPECT_NE(held, normal);
    play(script().motion({600, 5}));
    EXPECT_EQ(look(), held);
    // The dialog takes the release.
    script().key(key::escape);
    expect_loop("dialog \"Quit\"").release({5, 5}).key(key::escape);
    play();
    EXPECT_EQ(look(), normal);
}

TEST_F(Tile_Strip_Test, click_selects_a_tile_as_a_step_of_the_history) {
    make(200);
    execute(Command::next_tile_strip);
    const std::size_t steps = document().history().entries().size();
    editor->canvas().work_area().invert_selection();
    play(script().click(strip_cell(5)));
    EXPECT_EQ(tileset().current_index(), 51);
    EXPECT_FALSE(editor->canvas().work_area().has_selection());
    EXPECT_EQ(strip().first(), 46);
    EXPECT_EQ(editor->canvas().tile(), &tileset().tile_at(51));
    ASSERT_EQ(document().history().entries().size(), steps + 1);
    EXPECT_EQ(document().history().entries().back().kind, Command::change_tile);
    EXPECT_EQ(document().history().entries().back().tile_index, 51);
    EXPECT_TRUE(document().is_modified());
    EXPECT_EQ(count_in_preview(color_of(51)), 4);

    document().clear_modified();
    play(script().click(strip_cell(5)));
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    EXPECT_FALSE(document().is_modified());
    // Back to the tile before, which the strip then shows.
    execute(Command::undo);
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_EQ(strip().first(), 0);
}

TEST_F(Tile_Strip_Test, click_takes_the_tile_back_from_the_seam_tools_first) {
    execute(Command::add_new_tile);
    execute(Command::previous_tile);
    document().tileset().current_tile()->set_pixel(3, 4, color_of(1));
    for (const Command command : {Command::horizontal_seam_tool, Command::vertical_seam_tool}) {
        execute(command);
        EXPECT_EQ(tile_pixel(3, 4), Color(0, 0, 0));
        play(script().click(strip_cell(1)));
        EXPECT_EQ(tileset().tile_at(0).get_pixel(3, 4), color_of(1));
        EXPECT_EQ(tileset().tile_at(1).get_pixel(3, 4), Color(0, 0, 0));
        play(script().click(strip_cell(0)));
    }
    execute(Command::horizontal_seam_tool);
    execute(Command::rewind_strip);
    EXPECT_EQ(tile_pixel(3, 4), color_of(1));
}

TEST_F(Tile_Strip_Test, shows_the_tiles_the_mark_and_free_places) {
    make(200);
    execute(Command::next_tile_strip);
    tileset().select(60);
    editor->redraw(Present::no);
    for (int cell = 0; cell < visible; ++cell) {
        EXPECT_EQ(pixel_at(strip_cell(cell)), color_of(46 + cell));
        const Color corner = pixel_at({4 + 24 * cell, 636});
        EXPECT_EQ(corner, cell == 14 ? white : color_of(46 + cell)) << cell;
    }
    make(10);
    EXPECT_EQ(pixel_at(strip_cell(9)), color_of(9));
    EXPECT_EQ(pixel_at(strip_cell(50)), pixel_at(strip_cell(10)));
    for (const Command command : {Command::next_tile_strip, Command::forward_strip}) {
        execute(command);
        EXPECT_EQ(strip().first(), 0);
    }
    play(script().click(strip_cell(10)));
    play(script().click(strip_cell(50)));
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_FALSE(document().is_modified());
}

} // namespace
} // namespace quadrelle::testing
