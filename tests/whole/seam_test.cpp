#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

// Every pixel another colour.
Tile distinct_tile(Size size) {
    Tile tile(size.width, size.height);
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, {i % 251, i / 251, 7});
    }
    return tile;
}

class Seam_Test : public Program_Test {
protected:
    static Canvas_View& canvas() { return editor->canvas(); }

    static Tile& show(const Tile& tile) {
        editor->documents().new_document(tile.size());
        tile.copy_to(*canvas().tile());
        return *canvas().tile();
    }

    static bool same(const Tile& tile, const Tile& other) {
        return std::ranges::equal(tile.pixels(), other.pixels());
    }

    void shift_both_ways() {
        execute(Command::horizontal_seam_tool);
        execute(Command::vertical_seam_tool);
    }
};

// What it does to the pixels is for the walk through whole sessions.
TEST_F(Seam_Test, shifts_by_an_even_half_and_gives_the_tile_back) {
    struct Row {
        Size tile;
        int horizontal;
        int vertical;
    };
    for (const Row& row : std::vector<Row>{{{24, 24}, 12, 12},
                                           {{7, 11}, 2, 4},
                                           {{9, 64}, 4, 32},
                                           {{1, 1}, 0, 0},
                                           {{2, 3}, 0, 0},
                                           {{4, 255}, 2, 126}}) {
        SCOPED_TRACE(row.tile.width * 1000 + row.tile.height);
        const Tile original = distinct_tile(row.tile);
        const Tile& tile = show(original);
        shift_both_ways();
        EXPECT_EQ(canvas().horizontal_seam_shift(), row.horizontal);
        EXPECT_EQ(canvas().vertical_seam_shift(), row.vertical);
        shift_both_ways();
        EXPECT_EQ(canvas().horizontal_seam_shift(), no_seam_shift);
        EXPECT_EQ(canvas().vertical_seam_shift(), no_seam_shift);
        EXPECT_TRUE(same(tile, original));
        EXPECT_FALSE(document().is_modified());
    }
}

TEST_F(Seam_Test, is_undone_before_commands_on_the_set) {
    for (const Command command : {Command::load, Command::versions}) {
        SCOPED_TRACE(static_cast<int>(command));
        const Tile original = distinct_tile({10, 6});
        Tile& tile = show(original);
        shift_both_ways();
        ASSERT_FALSE(same(tile, original));
        script().set_afterwards([this](std::string_view) { script().key(key::escape); });
        execute(command);
        script().set_afterwards({});
        EXPECT_TRUE(same(tile, original));
        EXPECT_EQ(canvas().horizontal_seam_shift(), no_seam_shift);
        EXPECT_EQ(canvas().vertical_seam_shift(), no_seam_shift);
    }
}

// Softening moves no pixel, and what is selected is turned within the tile.
TEST_F(Seam_Test, what_the_history_pen_draws_goes_with_the_whole_tile) {
    Tile& tile = show(distinct_tile({8, 8}));
    canvas().save_history();
    for (const Command command :
         {Command::horizontal_seam_tool, Command::vertical_seam_tool, Command::rotate, Command::mirror,
          Command::scroll_up, Command::horizontal_seam_tool, Command::flip, Command::scroll_right,
          Command::rotate_back, Command::undo, Command::vertical_seam_tool, Command::undo, Command::undo,
          Command::redo, Command::undo, Command::undo}) {
        SCOPED_TRACE(static_cast<int>(command));
        execute(command);
        EXPECT_TRUE(same(tile, *canvas().history()));
    }
    canvas().work_area().select(selected_rectangle({8, 8}, {1, 1}, {4, 4}), Selection_Change::add);
    for (const Command command : {Command::rotate, Command::undo, Command::deselect, Command::anti_alias}) {
        const Tile before(*canvas().history());
        execute(command);
        EXPECT_TRUE(same(before, *canvas().history())) << static_cast<int>(command);
    }
}

// Where it is seen, though the edge of the tile lies elsewhere then.
TEST_F(Seam_Test, a_copy_that_floats_stays_in_reach) {
    execute(Command::work_selection);
    Work_Area& work = canvas().work_area();
    const auto toggled = [&](Tile_Point from) {
        work.float_paste({Tile(6, 3), from});
        shift_both_ways();
        return work.paste()->position;
    };
    EXPECT_EQ(toggled({20, 2}), (Tile_Point{8, 14}));
    EXPECT_EQ(toggled({2, 20}), (Tile_Point{14, 8}));
    EXPECT_EQ(toggled({-2, 2}), (Tile_Point{10, 14}));
    // A step that was made meanwhile knows it by where the tile's edges were.
    work.float_paste({Tile(6, 3), {2, 2}});
    play(script().key(key::right));
    shift_both_ways();
    EXPECT_EQ(work.paste()->position, (Tile_Point{15, 14}));
    execute(Command::undo);
    EXPECT_EQ(work.paste()->position, (Tile_Point{14, 14}));
}

// It would drop somewhere else, if it came into reach.
TEST_F(Seam_Test, what_was_lifted_comes_back_where_it_was_seen) {
    execute(Command::work_selection);
    execute(Command::horizontal_seam_tool);
    Work_Area& work = canvas().work_area();
    work.select(selected_rectangle({24, 24}, {15, 4}, {23, 8}), Selection_Change::add);
    play(script().drag({cell(17, 6), cell(23, 6)}));
    ASSERT_EQ(work.paste()->position, (Tile_Point{21, 4}));
    script().key(key::escape);
    execute(Command::view_tile_array);
    EXPECT_EQ(work.paste()->position, (Tile_Point{21, 4}));
    execute(Command::horizontal_seam_tool);
    execute(Command::undo);
    EXPECT_EQ(work.paste()->position, (Tile_Point{21, 4}));
    EXPECT_EQ(canvas().horizontal_seam_shift(), 12);
}

// Across the edge that the shift brought into the middle.
TEST_F(Seam_Test, a_selection_is_mirrored_about_its_own_middle_meanwhile) {
    execute(Command::horizontal_seam_tool);
    Work_Area& work = canvas().work_area();
    work.select(selected_rectangle({24, 24}, {10, 4}, {16, 8}), Selection_Change::add);
    const Selection before = work.selection();
    canvas().tile()->set_pixel(10, 5, red);
    execute(Command::mirror);
    EXPECT_EQ(tile_pixel(15, 5), red);
    EXPECT_TRUE(work.selection() == before);
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(10, 5), red);
    // And so is what floats.
    execute(Command::copy);
    execute(Command::paste);
    execute(Command::mirror);
    EXPECT_EQ(work.paste()->picture->get_pixel(5, 1), red);
}

} // namespace
} // namespace quadrelle::testing
