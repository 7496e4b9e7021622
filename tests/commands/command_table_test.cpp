#include "commands/command_table.h"

#include "commands/key_table.h"
#include "commands/menu_table.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace quadrelle
