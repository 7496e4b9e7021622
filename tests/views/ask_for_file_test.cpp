#include "views/ask_for_file.h"

#include "base/file_names.h"
#include "screen/events.h"
#include "tests/support/files.h"
#include "tests/support/window_test.h"
#include "views/dialog_wait.h"

namespace quadrelle::testing {
namespace {

TEST(File_Dialog_Names, get_the_extension_of_their_kind) {
    for (const auto& [path, expected] :
         std::vector<std::pair<std::string, std::string>>{{"/a/tiles", "/a/tiles.qdl"},
                                                          {"/a/tiles.qdl", "/a/tiles.qdl"},
                                                          {"/a/tiles.png", "/a/tiles.qdl"},
                                                          {"/a/tiles.", "/a/tiles.qdl"},
                                                          {"/a/a.b.png", "/a/a.b.qdl"},
                                                          {"/a.b/tiles", "/a.b/tiles.qdl"},
                                                          {"C:\\a.b\\tiles", "C:\\a.b\\tiles.qdl"},
                                                          {"/a/.tiles", "/a/.tiles.qdl"},
                                                          {"/a/tïles.ü", "/a/tïles.qdl"}}) {
        EXPECT_EQ(with_extension(path, "qdl"), expected);
    }
}

class File_Dialog_Test : public Window_Test {
protected:
    ~File_Dialog_Test() override { set_file_chooser({}); }

    // The path that comes out, if any.
    static std::optional<std::string> choose(File_Dialog_Kind kind, const File_Answer& answer) {
        std::string path = "before";
        set_file_chooser([&](File_Dialog_Kind asked, const std::string& proposed) {
            EXPECT_EQ(asked, kind);
            EXPECT_EQ(proposed, "before");
            return answer;
        });
        if (choose_file(kind, path)) {
            return path;
        }
        EXPECT_EQ(path, "before");
        return std::nullopt;
    }
};

TEST_F(File_Dialog_Test, that_never_answers_is_given_up_by_escape_and_keeps_a_quit) {
    Script script;
    const auto never = [] { return false; };
    EXPECT_EQ(wait_for_dialog([] { return true; }), Wait_End::answered);
    const Color before = pixel_at({616, 332});
    script.pause(0).check([&] { EXPECT_NE(pixel_at({616, 332}), before) << "a box tells of it"; });
    script.key(key::escape);
    EXPECT_EQ(wait_for_dialog(never, 0), Wait_End::given_up);
    // Before anybody is told, Escape may have been meant for something else; a quit is kept.
    bool is_answered = false;
    script.key(key::escape).quit().check([&] { is_answered = true; }).pause(0);
    EXPECT_EQ(wait_for_dialog([&] { return is_answered; }), Wait_End::answered);
    EXPECT_EQ(wait_event("after it").kind, Input_Kind::quit);
    script.pause(0).quit();
    EXPECT_EQ(wait_for_dialog(never, 0), Wait_End::quit);
    EXPECT_EQ(wait_event("after it").kind, Input_Kind::quit);
}

TEST_F(File_Dialog_Test, forces_the_extension_only_where_something_is_saved) {
    const File_Answer answer{File_Answer_State::chosen, "/a/b.c.txt"};
    EXPECT_EQ(choose(File_Dialog_Kind::load_tileset, answer), "/a/b.c.txt");
    EXPECT_EQ(choose(File_Dialog_Kind::save_tileset, answer), "/a/b.c.qdl");
    EXPECT_EQ(choose(File_Dialog_Kind::open_any, answer), "/a/b.c.txt");
    EXPECT_EQ(choose(File_Dialog_Kind::import_bitmap, answer), "/a/b.c.txt");
    EXPECT_EQ(choose(File_Dialog_Kind::export_bitmap, answer), "/a/b.c.bmp");
    EXPECT_EQ(choose(File_Dialog_Kind::export_png, answer), "/a/b.c.png");
}

// The dialog has asked about the name that was typed, if it has asked at all.
TEST_F(File_Dialog_Test, asks_before_a_file_is_replaced_whose_extension_was_forced) {
    const Temporary_Folder folder;
    store(folder.path("hero.qdl"), {});
    Script script;
    script.check_loop([](std::string_view loop) { EXPECT_EQ(loop, "dialog \"Save\""); }).key(key::escape);
    script.key(key::enter);
    const File_Answer answer{File_Answer_State::chosen, folder.path("hero")};
    EXPECT_EQ(choose(File_Dialog_Kind::save_tileset, answer), std::nullopt);
    EXPECT_EQ(choose(File_Dialog_Kind::save_tileset, answer), folder.path("hero.qdl"));
    EXPECT_EQ(choose(File_Dialog_Kind::save_tileset, {File_Answer_State::chosen, folder.path("hero.qdl")}),
              folder.path("hero.qdl"));
    EXPECT_TRUE(script.is_played());
}

} // namespace
} // namespace quadrelle::testing
