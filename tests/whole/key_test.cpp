#include "app/window_panes.h"
#include "commands/key_table.h"
#include "screen/events.h"
#include "tests/whole/program_test.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

// The keys beside those of the command table.
class Key_Test : public Program_Test {
protected:
    static int selected() { return editor->canvas().work_area().selection().count(); }
    static int current_tile() { return document().tileset().current_index(); }
    void TearDown() override {
        hold(SDL_KMOD_NONE);
        Program_Test::TearDown();
    }
    static void hold(SDL_Keymod keys) { SDL_SetModState(keys); }
    std::string hint_at(Point point) {
        play(script().motion(point));
        return editor->panes().hint_lines().lines().at(0);
    }
    static std::string report() { return editor->panes().hint_lines().lines().at(1); }
    void press(Keycode key, Modifier modifier = Modifier::none) {
        play(script().key(key, modifier).key_up(key, modifier));
    }
};

TEST_F(Key_Test, select_all_is_a_step_and_the_selection_can_be_inverted_and_given_up) {
    press('a', Modifier::control);
    EXPECT_EQ(selected(), 24 * 24);
    press('i', Modifier::control);
    EXPECT_EQ(selected(), 0);
    press('z', Modifier::control);
    EXPECT_EQ(selected(), 24 * 24);
    press(key::delete_key);
    EXPECT_EQ(tile_pixel(7, 7), clear);
    press('d', Modifier::control);
    EXPECT_EQ(selected(), 0);
    press('z', Modifier::control);
    press('z', Modifier::control);
    EXPECT_EQ(tile_pixel(7, 7), black);
    press('z', Modifier::control);
    EXPECT_EQ(selected(), 0);
    press('y', Modifier::control);
    EXPECT_EQ(selected(), 24 * 24);
}

TEST_F(Key_Test, eraser_makes_transparent_until_a_tool_is_chosen) {
    const auto expect_title = [](const std::string& title) {
        EXPECT_EQ(editor->panes().hint_lines().lines().at(0), title);
    };
    tools().options.right_button_mode = Right_Button_Mode::dropper;
    press('n');
    press('e');
    expect_title("Eraser (e)");
    play(script().click(cell(1, 1)).click(cell(2, 1), Mouse_Button::right));
    EXPECT_EQ(tile_pixel(1, 1), clear);
    EXPECT_EQ(tile_pixel(2, 1), clear);
    EXPECT_EQ(tools().colors.left, white);
    press('p');
    play(script().click(cell(3, 1)).motion({300, 100}));
    EXPECT_EQ(tile_pixel(3, 1), white);
    expect_title("Pen (p)");
    press('e');
    press('f');
    press('p');
    play(script().click(cell(4, 1)));
    EXPECT_EQ(tile_pixel(4, 1), white);
}

// Where a press erases shows as an outline, also of a single pixel.
TEST_F(Key_Test, eraser_and_grid_show_on_the_canvas) {
    const Point above_cell{cell(5, 5).x, cell(5, 5).y - 6};
    const Color grid = pixel_at(above_cell);
    EXPECT_NE(grid, black);
    press('g');
    EXPECT_EQ(pixel_at(above_cell), black);
    press('e');
    play(script().motion(cell(5, 5)));
    EXPECT_EQ(pixel_at(above_cell), white);
    EXPECT_NE(pixel_at(cell(5, 5)), black) << "what shows through a hole is previewed";
    press('p');
    EXPECT_EQ(pixel_at(above_cell), black);
    press('g');
    EXPECT_EQ(pixel_at(above_cell), grid);
    set_option(Option::grid_intensity, 0);
    press('g');
    EXPECT_EQ(report(), "Its intensity is 0: see File, Options.");
}

