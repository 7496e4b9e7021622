#include "tileset/tile_strip.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tests/support/files.h"
#include "tests/whole/program_test.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

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

std::vector<Color> picture_of(const Rectangle& area) {
    std::vector<Color> picture;
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            picture.push_back(pixel_at({x, y}));
        }
    }
    return picture;
}

class Tile_Strip_Test : public Program_Test {
protected:
    static Tileset& tileset() { return document().tileset(); }
    static Tile_Strip& strip() { return document().strip(); }

    // Of one pixel a tile: tile i has the colour of i.
    void load(int count) {
        Bytes bytes{'Q', 'D', 'L', '\n', 0, 1, 1};
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<std::uint8_t>(static_cast<unsigned>(count) >> shift));
        }
        for (int i = 0; i < count; ++i) {
            const Color color = color_of(i);
            bytes.insert(bytes.end(), {255, color.b, color.g, color.r});
        }
        const std::string path = folder().path("many.qdl");
        store(path, bytes);
        answer_files(File_Answer_State::chosen, path);
        execute(Command::load);
        ASSERT_EQ(tileset().count(), count);
    }
    void click(Point point, Mouse_Button button = Mouse_Button::left) {
        script().click(point, button);
        play();
    }
};

// The seven buttons from left to right: where their middle is, and their pictures.
struct Button {
    Point middle;
    Sprite normal;
    Sprite held;
    Sprite disabled;
};

constexpr Point first_button{36, 336};

// clang-format off
constexpr std::array<Button, 7> buttons{{
    {{36 + 12, 347},  Sprite::rewind_depressed,        Sprite::rewind_pressed,        Sprite::rewind_grey},
    {{36 + 36, 347},  Sprite::strip_prev_depressed,    Sprite::strip_prev_pressed,    Sprite::strip_prev_grey},
    {{36 + 60, 347},  Sprite::prev_tile_depressed,     Sprite::prev_tile_pressed,     Sprite::prev_tile_grey},
    {{36 + 93, 347},  Sprite::current_tile_id,         Sprite::current_tile_id,       Sprite::current_tile_id},
    {{36 + 126, 347}, Sprite::next_tile_depressed,     Sprite::next_tile_pressed,     Sprite::next_tile_grey},
    {{36 + 150, 347}, Sprite::strip_next_depressed,    Sprite::strip_next_pressed,    Sprite::strip_next_grey},
    {{36 + 174, 347}, Sprite::strip_forward_depressed, Sprite::strip_forward_pressed, Sprite::forward_grey},
}};
// clang-format on

enum class Look { normal, held, disabled, other };

// What the window shows at the button's place, by comparison with its sprites.
Look look_of(const Button& button) {
    const Rectangle sprite = sprite_rect(button.normal);
    const Rectangle area{first_button.x + sprite.x, first_button.y, sprite.width, sprite.height};
    const std::vector<Color> shown = picture_of(area);
    Look look = Look::other;
    for (const Look candidate : {Look::normal, Look::held, Look::disabled}) {
        screen->fill_rect(area, standard_color(Standard_Color::pane_background));
        screen->draw_sprite(candidate == Look::normal ? button.normal
                            : candidate == Look::held ? button.held
                                                      : button.disabled,
                            {area.x, area.y});
        if (look == Look::other && picture_of(area) == shown) {
            look = candidate;
        }
    }
    editor->redraw(Present::no);
    return look;
}

struct Place {
    int current;
    int first;
    bool operator==(const Place&) const = default;
};

struct Navigation_Case {
    std::size_t button;
    Place before;
    Place after;
    Look look;
    Look look_while_held;
};

