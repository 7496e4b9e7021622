#include "app/edit_commands.h"

#include "app/editor_parts.h"
#include "panes/tool_color_panel.h"
#include "tools/options.h"
#include "ui/dialogs.h"
#include "views/undo_list.h"

#include <optional>
#include <string>

namespace quadrelle::edit_commands {

namespace {

// False after the user was told that such a picture cannot be taken.
bool take_from_other_program(Selection_Desk& desk) {
    const Picture_Fault fault = desk.take_clipboard();
    if (fault != Picture_Fault::none) {
        dialogs->message("Note", fault == Picture_Fault::too_large
                                     ? "The picture on the clipboard is too large."
                                     : "The picture on the clipboard can't be read.");
    }
    return fault == Picture_Fault::none;
}

Outcome refuse_without_copy(Editor_Parts& editor, Command command) {
    return editor.refuse(command, "Nothing is copied yet.");
}

Outcome refuse_invisible(Editor_Parts& editor, Command command) {
    return editor.refuse(command, "Nothing visible is there.");
}

} // namespace

Outcome undo(Editor_Parts& editor) {
    return editor.recorder.undo() ? Outcome::done : editor.refuse(Command::undo, "There is nothing to undo.");
}

Outcome redo(Editor_Parts& editor) {
    return editor.recorder.redo() ? Outcome::done : editor.refuse(Command::redo, "There is nothing to redo.");
}

// A click on a state goes there, as so many steps back or forth would.
Outcome view_undo_history(Editor_Parts& editor) {
    const Undo_History& history = editor.documents.current().history();
    if (const std::optional<std::size_t> clicked = show_undo_list(history)) {
        const int wanted = static_cast<int>(*clicked);
        while (history.position() > wanted && editor.recorder.undo()) {}
        while (history.position() < wanted && editor.recorder.redo()) {}
    }
    return Outcome::done;
}

Outcome copy(Editor_Parts& editor) {
    if (editor.desk.copy() != Outcome::done) {
        return refuse_invisible(editor, Command::copy);
    }
    const Size size = editor.desk.copies().current()->picture->size();
    editor.report(Command::copy,
                  std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels are copied.");
    return Outcome::done;
}

Outcome cut(Editor_Parts& editor) {
    if (!editor.desk.has_something()) {
        dialogs->message("Note", "Nothing selected to cut.");
        return Outcome::refused;
    }
    return editor.desk.cut() == Outcome::done ? Outcome::done : refuse_invisible(editor, Command::cut);
}

Outcome paste(Editor_Parts& editor) {
    if (editor.canvas.tile() == nullptr || !take_from_other_program(editor.desk)) {
        return Outcome::refused;
    }
    return editor.desk.paste() == Outcome::done ? Outcome::done : refuse_without_copy(editor, Command::paste);
}

Outcome paste_copy(Editor_Parts& editor) {
    return editor.canvas.tile() == nullptr ? Outcome::refused : editor.desk.paste();
}

Outcome clone(Editor_Parts& editor) {
    const bool is_of_something = editor.desk.has_something();
    if (editor.desk.clone(options->choice<Clone_Style>(Option::clone_style)) == Outcome::done) {
        return Outcome::done;
    }
    return is_of_something ? refuse_invisible(editor, Command::clone)
                           : refuse_without_copy(editor, Command::clone);
}

// What goes on floating looks as before.
Outcome plot_paste(Editor_Parts& editor) {
    const Outcome outcome = editor.desk.plot();
    if (editor.desk.shows_paste()) {
        editor.report(Command::plot_paste, "It is in the tile, and floats on until it is deselected.");
    }
    return outcome;
}

Outcome deselect(Editor_Parts& editor) {
    return editor.desk.deselect() == Outcome::done ? Outcome::done
                                                   : editor.refuse(Command::deselect, "Nothing is selected.");
}

Outcome invert_selection(Editor_Parts& editor) {
    return editor.desk.invert();
}

Outcome fill(Editor_Parts& editor) {
    return editor.desk.fill(tool_colors->color(Mouse_Button::left));
}

Outcome clear(Editor_Parts& editor) {
    return editor.desk.clear();
}

} // namespace quadrelle::edit_commands
