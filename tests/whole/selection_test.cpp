#include "app/window_panes.h"
#include "canvas/stroke_table.h"
#include "commands/command_table.h"
#include "screen/screen.h"
#include "screen/surface.h"
#include "tests/whole/selection_scene.h"
#include "tileset/tileset_file.h"
#include "views/versions_layout.h"

#include <tuple>
#include <utility>

namespace quadrelle::testing {
namespace {

// The preview repeats it four times; a selection takes the place of what floats.
TEST_F(Selection_Test, preview_shows_what_floats_where_the_canvas_does) {
    Tile picture(3, 2);
    picture.fill(red);
    work().float_paste({picture, {22, 4}});
    execute(Command::work_selection);
    EXPECT_EQ(count_in_preview(red), 4 * 4);
    play(script().key(key::left));
    EXPECT_EQ(count_in_preview(red), 4 * 6);
    work().select(selected_rectangle({24, 24}, {0, 0}, {4, 4}), Selection_Change::add);
    editor->redraw(Present::yes);
    EXPECT_EQ(count_in_preview(red), 0);
    execute(Command::deselect);
    EXPECT_EQ(count_in_preview(red), 4 * 6);
}

// With the tool that moves it, or fixed below another one.
TEST_F(Selection_Test, commands_change_what_floats_in_view_and_leave_the_tile) {
    const Art before{"ab ", "cde"};
    struct Row {
        Command command;
        Art after; // none for nothing floating
        Tile_Point position = {5, 6};
    };
    const std::vector<Row> rows{
        {Command::fill, {"## ", "###"}},
        {Command::clear, {}},
        {Command::mirror, {" ba", "edc"}},
        {Command::flip, {"cde", "ab "}},
        {Command::rotate, {"ca", "db", "e "}},
        {Command::rotate_back, {" e", "bd", "ac"}},
        {Command::scroll_left, before, {4, 6}},
        {Command::scroll_down, before, {5, 7}},
        {Command::anti_alias, art(softened(make_tile(before)))},
    };
    for (const Selection_Mode mode : {Selection_Mode::standard, Selection_Mode::fixed}) {
        tools().options.selection_mode = mode;
        execute(mode == Selection_Mode::fixed ? Command::pen : Command::work_selection);
        for (const Row& row : rows) {
            SCOPED_TRACE(menu_text(row.command));
            paint_noise(3);
            document().history().reset(document().tileset());
            work().float_paste({make_tile(before), {5, 6}});
            const Tile_Picture tile_before = tile_picture();
            execute(row.command);
            EXPECT_EQ(tile_picture(), tile_before);
            ASSERT_EQ(work().paste().has_value(), !row.after.empty());
            EXPECT_TRUE(!work().paste() || art(work().paste()->picture) == row.after);
            EXPECT_TRUE(!work().paste() || work().paste()->position == row.position);
            execute(Command::undo);
            EXPECT_EQ(art(work().paste()->picture), before);
        }
        work().drop_paste();
    }
}

TEST_F(Selection_Test, arrow_keys_move_what_floats_and_else_scroll_the_tile) {
    Tile picture(3, 2);
    work().float_paste({picture, {5, 5}});
    execute(Command::work_selection);
    play(script().key(key::left).key(key::up).key(key::up).key(key::right, Modifier::shift));
    EXPECT_EQ(work().paste()->position, (Tile_Point{12, 3}));
    play(script().key(key::down, Modifier::shift));
    EXPECT_EQ(work().paste()->position, (Tile_Point{12, 11}));
    // One step of undo, for nothing came between.
    execute(Command::undo);
    EXPECT_EQ(work().paste()->position, (Tile_Point{5, 5}));
    work().drop_paste();
    tile().set_pixel(5, 5, red);
    play(script().key(key::left).key(key::left, Modifier::shift));
    EXPECT_EQ(tile_pixel(4, 5), red);
}

// Plotted twice in one place, what is translucent would get denser.
TEST_F(Selection_Test, what_persists_is_plotted_again_when_it_was_moved_or_another_tile_came) {
    make_set({24, 24}, 2, [](int, Point) { return black; });
    tools().options.selection_mode = Selection_Mode::persistent;
    execute(Command::work_selection);
    Tile picture(1, 1);
    picture.fill({255, 255, 255, 100});
    work().float_paste({picture, {5, 5}});
    const auto leave = [this] {
        execute(Command::pen);
        execute(Command::work_selection);
    };
    leave();
    const Color once = tile_pixel(5, 5);
    ASSERT_NE(once, black);
    const std::size_t steps = document().history().entries().size();
    leave();
    execute(Command::plot_paste);
    click({20, 20});
    execute(Command::horizontal_seam_tool);
    leave();
    execute(Command::horizontal_seam_tool);
    EXPECT_EQ(document().history().entries().size(), steps);
    EXPECT_EQ(tile_pixel(5, 5), once);
    play(script().key(key::right));
    leave();
    EXPECT_EQ(tile_pixel(6, 5), once);
    execute(Command::next_tile);
    leave();
    EXPECT_EQ(tile_pixel(6, 5), once);
    play(script().key(key::right).key(key::left));
    leave();
    EXPECT_NE(tile_pixel(6, 5), once);
}

// In whole cells on both sides of the tile's edges.
TEST_F(Selection_Test, a_drag_follows_the_pointer_beyond_the_left_and_the_top_edge) {
    execute(Command::work_selection);
    work().float_paste({Tile(6, 6), {2, 2}});
    for (int step = 1; step < 6; ++step) {
        script().press(cell(4, 4)).motion(cell(4 - step, 4 - step)).motion(cell(-step, -step));
        play(script().release(cell(-step, -step)));
        EXPECT_EQ(work().paste()->position, (Tile_Point{-2 - step, -2 - step}));
        work().move_paste_to({2, 2});
    }
    // And back, by what hangs over.
    work().move_paste_to({-3, -3});
    drag({-1, -1}, {5, 3});
    EXPECT_EQ(work().paste()->position, (Tile_Point{3, 1}));
    work().drop_paste();
    execute(Command::scroll);
    tile().set_pixel(5, 5, red);
    drag({1, 1}, {-2, -3});
    EXPECT_EQ(tile_pixel(2, 1), red);
}

// In one step; turned in its place it would not fit there.
TEST_F(Selection_Test, turning_what_is_selected_and_not_square_lifts_it) {
    paint_noise(4);
    const Tile_Picture before = tile_picture();
    for (const Command command : {Command::rotate, Command::rotate_back}) {
        select_rectangle({4, 6}, {10, 8});
        const Color corner = tile_pixel(4, 6);
        execute(command);
        EXPECT_EQ(work().paste()->picture->size(), (Size{2, 6}));
        EXPECT_EQ(work().paste()->position, (Tile_Point{6, 4}));
        EXPECT_EQ(work().paste()->picture->get_pixel(command == Command::rotate ? 1 : 0,
                                                     command == Command::rotate ? 0 : 5),
                  corner);
        EXPECT_TRUE(editor->canvas().shows_paste(tools()));
        EXPECT_EQ(count(clear), 12);
        execute(Command::undo);
        EXPECT_EQ(tile_picture(), before);
        EXPECT_EQ(work().selection().count(), 12);
        execute(Command::deselect);
    }
}

TEST_F(Selection_Test, what_floats_is_turned_on_from_the_pixels_as_they_were_taken_after_undo_and_redo) {
    const Floating_Paste taken{random_tile({9, 6}), {8, 9}};
    execute(Command::free_rotate);
    work().float_paste(taken);
    play(script().drag({cell(20, 12), cell(20, 15)}));
    play(script().drag({cell(20, 12), cell(20, 15)}));
    execute(Command::undo);
    execute(Command::undo);
    execute(Command::redo);
    EXPECT_EQ(work().state().memory_size(),
              work().paste()->picture->memory_size() + taken.picture->memory_size());
    play(script().drag({cell(20, 15), cell(20, 12)}));
    EXPECT_EQ(*work().paste(), taken);
}

TEST_F(Selection_Test, what_floats_in_view_is_the_color_that_is_told_and_picked) {
    tools().options.selection_mode = Selection_Mode::fixed;
    execute(Command::dropper);
    Tile picture(2, 2);
    picture.fill(red);
    work().float_paste({picture, {5, 5}});
    play(script().motion(cell(5, 5)));
    EXPECT_EQ(tools().figures.dropper_color, red);
    EXPECT_EQ(editor->panes().pointed(cell(6, 6)), Pointed(Pointed_Pixel{{6, 6}, red}));
    click({5, 6});
    EXPECT_EQ(tools().colors.of(Mouse_Button::left), red);
}

// Until the tool is left; undo and redo go there too.
TEST_F(Selection_Test, turning_the_tile_starts_from_what_it_was_when_the_tool_was_taken) {
    paint_noise(6);
    document().history().reset(document().tileset());
    const Tile_Picture before = tile_picture();
    const auto turn = [this](Tile_Point from, Tile_Point to) {
        play(script().drag({cell(from.x, from.y), cell(to.x, to.y)}));
    };
    constexpr Tile_Point start{20, 12};
    constexpr Tile_Point end{20, 15};
    for (const bool leaves : {false, true}) {
        execute(Command::free_rotate);
        turn(start, end);
        const Tile_Picture turned_once = tile_picture();
        EXPECT_EQ(work().state().memory_size(), 2 * tile().memory_size());
        turn(start, end);
        execute(Command::undo);
        EXPECT_EQ(tile_picture(), turned_once);
        if (leaves) {
            execute(Command::pen);
            execute(Command::free_rotate);
        }
        play(script().motion({5, 5}));
        EXPECT_EQ(tools().figures.degrees != 0, !leaves);
        turn(end, start);
        EXPECT_EQ(tile_picture() == before, !leaves);
        execute(Command::undo);
        execute(Command::undo);
        EXPECT_EQ(tile_picture(), before);
    }
}

// As a step of that tile; where no other one comes, it floats on.
TEST_F(Selection_Test, what_was_lifted_drops_into_its_tile_before_another_one_comes) {
    constexpr Point second_in_strip{4 + 24 + 12, 648};
    constexpr Point second_in_grid{16 + 32 + 16, 32};
    constexpr Point first_tab{270, 42};
    const std::vector<std::function<void()>> ways{
        [this] { execute(Command::next_tile); },
        [this] { execute(Command::insert_new_tile); },
        [&] { play(script().click(second_in_strip)); },
        [&] { play(script().click(first_tab)); },
        [&] { play(script().key(key::tab).press(second_in_grid)); },
        [&] {
            script().press(second_in_grid).key(key::space);
            execute(Command::arrange_select);
        },
    };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        SCOPED_TRACE(i);
        make_set({24, 24}, 2, [](int, Point pixel) { return pixel == Point{3, 3} ? red : black; });
        const Tileset_Document& set = document();
        select_rectangle({2, 2}, {5, 5});
        execute(Command::work_selection);
        drag({3, 3}, {10, 10});
        execute(Command::previous_tile);
        ASSERT_TRUE(work().paste());
        EXPECT_EQ(tile_pixel(10, 10), black);
        const std::size_t steps = set.history().entries().size();
        ways[i]();
        EXPECT_FALSE(work().paste());
        const Undo_Entry& drop = set.history().entries()[steps];
        EXPECT_EQ(drop.kind, Command::plot_paste);
        EXPECT_EQ(drop.snapshot->tile.get_pixel(10, 10), red);
        const int tile = drop.tile_index;
        EXPECT_EQ(set.tileset().tile_at(tile).get_pixel(10, 10), red);
        EXPECT_EQ(set.tileset().tile_at(tile).get_pixel(3, 3), clear);
    }
}

// Also fixed, or below a selection.
TEST_F(Selection_Test, what_was_lifted_is_in_every_file_that_is_written) {
    const std::string file = folder().path("set.qdl");
    for (const Selection_Mode mode :
         {Selection_Mode::standard, Selection_Mode::persistent, Selection_Mode::fixed}) {
        for (const bool is_below_selection : {false, true}) {
            SCOPED_TRACE(static_cast<int>(mode) * 10 + is_below_selection);
            make_set({24, 24}, 1, [](int, Point pixel) { return pixel == Point{3, 3} ? red : black; });
            tools().options.selection_mode = mode;
            select_rectangle({2, 2}, {5, 5});
            execute(Command::work_selection);
            drag({3, 3}, {10, 10});
            if (is_below_selection) {
                work().select(selected_rectangle({24, 24}, {20, 20}, {22, 22}), Selection_Change::add);
            }
            answer_files(File_Answer_State::chosen, file);
            execute(Command::save_as);
            EXPECT_EQ(load_tileset(file).tileset->tile_at(0).get_pixel(10, 10), red);
            EXPECT_EQ(work().paste().has_value(), mode != Selection_Mode::standard);
            EXPECT_FALSE(document().is_modified());
        }
    }
}

// What was lifted, or is pasted: it settles when the file is written, and not when that is given up.
TEST_F(Selection_Test, pictures_that_are_taken_show_what_floats) {
    execute(Command::work_selection);
    Tile picture(2, 2);
    picture.fill(red);
    work().float_paste({picture, {3, 4}});
    const Rectangle store = versions_layout({24, 24}, screen->size()).store_button;
    script().key('v').key('1').click({store.x + 5, store.y + 5}).key(key::escape);
    play();
    EXPECT_EQ(document().versions().copy(0, {24, 24}).get_pixel(4, 5), red);
    script().check([] { EXPECT_EQ(pixel_at({24 + 4, 24 + 5}), red); }).key(key::escape);
    execute(Command::view_in_real_size);
    const std::string file = folder().path("set.bmp");
    for (const File_Answer_State answer : {File_Answer_State::cancelled, File_Answer_State::chosen}) {
        const bool is_given_up = answer == File_Answer_State::cancelled;
        answer_files(answer, file);
        script().key(key::enter);
        execute(Command::export_bitmap);
        EXPECT_EQ(work().paste().has_value(), is_given_up);
        EXPECT_EQ(count(red), is_given_up ? 0 : 4);
    }
    EXPECT_EQ(Surface(file).get_pixel(4, 5), to_rgba(red));
}

// The shift brought that edge of the tile into the middle.
TEST_F(Selection_Test, what_was_lifted_across_the_seam_drops_whole_before_the_tile_is_shifted_back) {
    const std::vector<std::function<void()>> ways{
        [this] {
            answer_files(File_Answer_State::chosen, folder().path("set.qdl"));
            execute(Command::save_as);
        },
        [this] { execute(Command::next_tile); },
        [this] {
            play(script().key(key::tab).press({16 + 32 + 16, 32}));
        },
        [this] { execute(Command::horizontal_seam_tool); },
        [this] { execute(Command::export_bitmap); },
    };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        SCOPED_TRACE(i);
        make_set({24, 24}, 2, [](int, Point pixel) { return pixel.y == 4 ? red : black; });
        const Tile& before = tile();
        execute(Command::horizontal_seam_tool);
        select_rectangle({8, 4}, {16, 5});
        execute(Command::work_selection);
        drag({9, 4}, {9, 6});
        answer_files(File_Answer_State::cancelled);
        script().set_afterwards([this](std::string_view) { script().key(key::escape); });
        ways[i]();
        script().set_afterwards({});
        EXPECT_FALSE(editor->canvas().is_shifted());
        EXPECT_EQ(std::ranges::count(before.pixels(), red), 24);
        EXPECT_EQ(before.get_pixel(20, 6), red);
        EXPECT_EQ(before.get_pixel(3, 6), red);
    }
    // The last one left the tile.
    execute(Command::undo);
    EXPECT_TRUE(editor->canvas().is_shifted());
    EXPECT_EQ(work().paste()->position, (Tile_Point{8, 6}));
}

