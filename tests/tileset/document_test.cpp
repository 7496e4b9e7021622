#include "tileset/document.h"

#include "app/command_table.h"

#include <gtest/gtest.h>

#include <vector>

namespace quadrelle {
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
    EXPECT_TRUE(document.set_modified());
    EXPECT_FALSE(document.set_modified());
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

TEST(Tileset_Document, knows_no_other_command) {
    for (const Command other : {Command::pen, Command::quit, Command::save, Command::undo, Command::flip}) {
        EXPECT_EQ(document_of(1).handle_command(other), Command::none);
    }
}

TEST(Tileset_Document, without_tiles_can_only_get_some) {
    Tileset_Document document = document_of(0);
    for (const Command refused : {Command::next_tile, Command::previous_tile, Command::delete_tile}) {
        EXPECT_EQ(document.handle_command(refused), Command::skip_command);
    }
    EXPECT_EQ(document.handle_command(Command::insert_new_tile), Command::insert_new_tile);
    EXPECT_EQ(document.tileset().count(), 1);
}

} // namespace
} // namespace quadrelle
