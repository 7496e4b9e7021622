#include "app/key_press.h"

#include "app/editor_parts.h"
#include "commands/command_table.h"

namespace quadrelle {

namespace {

// Shift and an arrow moves what floats by one pixel.
bool nudge(Selection_Desk& desk, Key_Chord chord) {
    if (chord.modifier != Modifier::shift) {
        return false;
    }
    switch (chord.key) {
    case key::left: return desk.nudge(-1, 0);
    case key::right: return desk.nudge(1, 0);
    case key::up: return desk.nudge(0, -1);
    case key::down: return desk.nudge(0, 1);
    default: return false;
    }
}

} // namespace

Command press_key(Editor_Parts& editor, Key_Chord chord) {
    editor.is_control_held = editor.is_control_held || chord.modifier == Modifier::control;
    return nudge(editor.desk, chord) ? Command::none : find_command(chord);
}

} // namespace quadrelle
