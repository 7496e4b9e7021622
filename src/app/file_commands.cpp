#include "app/file_commands.h"

#include "app/document_export.h"
#include "app/editor_parts.h"
#include "app/open_file.h"
#include "tools/options.h"
#include "views/ask_for_file.h"
#include "views/history_questions.h"
#include "views/new_tileset_dialog.h"
#include "views/quit_question.h"

#include <optional>
#include <string>
#include <utility>

namespace quadrelle::file_commands {

namespace {

// Saving is not a command of the whole set, but writes its tiles. Until the user has answered, nothing
// changes.
Outcome save_document(Editor_Parts& editor, Save_As save_as) {
    const std::optional<std::string> path = editor.documents.ask_where_to_save(save_as);
    if (!path) {
        return Outcome::refused;
    }
    editor.desk.settle_to_save();
    editor.canvas.undo_seam_shifts();
    if (!editor.documents.save_document(*path)) {
        return Outcome::refused;
    }
    editor.report(save_as == Save_As::yes ? Command::save_as : Command::save,
                  editor.documents.what_was_saved());
    return Outcome::done;
}

} // namespace

Outcome make_new(Editor_Parts& editor) {
    const auto choice = new_tileset_dialog->run();
    if (!choice) {
        return Outcome::refused;
    }
    if (choice->keep_and_resize) {
        if (!confirm_resize(editor.documents.current(), choice->size)) {
            return Outcome::refused;
        }
        editor.documents.resize_current(choice->size);
        editor.documents.mark_changed();
    } else if (editor.documents.new_document(choice->size)) {
        // What was selected in another set means nothing here.
        editor.canvas.work_area().deselect();
    } else {
        return Outcome::refused;
    }
    editor.panes.size_preview();
    return Outcome::done;
}

Outcome load(Editor_Parts& editor) {
    std::string path = std::exchange(editor.file_to_load, {});
    const File_Origin origin = path.empty() ? File_Origin::chosen : File_Origin::dropped;
    if (path.empty() && !choose_file(File_Dialog_Kind::load_tileset, path)) {
        return Outcome::refused;
    }
    return open_file(editor, path, origin);
}

Outcome save(Editor_Parts& editor) {
    const Tileset_Document& document = editor.documents.current();
    if (document.is_named() && !document.is_modified() && !editor.desk.has_to_settle()) {
        return editor.refuse(Command::save, "Nothing has changed since it was saved.");
    }
    return save_document(editor, Save_As::no);
}

Outcome save_as(Editor_Parts& editor) {
    return save_document(editor, Save_As::yes);
}

Outcome export_picture(Editor_Parts& editor) {
    const std::optional<std::string> path = export_document(editor.documents.current(), editor.desk);
    if (!path) {
        return Outcome::refused;
    }
    editor.report(Command::export_bitmap, "Exported to " + *path);
    return Outcome::done;
}

void export_again(Editor_Parts& editor) {
    constexpr const char* name = "Export again";
    Tileset_Document& document = editor.documents.current();
    if (!document.last_export()) {
        editor.panes.hint_lines().report(
            {name, "This set was not exported since it was opened: see File, Export as .bmp."});
        return;
    }
    editor.undo_seam_shifts();
    if (const std::optional<std::string> path = quadrelle::export_again(document, editor.desk)) {
        editor.panes.hint_lines().report({name, "Exported to " + *path});
    }
}

Outcome close(Editor_Parts& editor) {
    if (!editor.documents.close_document()) {
        return Outcome::refused;
    }
    editor.canvas.work_area().deselect();
    editor.panes.size_preview();
    return Outcome::done;
}

Outcome edit_options(Editor_Parts& editor) {
    const int grid_intensity = options->value(Option::grid_intensity);
    if (options->edit()) {
        editor.panes.size_preview();
    }
    // Whoever chooses it wants to see it.
    if (options->value(Option::grid_intensity) != grid_intensity) {
        editor.canvas.show_grid();
    }
    return Outcome::done;
}

Outcome quit(Editor_Parts& editor) {
    editor.is_quit_requested = confirm_quit(editor.documents.has_unsaved());
    return Outcome::done;
}

} // namespace quadrelle::file_commands
