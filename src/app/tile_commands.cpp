#include "app/tile_commands.h"

#include "app/editor_parts.h"
#include "app/recoloring.h"
#include "app/tileset_commands.h"
#include "color/hsv_change.h"
#include "panes/toolbox.h"
#include "ui/dialogs.h"
#include "views/adjust_hsv.h"
#include "views/versions_dialog.h"

#include <optional>

namespace quadrelle::tile_commands {

namespace {

// While the dialog is open, the changed picture floats there.
std::optional<HSV_Adjustment> ask_for_paste(Work_Area& work) {
    const Work_State before = work.state();
    Tile picture(work.paste()->picture);
    const std::optional<HSV_Adjustment> wanted =
        ask_hsv_adjustment(Drawing_Target(picture), All_Tiles_Choice::hidden, [&] {
            work.change_paste({picture, work.paste()->position});
        });
    work.restore(before);
    return wanted;
}

std::optional<HSV_Adjustment> ask_for_tile(Editor_Parts& editor) {
    const bool has_others = editor.documents.current().tileset().count() > 1;
    return ask_hsv_adjustment(editor.canvas.work_area().target(*editor.canvas.tile()),
                              has_others ? All_Tiles_Choice::shown : All_Tiles_Choice::hidden);
}

} // namespace

Outcome transform(Editor_Parts& editor, Command command) {
    const Outcome outcome = editor.desk.transform(command);
    if (outcome != Outcome::unknown) {
        return outcome;
    }
    const Outcome of_tile = tileset_commands::leave_to_document(editor, command);
    if (of_tile == Outcome::done) {
        editor.canvas.transform_history(command);
    }
    return of_tile;
}

// Turned about the middle of the shifted tile, it could not be shifted back; what is selected or floats can.
Outcome turn(Editor_Parts& editor, Command command) {
    Outcome outcome = Outcome::refused;
    if (editor.desk.has_something()) {
        outcome = transform(editor, command);
    } else {
        editor.canvas.with_tile_in_place([&] { outcome = transform(editor, command); });
    }
    if (outcome != Outcome::refused) {
        return outcome;
    }
    const Size size = editor.canvas.tile()->size();
    const bool is_too_wide_or_high = !editor.desk.has_something() && size.width != size.height;
    return editor.refuse(command, is_too_wide_or_high ? "Only what is as wide as high can be turned."
                                                      : "It looks the same as before.");
}

Outcome adjust_hsv(Editor_Parts& editor) {
    if (editor.canvas.tile() == nullptr) {
        dialogs->message("Note", "There is no tile to adjust.");
        return Outcome::refused;
    }
    const std::optional<HSV_Adjustment> wanted =
        editor.desk.shows_paste() ? ask_for_paste(editor.canvas.work_area()) : ask_for_tile(editor);
    if (!wanted) {
        return Outcome::refused;
    }
    const Color_Map map = [change = wanted->change](Color color) { return adjusted(color, change); };
    return wanted->tiles == Adjusted_Tiles::all
               ? recolor_set(editor, "Adjust HSV", map)
               : recolor_step(editor, Command::adjust_hsv, [&] { return editor.desk.recolor(map); });
}

// What was lifted drops first: across the edge it would be cut.
Outcome shift_to_seam(Editor_Parts& editor, Seam seam) {
    editor.desk.drop_lifted();
    return editor.canvas.toggle_seam_shift(seam) ? Outcome::done : Outcome::refused;
}

Outcome save_history_buffer(Editor_Parts& editor) {
    editor.canvas.save_history();
    editor.report(Command::save_history_buffer,
                  "The pens' right button mode \"History\" draws from the tile as it is now.");
    return Outcome::done;
}

// Without pixels there is nothing to keep. What is seen is stored, with what floats over the tile. What is
// taken back is a paste like others from there on.
Outcome versions(Editor_Parts& editor) {
    Tileset_Document& document = editor.documents.current();
    const Tile* const tile = document.tileset().current_tile();
    if (tile == nullptr || tile->pixel_count() == 0) {
        return Outcome::refused;
    }
    const Tile seen(*editor.canvas.shown_tile(toolbox->state()));
    if (const std::optional<int> slot = show_versions(document.versions(), seen)) {
        editor.recorder.step([&] {
            editor.desk.float_picture({document.versions().copy(*slot, tile->size()), {0, 0}});
            return Command::paste;
        });
    }
    return Outcome::done;
}

} // namespace quadrelle::tile_commands
