#include "panes/icon_bar.h"
#include "tests/whole/program_test.h"
#include "tileset/tileset_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Color yellow(0xff, 0xe2, 0x3a);

// Every pixel another colour.
Tile distinct_tile(Size size) {
    Tile tile(size.width, size.height);
    for (int i = 0; i < tile.pixel_count(); ++i) {
        tile.set_pixel_at(i, {i % 251, i / 251, 7});
    }
    return tile;
}

// Where pixel (0, 0) of a tile of distinct pixels lies now.
Tile_Point corner_of(const Tile& shown, const Tile& original) {
    const auto found = std::ranges::find(shown.pixels(), original.get_pixel(0, 0));
    const int i = static_cast<int>(found - shown.pixels().begin());
    return {i % shown.width(), i / shown.width()};
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

struct Shift_Case {
    Size tile;
    int horizontal;
    int vertical;
};

TEST_F(Seam_Test, shifts_by_an_even_half_and_gives_the_tile_back) {
    const std::vector<Shift_Case> cases{
        {{24, 24}, 12, 12}, {{6, 10}, 2, 4}, {{7, 11}, 2, 4},    {{9, 64}, 4, 32},
        {{1, 1}, 0, 0},     {{2, 3}, 0, 0},  {{4, 255}, 2, 126},
    };
    for (const Shift_Case& test : cases) {
        SCOPED_TRACE(test.tile.width * 1000 + test.tile.height);
        const Tile original = distinct_tile(test.tile);
        Tile& tile = show(original);
        execute(Command::horizontal_seam_tool);
        EXPECT_EQ(canvas().horizontal_seam_shift(), test.horizontal);
        EXPECT_EQ(canvas().vertical_seam_shift(), no_seam_shift);
        EXPECT_EQ(corner_of(tile, original), (Tile_Point{test.horizontal, 0}));
        execute(Command::vertical_seam_tool);
        EXPECT_EQ(canvas().vertical_seam_shift(), test.vertical);
        EXPECT_EQ(corner_of(tile, original), (Tile_Point{test.horizontal, test.vertical}));
        execute(Command::horizontal_seam_tool);
        EXPECT_EQ(canvas().horizontal_seam_shift(), no_seam_shift);
        EXPECT_EQ(corner_of(tile, original), (Tile_Point{0, test.vertical}));
        execute(Command::vertical_seam_tool);
        EXPECT_EQ(canvas().vertical_seam_shift(), no_seam_shift);
        EXPECT_TRUE(same(tile, original));
        EXPECT_FALSE(document().is_modified());
    }
}

// The first column of the tile's second half begins at x 520, its first row at y 320.
TEST_F(Seam_Test, marks_the_seam_while_it_is_shifted) {
    const auto expect_marked = [](bool column, bool row) {
        EXPECT_EQ(pixel_at({520, 203}) == yellow, column);
        EXPECT_EQ(pixel_at({521, 413}) == yellow, column);
        EXPECT_EQ(pixel_at({403, 321}) == yellow, row);
        EXPECT_EQ(pixel_at({633, 320}) == yellow, row);
        EXPECT_NE(pixel_at({519, 203}), yellow);
        EXPECT_NE(pixel_at({522, 203}), yellow);
        EXPECT_NE(pixel_at({403, 322}), yellow);
        EXPECT_NE(pixel_at({403, 319}), yellow);
    };
    execute(Command::center_tile_on_view);
    expect_marked(false, false);
    execute(Command::horizontal_seam_tool);
    expect_marked(true, false);
    execute(Command::vertical_seam_tool);
    expect_marked(true, true);
    execute(Command::horizontal_seam_tool);
    expect_marked(false, true);
    execute(Command::next_tile);
    expect_marked(false, false);
}

TEST_F(Seam_Test, marks_large_cells_more_broadly_and_only_within_the_viewport) {
    canvas().set_pixel_size(16);
    canvas().centre();
    execute(Command::horizontal_seam_tool);
    const int seam = canvas().origin().x + 12 * 16;
    EXPECT_EQ(pixel_at({seam + 3, 300 / 16 * 16 + 64 % 16}), yellow);
    canvas().scroll_origin(264 - 2 - seam, -40);
    execute(Command::vertical_seam_tool);
    EXPECT_NE(pixel_at({262, 200}), yellow);
    EXPECT_NE(pixel_at({263, 200}), yellow);
    EXPECT_EQ(pixel_at({265, canvas().origin().y + 16 * 8}), yellow);
}

TEST_F(Seam_Test, is_undone_before_commands_on_the_set) {
    for (const Command command : {Command::next_tile, Command::add_new_tile, Command::insert_new_tile,
                                  Command::load, Command::rewind_strip, Command::versions}) {
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

TEST_F(Seam_Test, is_never_saved) {
    const Tile original = distinct_tile({10, 6});
    for (const Command command : {Command::save, Command::save_as}) {
        show(original);
        shift_both_ways();
        const std::string path = folder().data_path("seam.qdl");
        std::filesystem::remove(path);
        answer_files(File_Answer_State::chosen, path);
        execute(command);
        const Loaded_Tileset loaded = load_tileset(path);
        ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
        EXPECT_TRUE(same(loaded.tileset->tile_at(0), original));
    }
}

TEST_F(Seam_Test, what_the_history_pen_draws_is_shifted_along) {
    Tile& tile = show(distinct_tile({8, 8}));
    canvas().save_history();
    shift_both_ways();
    EXPECT_TRUE(same(tile, *canvas().history()));
    execute(Command::horizontal_seam_tool);
    EXPECT_TRUE(same(tile, *canvas().history()));
    execute(Command::mirror);
    EXPECT_FALSE(same(tile, *canvas().history()));
}

TEST_F(Seam_Test, icons_shift_and_are_lit_meanwhile) {
    const auto lit = [](Point icon) { return pixel_at({icon.x + 2, icon.y + 2}); };
    for (const Command command : {Command::horizontal_seam_tool, Command::vertical_seam_tool}) {
        Point icon{784, 32};
        while (icon.y < 600 && Icon_Bar(32).command_at(icon) != command) {
            ++icon.y;
        }
        const Color plain = lit(icon);
        play(script().click(icon));
        EXPECT_NE(lit(icon), plain);
        play(script().click(icon));
        EXPECT_EQ(lit(icon), plain);
        play(script().click(icon));
        execute(Command::next_tile);
        EXPECT_EQ(lit(icon), plain);
    }
}

} // namespace
} // namespace quadrelle::testing
