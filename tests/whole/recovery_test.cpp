// What was not saved when the program was ended in the midst of something is there at the next start.

#include "app/start_up.h"
#include "app/window_panes.h"
#include "base/fatal.h"
#include "base/file_lock.h"
#include "base/platform_files.h"
#include "screen/events.h"
#include "tests/whole/program_test.h"
#include "tileset/journal_file.h"
#include "tileset/tileset_file.h"

#include <SDL3/SDL_timer.h>

#include <csignal>

namespace quadrelle::testing {
namespace {

// Of the dialog with one set.
constexpr Point discard_button{850, 400};

class Recovery_Test : public Program_Test {
protected:
    // The journals as they are when the program is killed now.
    void keep_journals() {
        run_last_act();
        std::filesystem::copy(journals(), native(folder().path("killed")));
    }
    void start_after_kill() {
        shut_down_application();
        EXPECT_FALSE(std::filesystem::exists(journals()));
        std::filesystem::rename(native(folder().path("killed")), journals());
        start_again();
    }
    void kill_and_start() {
        keep_journals();
        start_after_kill();
    }
    void end_and_start() {
        shut_down_application();
        start_again();
    }
    void recover(Keycode answer = key::enter) {
        script().key(answer);
        editor->offer_recovery();
        EXPECT_TRUE(script().is_played());
    }
    [[nodiscard]] std::filesystem::path journals() { return native(folder().data_path("journal")); }
    [[nodiscard]] std::string journal() {
        for (const std::string& name : files()) {
            if (name.ends_with(journal_ending)) {
                return folder().data_path("journal/" + name);
            }
        }
        return {};
    }
    [[nodiscard]] std::vector<std::string> files() { return folder_names(folder().data_path("journal")); }
    static std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const auto& document : editor->documents().all()) {
            names.push_back(document->title());
        }
        return names;
    }

private:
    static void start_again() {
        start_application();
        ASSERT_TRUE(editor->show_first_frame());
    }
};

TEST_F(Recovery_Test, brings_back_all_sets_as_a_save_would_write_them) {
    Tileset saved({24, 24});
    for (int i = 0; i < 200; ++i) {
        saved.add_tile();
        saved.current_tile()->fill(Color(i, 100, 200));
    }
    const std::string path = folder().path("saved.qdl");
    ASSERT_GT(save_tileset(saved, path), 0);
    play(script().click(cell(3, 4)).click(cell(5, 6)));
    answer_files(File_Answer_State::chosen, path);
    execute(Command::load);
    play(script().click(cell(1, 2)));
    execute(Command::insert_new_tile);
    execute(Command::horizontal_seam_tool);
    play(script().click(cell(0, 0)));
    // What is lifted off the tile is in it where it floats.
    execute(Command::rectangle_selector);
    play(script().drag({cell(0, 0), cell(2, 2)}));
    execute(Command::work_selection);
    play(script().drag({cell(1, 1), cell(9, 9)}));
    ASSERT_TRUE(editor->canvas().work_area().has_lifted());
    keep_journals();
    const std::string copy = folder().path("copy.qdl");
    answer_files(File_Answer_State::chosen, copy);
    execute(Command::save_as);

    start_after_kill();
    recover();
    EXPECT_EQ(names(), (std::vector<std::string>{"untitled0.qdl*", path + "*"}));
    const Loaded_Tileset expected = load_tileset(copy);
    ASSERT_EQ(document().tileset().count(), 201);
    for (int i = 0; i < 201; ++i) {
        ASSERT_TRUE(document().tileset().tile_at(i).same_pixels(expected.tileset->tile_at(i))) << i;
    }
    const Tileset& untitled = editor->documents().all().front()->tileset();
    EXPECT_EQ(untitled.tile_at(0).get_pixel(5, 6), white);
    // The next new set has another name, and what was recovered is as safe as before.
    execute(Command::add_new_tile);
    kill_and_start();
    recover();
    EXPECT_EQ(document().tileset().count(), 202);
    ASSERT_TRUE(editor->documents().new_document({8, 8}));
    EXPECT_EQ(document().title(), "untitled1.qdl");
    end_and_start();
    editor->offer_recovery();
    EXPECT_EQ(names(), std::vector<std::string>{"untitled0.qdl"});
    EXPECT_FALSE(std::filesystem::exists(journals()));
}

TEST_F(Recovery_Test, tells_once_of_the_error_that_ended_the_last_run) {
    const std::string note = folder().path("quadrelle-error.txt");
    store_text(note, "Error: Unable to load file  a\xc3\xa9.qdl!\nDelete it:\n/a\n");
    expect_message("Note", "When it ran last, the program ended with this error.\r"
                           "Error: Unable to load file  ae.qdl!\rDelete it:\r/a");
    recover();
    EXPECT_FALSE(std::filesystem::exists(native(note)));
    editor->offer_recovery();
}