TEST_F(Key_Test, undo_and_redo_give_the_eraser_back) {
    press('e');
    play(script().click(cell(1, 1)));
    press('n');
    play(script().click(cell(5, 5)));
    press('z', Modifier::control);
    press('z', Modifier::control);
    press('n');
    press('y', Modifier::control);
    EXPECT_TRUE(tools().is_erasing);
}

TEST_F(Key_Test, return_plots_what_floats) {
    play(script().click(cell(3, 3)));
    press('c', Modifier::control);
    EXPECT_EQ(report(), "24 x 24 pixels are copied.");
    press('v', Modifier::control);
    press('r', Modifier::control);
    EXPECT_EQ(report(), "There is nothing to redo.");
    press(key::right);
    EXPECT_NE(report(), "There is nothing to redo.");
    EXPECT_EQ(tile_pixel(4, 3), black);
    tools().options.selection_mode = Selection_Mode::persistent;
    press(key::enter);
    EXPECT_EQ(report(), "It is in the tile, and floats on until it is deselected.");
    EXPECT_EQ(tile_pixel(4, 3), white);
    tools().options.selection_mode = Selection_Mode::standard;
    press(key::enter);
    EXPECT_FALSE(editor->canvas().work_area().paste());
    press(key::enter);
    EXPECT_EQ(report(), "Nothing floats over the tile.");
}

TEST_F(Key_Test, brush_sizes_end_at_one_and_six) {
    std::string sizes;
    for (const char pressed : std::string("[]]]]]]][")) {
        press(static_cast<Keycode>(pressed));
        sizes += static_cast<char>('1' + tools().chosen_brush.size_index());
    }
    EXPECT_EQ(sizes, "123456665");
    press('u');
    press('[');
    EXPECT_EQ(report(), "The brush is 4 x 4 pixels.");
}

// Or it would leave no room for the steps before it.
TEST_F(Key_Test, a_walk_on_a_held_key_is_one_step) {
    make_set({8, 8}, 40, [](int, Point) { return black; });
    play(script().click(cell(10, 10)));
    const std::size_t steps = document().history().entries().size();
    script().key(key::page_down);
    for (int i = 0; i < 38; ++i) {
        script().repeated_key(key::page_down);
    }
    play(script().key_up(key::page_down));
    EXPECT_EQ(current_tile(), 39);
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    press(key::page_down);
    EXPECT_EQ(report(), "This is the last tile.");
    press(key::page_up);
    press(key::page_up);
    EXPECT_EQ(current_tile(), 37);
    EXPECT_EQ(document().history().entries().size(), steps + 3);
    press('z', Modifier::control);
    press('z', Modifier::control);
    press('z', Modifier::control);
    EXPECT_EQ(current_tile(), 0);
    // A stroke in between stays.
    play(script().key(key::page_down).click(cell(10, 10)).repeated_key(key::page_down));
    press('z', Modifier::control);
    EXPECT_EQ(document().tileset().tile_at(1).get_pixel(2, 2), white);
}

TEST_F(Key_Test, buttons_that_step_go_on_while_they_are_held) {
    make_set({8, 8}, 40, [](int, Point) { return black; });
    const std::size_t steps = document().history().entries().size();
    const Point next_tile{162, 347};
    ASSERT_EQ(hint_at(next_tile), "Next tile");
    script().press(next_tile).pause(310).check([] { EXPECT_GE(current_tile(), 2); });
    expect_loop("held button").release(next_tile);
    play();
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    const Point more_red{1026 + 5 + 1 + 175 + 7, 339 + 26 + 1 + 8};
    script().press(more_red);
    expect_loop("held button").release(more_red);
    play();
    const Point more_hue{1210, 74};
    script().press(more_hue);
    expect_loop("held button").release(more_hue).key(key::escape);
    execute(Command::adjust_hsv);
}

