// Files that are dropped on the window, or chosen to be loaded.

#include "app/window_panes.h"
#include "pixels/picture_formats.h"
#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

class Open_File_Test : public Program_Test {
protected:
    std::string stored_picture(const std::string& name, const Tile& picture) {
        const std::string path = folder().data_path(name);
        store(path, encode_png(picture));
        return path;
    }
    [[nodiscard]] static std::vector<Tile_Picture> tiles() {
        std::vector<Tile_Picture> result;
        for (int i = 0; i < document().tileset().count(); ++i) {
            result.push_back(picture_of(document().tileset().tile_at(i)));
        }
        return result;
    }
};

constexpr const char* dialog = "dialog \"New tileset from picture\"";

// Two rows of three tiles, the last one transparent, the fifth like the first.
Tile sheet() {
    Tile picture(3 * 24, 2 * 24);
    for (int i = 0; i < 5; ++i) {
        random_tile({24, 24}, i == 4 ? 1 : static_cast<unsigned>(i + 1))
            .paste_into(picture, i % 3 * 24, i / 3 * 24);
    }
    Tile clear(24, 24);
    clear.fill({7, 7, 7, 0});
    clear.paste_into(picture, 48, 24);
    return picture;
}

Tile_Picture tile_of_sheet(int i) {
    return picture_of(random_tile({24, 24}, i == 4 ? 1 : static_cast<unsigned>(i + 1)));
}

TEST_F(Open_File_Test, dropped_picture_becomes_an_unsaved_set) {
    play(script()
             .drop_file(stored_picture("ü.png", sheet()))
             .check_loop([](std::string_view loop) { EXPECT_EQ(loop, dialog); })
             .key(key::enter));
    EXPECT_EQ(window_title(), "Quadrelle 0.90 - untitled1.qdl*");
    std::vector<Tile_Picture> expected;
    for (int i = 0; i < 5; ++i) {
        expected.push_back(tile_of_sheet(i));
    }
    EXPECT_EQ(tiles(), expected);
    EXPECT_EQ(document().tileset().current_index(), 0);
    EXPECT_EQ(document().history().entries().size(), 1U);
    EXPECT_FALSE(document().is_named());
}

TEST_F(Open_File_Test, dialog_says_how_the_picture_is_cut) {
    const std::string path = stored_picture("sheet.png", sheet());
    // The arrows of the tile's width, then the mark of equal tiles.
    const auto less_width = [](Script& to) { to.click({343, 492}); };
    less_width(script().drop_file(path));
    script().click({473, 584}).key(key::enter);
    play();
    EXPECT_EQ(document().tileset().tile_size(), (Size{23, 24}));
    EXPECT_EQ(document().tileset().count(), 6);
    // Given up, it leaves everything as it is.
    play(script().drop_file(path).key(key::escape));
    EXPECT_EQ(editor->documents().count(), 2);
}

TEST_F(Open_File_Test, several_files_come_one_after_the_other_also_over_a_dialog) {
    const std::string set = folder().data_path("set.qdl");
    store(set, {'Q', 'D', 'L', '\n', 0, 1, 1, 1, 0, 0, 0, 9, 8, 7, 6});
    const std::string picture = stored_picture("sheet.png", sheet());
    script()
        .key('n', Modifier::control)
        .drop_file(picture)
        .drop_file(set)
        .drop_file(picture)
        .key(key::escape);
    play(script().key(key::enter).key(key::enter));
    EXPECT_EQ(editor->documents().count(), 4);
    EXPECT_EQ(window_title(), "Quadrelle 0.90 - untitled2.qdl*");
}

TEST_F(Open_File_Test, a_set_that_is_open_and_dropped_comes_into_view) {
    const std::string set = folder().data_path("set.qdl");
    store(set, {'Q', 'D', 'L', '\n', 0, 1, 1, 1, 0, 0, 0, 9, 8, 7, 6});
    play(script().drop_file(set).key(key::tab, Modifier::control).drop_file(set));
    EXPECT_EQ(editor->documents().count(), 2);
    EXPECT_EQ(document().file_name(), set);
    // To choose it opens it once more, and says so.
    answer_files(File_Answer_State::chosen, set);
    execute(Command::load);
    EXPECT_EQ(editor->documents().count(), 3);
    EXPECT_TRUE(editor->documents().is_open_twice());
}

TEST_F(Open_File_Test, load_takes_pictures_and_tells_what_is_wrong_with_a_file) {
    answer_files(File_Answer_State::chosen, stored_picture("sheet.png", sheet()));
    script().key(key::enter);
    execute(Command::load);
    EXPECT_EQ(document().tileset().count(), 5);
    const std::string path = folder().data_path("other.txt");
    using Bytes = std::vector<std::uint8_t>;
    const std::string load_failed =
        "Error occurred in tileset loading. This file may not be in Quadrelle format.\r";
    for (const auto& [bytes, text] :
         {std::pair{Bytes{'Q', 'D', 'L', '\n', 0, 9, 9, 1, 0, 0, 0},
                    load_failed + path + "\rIt ends before its last tile does"},
          std::pair{Bytes{'n', 'o'}, load_failed + path + "\rIt does not begin as a set of tiles does"},
          std::pair{Bytes{'B', 'M', 1},
                    std::string("The picture is damaged, or of a kind that is not known.")},
          std::pair{encode_png(Tile(1, 8193)),
                    std::string("The picture is larger than 8192 x 8192 pixels.")}}) {
        store(path, bytes);
        script().drop_file(path);
        expect_message("Note", text).key(key::enter);
        play();
    }
    store_text(folder().data_path("a.hex"), "0xff0000\n");
    script().drop_file(folder().data_path("a.hex"));
    expect_message("Note", "This is no palette. Line 1 is no color: \"0xff0000\"").key(key::enter);
    play();
    EXPECT_EQ(editor->documents().count(), 2);
    store(path, {'#', 'f', 'f', '0', '0', '8', '0', '\n'});
    play(script().drop_file(path));
    EXPECT_EQ(editor->panes().palette().palette().name, "other");
    // A picture without a whole tile, or with empty ones only.
    Tile clear(16, 16);
    clear.fill({1, 2, 3, 0});
    script().drop_file(stored_picture("clear.png", clear)).key(key::enter);
    expect_message("Note", "No tile would be taken from the picture.").key(key::enter).key(key::escape);
    play();
    EXPECT_EQ(editor->documents().count(), 2);
}

} // namespace
} // namespace quadrelle::testing