TEST_F(Recovery_Test, asks_again_until_there_is_an_answer) {
    play(script().click(cell(3, 4)));
    kill_and_start();
    recover(key::escape);
    EXPECT_EQ(names(), std::vector<std::string>{"untitled0.qdl"});
    end_and_start();
    // Another one that recovers it right now is left alone.
    {
        const File_Lock lock(journal_lock_path(journal()));
        ASSERT_TRUE(lock.is_taken());
        editor->offer_recovery();
        EXPECT_EQ(names(), std::vector<std::string>{"untitled0.qdl"});
    }
    script().click({0, 0});
    recover();
    EXPECT_EQ(tile_pixel(3, 4), white);
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(Recovery_Test, forgets_what_was_saved_closed_or_discarded) {
    play(script().click(cell(3, 4)));
    answer_files(File_Answer_State::chosen, folder().path("set.qdl"));
    execute(Command::save);
    execute(Command::add_new_tile);
    script().key(key::enter);
    execute(Command::close);
    play(script().key(key::none).click(cell(7, 7)));
    kill_and_start();
    script().click(discard_button);
    editor->offer_recovery();
    EXPECT_EQ(names(), std::vector<std::string>{"untitled0.qdl"});
    EXPECT_TRUE(files().empty());
}

TEST_F(Recovery_Test, sets_a_damaged_journal_aside_and_takes_what_is_whole) {
    play(script().click(cell(3, 4)).click(cell(5, 5)));
    kill_and_start();
    const std::string path = journal();
    Bytes bytes = stored(path);
    bytes.at(0) ^= 1;
    store(path, bytes);
    for (int i = 0; i < 30; ++i) {
        store_text(folder().data_path("journal/" + std::to_string(i) + ".journal.damaged"), "older");
    }
    script().key(key::enter);
    expect_loop("dialog \"Note\"").key(key::enter);
    editor->offer_recovery();
    EXPECT_EQ(tile_pixel(5, 5), white);
    EXPECT_EQ(files().size(), 20U + 2U) << "damaged ones, the new one and its lock";
    EXPECT_EQ(stored(path + ".damaged"), bytes);
}

#ifndef _WIN32
TEST_F(Recovery_Test, begins_a_new_journal_where_somebody_has_removed_it) {
    play(script().click(cell(3, 4)));
    execute(Command::add_new_tile);
    const auto move_until_there_is_a_journal = [this] {
        for (int i = 0; i < 1000 && journal().empty(); ++i) {
            play(script().motion(cell(i % 20, 6)));
            SDL_Delay(2);
        }
    };
    move_until_there_is_a_journal();
    std::filesystem::remove_all(journals());
    play(script().click(cell(5, 5)));
    move_until_there_is_a_journal();
    kill_and_start();
    recover();
    ASSERT_EQ(document().tileset().count(), 2);
    EXPECT_EQ(document().tileset().tile_at(0).get_pixel(3, 4), white);
    EXPECT_EQ(document().tileset().tile_at(1).get_pixel(5, 5), white);
}
#endif

TEST_F(Recovery_Test, knows_what_the_files_of_a_set_were_like) {
    const std::string path = folder().path("set.qdl");
    answer_files(File_Answer_State::chosen, path);
    document().set_map(Tile_Map({2, 2}));
    execute(Command::save);
    play(script().click(cell(3, 4)));
    for (const char* const changed : {"set.map has", "set.qdl and set.map have"}) {
        kill_and_start();
        recover();
        store(folder().path(changed[4] == 'm' ? "set.map" : "set.qdl"), {'x'});
        expect_question("Save",
                        changed + std::string(" been written by another program or from another tab\r"
                                              "since it was loaded or saved here. Overwrite that?"),
                        Button_Type::overwrite)
            .key(key::escape);
        execute(Command::save);
        EXPECT_TRUE(document().is_modified());
    }
}

TEST_F(Recovery_Test, leaves_the_files_of_another_program_alone) {
    const std::string pad = folder().data_path("brushpad.dat");
    const auto keep_a_brush = [](const Art& picture) {
        EXPECT_TRUE(tools().use_as_brush(make_tile(picture), make_tile({"##"})));
        EXPECT_TRUE(tools().move_to_pad());
    };
    keep_a_brush({"#."});
    end_and_start();
    const Bytes first = stored(pad);
    ASSERT_FALSE(first.empty());
    shut_down_application();
    const std::unique_ptr<File_Lock> other = File_Lock::of_folder(folder().data_path(""));
    ASSERT_TRUE(other->is_taken());
    start_application();
    ASSERT_TRUE(editor->show_first_frame());
    EXPECT_EQ(editor->panes().hint_lines().lines().front(), "A second Quadrelle");
    EXPECT_EQ(tools().brush_pad.brushes().size(), 1U);
    keep_a_brush({".#"});
    shut_down_application();
    EXPECT_EQ(stored(pad), first);
    {
        const File_Lock second(folder().data_path("program2.lock"));
        start_application();
        ASSERT_TRUE(editor->show_first_frame());
        EXPECT_EQ(editor->panes().hint_lines().lines().front(), "One more Quadrelle");
        keep_a_brush({"##"});
        shut_down_application();
        EXPECT_TRUE(std::filesystem::exists(native(folder().data_path("brushpad3.dat"))));
    }
    // That one again, later.
    start_application();
    ASSERT_TRUE(editor->show_first_frame());
    EXPECT_EQ(tools().brush_pad.brushes().size(), 2U);
}

#ifndef _WIN32
// The dialog that is open is given up.
TEST_F(Recovery_Test, passes_a_signal_to_end_on_to_the_question_whether_to_quit) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        script().check([=] { std::raise(signal); }).key(key::f1);
        script().check_loop([](std::string_view loop) { EXPECT_NE(loop, main_loop); });
        script().motion({1, 1}).motion({2, 2}).motion({3, 3});
        expect_question("Quit", "Quit Quadrelle?").key(key::escape);
        play();
    }
}
#endif

} // namespace
} // namespace quadrelle::testing