TEST_F(Tile_Strip_Test, navigation_buttons_step_and_scroll_and_turn_grey_at_the_ends) {
    load(200);
    const std::vector<Navigation_Case> cases{
        {0, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {0, {80, 60}, {80, 0}, Look::normal, Look::disabled},
        {1, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {1, {80, 60}, {80, 14}, Look::normal, Look::held},
        {1, {80, 40}, {80, 0}, Look::normal, Look::disabled},
        {2, {0, 0}, {0, 0}, Look::disabled, Look::disabled},
        {2, {80, 80}, {79, 79}, Look::normal, Look::held},
        {2, {1, 0}, {0, 0}, Look::normal, Look::disabled},
        {4, {80, 30}, {81, 31}, Look::normal, Look::held},
        {4, {198, 60}, {199, 149}, Look::normal, Look::disabled},
        {4, {199, 0}, {199, 0}, Look::disabled, Look::disabled},
        {5, {0, 0}, {0, 46}, Look::normal, Look::held},
        {5, {0, 130}, {0, 149}, Look::normal, Look::disabled},
        {5, {0, 148}, {0, 149}, Look::disabled, Look::disabled},
        {6, {0, 0}, {0, 149}, Look::normal, Look::disabled},
        {6, {0, 149}, {0, 149}, Look::disabled, Look::disabled},
    };
    for (const Navigation_Case& test : cases) {
        SCOPED_TRACE("button " + std::to_string(test.button) + " at " + std::to_string(test.before.current) +
                     ", " + std::to_string(test.before.first));
        // There by way of the tiles at the strip's ends.
        tileset().select(199);
        strip().show_current();
        tileset().select(test.before.first);
        strip().show_current();
        tileset().select(test.before.current);
        editor->redraw(Present::no);
        ASSERT_EQ(strip().first(), test.before.first);
        const Button& button = buttons.at(test.button);
        EXPECT_EQ(look_of(button), test.look);
        script().press(button.middle);
        play();
        EXPECT_EQ(look_of(button), test.look_while_held);
        EXPECT_EQ((Place{tileset().current_index(), strip().first()}), test.after);
        script().motion({600, 5}).release({600, 5});
        play();
        EXPECT_NE(look_of(button), Look::held);
    }
}

TEST_F(Tile_Strip_Test, navigation_button_stays_held_until_the_release_wherever_that_comes) {
    load(200);
    const Button& next = buttons.at(4);
    script().press(next.middle);
    play();
    ASSERT_EQ(look_of(next), Look::held);
    // The dialog takes the release.
    script().key(key::escape);
    expect_loop("dialog \"Quit\"").release({5, 5}).key(key::escape);
    play();
    EXPECT_EQ(look_of(next), Look::normal);
}

TEST_F(Tile_Strip_Test, click_selects_a_tile_as_a_step_of_the_history) {
    load(200);
    execute(Command::next_tile_strip);
    const std::size_t steps = document().history().entries().size();
    editor->canvas().work_area().invert_selection();
    click(strip_cell(5));
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
    click(strip_cell(5));
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
        click(strip_cell(1));
        EXPECT_EQ(tileset().tile_at(0).get_pixel(3, 4), color_of(1));
        EXPECT_EQ(tileset().tile_at(1).get_pixel(3, 4), Color(0, 0, 0));
        click(strip_cell(0));
    }
    execute(Command::horizontal_seam_tool);
    execute(Command::rewind_strip);
    EXPECT_EQ(tile_pixel(3, 4), color_of(1));
}

TEST_F(Tile_Strip_Test, shows_the_tiles_the_mark_and_free_places) {
    load(200);
    execute(Command::next_tile_strip);
    tileset().select(60);
    editor->redraw(Present::no);
    for (int cell = 0; cell < visible; ++cell) {
        EXPECT_EQ(pixel_at(strip_cell(cell)), color_of(46 + cell));
        const Color corner = pixel_at({4 + 24 * cell, 636});
        EXPECT_EQ(corner, cell == 14 ? Color(255, 255, 255) : color_of(46 + cell)) << cell;
    }
    load(10);
    EXPECT_EQ(pixel_at(strip_cell(9)), color_of(9));
    EXPECT_EQ(pixel_at(strip_cell(50)), pixel_at(strip_cell(10)));
    EXPECT_EQ(std::ranges::count(picture_of({4 + 240, 636, 41 * 24, 24}), Color(0, 0, 0)), 0);
    for (const Command command : {Command::next_tile_strip, Command::forward_strip}) {
        execute(command);
        EXPECT_EQ(strip().first(), 0);
    }
    click(strip_cell(10));
    click(strip_cell(50));
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_FALSE(document().is_modified());
    for (const std::size_t grey : {0, 1, 2, 5, 6}) {
        EXPECT_EQ(look_of(buttons.at(grey)), Look::disabled) << grey;
    }
    EXPECT_EQ(look_of(buttons.at(4)), Look::normal);
}

} // namespace
} // namespace quadrelle::testing