TEST_F(Key_Test, next_set_comes_after_the_last_the_first) {
    press(key::tab, Modifier::control);
    EXPECT_EQ(report(), "No other set is open.");
    make_set({8, 8}, 1, [](int, Point) { return black; });
    press('a', Modifier::control);
    press(key::tab, Modifier::control);
    EXPECT_EQ(document().tileset().tile_size().width, 24);
    EXPECT_EQ(selected(), 0);
    press(key::tab, Modifier::control);
    EXPECT_EQ(document().tileset().tile_size().width, 8);
}

// A key that is held down asks once, and closes one set.
TEST_F(Key_Test, dialogs_come_by_their_keys) {
    script().key('n', Modifier::control);
    expect_loop("dialog \"New tileset\"").key(key::enter).repeated_key('w');
    play();
    EXPECT_EQ(editor->documents().count(), 2);
    press('o', Modifier::control);
    EXPECT_EQ(asked_file(), File_Dialog_Kind::load_tileset);
    press('w', Modifier::control);
    EXPECT_EQ(editor->documents().count(), 1);
}

// Plus, asterisk and digits stand elsewhere on each keyboard; a key that makes none of them stays what it is.
TEST_F(Key_Test, a_character_counts_whatever_makes_it) {
    const auto press_code = [](SDL_Scancode code, SDL_Keymod held) {
        SDL_Event event{};
        event.type = SDL_EVENT_KEY_DOWN;
        event.key.scancode = code;
        event.key.key = SDL_GetKeyFromScancode(code, SDL_KMOD_NONE, true);
        event.key.mod = held;
        SDL_PushEvent(&event);
        editor->handle_one_event();
        editor->redraw(Present::yes);
    };
    press_code(SDL_SCANCODE_EQUALS, SDL_KMOD_LSHIFT);
    press_code(SDL_SCANCODE_RIGHTBRACKET, SDL_KMOD_NONE);
    EXPECT_EQ(editor->canvas().pixel_size(), 11);
    EXPECT_EQ(tools().chosen_brush.size_index(), 1);
    press_code(SDL_SCANCODE_EQUALS, SDL_KMOD_LCTRL | SDL_KMOD_LSHIFT);
    press_code(SDL_SCANCODE_DELETE, SDL_KMOD_LSHIFT);
    press_code(SDL_SCANCODE_Z, SDL_KMOD_LCTRL | SDL_KMOD_RALT);
    EXPECT_EQ(editor->canvas().pixel_size(), 11);
    EXPECT_EQ(report(), "There is nothing to undo.");
}

TEST_F(Key_Test, zoom_and_tools_stand_on_the_main_keys) {
    press('=');
    press('+');
    press('-');
    EXPECT_EQ(editor->canvas().pixel_size(), 11);
    for (const Key_Row& row : key_table) {
        if (row.command != Command::none && tool_of(row.command) != Tool::none) {
            press(row.key, row.modifier);
            EXPECT_EQ(tools().command, row.command);
        }
    }
}

// What is held goes on only where it went down.
TEST_F(Key_Test, a_key_that_closed_a_menu_scrolls_nothing_while_it_is_held) {
    const Tile_Picture before = tile_picture();
    play(script().click(cell(3, 3)).key(key::down).key_up(key::down));
    script().press({20, 12}).release({20, 12}).key(key::down).repeated_key(key::down);
    expect_loop("main").repeated_key(key::down).key_up(key::down);
    play();
    EXPECT_EQ(tile_pixel(3, 4), white);
    EXPECT_NE(tile_picture(), before);
}

