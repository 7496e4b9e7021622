// What floats over the tile is neither lost nor drawn twice, wherever the user goes meanwhile.

#include "panes/toolbox.h"
#include "tests/whole/program_test.h"
#include "tileset/tileset_file.h"

#include <gtest/gtest.h>

namespace quadrelle::testing {
namespace {

class Floating_Test : public Program_Test {
protected:
    static Work_Area& work() { return editor->canvas().work_area(); }
    static Tile& tile() { return *editor->canvas().tile(); }

    // The pixels of that rectangle, red, leave the tile and float three pixels to the right.
    void lift(Tile_Point from, Tile_Point to) {
        for (int y = from.y; y < to.y; ++y) {
            for (int x = from.x; x < to.x; ++x) {
                tile().set_pixel(x, y, red);
            }
        }
        work().select(selected_rectangle(tile().size(), from, to), Selection_Change::add);
        execute(Command::work_selection);
        play(script().drag({cell(from.x, from.y), cell(from.x + 3, from.y)}));
    }
};

TEST_F(Floating_Test, a_paste_that_persists_leaves_alone_what_is_drawn_over_it_later) {
    toolbox->options().selection_mode = Selection_Mode::persistent;
    lift({2, 2}, {6, 6});
    execute(Command::pen);
    EXPECT_EQ(tile_pixel(6, 4), red);
    play(script().click(cell(6, 4)));
    for (const Command command : {Command::line, Command::invert_selection, Command::deselect,
                                  Command::deselect, Command::rectangle_selector}) {
        execute(command);
        EXPECT_EQ(tile_pixel(6, 4), white) << index_of(command);
    }
}

TEST_F(Floating_Test, another_document_gives_a_plotted_paste_back) {
    lift({2, 2}, {6, 6});
    editor->documents().new_document({4, 4});
    ASSERT_TRUE(work().paste());
    // Beside so small a tile it came into its middle.
    EXPECT_EQ(work().paste()->position, (Tile_Point{0, 0}));
    execute(Command::pen);
    EXPECT_EQ(tile_pixel(1, 1), red);
    execute(Command::undo);
    EXPECT_TRUE(work().paste());
    EXPECT_NE(tile_pixel(1, 1), red);
}

// Across the edge that the shift brought into the middle.
TEST_F(Floating_Test, a_selection_is_mirrored_about_its_own_middle_while_the_tile_is_shifted) {
    execute(Command::horizontal_seam_tool);
    work().select(selected_rectangle(tile().size(), {10, 4}, {16, 8}), Selection_Change::add);
    const Selection before = work().selection();
    tile().set_pixel(10, 5, red);
    execute(Command::mirror);
    EXPECT_EQ(tile_pixel(15, 5), red);
    EXPECT_TRUE(work().selection() == before);
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(10, 5), red);
}

} // namespace
} // namespace quadrelle::testing
