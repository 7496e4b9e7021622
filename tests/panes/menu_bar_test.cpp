#include "panes/menu_bar.h"

#include "base/debug_monitor.h"
#include "commands/command_table.h"
#include "commands/menu_table.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

enum Menu : std::size_t { file, edit, tile, tileset, tools, help };

class Menu_Bar_Test : public Program_Test {
protected:
    static int left_of(std::size_t menu) {
        int x = 0;
        for (std::size_t i = 0; i < menu; ++i) {
            x += screen->text_width(Font::regular, menu_table.at(i).header);
        }
        return x;
    }
    static Point header(std::size_t menu) { return {left_of(menu) + 8, 12}; }
    static Point item(std::size_t menu, std::size_t row) {
        return {left_of(menu) + 8, 25 + 25 * static_cast<int>(row) + 12};
    }
    static std::size_t row_with(std::size_t menu, Command command) {
        const auto& rows = menu_table.at(menu).rows;
        return static_cast<std::size_t>(std::ranges::find(rows, command, &Menu_Row::command) - rows.begin());
    }
    Script& expect_menu() { return expect_loop("menu"); }
    Script& expect_closed() { return expect_loop("main").motion({600, 650}); }
};

TEST_F(Menu_Bar_Test, every_row_carries_out_its_command) {
    answer_files(File_Answer_State::cancelled);
    for (std::size_t menu = 0; menu < menu_table.size(); ++menu) {
        for (std::size_t row = 0; row < menu_table.at(menu).rows.size(); ++row) {
            const Command command = menu_table.at(menu).rows[row].command;
            if (command == Command::none || command == Command::quit) {
                continue;
            }
            const std::size_t lines = message_log->lines().size();
            script().set_afterwards([&](std::string_view /*loop*/) { script().key(key::escape); });
            play(script().press(header(menu)).press(item(menu, row)));
            script().set_afterwards({});
            ASSERT_GT(message_log->lines().size(), lines);
            EXPECT_TRUE(message_log->lines().back().starts_with(row_of(command).name))
                << row_of(command).name;
        }
    }
}

TEST_F(Menu_Bar_Test, slides_to_the_neighbour_and_back_over_what_it_covers) {
    script().press(header(file)).motion(item(file, 2)).motion(header(edit)).motion(header(tileset));
    expect_menu().motion(item(file, 0)).press(item(tileset, row_with(tileset, Command::add_new_tile)));
    expect_closed();
    play();
    EXPECT_EQ(document().tileset().count(), 2);
}

TEST_F(Menu_Bar_Test, stays_open_on_separators_and_closes_outside) {
    script().press(header(file)).press(item(file, 1));
    expect_menu().press(item(file, 3));
    expect_menu().press(cell(4, 4));
    expect_closed();
    // The header itself lies outside of its box.
    script().press(header(file)).press(header(file));
    expect_closed();
    // The margin below the last item is inside, and no item.
    const int last = 25 + 25 * static_cast<int>(menu_table.at(help).rows.size());
    script().press(header(help)).press({left_of(help) + 8, last + 2});
    expect_menu().press({left_of(help) + 8, last + 3});
    expect_closed();
    play();
    EXPECT_EQ(tile_pixel(4, 4), Color(0, 0, 0));
}

TEST_F(Menu_Bar_Test, swallows_the_key_or_the_window_close_that_closes_it) {
    document().mark_changed();
    // A keyboard sends the modifier first: the menu takes the chord as a whole.
    script().press(header(file)).key(key::left_control, Modifier::control);
    expect_menu().key('s', Modifier::control);
    expect_closed().press(header(edit)).key(key::escape);
    expect_closed().press(header(edit)).quit();
    expect_closed();
    play();
    EXPECT_EQ(asked_file(), std::nullopt);
    EXPECT_TRUE(document().is_modified());
}

TEST_F(Menu_Bar_Test, opens_by_the_right_button_and_ignores_all_others) {
    script().press_number(header(file), 2);
    expect_closed().press(header(file), Mouse_Button::right);
    expect_menu().press_number(item(file, 0), 2);
    expect_menu().press_number(cell(4, 4), 4);
    expect_menu().press(cell(4, 4), Mouse_Button::right);
    expect_closed();
    play();
    EXPECT_EQ(tile_pixel(4, 4), Color(0, 0, 0));
}

} // namespace
} // namespace quadrelle::testing
