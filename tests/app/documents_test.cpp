#include "app/documents.h"

#include "app/window_panes.h"
#include "map/map_file.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"
#include "tileset/previous_copy.h"
#include "tileset/tileset_file.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_container.h"

namespace quadrelle::testing {
namespace {

const std::string product = "Quadrelle 0.90 - ";
const std::string save_failed = "Unable to create a save file in the destination device.\rCheck out write "
                                "access properties.";
const std::string load_failed =
    "Error occurred in tileset loading. This file may not be in Quadrelle format.";
const std::string close_question = "Current tileset is not saved. Close it anyway?\r(Progress will be lost.)";

class Documents_Test : public Program_Test {
protected:
    // Of files that others have written to.
    Script& expect_overwriting(const std::string& who_wrote) {
        return expect_question("Save", who_wrote + "since it was loaded or saved here. Overwrite that?",
                               Button_Type::overwrite);
    }
    static Documents& documents() { return editor->documents(); }
    static std::string name() { return document().file_name(); }

    void draw_pixel(int x, int y) { play(script().click(cell(x, y))); }
    void choose(const std::string& path) { answer_files(File_Answer_State::chosen, path); }
    std::string in_folder(const std::string& file) { return folder().path(file); }
    // Saved there, as the current document's file.
    std::string save_as(const std::string& file) {
        choose(in_folder(file));
        execute(Command::save_as);
        return in_folder(file);
    }
    // Inside the tab of that document, while all fit and the others' names are given.
    static Point tab_after(const std::vector<std::string>& titles) {
        int x = 264;
        for (const std::string& title : titles) {
            x += screen->make_header(title, Header_Style::passive)->size().width;
        }
        return {x + 3, 42};
    }
};

TEST_F(Documents_Test, save_asks_for_a_name_once_and_forces_its_extension) {
    draw_pixel(2, 3);
    choose(in_folder("tiles.png"));
    play(script().key('s', Modifier::control));
    EXPECT_EQ(asked_file(), File_Dialog_Kind::save_tileset);
    const std::string path = in_folder("tiles.qdl");
    EXPECT_EQ(window_title(), product + path);
    EXPECT_TRUE(document().is_named());
    const Bytes bytes = stored(path);
    ASSERT_EQ(bytes.size(), 11U + 24 * 24 * 4);
    EXPECT_EQ(bytes.at(11 + (3 * 24 + 2) * 4 + 1), 255);

    // Unmodified: nothing is asked and nothing written.
    answer_files(File_Answer_State::cancelled);
    std::filesystem::remove(native(path));
    execute(Command::save);
    EXPECT_FALSE(std::filesystem::exists(native(path)));

    draw_pixel(4, 4);
    execute(Command::save);
    EXPECT_EQ(asked_file(), std::nullopt);
    EXPECT_EQ(stored(path).at(11 + (4 * 24 + 4) * 4 + 1), 255);
    EXPECT_EQ(window_title(), product + path);

    const std::string second = save_as("second");
    EXPECT_EQ(asked_file(), File_Dialog_Kind::save_tileset);
    EXPECT_EQ(stored(second + ".qdl"), stored(path));
    EXPECT_EQ(window_title(), product + second + ".qdl");
}

TEST_F(Documents_Test, failed_save_keeps_the_name_and_the_mark) {
    draw_pixel(2, 3);
    const std::string path = in_folder("missing/tiles.qdl");
    choose(path);
    const std::string note = save_failed + "\r" + path + "\rNo such file or directory";
    expect_message("Note", note).key(key::enter);
    execute(Command::save_as);
    EXPECT_TRUE(document().is_named());
    EXPECT_EQ(window_title(), product + path + "*");

    answer_files(File_Answer_State::cancelled);
    expect_message("Note", note).key(key::enter);
    execute(Command::save);
    EXPECT_EQ(asked_file(), std::nullopt);
    EXPECT_TRUE(document().is_modified());
}

TEST_F(Documents_Test, save_over_a_file_asks_where_the_option_says_so) {
    const std::string path = save_as("tiles.qdl");
    const Bytes before = stored(path);
    set_option(Option::confirm_quick_save, 1);

    execute(Command::save);
    draw_pixel(1, 1);
    expect_question("Save", "Save over existing file?").key(key::escape);
    execute(Command::save);
    EXPECT_EQ(stored(path), before);
    EXPECT_TRUE(document().is_modified());
    script().key(key::enter);
    execute(Command::save);
    EXPECT_NE(stored(path), before);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(Documents_Test, save_that_is_given_up_leaves_what_floats_and_the_seams) {
    const std::string path = save_as("tiles.qdl");
    set_option(Option::confirm_quick_save, 1);
    draw_pixel(1, 1);
    execute(Command::copy);
    execute(Command::paste);
    execute(Command::horizontal_seam_tool);
    const Tile_Picture shifted = tile_picture();
    const std::size_t steps = document().history().entries().size();
    const auto expect_as_before = [&] {
        EXPECT_TRUE(editor->canvas().work_area().paste());
        EXPECT_EQ(editor->canvas().horizontal_seam_shift(), 12);
        EXPECT_EQ(tile_picture(), shifted);
        EXPECT_EQ(document().history().entries().size(), steps);
    };
    answer_files(File_Answer_State::cancelled);
    execute(Command::save_as);
    expect_as_before();
    // Also where nothing changed but what is to become a part of the tile.
    document().clear_modified();
    expect_question("Save", "Save over existing file?").key(key::escape);
    execute(Command::save);
    expect_as_before();
    script().key(key::enter);
    execute(Command::save);
    EXPECT_FALSE(editor->canvas().work_area().paste());
    EXPECT_EQ(editor->canvas().horizontal_seam_shift(), no_seam_shift);
    EXPECT_EQ(stored(path).at(11 + (1 * 24 + 1) * 4 + 1), 255);
}

TEST_F(Documents_Test, load_opens_the_same_tiles_as_another_document) {
    execute(Command::add_new_tile);
    draw_pixel(5, 6);
    const Tile_Picture drawn = tile_picture();
    const std::string path = save_as("täles.qdl");
    choose(path);
    execute(Command::load);
    EXPECT_EQ(asked_file(), File_Dialog_Kind::load_tileset);
    EXPECT_EQ(documents().count(), 2);
    EXPECT_EQ(window_title(), product + path);
    EXPECT_TRUE(document().is_named());
    EXPECT_EQ(document().tileset().count(), 2);
    EXPECT_EQ(document().tileset().current_index(), 0);
    execute(Command::next_tile);
    EXPECT_EQ(tile_picture(), drawn);
}

TEST_F(Documents_Test, load_refuses_what_is_no_tileset) {
    store(in_folder("wrong.qdl"), Bytes(100, 'Q'));
    const std::array<std::array<const char*, 2>, 3> files{
        {{"wrong.qdl", "It does not begin as a set of tiles does"},
         {"missing.qdl", "No such file or directory"},
         {"", "Is a directory"}}};
    for (const auto& [file, why] : files) {
        choose(in_folder(file));
        expect_message("Note", load_failed + "\r" + in_folder(file) + "\r" + why).key(key::enter);
        execute(Command::load);
    }
    answer_files(File_Answer_State::cancelled);
    execute(Command::load);
    EXPECT_EQ(document().history().entries().size(), 1U);
    EXPECT_EQ(documents().count(), 1);
    EXPECT_EQ(window_title(), product + "untitled0.qdl");
}

TEST_F(Documents_Test, what_others_wrote_is_not_overwritten_without_a_question) {
    const std::string path = save_as("tiles.qdl");
    const Bytes before = stored(path);
    choose(path);
    execute(Command::load);
    draw_pixel(1, 1);
    execute(Command::save);
    const Bytes from_tab = stored(path);
    ASSERT_TRUE(documents().close_document());
    draw_pixel(2, 2);
    expect_overwriting("tiles.qdl has been written by another program or from another tab\r")
        .key(key::escape);
    execute(Command::save);
    EXPECT_EQ(stored(path), from_tab);
    EXPECT_TRUE(document().is_modified());
    expect_overwriting("tiles.qdl has been written by another program or from another tab\r").key(key::enter);
    execute(Command::save);
    EXPECT_NE(stored(path), from_tab);
    EXPECT_EQ(stored(previous_copies().path_for(path)), from_tab);
    // What was only touched is the same, and what was removed is no loss.
    for (const bool is_removed : {false, true}) {
        std::filesystem::last_write_time(native(path), std::filesystem::file_time_type::clock::now());
        if (is_removed) {
            std::filesystem::remove(native(path));
        }
        draw_pixel(3, 3 + (is_removed ? 1 : 0));
        execute(Command::save);
        EXPECT_FALSE(document().is_modified());
    }
    EXPECT_NE(stored(path), before);
}

// The map is asked for and kept with its set, and loaded with the copy of it.
TEST_F(Documents_Test, what_others_wrote_into_the_map_is_not_overwritten_without_a_question) {
    document().set_map(Tile_Map({3, 4}));
    const std::string path = save_as("level.qdl");
    const std::string map = in_folder("level.map");
    const Bytes first = stored(map);
    store(map, {'x'});
    document().set_map(Tile_Map({5, 6}));
    draw_pixel(1, 1);
    expect_overwriting("level.map has been written by another program or from another tab\r").key(key::enter);
    execute(Command::save);
    const std::string copy = previous_copies().path_for(path);
    EXPECT_EQ(stored(map_path(copy)), (Bytes{'x'}));
    store(map, first);
    store(path, stored(copy));
    document().remove_map();
    draw_pixel(2, 2);
    expect_overwriting("level.qdl and level.map have been written by another program or from another tab\r")
        .key(key::enter);
    execute(Command::save);
    EXPECT_FALSE(std::filesystem::exists(native(map)));
    choose(copy);
    execute(Command::load);
    ASSERT_NE(document().map(), nullptr);
    EXPECT_EQ(document().map()->map().size(), (Size{3, 4}));
    ASSERT_TRUE(documents().close_document());
    draw_pixel(3, 3);
    execute(Command::save);
    EXPECT_FALSE(std::filesystem::exists(native(map_path(copy)))) << "it was without a map";
}

TEST_F(Documents_Test, undo_and_redo_of_a_saved_set_come_back_when_it_is_loaded) {
    draw_pixel(1, 1);
    execute(Command::add_new_tile);
    draw_pixel(2, 2);
    draw_pixel(3, 3);
    execute(Command::undo);
    const std::string path = save_as("tiles.qdl");
    const std::size_t count = document().history().entries().size();
    ASSERT_TRUE(documents().close_document());
    choose(path);
    execute(Command::load);
    EXPECT_EQ(document().history().entries().size(), count);
    EXPECT_FALSE(document().is_modified());
    execute(Command::redo);
    EXPECT_EQ(document().tileset().current_index(), 1);
    EXPECT_EQ(tile_pixel(3, 3), white);
    execute(Command::undo);
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(2, 2), black);
    // Of a file that is another one since, there is nothing to undo.
    Bytes bytes = stored(path);
    bytes.back() ^= 1U;
    store(path, bytes);
    execute(Command::load);
    EXPECT_EQ(document().history().entries().size(), 1U);
}

TEST_F(Documents_Test, what_a_file_holds_behind_its_tiles_is_told_and_kept) {
    const std::string path = save_as("tiles.qdl");
    Bytes longer = stored(path);
    longer.resize(longer.size() + 500, 7);
    store(path, longer);
    choose(path);
    execute(Command::load);
    play(script().motion({300, 300}).motion({310, 300}));
    EXPECT_NE(editor->panes().hint_lines().lines().at(1).find("500 bytes more"), std::string::npos);
    // Without a place for the copy nothing is cut.
    store_text(folder().data_path("previous"), "no folder");
    draw_pixel(1, 1);
    script().key(key::enter);
    execute(Command::save);
    EXPECT_EQ(stored(path), longer);
    std::filesystem::remove(native(folder().data_path("previous")));
    for (int i = 0; i < 2; ++i) {
        draw_pixel(2, 2 + i);
        execute(Command::save);
        EXPECT_EQ(stored(path).size(), longer.size() - 500);
    }
    EXPECT_EQ(stored(previous_copies().path_for(in_folder("tiles.whole.qdl"))), longer);
}

TEST_F(Documents_Test, name_that_is_no_text_makes_a_valid_title) {
    documents().save_document(in_folder("a\xff\xc3\n.qdl"));
    EXPECT_EQ(window_title(), product + in_folder("a\uFFFD\uFFFD .qdl"));
}

// The dialog is built anew each time it is shown; this one has the same layout.
struct New_Dialog_Layout {
    Dialog_Container dialog{"New tileset"};
    New_Dialog_Layout() {
        dialog.add_row(make_number_row(11, "Width:", {24, 6, 64}));
        dialog.add_row(make_number_row(21, "Height:", {24, 6, 64}));
        dialog.add_row(make_tick_row(30, "Keep and resize", Tick::off));
        dialog.finish_ok_cancel();
    }
    [[nodiscard]] Point item(int id) const {
        const Rectangle& area = dialog.item(id)->area;
        return {area.x + 2, area.y + 2};
    }
};

TEST_F(Documents_Test, new_takes_the_size_that_is_typed) {
    const New_Dialog_Layout layout;
    draw_pixel(1, 1);
    script().press(layout.item(11)).press_number({5, 5}, 2).type("40").key(key::enter);
    script().press(layout.item(21)).type("8").key(key::enter).key(key::enter);
    execute(Command::new_tileset);
    EXPECT_EQ(window_title(), product + "untitled1.qdl");
    EXPECT_EQ(document().tileset().tile_size(), (Size{40, 8}));
    EXPECT_EQ(document().tileset().count(), 1);
    EXPECT_EQ(editor->canvas().magnified_size(), (Size{400, 80}));
    EXPECT_EQ(editor->canvas().origin(), (Point{320, 280}));

    script().key(key::escape);
    execute(Command::new_tileset);
    EXPECT_EQ(documents().count(), 2);
}

TEST_F(Documents_Test, keep_and_resize_scales_the_current_tiles) {
    const New_Dialog_Layout layout;
    play(script().drag({cell(2, 2), cell(3, 2), cell(3, 3), cell(2, 3)}));
    execute(Command::add_new_tile);
    script().press(layout.item(11)).type("12").key(key::enter).press(layout.item(21)).type("12");
    script().key(key::enter).press(layout.item(30)).key(key::enter).key('y');
    document().clear_modified();
    execute(Command::new_tileset);
    EXPECT_EQ(documents().count(), 1);
    EXPECT_EQ(document().tileset().tile_size(), (Size{12, 12}));
    EXPECT_EQ(tile_pixel(1, 1), white);
    EXPECT_EQ(tile_pixel(2, 1), black);
    EXPECT_EQ(document().tileset().tile_at(1).size(), (Size{12, 12}));
    EXPECT_TRUE(document().is_modified());
    EXPECT_EQ(editor->canvas().magnified_size(), (Size{120, 120}));
    // What was before is of another size.
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(1, 1), white);
}

TEST_F(Documents_Test, keep_and_resize_asks_where_there_is_something_to_lose) {
    const auto resize_to = [this](const char* width) -> Script& {
        const New_Dialog_Layout layout;
        script().press(layout.item(11)).type(width).key(key::enter);
        return script().press(layout.item(30)).key(key::enter);
    };
    resize_to("20");
    execute(Command::new_tileset);
    resize_to("24");
    execute(Command::new_tileset);
    const std::string title = "Keep and resize";
    const std::string scaling =
        "Resize 2 tiles from 24 x 24 to 12 x 24 pixels?\rScaling makes new colors and "
        "loses transparency.";
    execute(Command::add_new_tile);
    document().tileset().current_tile()->set_pixel(2, 2, {200, 0, 0, 40});
    resize_to("12");
    expect_question(title, scaling + "\rThis can't be undone.").key(key::escape);
    execute(Command::new_tileset);
    draw_pixel(5, 5);
    const Tile_Picture before = tile_picture();
    const std::size_t steps = document().history().entries().size();
    resize_to("12");
    expect_question(title, scaling + "\rThe undo history of the set is lost.").key(key::escape);
    execute(Command::new_tileset);
    resize_to("24");
    expect_question(title, "The tiles have that size already. Go on?\rThe undo history of the set is lost.");
    script().key(key::escape);
    execute(Command::new_tileset);
    EXPECT_EQ(tile_picture(), before);
    EXPECT_EQ(document().history().entries().size(), steps);
}

TEST_F(Documents_Test, thousand_and_first_new_does_nothing) {
    for (int i = 1; i < 1000; ++i) {
        ASSERT_TRUE(documents().new_document({8, 8}));
        ASSERT_TRUE(documents().close_document());
    }
    ASSERT_EQ(documents().count(), 1);
    const std::string before = window_title();
    script().key(key::enter);
    execute(Command::new_tileset);
    EXPECT_EQ(documents().count(), 1);
    EXPECT_EQ(window_title(), before);
    // Something has to take the place of the last document all the same.
    draw_pixel(1, 1);
    script().key(key::enter);
    execute(Command::close);
    EXPECT_EQ(documents().count(), 1);
    EXPECT_EQ(window_title(), product + "untitled999.qdl");
    EXPECT_EQ(tile_pixel(1, 1), black);
}

TEST_F(Documents_Test, close_asks_when_something_is_unsaved) {
    draw_pixel(1, 1);
    expect_question("Close", close_question).key(key::escape);
    execute(Command::close);
    EXPECT_EQ(window_title(), product + "untitled0.qdl*");
    expect_question("Close", close_question).quit();
    execute(Command::close);
    EXPECT_EQ(tile_pixel(1, 1), white);

    script().key(key::enter);
    execute(Command::close);
    EXPECT_EQ(window_title(), product + "untitled1.qdl");
    EXPECT_EQ(documents().count(), 1);
    EXPECT_EQ(tile_pixel(1, 1), black);
    execute(Command::close);
    EXPECT_EQ(window_title(), product + "untitled2.qdl");
}

TEST_F(Documents_Test, tab_shows_the_name_and_the_hint_the_whole_path) {
    save_as("tiles.qdl");
    const std::string folder_name = folder().native_path().filename().string();
    std::filesystem::create_directory(folder().native_path() / "other");
    documents().new_document({8, 8});
    const std::string second = save_as("other/tiles.qdl");
    play(script().motion({300, 100}).motion(tab_after({folder_name + "/tiles.qdl"})));
    EXPECT_EQ(editor->panes().hint_lines().lines().at(1), second);
    EXPECT_EQ(window_title(), product + second);
}

TEST_F(Documents_Test, arrows_lead_to_the_tabs_that_have_no_room) {
    constexpr Point left_arrow{255, 42};
    constexpr Point right_arrow{768, 42};
    for (int i = 0; i < 11; ++i) {
        documents().new_document({8, 8});
    }
    play(script().click(left_arrow));
    const std::string hidden = name();
    // A tab that shows stays in its place when it is chosen.
    play(script().click({500, 42}).click(tab_after({})));
    EXPECT_EQ(name(), hidden);
    EXPECT_NE(hidden, "untitled11.qdl");
    // That tab is the first one in the row now, and others are hidden behind it.
    play(script().click(right_arrow));
    EXPECT_NE(name(), hidden);
    // Leftwards until the first tab shows; then there is no arrow any more.
    for (int i = 0; i < 13; ++i) {
        script().click(left_arrow);
    }
    play(script().click(tab_after({})));
    EXPECT_EQ(name(), "untitled0.qdl");
}

} // namespace
} // namespace quadrelle::testing
