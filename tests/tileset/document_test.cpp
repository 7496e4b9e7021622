#include "tileset/document.h"

#include "commands/command_table.h"
#include "tests/support/tiles.h"

#include <gtest/gtest.h>

#include <vector>

namespace quadrelle::testing {
namespace {

Tileset_Document document_of(int tiles) {
    Tileset tileset({3, 2}, 3);
    for (int i = 0; i < tiles; ++i) {
        tileset.add_tile();
    }
    return {"set.qdl", std::move(tileset)};
}

TEST(Tileset_Document, shows_in_its_title_whether_it_is_saved) {
    Tileset_Document document = document_of(1);
    EXPECT_EQ(document.title(), "set.qdl");
    EXPECT_TRUE(document.mark_changed());
    EXPECT_FALSE(document.mark_changed());
    EXPECT_EQ(document.title(), "set.qdl*");
    EXPECT_FALSE(document.is_named());
    document.set_file("/a/b.qdl");
    EXPECT_TRUE(document.is_named());
    EXPECT_EQ(document.title(), "/a/b.qdl*");
    document.clear_modified();
    EXPECT_EQ(document.title(), "/a/b.qdl");
}

struct Step {
    Command command;
    bool is_done;
    int count;
    int current;
};

TEST(Tileset_Document, answers_tile_commands_up_to_their_limits) {
    const std::vector<Step> steps{
        {Command::next_tile, false, 1, 0},       {Command::previous_tile, false, 1, 0},
        {Command::add_new_tile, true, 2, 1},     {Command::insert_new_tile, true, 3, 1},
        {Command::insert_new_tile, false, 3, 1}, {Command::add_new_tile, false, 3, 1},
        {Command::next_tile, true, 3, 2},        {Command::next_tile, false, 3, 2},
        {Command::previous_tile, true, 3, 1},    {Command::delete_tile, true, 2, 1},
        {Command::delete_tile, true, 1, 0},      {Command::delete_tile, true, 1, 0},
    };
    Tileset_Document document = document_of(1);
    for (const Step& step : steps) {
        SCOPED_TRACE(row_of(step.command).name);
        EXPECT_EQ(document.handle_command(step.command), step.is_done ? step.command : Command::skip_command);
        EXPECT_EQ(document.tileset().count(), step.count);
        EXPECT_EQ(document.tileset().current_index(), step.current);
    }
}

struct Transform_Case {
    Command command;
    Art of_square;
    Art of_wide; // empty where it is refused
};

const std::vector<Transform_Case> transform_cases{
    {Command::rotate, {"gda", "heb", "ifc"}, {}},
    {Command::rotate_back, {"cfi", "beh", "adg"}, {}},
    {Command::mirror, {"cba", "fed", "ihg"}, {"cba", "fed"}},
    {Command::flip, {"ghi", "def", "abc"}, {"def", "abc"}},
    {Command::scroll_left, {"bca", "efd", "hig"}, {"bca", "efd"}},
    {Command::scroll_right, {"cab", "fde", "igh"}, {"cab", "fde"}},
    {Command::scroll_up, {"def", "ghi", "abc"}, {"def", "abc"}},
    {Command::scroll_down, {"ghi", "abc", "def"}, {"def", "abc"}},
};

Tileset_Document document_showing(const Art& rows) {
    const Tile tile = make_tile(rows);
    Tileset tileset(tile.size());
    tileset.add_tile();
    tileset.add_tile();
    tile.copy_to(*tileset.current_tile());
    return {"set.qdl", std::move(tileset)};
}

TEST(Tileset_Document, transforms_the_current_tile_only) {
    for (const Transform_Case& test : transform_cases) {
        SCOPED_TRACE(row_of(test.command).name);
        Tileset_Document document = document_showing({"abc", "def", "ghi"});
        EXPECT_EQ(document.handle_command(test.command), test.command);
        EXPECT_EQ(art(*document.tileset().current_tile()), test.of_square);
        EXPECT_EQ(art(document.tileset().tile_at(0)), (Art{"...", "...", "..."}));
        EXPECT_TRUE(row_of(test.command).has(Command_Trait::step));
    }
}

} // namespace
} // namespace quadrelle::testing