// While Alt is held, whatever the tool.
TEST_F(Key_Test, alt_picks_and_gives_the_tool_back) {
    document().tileset().current_tile()->set_pixel(5, 6, red);
    tools().chosen_brush.select_size(2);
    press('e');
    const auto shows_brush = [] { return editor->canvas().shows_brush(tools(), canvas_settings(*options)); };
    play(script().motion(cell(5, 6)));
    EXPECT_TRUE(shows_brush());
    hold(SDL_KMOD_LALT);
    play(script().key(key::left_alt, Modifier::alt));
    EXPECT_FALSE(shows_brush());
    play(script().motion({300, 100}));
    EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Dropper (d)");
    play(script().click(cell(5, 6), Mouse_Button::right));
    EXPECT_EQ(tools().colors.right, red);
    EXPECT_EQ(tile_pixel(5, 6), red);
    hold(SDL_KMOD_NONE);
    play(script().key_up(key::left_alt).click(cell(5, 6)));
    EXPECT_EQ(tile_pixel(5, 6), clear);
    // The flood fill shows a brush too.
    tools().options.fill_mode = Fill_Mode::stamp;
    press('f');
    play(script().motion(cell(12, 12)));
    EXPECT_NE(pixel_at(cell(13, 13)), black);
    hold(SDL_KMOD_LALT);
    play(script().key(key::left_alt, Modifier::alt));
    EXPECT_EQ(pixel_at(cell(13, 13)), black);
}

// Where a press would draw it, and before it does.
TEST_F(Key_Test, shift_shows_the_line_from_the_last_stroke) {
    play(script().click(cell(2, 2)));
    const Tile_Picture before = tile_picture();
    play(script().motion(cell(8, 5)));
    EXPECT_EQ(pixel_at(cell(6, 4)), black);
    hold(SDL_KMOD_LSHIFT);
    play(script().key(key::left_shift, Modifier::shift));
    EXPECT_EQ(pixel_at(cell(6, 4)), white);
    EXPECT_EQ(tile_picture(), before);
    play(script().click(cell(8, 5)));
    EXPECT_EQ(tile_pixel(6, 4), white);
    hold(SDL_KMOD_NONE);
    // What counts is what was held at the press, however late that is answered.
    script().key(key::left_shift, Modifier::shift).press(cell(14, 5)).key_up(key::left_shift).at_once(3);
    play(script().release(cell(14, 5)));
    EXPECT_EQ(tile_pixel(11, 5), white);
    play(script().motion(cell(8, 20)));
    EXPECT_EQ(pixel_at(cell(8, 12)), black);
}

// Tools that change the colour which is there have no preview of their own: the line is outlined.
TEST_F(Key_Test, shift_outlines_the_line_of_what_has_no_preview) {
    for (const Command tool : {Command::colorize_pen, Command::lightness_pen, Command::smudge_brush}) {
        execute(tool);
        play(script().click(cell(2, 2)).motion(cell(8, 2)));
        const Color before = pixel_at({cell(5, 2).x, cell(5, 2).y - 6});
        hold(SDL_KMOD_LSHIFT);
        play(script().key(key::left_shift, Modifier::shift));
        EXPECT_NE(pixel_at({cell(5, 2).x, cell(5, 2).y - 6}), before) << index_of(tool);
        hold(SDL_KMOD_NONE);
        play(script().key_up(key::left_shift));
    }
}

// A line goes on from what is there: not from a stroke that was undone, or where the tile was moved since.
TEST_F(Key_Test, shift_joins_nothing_once_the_tile_was_changed_otherwise) {
    const auto join_after = [this](const std::function<void()>& change) {
        hold(SDL_KMOD_NONE);
        play(script().click(cell(2, 2)));
        change();
        hold(SDL_KMOD_LSHIFT);
        play(script().click(cell(12, 2)));
        return tile_pixel(8, 2) == white;
    };
    EXPECT_TRUE(join_after([] {}));
    press('z', Modifier::control);
    press('z', Modifier::control);
    EXPECT_FALSE(join_after([this] { press('z', Modifier::control); }));
    EXPECT_FALSE(join_after([this] { press(key::down); }));
    // A color that was picked leaves the end of the stroke where it is.
    tools().options.right_button_mode = Right_Button_Mode::dropper;
    press('z', Modifier::control);
    hold(SDL_KMOD_NONE);
    play(script().click(cell(20, 20)));
    EXPECT_TRUE(join_after([this] { play(script().click(cell(20, 20), Mouse_Button::right)); }));
    hold(SDL_KMOD_NONE);
}

