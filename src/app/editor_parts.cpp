#include "app/editor_parts.h"

#include "commands/command_table.h"
#include "panes/toolbox.h"
#include "tools/options.h"

namespace quadrelle {

Editor_Parts::Editor_Parts(const Redraw& redraw_window)
    : redraw(redraw_window), canvas(options->value(Option::editor_pixel_size)),
      documents([this] { leave_tile(); }, [this] { show_current_tile(); }),
      recorder(documents, canvas, *toolbox), desk(canvas, recorder, *toolbox),
      panes(canvas, documents, desk.copies(), redraw_window), journal(documents, canvas, desk) {
    documents.set_watcher([this] { journal.follow(); });
}

void Editor_Parts::show_current_tile() {
    Tileset& tileset = documents.current().tileset();
    canvas.set_tile(tileset.current_tile());
    // Without a tile there is nothing to centre yet.
    if (tileset.has_tiles() && tileset.tile_size() != shown_tile_size) {
        shown_tile_size = tileset.tile_size();
        canvas.centre();
        panes.size_preview();
    }
}

void Editor_Parts::leave_tile() {
    desk.drop_lifted();
    canvas.undo_seam_shifts();
}

void Editor_Parts::undo_seam_shifts() {
    if (canvas.is_shifted()) {
        desk.drop_lifted();
        canvas.undo_seam_shifts();
    }
}

void Editor_Parts::leave_selection() {
    if (options->is_ticked(Option::clear_selection)) {
        canvas.work_area().deselect();
    }
}

Outcome Editor_Parts::refuse(Command command, std::string_view why) {
    report(command, why);
    return Outcome::refused;
}

void Editor_Parts::follow_up(Command done) {
    const Command_Row& row = row_of(done);
    if (row.has(Command_Trait::leaves_selection)) {
        leave_selection();
    }
    if (row.category == Command_Category::structure || row.category == Command_Category::tile_switch) {
        show_current_tile();
        documents.current().strip().show_current();
    }
    if (row.category == Command_Category::structure) {
        documents.mark_changed();
    }
}

} // namespace quadrelle
