// The program's own dialog for choosing a file, driven as a user does it.

#include "screen/screen.h"
#include "tests/whole/program_test.h"
#include "tileset/tileset_file.h"

#include <SDL3/SDL_keyboard.h>

namespace quadrelle::testing {
namespace {

constexpr Rectangle list{303, 129, 626, 362};
constexpr Rectangle field{370, 529, 559, 29};
constexpr Point ok_button{315, 580};
constexpr Point cancel_button{900, 580};

constexpr Point row(int place) {
    return {400, list.y + 13 + 24 * place};
}

class File_Chooser_Test : public Program_Test {
protected:
    // The dialog opens where a file was chosen last: in the folder "art", which then is empty.
    void SetUp() override {
        Program_Test::SetUp();
        make_folder("art");
        store(in_art("start"), {});
        text(in_art("start")).key(key::enter);
        EXPECT_EQ(ask(File_Dialog_Kind::open_any), in_art("start"));
        std::filesystem::remove(native(in_art("start")));
        set_file_chooser(ask_own_dialog);
    }

    // Plays the script; the path that is chosen, or how it ended otherwise.
    std::string ask(File_Dialog_Kind kind, const std::string& proposed = {}) {
        const File_Answer answer = ask_own_dialog(kind, proposed);
        EXPECT_TRUE(script().is_played());
        return answer.state == File_Answer_State::chosen      ? answer.path
               : answer.state == File_Answer_State::cancelled ? "cancelled"
                                                              : "failed";
    }

    Script& text(const std::string& typed) { return script().text(typed); }
    Script& press(const std::vector<Keycode>& keys) {
        for (const Keycode pressed : keys) {
            script().key(pressed);
        }
        return script();
    }
    std::string in_art(const std::string& name) { return folder().path("art/" + name); }
    void make_folder(const std::string& name) {
        std::filesystem::create_directories(folder().native_path() / name);
    }
};

TEST_F(File_Chooser_Test, saves_under_a_typed_name_and_loads_by_clicking) {
    script().click(cell(2, 3)).key('s', Modifier::control);
    expect_loop("file chooser");
    text("first tïles..png");
    press({key::home, key::right, key::end, key::left, key::left, key::left, key::left, key::backspace,
           key::enter});
    play();
    const std::string saved = in_art("first tïles.qdl");
    EXPECT_EQ(document().file_name(), saved);
    EXPECT_FALSE(document().is_modified());

    script().click(row(1)).press(row(1));
    execute(Command::load);
    EXPECT_EQ(editor->documents().count(), 2);
    EXPECT_EQ(document().file_name(), saved);
    EXPECT_EQ(tile_pixel(2, 3), Color(255, 255, 255));

    // Given up, nothing changes.
    script().click(row(1)).press(cancel_button);
    execute(Command::load);
    script().key(key::escape);
    execute(Command::save_as);
    EXPECT_EQ(editor->documents().count(), 2);
}

TEST_F(File_Chooser_Test, asks_before_a_file_is_replaced) {
    store(in_art("old.qdl"), {1});
    make_folder("art/folder.bmp");
    text("old.txt").key(key::enter);
    expect_question("Save", "Save over existing file?").key(key::escape);
    expect_loop("file chooser").click(row(2)).press(ok_button);
    expect_question("Save", "Save over existing file?").key('y');
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset), in_art("old.qdl"));
    EXPECT_EQ(stored(in_art("old.qdl")), Bytes{1}) << "choosing a name writes nothing";

    // No question about what cannot be replaced or is new; the dialog stays for the first two.
    text("folder.txt").key(key::enter);
    press({key::end, key::backspace, key::backspace, key::backspace});
    text("/no/such").key(key::enter);
    expect_loop("file chooser").click({field.x + 2, field.y + 8});
    press(std::vector<Keycode>(20, key::delete_key));
    text("new").key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::export_bitmap), in_art("new.bmp"));
}

TEST_F(File_Chooser_Test, proposes_a_name_and_makes_folders) {
    make_folder("other");
    script().key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::export_bitmap, folder().path("other/tiles.qdl")),
              folder().path("other/tiles.bmp"));
    // The name is selected and can be changed as well; without a folder of its own it stays in the last one.
    press({key::end, key::left, key::left, key::left, key::left}).text("2").key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset, "tiles.qdl"), folder().path("other/tiles2.qdl"));

    // What will not do as a name is not made, and the dialog stays where it is.
    const Point new_folder{616, 580};
    text("deep");
    for (const std::string name : {"", " ", ".hidden", "../up", "/absolute"}) {
        script().click(new_folder).text(name).key(key::enter);
    }
    script().click(new_folder).text("given up").key(key::escape);
    script().click(new_folder).text("one").key(key::enter);
    script().check([] { EXPECT_TRUE(SDL_TextInputActive(screen->window())); });
    // One that is there already is not made again.
    script()
        .click(row(0))
        .click(row(0))
        .click(new_folder)
        .text("one")
        .key(key::enter)
        .click(row(1))
        .click(row(1));
    script().click(new_folder).text("two").key(key::enter).key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset, "tiles.qdl"), folder().path("other/one/two/deep.qdl"));
    const std::filesystem::directory_iterator other(folder().native_path() / "other");
    EXPECT_EQ(std::distance(begin(other), end(other)), 1);
    // On the way up the folder is lit that one comes from, but what is saved goes into the one that is shown.
    script().click(row(0)).click(row(0)).press(ok_button);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset, "up.qdl"), folder().path("other/one/up.qdl"));
    // There is nothing to make where something is loaded.
    script().click(new_folder).key(key::escape);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset, "tiles.qdl"), "cancelled");
}

