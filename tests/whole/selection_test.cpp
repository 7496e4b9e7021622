#include "app/window_panes.h"
#include "screen/screen.h"
#include "screen/surface.h"
#include "tests/whole/selection_scene.h"
#include "tileset/tileset_file.h"
#include "views/versions_layout.h"

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
