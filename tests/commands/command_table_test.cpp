#include "commands/command_table.h"

#include "commands/menu_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace quadrelle {
namespace {

struct Chord_Case {
    Keycode key;
    Held_Modifiers held;
    Command expected;
};

constexpr Held_Modifiers shift{true, false, false};
constexpr Held_Modifiers control{false, true, false};
constexpr Held_Modifiers alt{false, false, true};

TEST(Command_Table, key_chords_find_their_commands) {
    const std::vector<Chord_Case> cases{
        {'l', {}, Command::color_right},
        {'l', shift, Command::lightness_pen},
        {'r', {}, Command::rotate},
        {'r', shift, Command::rotate_back},
        {'r', control, Command::redo},
        {'x', control, Command::cut},
        {'v', {}, Command::versions},
        {'\\', {}, Command::previous_tile_strip},
        {'\\', shift, Command::next_tile_strip},
        {'t', alt, Command::test},
        {key::space, {}, Command::deselect},
        {key::f1, {}, Command::context_info},
        {key::tab, {}, Command::view_tile_array},
        {key::keypad_multiply, {}, Command::center_tile_on_view},
        // Shift wins over Ctrl, Ctrl over Alt.
        {'r', {true, true, true}, Command::rotate_back},
        {'s', {false, true, true}, Command::save},
        {'s', {true, true, false}, Command::none},
        // The modifier must be the very one.
        {'p', control, Command::none},
        {'t', {}, Command::none},
        {'R', {}, Command::none},
        {'*', {}, Command::none},
        {key::left_control, control, Command::none},
        {key::right_shift, shift, Command::none},
        {key::none, {}, Command::none},
    };
    for (const Chord_Case& test : cases) {
        EXPECT_EQ(find_command(make_key_chord(test.key, test.held)), test.expected)
            << "key " << test.key << " with " << test.held.shift << test.held.control << test.held.alt;
    }
}

TEST(Command_Table, menu_text_is_the_name_and_the_key) {
    EXPECT_EQ(menu_text(Command::save), "Save (^s)");
    EXPECT_EQ(menu_text(Command::rotate_back), "Rotate back (R)");
    EXPECT_EQ(menu_text(Command::test), "Test (~t)");
    EXPECT_EQ(menu_text(Command::save_as), "Save as...");
}

TEST(Command_Table, help_has_lines_that_fit_and_a_placeholder_for_the_rest) {
    EXPECT_EQ(description(Command::save), "dsc");
    EXPECT_EQ(description(Command::test), "debug test");
    EXPECT_TRUE(description(Command::pen).ends_with("color for the left mouse button."));
    for (const Command_Row& row : command_table) {
        EXPECT_FALSE(description(row.id).empty()) << row.name;
        EXPECT_EQ(description(row.id).find('\n'), std::string_view::npos) << row.name;
    }
}

TEST(Menu_Table, names_no_command_twice) {
    std::multiset<Command> commands;
    for (const Menu_Column& column : menu_table) {
        for (const Menu_Row& row : column.rows) {
            if (row.command != Command::none) {
                commands.insert(row.command);
            }
        }
    }
    for (const Command command : commands) {
        EXPECT_EQ(commands.count(command), 1U) << row_of(command).name;
    }
}

} // namespace
} // namespace quadrelle
