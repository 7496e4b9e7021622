#include "app/usable_commands.h"
#include "app/window_panes.h"
#include "base/debug_monitor.h"
#include "color/palette_store.h"
#include "commands/command_table.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"

#include <map>
#include <set>

namespace quadrelle::testing {
namespace {

class Command_Test : public Program_Test {
protected:
    // Every question is given up with Escape; the names of the loops that asked.
    std::vector<std::string> execute_and_escape(Command command) {
        std::vector<std::string> asked;
        script().set_afterwards([&](std::string_view loop) {
            asked.emplace_back(loop);
            script().key(key::escape);
        });
        execute(command);
        script().set_afterwards({});
        return asked;
    }

    void execute_every_command() {
        for (const Command_Row& row : command_table) {
            SCOPED_TRACE(row.name);
            EXPECT_LE(execute_and_escape(row.id).size(), 1U);
        }
    }
};

TEST_F(Command_Test, every_one_leaves_the_program_usable) {
    execute_every_command();
    tools().colors = {};
    execute(Command::pen);
    play(script().click(cell(3, 3)));
    EXPECT_EQ(tile_pixel(3, 3), Color(255, 255, 255));
}

TEST_F(Command_Test, every_one_survives_a_tileset_without_tiles) {
    const std::vector<Size> sizes{{24, 24}, {255, 255}, {24, 0}, {0, 24}, {0, 0}};
    for (const Size& size : sizes) {
        SCOPED_TRACE(size.width * 1000 + size.height);
        load_empty_set(size);
        EXPECT_FALSE(has_picture({264, 64, 512, 512}));
        play(script().drag({cell(3, 3), cell(5, 5)}).wheel(1).wheel(-1));
        execute_every_command();
        execute(Command::add_new_tile);
        EXPECT_GT(document().tileset().count(), 0);
        execute_every_command();
    }
}

class Every_Command_Test : public Command_Test {
protected:
    // All of the second of three tiles selected, and a copy of it.
    void prepare(Command tool, Point pointer) {
        make_set({24, 24}, 3, [](int tile, Point pixel) {
            return Color(tile * 80 + 20, pixel.x * 10, pixel.y * 9 + pixel.x % 3 * 20, 255);
        });
        execute(Command::next_tile);
        execute(tool);
        play(script().key('a', Modifier::control).motion(pointer));
    }

    // In the window, its title or a dialog of the system.
    bool shows_something(Command command) {
        answer_files(File_Answer_State::cancelled);
        const Picture before = window_picture();
        const std::string title = window_title();
        const bool has_asked = !execute_and_escape(command).empty();
        return has_asked || window_picture() != before || window_title() != title || asked_file();
    }

    bool answers_click(Point point, Command tool) {
        prepare(tool, point);
        answer_files(File_Answer_State::cancelled);
        const Picture before = window_picture();
        bool has_asked = false;
        script().set_afterwards([&](std::string_view /*loop*/) {
            has_asked = true;
            script().key(key::escape);
        });
        play(script().click(point));
        script().set_afterwards({});
        return has_asked || window_picture() != before || asked_file();
    }