TEST_F(Key_Test, a_held_key_is_one_step_and_asks_nothing_twice) {
    play(script().click(cell(10, 10)));
    const std::size_t steps = document().history().entries().size();
    script().key(key::left);
    for (int i = 0; i < 30; ++i) {
        script().repeated_key(key::left).repeated_key('r');
    }
    play(script().key_up(key::left));
    EXPECT_EQ(document().history().entries().size(), steps + 1);
    EXPECT_EQ(tile_pixel((10 + 24 * 2 - 31) % 24, 10), white);
    const Tile* const remembered = editor->canvas().history();
    press('z', Modifier::control);
    EXPECT_EQ(tile_pixel(10, 10), white);
    EXPECT_EQ(remembered->get_pixel(10, 10), black) << "what the pen draws from was before the dot";
    // Return and Escape that are held, or `y` with another key, answer no question.
    script().repeated_key(key::enter).repeated_key(key::escape).key('y', Modifier::control).key('n');
    expect_question("Quit", "Quit Quadrelle without saving tiles?\r(Progress will be lost.)")
        .key(key::escape);
    execute(Command::quit);
}

class Dragged_Selection : public Key_Test {
protected:
    void SetUp() override {
        Key_Test::SetUp();
        play(script().click(cell(3, 3)).key('s').drag({cell(1, 1), cell(4, 4)}));
        before_ = tile_picture();
        steps_ = document().history().entries().size();
    }
    static const Work_Area& work() { return editor->canvas().work_area(); }
    static Rectangle bounds() { return work().selection().bounds(); }
    [[nodiscard]] std::size_t new_steps() const { return document().history().entries().size() - steps_; }
    void drag(SDL_Keymod held, Tile_Point from, Tile_Point to) {
        hold(held);
        play(script().drag({cell(from.x, from.y), cell(to.x, to.y)}));
        hold(SDL_KMOD_NONE);
    }

    Tile_Picture before_;
    std::size_t steps_ = 0;
};

TEST_F(Dragged_Selection, with_control_a_copy_of_it_floats) {
    drag(SDL_KMOD_LCTRL, {3, 3}, {3, 3});
    EXPECT_EQ(tools().tool, Tool::rectangle_selector);
    script().check([] { hold(SDL_KMOD_LCTRL); }).press(cell(3, 3)).motion(cell(9, 9));
    play(script().key(key::escape).release(cell(9, 9)));
    EXPECT_EQ(tools().tool, Tool::rectangle_selector);
    EXPECT_EQ(new_steps(), 0U);
    drag(SDL_KMOD_LCTRL, {3, 3}, {10, 5});
    EXPECT_EQ(tools().tool, Tool::selection);
    ASSERT_TRUE(work().paste());
    EXPECT_EQ(work().paste()->position, (Tile_Point{9, 4}));
    EXPECT_EQ(tile_picture(), before_);
    EXPECT_EQ(new_steps(), 1U);
    // Of what floats already a copy stays behind.
    drag(SDL_KMOD_LCTRL, {10, 5}, {10, 8});
    EXPECT_EQ(tile_pixel(10, 5), white);
    EXPECT_EQ(work().paste()->position, (Tile_Point{9, 7}));
    press('z', Modifier::control);
    press('z', Modifier::control);
    EXPECT_EQ(tools().tool, Tool::rectangle_selector);
    EXPECT_EQ(bounds(), (Rectangle{2, 2, 3, 3}));
    EXPECT_EQ(tile_picture(), before_);
}

