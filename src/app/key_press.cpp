#include "app/key_press.h"

#include "app/editor_parts.h"
#include "commands/command_table.h"

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

} // namespace

Command press_key(Editor_Parts& editor, Key_Chord chord) {
    editor.is_control_held = editor.is_control_held || chord.modifier == Modifier::control;
    return nudge(editor.desk, chord) ? Command::none : find_command(chord);
}

} // namespace quadrelle
