// Brushes made from what is selected, kept on the pad, chosen there and painted with.

#include "tests/whole/program_test.h"

#include "app/start_up.h"
#include "app/window_panes.h"
#include "commands/menu_table.h"

namespace quadrelle::testing {
namespace {

constexpr Color dark_grey(64, 64, 64);
constexpr Color pane_background(137, 137, 137);

// Where the user clicks for that cell of the board.
Point board_point(int x, int y) {
    return {1028 + 3 * x + 1, 58 + 3 * y + 1};
}

class Brush_Pad_View_Test : public Program_Test {
protected:
    static Tile& tile() { return *document().tileset().current_tile(); }
    static Work_Area& work() { return editor->canvas().work_area(); }
    static Color gradient(int x, int y) { return {10 * x, 10 * y, 77}; }

    // Every pixel has a colour of its own.
    static void paint_gradient() {
        for (int i = 0; i < tile().pixel_count(); ++i) {
            tile().set_pixel_at(i, gradient(i % 24, i / 24));
        }
    }
    static void select(Tile_Point from, Tile_Point to) {
        work().deselect();
        work().select(selected_rectangle({24, 24}, from, to), Selection_Change::add);
    }
    void choose_in_edit_menu(Command command) {
        const auto& rows = menu_table.at(1).rows;
        const auto row = std::ranges::find(rows, command, &Menu_Row::command) - rows.begin();
        play(script().press({48, 12}).press({60, 25 + 25 * static_cast<int>(row) + 12}).motion({800, 600}));
    }
    // A brush of that rectangle of the gradient on the pad.
    void lay_on_pad(Tile_Point from, Tile_Point to) {
        select(from, to);
        choose_in_edit_menu(Command::use_as_brush);
        choose_in_edit_menu(Command::move_to_pad);
        execute(Command::deselect);
    }
    void expect_note(const std::string& text, Command command) {
        expect_message("Note", text).key(key::escape);
        execute(command);
    }
    // The tile is black but for what `expected` gives.
    using Picture_Function = std::function<std::optional<Color>(int x, int y)>;
    void expect_painted(const Picture_Function& expected) {
        for (int i = 0; i < tile().pixel_count(); ++i) {
            EXPECT_EQ(tile().get_pixel_at(i), expected(i % 24, i / 24).value_or(black)) << i;
        }
        tile().fill(black);
    }
};

TEST_F(Brush_Pad_View_Test, a_circle_becomes_a_brush_that_paints_in_three_modes) {
    paint_gradient();
    execute(Command::circle_selector);
    play(script().drag({cell(5, 6), cell(7, 8)}));
    const Selection circle = work().selection();
    ASSERT_EQ(circle.bounds(), (Rectangle{3, 4, 5, 5}));
    ASSERT_FALSE(circle.contains({3, 4}));
    choose_in_edit_menu(Command::use_as_brush);
    EXPECT_EQ(tools().tool, Tool::stamp_brush);
    ASSERT_EQ(tools().brush().size(), (Size{5, 5}));
    execute(Command::deselect);
    tile().fill(black);
    const auto brush_pixel = [&](int x, int y) {
        const bool is_set = x >= 0 && y >= 0 && x < 5 && y < 5 && circle.contains({3 + x, 4 + y});
        return is_set ? std::optional(gradient(3 + x, 4 + y)) : std::nullopt;
    };
    tools().colors.set(Mouse_Button::left, red);
    play(script().motion(cell(12, 13)));
    EXPECT_EQ(pixel_at(cell(12, 13)), gradient(5, 6)) << "the preview is centred on the pointer";
    EXPECT_EQ(tile_pixel(12, 13), black);
    for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
        play(script().click(cell(12, 13), button));
        expect_painted([&](int x, int y) { return brush_pixel(x - 10, y - 11); });
    }
    tools().options.stamp_mode = Pen_Mode::offset;
    play(script().click(cell(13, 14)));
    expect_painted([&](int x, int y) { return brush_pixel(x - 10, y - 10); });
    tools().options.stamp_mode = Pen_Mode::pattern;
    play(script().click(cell(13, 14)));
    expect_painted([&](int x, int y) {
        const bool is_covered = x >= 11 && x < 16 && y >= 12 && y < 17;
        return is_covered ? brush_pixel(x % 5, y % 5) : std::nullopt;
    });
    // Filling with it, seen from the seed on.
    execute(Command::flood_fill);
    tools().options.fill_mode = Fill_Mode::stamp;
    play(script().click(cell(7, 8)));
    expect_painted([&](int x, int y) { return brush_pixel((x + 3) % 5, (y + 2) % 5); });
    // A key for a size asks for a built-in brush again.
    play(script().key('b').key('3').click(cell(4, 4)));
    EXPECT_EQ(tools().brush().owner(), Brush_Owner::pen);
    EXPECT_EQ(tile_pixel(4, 4), red);
}

TEST_F(Brush_Pad_View_Test, a_floating_paste_becomes_a_brush_without_its_holes) {
    paint_gradient();
    tile().set_pixel(3, 2, {9, 9, 9, 0});
    tile().set_pixel(4, 2, {9, 9, 9, 100});
    select({2, 2}, {5, 3});
    execute(Command::copy);
    execute(Command::paste);
    choose_in_edit_menu(Command::use_as_brush);
    EXPECT_FALSE(work().paste()) << "changing the tool plots it";
    ASSERT_EQ(tools().brush().size(), (Size{3, 1}));
    EXPECT_EQ(tools().brush().pixel(0, 0), gradient(2, 2));
    EXPECT_EQ(tools().brush().pixel(1, 0), std::nullopt);
    EXPECT_EQ(tools().brush().pixel(2, 0), Color(9, 9, 9, 100));
    // And so does a selection.
    select({3, 2}, {5, 3});
    choose_in_edit_menu(Command::use_as_brush);
    EXPECT_EQ(tools().brush().size(), (Size{2, 1}));
    EXPECT_EQ(tools().brush().pixel(0, 0), std::nullopt);
    execute(Command::deselect);
    Tile transparent(1, 1);
    transparent.fill(clear);
    work().float_paste({transparent, {3, 2}});
    execute(Command::work_selection);
    tools().options.selection_mode = Selection_Mode::persistent;
    execute(Command::pen);
    expect_note("Nothing selected to use as brush.", Command::use_as_brush); // it floats on out of sight
    execute(Command::work_selection);
    expect_note("Unable to add a new brush for some reason.", Command::use_as_brush);
    EXPECT_EQ(tools().tool, Tool::selection);
}

TEST_F(Brush_Pad_View_Test, a_selection_that_became_a_brush_is_given_up_in_one_step) {
    paint_gradient();
    execute(Command::rectangle_selector);
    select({2, 2}, {5, 3});
    document().history().reset(document().tileset());
    choose_in_edit_menu(Command::use_as_brush);
    EXPECT_FALSE(work().has_selection());
    EXPECT_EQ(tools().tool, Tool::stamp_brush);
    execute(Command::undo);
    EXPECT_EQ(work().selection().bounds(), (Rectangle{2, 2, 3, 1}));
    EXPECT_EQ(tools().tool, Tool::rectangle_selector);
    execute(Command::redo);
    EXPECT_FALSE(work().has_selection());
    EXPECT_EQ(tools().tool, Tool::stamp_brush);
}

TEST_F(Brush_Pad_View_Test, a_size_takes_the_built_in_brush_and_a_click_on_it_brings_the_stamp_back) {
    constexpr Point selected{816 + 101, 451 + 21 + 80};
    tools().colors.left = red;
    paint_gradient();
    select({0, 0}, {3, 3});
    choose_in_edit_menu(Command::use_as_brush);
    const int size = tools().chosen_brush.size_index();
    EXPECT_EQ(pixel_at(selected), gradient(1, 1));
    for (const Keycode key : {Keycode{'3'}, Keycode{'1'} + static_cast<Keycode>(size)}) {
        play(script().key(key));
        EXPECT_EQ(tools().brush().owner(), Brush_Owner::pen);
        EXPECT_EQ(pixel_at(selected), red);
        play(script().click(selected));
        EXPECT_EQ(tools().brush().owner(), Brush_Owner::stamp_brush);
        EXPECT_EQ(pixel_at(selected), gradient(1, 1));
    }
}

// Its first brush lies with its corner on the pixel under the pointer.
TEST_F(Brush_Pad_View_Test, flood_fill_with_a_brush_shows_and_previews_it) {
    constexpr Point mode{816 + 34, 32 + 26 * 6 + 4 + 33};
    constexpr Point selected{816 + 101, 32 + 26 * 6 + 4 + 51 + 21 + 80};
    tools().colors.left = red;
    paint_gradient();
    select({0, 0}, {3, 2});
    choose_in_edit_menu(Command::use_as_brush);
    tile().fill(black);
    execute(Command::flood_fill);
    const Color list = pixel_at(selected);
    play(script().motion(cell(7, 8)));
    EXPECT_EQ(pixel_at(cell(7, 8)), black);
    play(script().click(mode));
    EXPECT_EQ(pixel_at(selected), gradient(1, 1));
    play(script().motion(cell(7, 8)));
    EXPECT_EQ(pixel_at(cell(7, 8)), gradient(0, 0));
    EXPECT_EQ(pixel_at(cell(9, 9)), gradient(2, 1));
    EXPECT_EQ(pixel_at(cell(10, 8)), black);
    play(script().key('p').key('f').motion(cell(7, 8)));
    EXPECT_EQ(pixel_at(cell(7, 8)), red);
    EXPECT_EQ(pixel_at(selected), red);
    play(script().click(selected).motion(cell(7, 8)));
    EXPECT_EQ(pixel_at(cell(7, 8)), gradient(0, 0));
    play(script().click(mode));
    EXPECT_EQ(pixel_at(selected), list);
}

TEST_F(Brush_Pad_View_Test, commands_say_why_they_do_nothing) {
    expect_note("Nothing selected to use as brush.", Command::use_as_brush);
    expect_note("Select stamp brush tool to copy the current brush to the pad.", Command::move_to_pad);
    expect_note("Select stamp brush tool to delete the current brush.", Command::delete_brush);
    execute(Command::stamp_brush);
    const std::string refused = "Failed to add brush to pad. Either it's already there,\rthere is no current "
                                "brush or the pad is full.";
    expect_note(refused, Command::move_to_pad);
    expect_note("There is no brush selected to delete from the pad.", Command::delete_brush);
    lay_on_pad({0, 0}, {2, 2});
    expect_note(refused, Command::move_to_pad);
    EXPECT_EQ(tools().brush_pad.brushes().size(), 1U);
}

TEST_F(Brush_Pad_View_Test, a_click_on_the_pad_chooses_a_brush) {
    paint_gradient();
    lay_on_pad({0, 0}, {4, 4});
    lay_on_pad({10, 10}, {12, 13});
    EXPECT_EQ(tools().brush().size(), (Size{2, 3}));
    // The first one lies on the cells 0 to 5, the second one on 6 to 9.
    play(script().motion(board_point(0, 0)));
    EXPECT_EQ(pixel_at(board_point(0, 0)), Color(255, 0, 0));
    EXPECT_EQ(pixel_at(board_point(6, 0)), dark_grey);
    EXPECT_EQ(pixel_at(board_point(3, 4)), gradient(2, 3));
    play(script().click(board_point(0, 0)));
    EXPECT_EQ(tools().brush().size(), (Size{4, 4}));
    play(script().click(board_point(6, 4)).click(board_point(30, 100)));
    EXPECT_EQ(tools().brush().size(), (Size{2, 3})) << "free cells choose nothing";
    play(script().click({1028 - 1, 58}).click({1028, 58 - 1}).click({1028, 40}));
    EXPECT_EQ(tools().brush().size(), (Size{2, 3})) << "frame and title do not either";
    play(script().click({1028, 58}));
    EXPECT_EQ(tools().brush().size(), (Size{4, 4}));
    play(script().click(board_point(6, 4)));
    EXPECT_EQ(pixel_at(board_point(0, 0)), dark_grey);
    // With other tools the pad is not there.
    EXPECT_EQ(pixel_at(board_point(20, 150)), pane_background);
    execute(Command::dropper);
    play(script().click(board_point(0, 0)));
    EXPECT_EQ(tools().brush_pad.current()->id, 2);
    EXPECT_NE(pixel_at(board_point(20, 150)), pane_background);
    // Brushes go one after the other; the pen's is left.
    execute(Command::stamp_brush);
    EXPECT_EQ(tools().brush().size(), (Size{2, 3}));
    choose_in_edit_menu(Command::delete_brush);
    EXPECT_EQ(tools().brush().size(), (Size{4, 4}));
    choose_in_edit_menu(Command::delete_brush);
    EXPECT_EQ(tools().brush().owner(), Brush_Owner::pen);
    EXPECT_FALSE(tools().brush_pad.has_current());
}

TEST_F(Brush_Pad_View_Test, pad_is_written_at_once_into_the_folder_of_the_start) {
    const std::filesystem::path home = folder().native_path();
    std::filesystem::create_directory(home / "data" / "brushpad.dat");
    paint_gradient();
    lay_on_pad({3, 3}, {6, 5});
    select({3, 3}, {6, 5});
    choose_in_edit_menu(Command::use_as_brush);
    EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Brush pad") << "it cannot be written";
    std::filesystem::remove(home / "data" / "brushpad.dat");
    std::filesystem::rename(home / "data", home / "moved");
    std::filesystem::create_directory(home / "data");
    lay_on_pad({8, 8}, {9, 9});
    play(script().motion({310, 300}));
    EXPECT_TRUE(std::filesystem::exists(home / "moved" / "brushpad.dat"));
    // Also at the end.
    std::filesystem::remove(home / "moved" / "brushpad.dat");
    select({1, 1}, {2, 2});
    execute(Command::use_as_brush);
    execute(Command::move_to_pad);
    shut_down_application();
    EXPECT_TRUE(std::filesystem::exists(home / "moved" / "brushpad.dat"));
    std::filesystem::remove(home / "data");
    std::filesystem::rename(home / "moved", home / "data");
    start_application();
    ASSERT_TRUE(editor->show_first_frame());
}

TEST_F(Brush_Pad_View_Test, pad_is_kept_until_the_next_start) {
    const std::filesystem::path file(folder().data_path("brushpad.dat"));
    const auto start_again = [] {
        shut_down_application();
        start_application();
        ASSERT_TRUE(editor->show_first_frame());
    };
    start_again();
    EXPECT_FALSE(std::filesystem::exists(file)) << "nothing was kept";
    paint_gradient();
    lay_on_pad({3, 3}, {6, 5});
    start_again();
    ASSERT_TRUE(std::filesystem::exists(file));
    ASSERT_EQ(tools().brush_pad.brushes().size(), 1U);
    EXPECT_FALSE(tools().brush_pad.has_current());
    play(script().key('b').click(board_point(2, 2)));
    ASSERT_EQ(tools().brush().size(), (Size{3, 2}));
    EXPECT_EQ(tools().brush().pixel(2, 1), gradient(5, 4));
    std::filesystem::remove(file);
    start_again();
    EXPECT_FALSE(std::filesystem::exists(file)) << "choosing changes nothing on the board";
}

} // namespace
} // namespace quadrelle::testing
