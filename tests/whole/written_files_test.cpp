// Whichever operation fails while the program writes: each file is the old one or the new one, whole, nothing
// else is left behind, the program goes on, and the user is told of what is not stored.

#include "app/window_panes.h"
#include "base/file_names.h"
#include "tests/whole/program_test.h"
#include "views/map_layout.h"

#include <map>
#include <set>

namespace quadrelle::testing {
namespace {

class Written_Files_Test : public Program_Test {
protected:
    using Files = std::map<std::string, Bytes>;

    // The journal has a thread of its own, and tests of its own.
    [[nodiscard]] Files files() {
        Files found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder().native_path())) {
            const std::string name = entry.path().lexically_relative(folder().native_path()).generic_string();
            if (entry.is_regular_file() && name != "data/pool.bmp" && !name.starts_with("data/journal/")) {
                found[name] = stored(entry.path().string());
            }
        }
        return found;
    }
    void put_back(const Files& wanted) {
        for (const auto& [name, bytes] : files()) {
            wanted.contains(name) || std::filesystem::remove(folder().native_path() / name);
        }
        for (const auto& [name, bytes] : wanted) {
            store(folder().path(name), bytes);
        }
    }

    // Every question is answered with yes.
    void run(const std::function<void()>& act) {
        has_note_ = false;
        script().set_afterwards([this](std::string_view loop) {
            has_note_ = has_note_ || loop == "dialog \"Note\"";
            script().key(loop == "map editor" ? key::escape : key::enter);
        });
        act();
        script().set_afterwards({});
        editor->redraw(Present::no);
    }
    [[nodiscard]] static std::vector<std::string> lines() { return editor->panes().hint_lines().lines(); }

    // What is kept of the history is of no use with another file, and no loss.
    static void expect_whole(Files now, const Files& old, const Files& anew) {
        for (const auto& [name, bytes] : now) {
            const auto is_in = [&name = name, &bytes = bytes](const Files& files) {
                const auto found = files.find(name);
                return found != files.end() && found->second == bytes;
            };
            EXPECT_TRUE(is_in(old) || is_in(anew)) << name;
        }
        for (const auto& [name, bytes] : old) {
            EXPECT_TRUE(now.contains(name) || has_extension(name, "undo")) << name;
        }
    }
    static Files without_histories(Files files) {
        std::erase_if(files, [](const auto& file) { return has_extension(file.first, "undo"); });
        return files;
    }

    void expect_whole_files_from(const Files& old, const std::function<void()>& act) {
        put_back(old);
        run(act);
        const Files anew = files();
        const std::vector<std::string> lines_when_done = lines();
        bool is_reached = true;
        for (int operation = 0; is_reached; ++operation) {
            SCOPED_TRACE(operation);
            put_back(old);
            const Fault fault(operation);
            run(act);
            is_reached = Fault::is_reached();
            const Files now = files();
            expect_whole(now, old, anew);
            EXPECT_TRUE(without_histories(now) == without_histories(anew) || has_note_ ||
                        lines() != lines_when_done);
            EXPECT_TRUE(is_reached || now == anew);
            EXPECT_TRUE(is_reached || operation > 4);
        }
    }
    // Where there is no file yet, and where another one is there.
    void expect_whole_files(const std::function<void()>& act) {
        const Files none = files();
        expect_whole_files_from(none, act);
        Files old = files();
        for (auto& [name, bytes] : old) {
            none.contains(name) || (bytes = {'o', 'l', 'd'}, true);
        }
        expect_whole_files_from(old, act);
        put_back(none);
    }

    std::function<void()> writing_to(const std::string& name, const std::function<void()>& act) {
        return [=, this] {
            answer_files(File_Answer_State::chosen, folder().path(name));
            act();
        };
    }

private:
    bool has_note_ = false;
};

TEST_F(Written_Files_Test, are_whole_whichever_operation_fails) {
    constexpr Point png_button{484, 602};
    constexpr Point description_tick{343, 573};
    execute(Command::mirror);
    document().set_map(Tile_Map({9, 9}));
    expect_whole_files(writing_to("set.qdl", [this] { execute(Command::save_as); }));
    for (const char* const name : {"map.tmx", "map.bmp", "map.png"}) {
        expect_whole_files(writing_to(name, [this] {
            script().key('e', Modifier::control);
            execute(Command::map_editor);
        }));
    }
    expect_whole_files(writing_to("sheet", [this] { execute(Command::export_bitmap); }));
    bool has_description = false; // it is chosen as it was the last time
    expect_whole_files(writing_to("sheet", [&, this] {
        script().press(png_button);
        if (!std::exchange(has_description, true)) {
            script().click(description_tick);
        }
        execute(Command::export_bitmap);
    }));
    expect_whole_files([this] { execute(Command::options); });
    expect_whole_files([this] {
        tools().brush_pad.delete_current();
        editor->canvas().work_area().select(selected_rectangle({24, 24}, {1, 1}, {2, 2}),
                                            Selection_Change::add);
        execute(Command::use_as_brush);
        execute(Command::move_to_pad);
        play(script().motion({1, 1}));
    });
}

} // namespace
} // namespace quadrelle::testing
