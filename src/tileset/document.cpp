#include "tileset/document.h"

#include "selection/transforms.h"

#include <utility>

namespace quadrelle {

Tileset_Document::Tileset_Document(std::string file_name, Tileset tileset)
    : file_name_(std::move(file_name)), tileset_(std::move(tileset)), versions_(tileset_.tile_size()) {}

void Tileset_Document::set_file(const std::string& path) {
    file_name_ = path;
    is_named_ = true;
}

bool Tileset_Document::mark_changed() {
    return !std::exchange(is_modified_, true);
}

std::string Tileset_Document::title() const {
    return file_name_ + change_mark();
}

void Tileset_Document::record(Command kind, Tool_In_Hand tool, Work_State work) {
    if (tileset_.has_tiles()) {
        history_.add(undo_entry_of(tileset_, kind, tool, std::move(work)));
    }
}

Command Tileset_Document::handle_command(Command command) {
    const auto done = [command](bool is_done) { return is_done ? command : Command::skip_command; };
    switch (command) {
    case Command::next_tile: return done(tileset_.next());
    case Command::previous_tile: return done(tileset_.previous());
    case Command::add_new_tile: return done(tileset_.add_tile());
    case Command::insert_new_tile: return done(insert_tile());
    case Command::delete_tile: return done(delete_tile());
    case Command::rewind_strip:
    case Command::forward_strip:
    case Command::previous_tile_strip:
    case Command::next_tile_strip: return scroll_strip(command);
    default: return answer_of(command, transform_tile(tileset_.current_tile(), command));
    }
}

Command Tileset_Document::scroll_strip(Command command) {
    switch (command) {
    case Command::rewind_strip: strip_.rewind(); break;
    case Command::forward_strip: strip_.forward(); break;
    case Command::previous_tile_strip: strip_.page_back(); break;
    default: strip_.page_forward();
    }
    return command;
}

bool Tileset_Document::insert_tile() {
    if (!tileset_.insert_tile()) {
        return false;
    }
    history_.tile_inserted(tileset_.current_index());
    return true;
}

// The last tile left stays, black, and so does what the history knows of it.
bool Tileset_Document::delete_tile() {
    if (!tileset_.has_tiles()) {
        return false;
    }
    const int index = tileset_.current_index();
    if (tileset_.delete_current()) {
        history_.tile_deleted(index, tileset_);
    }
    return true;
}

} // namespace quadrelle
