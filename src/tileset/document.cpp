#include "tileset/document.h"

#include "selection/transforms.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

std::uint32_t next_number() {
    static std::uint32_t last = 0;
    return ++last;
}

} // namespace

Tileset_Document::Tileset_Document(std::string file_name, Tileset tileset)
    : number_(next_number()), file_name_(std::move(file_name)), tileset_(std::move(tileset)),
      versions_(tileset_.tile_size()) {}

void Tileset_Document::set_file(const std::string& path) {
    if (path != file_name_) {
        own_file_.reset();
    }
    file_name_ = path;
    is_named_ = true;
}

bool Tileset_Document::mark_changed() {
    ++changes_;
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
    case Command::add_new_tile: return done(add_tile());
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

void Tileset_Document::note_new_tile(int index) {
    if (map_) {
        map_->tile_inserted(index);
    }
}

bool Tileset_Document::add_tile() {
    if (!tileset_.add_tile()) {
        return false;
    }
    note_new_tile(tileset_.current_index());
    return true;
}

bool Tileset_Document::insert_tile() {
    if (!tileset_.insert_tile()) {
        return false;
    }
    history_.tile_inserted(tileset_.current_index());
    note_new_tile(tileset_.current_index());
    return true;
}

// The last tile left stays, black, and so does what the history knows of it.
bool Tileset_Document::delete_tile() {
    if (!tileset_.has_tiles()) {
        return false;
    }
    const int index = tileset_.current_index();
    const Tile picture(*tileset_.current_tile());
    if (tileset_.delete_current()) {
        history_.tile_deleted(index, tileset_);
        forget_in_map(index, picture);
    }
    return true;
}

void Tileset_Document::forget_in_map(int index, const Tile& picture) {
    constexpr std::size_t most_gone_tiles = 64;
    if (!map_) {
        return;
    }
    if (const int id = map_->ids().known_id_of(index); id >= 0) {
        gone_tiles_.push_back({id, picture});
    }
    if (gone_tiles_.size() > most_gone_tiles) {
        gone_tiles_.pop_front();
    }
    map_->tile_deleted(index);
}

int Tileset_Document::bring_tile_back(int id) {
    const auto found = std::ranges::find(gone_tiles_, id, &Gone_Tile::id);
    if (found == gone_tiles_.end() || tileset_.is_full()) {
        return -1;
    }
    auto tile = std::make_unique<Tile>(tileset_.tile_width(), tileset_.tile_height());
    found->picture.resample_into(*tile);
    gone_tiles_.erase(found);
    tileset_.append_loaded(std::move(tile));
    return tileset_.count() - 1;
}

bool Tileset_Document::undo_map() {
    return map_->undo([this](int id) { return bring_tile_back(id); });
}

bool Tileset_Document::redo_map() {
    return map_->redo([this](int id) { return bring_tile_back(id); });
}

bool Tileset_Document::swap_tiles(int i, int j) {
    if (!tileset_.swap_tiles(i, j)) {
        return false;
    }
    if (map_) {
        map_->tiles_swapped(i, j);
    }
    return true;
}

void Tileset_Document::resize_tiles(Size tile_size) {
    tileset_.resize_all(tile_size);
    history_.clear();
    map_desk_.reset();
}

Edited_Map& Tileset_Document::set_map(Tile_Map map) {
    map_ = std::make_unique<Edited_Map>(std::move(map));
    gone_tiles_.clear();
    return *map_;
}

void Tileset_Document::remove_map() {
    map_.reset();
    map_desk_.reset();
    gone_tiles_.clear();
}

Map_Desk& Tileset_Document::map_desk() {
    if (!map_desk_) {
        map_desk_ = std::make_unique<Map_Desk>();
    }
    return *map_desk_;
}

int Tileset_Document::uses_of_current() const {
    return map_ && tileset_.has_tiles() ? map_->uses_of(tileset_.current_index()) : 0;
}

} // namespace quadrelle
