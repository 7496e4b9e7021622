#include "app/usable_commands.h"

#include "app/documents.h"
#include "canvas/canvas_view.h"
#include "commands/command_table.h"
#include "panes/toolbox.h"
#include "selection/copy_buffer.h"

namespace quadrelle {

namespace {

bool has_something(const Canvas_View& canvas) {
    return canvas.work_area().has_selection() || canvas.shows_paste(toolbox->state());
}

bool can_turn(const Canvas_View& canvas) {
    const Tile* const tile = canvas.tile();
    return tile != nullptr && (has_something(canvas) || tile->size().width == tile->size().height);
}

// Of a set that has no name yet nothing is saved.
bool can_save(const Command_Subjects& subjects) {
    const Tileset_Document& document = subjects.documents.current();
    return !document.is_named() || document.is_modified() || subjects.canvas.work_area().paste();
}

bool has_step_after(const Undo_History& history) {
    return history.position() + 1 < static_cast<int>(history.entries().size());
}

bool needs_tile(Command command) {
    const Command_Row& row = row_of(command);
    return row.has(Command_Trait::needs_tile) || row.category == Command_Category::selection;
}

} // namespace

bool can_do(Command command, const Command_Subjects& subjects) {
    const Canvas_View& canvas = subjects.canvas;
    const Tileset_Document& document = subjects.documents.current();
    switch (command) {
    case Command::save: return can_save(subjects);
    case Command::undo: return document.history().position() > 0;
    case Command::redo: return has_step_after(document.history());
    case Command::cut:
    case Command::use_as_brush: return has_something(canvas);
    case Command::deselect: return has_something(canvas) || canvas.work_area().paste();
    case Command::clone: return has_something(canvas) || subjects.copies.current() != nullptr;
    case Command::move_to_pad:
    case Command::delete_brush: return toolbox->current_tool() == Tool::stamp_brush;
    case Command::rotate:
    case Command::rotate_back: return can_turn(canvas);
    case Command::add_new_tile:
    case Command::insert_new_tile: return !document.tileset().is_full();
    case Command::copy:
    case Command::paste: return canvas.tile() != nullptr;
    default: return !needs_tile(command) || canvas.tile() != nullptr;
    }
}

} // namespace quadrelle