TEST_F(Dragged_Selection, with_alt_its_outline_moves_alone) {
    drag(SDL_KMOD_LALT, {3, 3}, {8, 4});
    EXPECT_EQ(bounds(), (Rectangle{7, 3, 3, 3}));
    EXPECT_EQ(tile_picture(), before_);
    EXPECT_EQ(new_steps(), 1U);
    drag(SDL_KMOD_LALT, {8, 4}, {23, 4});
    EXPECT_EQ(bounds(), (Rectangle{22, 3, 2, 3}));
    // Beside the selection Alt picks, and where nothing is dragged, and the right button.
    document().tileset().current_tile()->set_pixel(5, 6, red);
    document().tileset().current_tile()->set_pixel(22, 4, {0, 0, 255});
    drag(SDL_KMOD_LALT, {5, 6}, {5, 6});
    EXPECT_EQ(tools().colors.left, red);
    drag(SDL_KMOD_LALT, {22, 4}, {22, 4});
    EXPECT_EQ(tools().colors.left, Color(0, 0, 255));
    hold(SDL_KMOD_LALT);
    play(script().drag({cell(22, 4), cell(23, 4)}, Mouse_Button::right));
    EXPECT_EQ(tools().colors.right, black);
    EXPECT_EQ(bounds(), (Rectangle{22, 3, 2, 3}));
    // Left of the tile begins no column of it.
    press('a', Modifier::control);
    drag(SDL_KMOD_LCTRL, {-1, 4}, {3, 4});
    EXPECT_FALSE(work().paste());
    press('z', Modifier::control);
    press('z', Modifier::control);
    press('z', Modifier::control);
    EXPECT_EQ(bounds(), (Rectangle{2, 2, 3, 3}));
}

struct Report_Case {
    Command command;
    std::string report;
};

TEST_F(Key_Test, commands_tell_what_nothing_else_shows) {
    const std::string path = folder().data_path("kept.qdl");
    const auto expect_reports = [this](const std::vector<Report_Case>& cases) {
        for (const Report_Case& test : cases) {
            execute(test.command);
            EXPECT_EQ(report(), test.report) << index_of(test.command);
        }
    };
    expect_reports({{Command::undo, "There is nothing to undo."},
                    {Command::redo, "There is nothing to redo."},
                    {Command::paste, "Nothing is copied yet."},
                    {Command::clone, "Nothing is copied yet."},
                    {Command::deselect, "Nothing is selected."},
                    {Command::previous_tile, "This is the first tile."},
                    {Command::next_tile, "This is the last tile."},
                    {Command::save_history_buffer,
                     "The pens' right button mode \"History\" draws from the tile as it is now."}});
    execute(Command::lightness_pen);
    expect_reports({{Command::swap_tool_colors, "Left and right button have changed their colors."},
                    {Command::color_up, "The tool in use draws in no color."}});
    // The pointer comes back from the system's dialog, and then it moves.
    set_file_chooser([path](File_Dialog_Kind, const std::string&) {
        static_cast<void>(idle("file dialog"));
        return File_Answer{File_Answer_State::chosen, path};
    });
    play(script().motion({300, 100}).key('s', Modifier::control).pause(0).motion({400, 100}));
    EXPECT_EQ(report(), "Saved and verified: " + path);
    play(script().motion({401, 100}));
    EXPECT_NE(report(), "Saved and verified: " + path);
    expect_reports({{Command::save, "Nothing has changed since it was saved."}});
    execute(Command::pen);
    const Point store_button{110, 619};
    play(script().click(store_button));
    EXPECT_EQ(report(), "#000000 is stored in a copy of it: Default 2.");
    make_set({8, 9}, 1, [](int, Point) { return black; });
    expect_reports({{Command::rotate, "Only what is as wide as high can be turned."}});
    editor->canvas().work_area().float_paste({Tile(3, 2), {1, 1}});
    execute(Command::work_selection);
    expect_reports({{Command::mirror, "It looks the same as before."}});
    // A report ends with the next press of a button too.
    play(script().click(cell(10, 10)));
    EXPECT_NE(report(), "It looks the same as before.");
}

} // namespace
} // namespace quadrelle::testing