TEST_F(File_Chooser_Test, walks_through_folders_by_keyboard_mouse_and_name) {
    make_folder("art/one/two");
    store(in_art("one/two/deep.qdl"), {});
    store(in_art("top.qdl"), {});
    const std::string deep = in_art("one/two/deep.qdl");

    // ".." is the first row; below it the folder, the file.
    press({key::down, key::down, key::enter, key::end, key::enter, key::down, key::page_down, key::enter});
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), deep);
    // From there up with the keyboard, which selects where one came from, and back with the mouse.
    press({key::backspace, key::backspace, key::enter}).click(row(1)).click(row(1)).click(row(1));
    script().press(ok_button);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), deep);
    // By name: folders are entered, and a missing file or nothing at all ends nothing.
    text("../..").key(key::enter).key(key::enter);
    text("missing").key(key::enter).click(ok_button);
    press(std::vector<Keycode>(7, key::backspace));
    text("one/./two").key(key::enter);
    expect_loop("file chooser");
    text("deep").key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), deep);
    // Tab leads from the list to the name.
    press({key::down, key::down, key::tab, key::home, key::delete_key});
    text("sl").key(key::keypad_enter);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset), in_art("one/two/sleep.qdl"));
    // What is typed over the list replaces the name of the file that is selected there.
    press({key::down, key::down});
    text("nap").key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset), in_art("one/two/nap.qdl"));
    script().quit();
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), "cancelled");
}

TEST_F(File_Chooser_Test, lists_files_of_every_kind_where_that_is_wanted) {
    constexpr Point all_files_button{616, 580};
    store(in_art("a.png"), {});
    script().press(all_files_button).press(all_files_button).click(row(1)).press(row(1)).key(key::escape);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), "cancelled");
    script().press(all_files_button).click(row(1)).press(row(1));
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), in_art("a.png"));
}

TEST_F(File_Chooser_Test, previous_copies_have_a_place_and_are_saved_elsewhere) {
    constexpr Point previous_copies_button{740, 580};
    script().press(previous_copies_button).key(key::escape);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), "cancelled");
    for (int i = 0; i < 2; ++i) {
        document().mark_changed();
        document().tileset().current_tile()->fill(i == 0 ? red : white);
        text("twice").key(key::enter);
        i == 0 ? script() : script().key('y');
        execute(Command::save_as);
    }
    script().press(previous_copies_button).press(previous_copies_button).press(previous_copies_button);
    script().click(row(1)).press(row(1));
    execute(Command::load);
    EXPECT_EQ(tile_pixel(1, 1), red);
    document().mark_changed();
    script().key(key::enter).key('y');
    execute(Command::save);
    EXPECT_EQ(document().file_name(), in_art("twice.qdl"));
}

TEST_F(File_Chooser_Test, scrolls_through_many_files) {
    for (int i = 0; i < 400; ++i) {
        store(in_art(std::to_string(1000 + i) + ".qdl"), {});
    }
    script().wheel(-1).click(row(0)).press(ok_button);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), in_art("1002.qdl"));
    script().wheel(-1e30F).wheel(1).click(row(14)).key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), in_art("1396.qdl"));
    // Grabbed, the bar follows the pointer anywhere, and lets go at the release.
    const int bar = list.right() - 5;
    script().drag({{bar, list.y + 5}, {bar + 200, list.y + 200}, {0, 2000}}).motion({bar, list.y});
    script().click(row(14)).press(row(14));
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), in_art("1399.qdl"));
    press({key::end, key::home, key::page_down, key::page_down, key::page_up, key::page_down, key::up,
           key::enter});
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), in_art("1028.qdl"));
}

TEST_F(File_Chooser_Test, survives_folders_that_vanish) {
    make_folder("art/one");
    store(in_art("one.qdl"), {});
    script().click(row(1)).check([&] { std::filesystem::remove(native(in_art("one"))); }).click(row(1));
    expect_loop("file chooser").click(row(1)).check([&] {
        std::filesystem::remove(native(in_art("one.qdl")));
    });
    script().click(ok_button);
    expect_loop("file chooser").check([&] { std::filesystem::remove_all(native(in_art(""))); });
    press({key::up, key::enter}).key(key::escape);
    EXPECT_EQ(ask(File_Dialog_Kind::load_tileset), "cancelled");

    // The last folder is gone: it opens in the one above.
    text("here").key(key::enter);
    EXPECT_EQ(ask(File_Dialog_Kind::save_tileset), folder().path("here.qdl"));
}

} // namespace
} // namespace quadrelle::testing