    // What icons and buttons in the window stand for, each with a point of it. Beside them there is the tool.
    static std::map<Command, Point> buttons_in_window(Command tool) {
        std::map<Command, Point> buttons;
        for (int y = 0; y < screen->size().height; y += 5) {
            for (int x = 0; x < screen->size().width; x += 5) {
                const Pointed thing = editor->panes().pointed({x, y});
                const Command* const command = std::get_if<Command>(&thing);
                if (command != nullptr && *command != tool) {
                    buttons.try_emplace(*command, Point{x, y});
                }
            }
        }
        return buttons;
    }
};

// Those that are named do nothing to a set with a single strip in the middle of the view.
TEST_F(Every_Command_Test, every_icon_and_button_answers_a_click) {
    std::set<Command> met{Command::center_tile_on_view, Command::previous_tile_strip,
                          Command::next_tile_strip, Command::rewind_strip, Command::forward_strip};
    for (const Command tool : {Command::pen, Command::rectangle_selector}) {
        prepare(tool, {5, 5});
        for (const auto& [command, point] : buttons_in_window(tool)) {
            if (met.insert(command).second) {
                EXPECT_TRUE(answers_click(point, tool)) << row_of(command).name;
            }
        }
    }
    EXPECT_GT(met.size(), 30U);
}

// Those that are named do nothing at all, or nothing to a set with a single strip in the middle of the view,
// or only what is so already.
TEST_F(Every_Command_Test, shows_that_it_was_carried_out) {
    const std::vector<Command> shows_nothing{Command::change_tile,         Command::import_from_bmp,
                                             Command::skip_command,        Command::center_tile_on_view,
                                             Command::previous_tile_strip, Command::next_tile_strip,
                                             Command::rewind_strip,        Command::forward_strip,
                                             Command::plot_paste,          Command::select_brush_size_1};
    for (const Command_Row& row : command_table) {
        prepare(row.id == Command::pen ? Command::dropper : Command::pen, {5, 5 + index_of(row.id) % 2});
        EXPECT_TRUE(shows_something(row.id) || std::ranges::count(shows_nothing, row.id) == 1) << row.name;
        EXPECT_FALSE(message_log->lines().back().starts_with("Note: Unhandled command ")) << row.name;
    }
}

TEST_F(Command_Test, does_by_its_key_what_it_does_from_a_menu) {
    for (const Command_Row& row : command_table) {
        if (row.key != key::none) {
            const std::vector<std::string> from_menu = execute_and_escape(row.id);
            std::vector<std::string> by_key;
            script().set_afterwards([&](std::string_view loop) {
                by_key.emplace_back(loop);
                script().key(key::escape);
            });
            play(script().key(row.key, row.modifier).key_up(row.key));
            EXPECT_EQ(by_key, from_menu) << row.name;
            script().set_afterwards({});
        }
    }
}

TEST_F(Command_Test, undo_list_goes_at_any_key_or_click_beside_it_and_they_do_nothing_else) {
    play(script().click(cell(1, 1)));
    script().motion({5, 5}).key('z', Modifier::control);
    execute(Command::view_undo_history);
    script().motion({6, 6}).press(cell(5, 5));
    execute(Command::view_undo_history);
    EXPECT_EQ(tile_pixel(1, 1), white);
    EXPECT_EQ(tile_pixel(5, 5), black);
}

TEST_F(Command_Test, a_click_on_a_state_in_the_undo_list_goes_there) {
    const auto row = [](int from_top) { return Point{600, 298 + 30 * from_top}; };
    for (int x = 0; x < 3; ++x) {
        play(script().click(cell(x, 1)));
    }
    script().press(row(3));
    execute(Command::view_undo_history);
    EXPECT_EQ(document().history().position(), 0);
    EXPECT_EQ(tile_pixel(0, 1), black);
    script().press(row(1));
    execute(Command::view_undo_history);
    EXPECT_EQ(tile_pixel(1, 1), white);
    EXPECT_EQ(tile_pixel(2, 1), black);
}

TEST_F(Command_Test, what_would_do_nothing_is_known_before) {
    using Commands = std::vector<Command>;
    const auto idle = [](const Commands& commands) {
        const Command_Subjects subjects{editor->canvas(), editor->documents(), editor->copies()};
        Commands found;
        std::ranges::copy_if(commands, std::back_inserter(found),
                             [&](Command command) { return !can_do(command, subjects); });
        return found;
    };
    using enum Command;
    const Commands all{undo, redo, cut, clone, use_as_brush, move_to_pad, deselect, fill, rotate};
    EXPECT_EQ(idle(all), (Commands{undo, redo, cut, clone, use_as_brush, move_to_pad, deselect}));
    play(script().click(cell(1, 1)));
    execute(rectangle_selector);
    play(script().drag({cell(0, 0), cell(9, 9)}));
    EXPECT_EQ(idle(all), (Commands{redo, move_to_pad}));
    execute(Command::copy);
    execute(deselect);
    execute(undo);
    execute(undo);
    execute(stamp_brush);
    EXPECT_EQ(idle(all), (Commands{cut, use_as_brush, deselect}));
    load_empty_set({24, 24});
    EXPECT_EQ(idle({rotate, fill, flip, options}), (Commands{rotate, fill, flip}));
}

TEST_F(Command_Test, quit_asks_and_only_a_yes_ends_the_program) {
    script().quit();
    expect_question("Quit", "Quit Quadrelle?").key(key::escape);
    expect_loop("main").key(key::escape);
    expect_question("Quit", "Quit Quadrelle?").quit();
    expect_loop("main").click(cell(1, 1)).quit();
    const std::string warning = "Quit Quadrelle without saving tiles?\r(Progress will be lost.)";
    expect_question("Quit", warning).key(key::escape).key(key::escape);
    expect_question("Quit", warning).key(key::enter);
    editor->run();
    EXPECT_TRUE(script().is_played());
    EXPECT_EQ(tile_pixel(1, 1), Color(255, 255, 255));
}

} // namespace
} // namespace quadrelle::testing