TEST_F(Selection_Test, only_what_is_wanted_there_is_plotted_on_another_tile) {
    tools().options.selection_mode = Selection_Mode::persistent;
    make_set({24, 24}, 2, [](int, Point) { return black; });
    Tile picture(2, 2);
    picture.fill(red);
    work().float_paste({picture, {15, 15}});
    execute(Command::work_selection);
    execute(Command::rectangle_selector);
    EXPECT_EQ(count(red), 4);
    // It was plotted where it was seen.
    execute(Command::next_tile);
    select_rectangle({2, 2}, {5, 5});
    execute(Command::work_selection);
    drag({3, 3}, {6, 6});
    EXPECT_EQ(count(red), 0);
    // And what was lifted does not go on to other tiles.
    execute(Command::previous_tile);
    EXPECT_FALSE(work().paste());
}

TEST_F(Selection_Test, stays_for_the_tile_of_another_set_or_not_as_the_option_says) {
    answer_files(File_Answer_State::chosen, folder().path("set.qdl"));
    execute(Command::save_as);
    const std::vector<std::function<void()>> ways{
        [this] { execute(Command::load); },
        [this] {
            play(script().click({270, 42}));
        },
        [this] {
            script().press({16 + 32 + 16, 32}).key(key::space);
            execute(Command::arrange_select);
        },
    };
    for (const bool clears : {false, true}) {
        set_option(Option::clear_selection, clears ? 1 : 0);
        for (std::size_t i = 0; i < ways.size(); ++i) {
            SCOPED_TRACE(i);
            make_set({24, 24}, 2, [](int, Point) { return red; });
            select_rectangle({2, 2}, {5, 5});
            const Tile* const before = &tile();
            ways[i]();
            EXPECT_NE(&tile(), before);
            EXPECT_EQ(work().has_selection(), !clears);
        }
    }
}

} // namespace
} // namespace quadrelle::testing
