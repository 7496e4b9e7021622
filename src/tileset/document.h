#pragma once

// One open tileset: its tiles, their history, versions and strip, the map that is laid out with them, the
// file they belong to, and whether they are saved.

#include "base/file_stamp.h"
#include "commands/command.h"
#include "map/edited_map.h"
#include "map/map_desk.h"
#include "tileset/sheet_export.h"
#include "tileset/tile_strip.h"
#include "tileset/tile_versions.h"
#include "tileset/tileset.h"
#include "tileset/undo_history.h"

#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace quadrelle {

// What the document's file was like when it was loaded or saved last.
struct Own_File {
    File_Stamp stamp;
    std::int64_t surplus = 0; // bytes behind its tiles, which saving would take away
};

class Tileset_Document {
public:
    // The name is UTF-8: that of an untitled tileset, or the path of its file.
    Tileset_Document(std::string file_name, Tileset tileset);
    // The strip refers to the tileset.
    Tileset_Document(const Tileset_Document&) = delete;
    Tileset_Document& operator=(const Tileset_Document&) = delete;

    [[nodiscard]] Tileset& tileset() { return tileset_; }
    [[nodiscard]] const Tileset& tileset() const { return tileset_; }
    [[nodiscard]] Undo_History& history() { return history_; }
    [[nodiscard]] const Undo_History& history() const { return history_; }
    [[nodiscard]] Tile_Versions& versions() { return versions_; }
    [[nodiscard]] Tile_Strip& strip() { return strip_; }
    [[nodiscard]] const Tile_Strip& strip() const { return strip_; }
    // The map follows the tiles wherever they go; null until there is one.
    [[nodiscard]] Edited_Map* map() { return map_.get(); }
    [[nodiscard]] const Edited_Map* map() const { return map_.get(); }
    // The cells have indices of tiles.
    Edited_Map& set_map(Tile_Map map);
    // Its file goes when the document is saved.
    void remove_map();
    // A deleted tile comes back, behind all others, where a step of the map brings its places back. False
    // when there is no step.
    bool undo_map();
    bool redo_map();
    // The file that the map was read from or written to last; empty without one. Its stamp is that of then.
    [[nodiscard]] const std::string& map_file() const { return map_file_; }
    [[nodiscard]] const std::optional<File_Stamp>& map_stamp() const { return map_stamp_; }
    void set_map_file(const std::string& path, const std::optional<File_Stamp>& stamp = {}) {
        map_file_ = path;
        map_stamp_ = stamp;
    }
    // What the map editor stands at, from the first time on that it was opened, as long as the tiles have
    // their size.
    [[nodiscard]] Map_Desk& map_desk();
    // Returns the place of the map that the user went to last, if there is one.
    [[nodiscard]] std::optional<Map_Point> map_place() const {
        return map_desk_ ? map_desk_->place : std::nullopt;
    }
    // Returns how many places of the map the current tile is in.
    [[nodiscard]] int uses_of_current() const;
    [[nodiscard]] const std::string& file_name() const { return file_name_; }
    // The document has a file of its own from now on.
    void set_file(const std::string& path);
    // None before the file was loaded or saved under its present name.
    [[nodiscard]] const std::optional<Own_File>& own_file() const { return own_file_; }
    void set_own_file(const Own_File& file) { own_file_ = file; }

    // No other document of this run has it.
    [[nodiscard]] std::uint32_t number() const { return number_; }
    // False when that was known already.
    bool mark_changed();
    // Counts how often it was.
    [[nodiscard]] std::uint64_t changes() const { return changes_; }
    void clear_modified() { is_modified_ = false; }
    [[nodiscard]] bool is_modified() const { return is_modified_; }
    // Whether it has a file of its own.
    [[nodiscard]] bool is_named() const { return is_named_; }

    // Returns "*" while modified, else nothing; what stands behind the name of the document.
    [[nodiscard]] const char* change_mark() const { return is_modified_ ? "*" : ""; }
    // Returns the file name with the mark.
    [[nodiscard]] std::string title() const;

    // None before the first export.
    [[nodiscard]] const std::optional<Export_Record>& last_export() const { return last_export_; }
    void set_last_export(Export_Record record) { last_export_ = std::move(record); }

    // The current tile, with what is selected on it and floats over it, becomes an entry of the history.
    // Without a tile there is nothing to record.
    void record(Command kind, Tool_In_Hand tool, Work_State work);
    // Commands on the current tile, the order of tiles and the strip: the command to record, "Skip command"
    // where it was refused, or none for every other command.
    Command handle_command(Command command);
    // Answers false for one and the same tile, or where there is none.
    bool swap_tiles(int i, int j);
    // Resamples every tile and selects the first; the history is empty then.
    void resize_tiles(Size tile_size);

private:
    Command scroll_strip(Command command);
    bool add_tile();
    bool insert_tile();
    bool delete_tile();
    // The tile is deleted.
    void forget_in_map(int index, const Tile& picture);
    // Returns where the tile that had this number in the map stands now, or -1.
    int bring_tile_back(int id);
    // A tile stands at that index that was not there before.
    void note_new_tile(int index);

    std::uint32_t number_;
    std::uint64_t changes_ = 0;
    std::string file_name_;
    Tileset tileset_;
    Undo_History history_;
    Tile_Versions versions_;
    Tile_Strip strip_{tileset_};
    std::optional<Export_Record> last_export_;
    std::unique_ptr<Edited_Map> map_;
    std::unique_ptr<Map_Desk> map_desk_;
    std::string map_file_;
    std::optional<File_Stamp> map_stamp_;
    // Deleted tiles that the map knew, with their numbers there; those that went last are kept.
    struct Gone_Tile {
        int id;
        Tile picture;
    };
    std::list<Gone_Tile> gone_tiles_;
    std::optional<Own_File> own_file_;
    bool is_modified_ = false;
    bool is_named_ = false;
};

} // namespace quadrelle
