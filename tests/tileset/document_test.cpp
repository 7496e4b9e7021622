#include "tileset/document.h"

#include "commands/command_table.h"
#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

Tileset_Document document_of(int tiles) {
    Tileset tileset({3, 2}, 3);
    for (int i = 0; i < tiles; ++i) {
        tileset.add_tile();
    }
    return {"set.qdl", std::move(tileset)};
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

TEST(Tileset_Document, without_tiles_refuses_all_but_adding) {
    Tileset_Document document = document_of(0);
    document.tileset().resize_all({5, 6});
    for (const Command command : {Command::next_tile, Command::previous_tile, Command::delete_tile}) {
        EXPECT_EQ(document.handle_command(command), Command::skip_command);
        EXPECT_EQ(document.tileset().current_index(), 0);
    }
    EXPECT_EQ(document.handle_command(Command::insert_new_tile), Command::insert_new_tile);
    EXPECT_EQ(document.tileset().current_tile()->size(), (Size{5, 6}));
}

// Not only of square tiles, but these cannot be turned.
TEST(Tileset_Document, transforms_the_current_tile_only) {
    struct Row {
        Command command;
        Art of_square;
        Art of_wide;
    };
    const std::vector<Row> rows{
        {Command::rotate, {"gda", "heb", "ifc"}, {"abc", "def"}},
        {Command::rotate_back, {"cfi", "beh", "adg"}, {"abc", "def"}},
        {Command::mirror, {"cba", "fed", "ihg"}, {"cba", "fed"}},
        {Command::flip, {"ghi", "def", "abc"}, {"def", "abc"}},
        {Command::scroll_left, {"bca", "efd", "hig"}, {"bca", "efd"}},
        {Command::scroll_right, {"cab", "fde", "igh"}, {"cab", "fde"}},
        {Command::scroll_up, {"def", "ghi", "abc"}, {"def", "abc"}},
        {Command::scroll_down, {"ghi", "abc", "def"}, {"def", "abc"}},
    };
    for (const Row& row : rows) {
        for (const auto& [before, after] : {std::pair(Art{"abc", "def", "ghi"}, row.of_square),
                                            std::pair(Art{"abc", "def"}, row.of_wide)}) {
            SCOPED_TRACE(row_of(row.command).name);
            const Tile tile = make_tile(before);
            Tileset tileset(tile.size());
            tileset.add_tile();
            tileset.add_tile();
            tile.copy_to(*tileset.current_tile());
            Tileset_Document document("set.qdl", std::move(tileset));
            EXPECT_EQ(document.handle_command(row.command),
                      before == after ? Command::skip_command : row.command);
            EXPECT_EQ(art(*document.tileset().current_tile()), after);
            EXPECT_EQ(art(document.tileset().tile_at(0)), blank(3, tile.height()));
        }
    }
}

} // namespace
} // namespace quadrelle::testing
