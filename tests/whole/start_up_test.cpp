// From start to end: the program as a process of its own, and start and end within the test.

#include "app/start_up.h"

#include "app/editor.h"
#include "base/platform_files.h"
#include "color/palette_store.h"
#include "tests/support/window_test.h"
#include "views/options_dialog.h"

namespace quadrelle::testing {
namespace {

class Start_Up_Process : public ::testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directory(folder_.native_path() / "data");
        std::filesystem::copy_file(source_folder() / "data" / "pool.bmp",
                                   folder_.native_path() / "data" / "pool.bmp");
    }
    [[nodiscard]] std::string path(const std::string& name) const { return folder_.path(name); }
    void put(const std::string& name, const std::string& bytes) const { store_text(path(name), bytes); }

    // The exit status; 137 when it had to be killed because it went on running.
    [[nodiscard]] int run() const {
        const std::string command = "cd '" + path("") +
                                    "' && SDL_VIDEO_DRIVER=dummy timeout --signal=KILL 2 '" +
                                    built_program().string() + "' > output 2> errors";
        return std::system(command.c_str()) / 256;
    }
    // A person reads the same line, what to do, and with which file, which is named as it is in the folder.
    void expect_fatal(const std::string& text, const std::string& file) const {
        const std::string line = "Error: " + text + "!\n";
        EXPECT_EQ(run(), 1);
        EXPECT_EQ(stored_text(path("output")), line);
        const std::string errors = stored_text(path("errors"));
        EXPECT_TRUE(errors.starts_with(line));
        EXPECT_TRUE(errors.ends_with(":\n" + std::filesystem::canonical(folder_.native_path()).string() +
                                     "/data" + file + "\n"))
            << errors;
        EXPECT_EQ(stored_text(path("quadrelle-error.txt")), errors);
    }

private:
    Temporary_Folder folder_;
};

TEST_F(Start_Up_Process, ends_without_the_data_folder) {
    std::filesystem::remove_all(native(path("data")));
    expect_fatal("Unable to open 'data' directory.", "");
    put("data", "a file in its place");
    expect_fatal("Unable to open 'data' directory.", "");
}

TEST_F(Start_Up_Process, ends_without_a_usable_sheet) {
    put("data/pool.bmp", "BM, but nothing else");
    expect_fatal("Could not load SDL surface from %s. pool.bmp", "/pool.bmp");
    // A picture of one pixel holds no sprite.
    put("data/pool.bmp",
        "BM" + std::string("\x3a\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 28) +
            std::string(24, '\0') + "abc" + '\0');
    expect_fatal("Could not load SDL surface from %s. pool.bmp", "/pool.bmp");
    std::filesystem::remove(native(path("data/pool.bmp")));
    expect_fatal("Could not load SDL surface from %s. pool.bmp", "/pool.bmp");
}

TEST_F(Start_Up_Process, ends_when_a_data_file_is_shorter_than_it_says) {
    for (const std::string& cut :
         {std::string("\x20\0\0\0"
                      "1,2,",
                      8),
          std::string("\xff\xff\xff\xff:", 5), std::string("\1\0", 2), std::string()}) {
        put("data/palette.dat", cut);
        expect_fatal("Unable to load block from  palette.dat", "/palette.dat");
        std::filesystem::remove(native(path("data/palette.dat")));
        put("data/options.dlg", cut);
        expect_fatal("Unable to load block from  " +
                         std::filesystem::canonical(native(path("data/options.dlg"))).string(),
                     "/options.dlg");
        std::filesystem::remove(native(path("data/options.dlg")));
    }
}

TEST_F(Start_Up_Process, runs_until_it_is_told_otherwise) {
    EXPECT_EQ(run(), 137);
    EXPECT_EQ(stored_text(path("output")), "");
}

// Complete files that no program of ours wrote.
TEST(Start_Up, takes_data_files_with_any_content) {
    const std::vector<std::string> records{
        "",
        ",,,,,,,,",
        ":::::",
        "2147483647,2147483647,x,-1",
        "-2147483648,-2147483648,",
        "3,0,a,-5,b,99999999999999999999,c",
        "999999,1,2,3,4,5,6,7,8,9",
        std::string(5000, '9'),
        std::string("\0\xff\0\xff,\0", 6),
        "14," + std::string(400, ','),
        "14,1,30,-1,0,0,2147483647,0,2147483647,-7,99,99,99,99,99,99,99,99,99,99,99,99,99,99,99,99,99,99,99",
    };
    use_dummy_video();
    for (const std::string& record : records) {
        SCOPED_TRACE(record.substr(0, 60));
        const Program_Folder folder;
        for (const char* const name : {"palette.dat", "options.dlg", "brushpad.dat"}) {
            store_text(folder.data_path(name), record_bytes(record));
        }
        start_application();
        EXPECT_TRUE(editor->show_first_frame());
        EXPECT_GE(palette_store->size(), 1);
        EXPECT_LE(palette_store->count(0), 1024);
        for (const Option_Row& row : option_table) {
            EXPECT_GE(options->value(row.id), row.low + row.offset) << row.key;
            EXPECT_LE(options->value(row.id), row.high + row.offset) << row.key;
        }
        editor->redraw(Present::yes);
        shut_down_application();
    }
}

TEST(Start_Up, leaves_no_file_and_no_changed_folder_behind) {
    use_dummy_video();
    const Program_Folder folder;
    const std::string before = current_directory();
    start_application();
    EXPECT_EQ(current_directory(), before);
    ASSERT_TRUE(editor->show_first_frame());
    shut_down_application();
    EXPECT_EQ(current_directory(), before);
    EXPECT_EQ(folder.entry_count(), 1);
    EXPECT_FALSE(std::filesystem::exists(folder.data_path("palette.dat")));
    EXPECT_FALSE(std::filesystem::exists(folder.data_path("options.dlg")));
}

} // namespace
} // namespace quadrelle::testing
