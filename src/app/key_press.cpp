#include "app/key_press.h"

#include "app/editor_parts.h"
#include "app/key_actions.h"
#include "commands/command_table.h"
#include "commands/key_table.h"

#include <algorithm>

namespace quadrelle {

namespace {

// An arrow moves what floats. Where nothing floats it is the key of a command.
bool nudge(Editor_Parts& editor, Key_Chord chord) {
    const auto* const row = std::ranges::find_if(nudge_table, [chord](const auto& candidate) {
        return Key_Chord{candidate.key, candidate.modifier} == chord;
    });
    if (row == nudge_table.end() || !editor.desk.nudge(row->step.x, row->step.y)) {
        return false;
    }
    editor.panes.hint_lines().end_report();
    return true;
}

Command press_further_key(Editor_Parts& editor, const Key_Row& row, bool is_repeat) {
    if (is_repeat && row.hold == Key_Hold::acts_once) {
        return Command::none;
    }
    return row.action == Key_Action::none ? row.command : carry_out(editor, row.action);
}

} // namespace

// The key itself counts first, and then what it makes: where plus stands, or a digit, and whether with Shift,
// depends on the keyboard.
Command press_key(Editor_Parts& editor, const Input_Event& press) {
    if (nudge(editor, press.chord)) {
        return Command::none;
    }
    for (const Key_Chord chord : {press.chord, Key_Chord{press.character, Modifier::none}}) {
        // What is held was often meant for something that is over: a stroke that was given up, a view that
        // was closed.
        if (const Command command = find_command(chord); command != Command::none) {
            return press.is_repeat && !row_of(command).has(Command_Trait::repeats) ? Command::none : command;
        }
        if (const Key_Row* const row = find_key(chord)) {
            return press_further_key(editor, *row, press.is_repeat);
        }
    }
    return Command::none;
}

} // namespace quadrelle
