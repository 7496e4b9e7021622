#include "app/key_press.h"

#include "app/editor_parts.h"
#include "app/key_actions.h"
#include "commands/command_table.h"
#include "commands/key_table.h"

namespace quadrelle {

namespace {

constexpr int shift_pixels = 8;

// An arrow moves what floats by a pixel, with Shift by more. Where nothing floats it is the key of a command.
bool nudge(Selection_Desk& desk, Key_Chord chord) {
    if (chord.modifier != Modifier::none && chord.modifier != Modifier::shift) {
        return false;
    }
    const int pixels = chord.modifier == Modifier::shift ? shift_pixels : 1;
    switch (chord.key) {
    case key::left: return desk.nudge(-pixels, 0);
    case key::right: return desk.nudge(pixels, 0);
    case key::up: return desk.nudge(0, -pixels);
    case key::down: return desk.nudge(0, pixels);
    default: return false;
    }
}

Command press_further_key(Editor_Parts& editor, const Input_Event& press) {
    const Key_Row* const row = find_key(press.chord, press.character);
    if (row == nullptr || (press.is_repeat && row->hold == Key_Hold::acts_once)) {
        return Command::none;
    }
    return row->action == Key_Action::none ? row->command : carry_out(editor, row->action);
}

} // namespace

Command press_key(Editor_Parts& editor, const Input_Event& press) {
    editor.is_control_held = editor.is_control_held || press.chord.modifier == Modifier::control;
    if (nudge(editor.desk, press.chord)) {
        return Command::none;
    }
    const Command command = find_command(press.chord);
    if (command == Command::none) {
        return press_further_key(editor, press);
    }
    // What is held was often meant for something that is over: a stroke that was given up, a view that was
    // closed.
    return press.is_repeat && !row_of(command).has(Command_Trait::repeats) ? Command::none : command;
}

} // namespace quadrelle
