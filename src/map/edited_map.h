#pragma once

// A map of a set while it is edited: its cells, what names their tiles, and its history. A gesture, from a
// press to the release, is one step.

#include "map/map_history.h"
#include "map/tile_ids.h"
#include "map/tile_map.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace quadrelle {

class Edited_Map {
public:
    // The cells have the indices of tiles.
    explicit Edited_Map(Tile_Map map);

    // The cells have ids, of tiles that are there.
    [[nodiscard]] const Tile_Map& map() const { return map_; }
    [[nodiscard]] Tile_Ids& ids() { return ids_; }
    [[nodiscard]] const Tile_Ids& ids() const { return ids_; }
    // Returns the cell, or the map, with indices.
    [[nodiscard]] Map_Cell indexed(Map_Cell cell) const { return cell.with_tile(ids_.index_of(cell.tile())); }
    [[nodiscard]] Tile_Map indexed_map() const;
    // Gives all these cells indices in the place of ids.
    void give_indices(std::span<Map_Cell> cells) const;
    // Counts each change of the cells.
    [[nodiscard]] std::uint64_t version() const { return version_; }
    // Returns how often the map has the tile. They are counted once for all tiles, until the next change.
    [[nodiscard]] int uses_of(int index) const;

    // What is set from here on until the end is one step.
    void begin();
    [[nodiscard]] bool is_in_gesture() const { return before_.has_value(); }
    void set(Map_Point point, Map_Cell cell);
    // Returns so many cells of a row, all inside of the map, to be changed.
    [[nodiscard]] std::span<Map_Cell> row_to_change(Map_Point first, int length);
    // The cells are as they were at the beginning; the gesture goes on.
    void restart();
    // Ends the gesture. False when nothing is different.
    bool commit();
    // Ends it with the cells as they were.
    void give_up();

    // Each is a step of its own, and false when nothing is different. A size must be one of a map.
    bool resize(const Map_Sides& sides);
    // The cells have indices.
    bool replace(Tile_Map map);

    // Tiles that were deleted are asked for, to be set behind all others: the answer is the index, or -1. The
    // places of those that do not come back stay empty.
    using Bring_Back = std::function<int(int id)>;
    bool undo(const Bring_Back& bring_back = {});
    bool redo(const Bring_Back& bring_back = {});
    // Returns how many places the last of both left empty, as their tiles did not come back.
    [[nodiscard]] int left_empty() const { return left_empty_; }
    // Takes the step that was just made back as if it had never been, also for what can be redone.
    bool take_back();
    [[nodiscard]] const Map_History& history() const { return history_; }
    // Returns where the first cell of the first map lies now: columns and rows may have come before it.
    [[nodiscard]] Map_Point origin() const { return history_.origin(); }

    // The tiles of the set have changed places: the map shows the same pictures. That places of a deleted
    // tile become empty is a step. Returns how many there were.
    void tile_inserted(int index);
    void tiles_swapped(int index, int other);
    int tile_deleted(int index);

private:
    // Cells of tiles that are gone become empty; returns how many.
    int empty_gone();
    void ask_for_gone(const Bring_Back& bring_back);
    void give_ids();
    bool end_step(const Tile_Map& before, const Map_Sides& sides = {});

    Tile_Ids ids_;
    Tile_Map map_;
    std::optional<Tile_Map> before_;
    Map_History history_;
    int left_empty_ = 0;
    std::uint64_t version_ = 0;
    mutable std::vector<int> uses_; // of each id, behind those of nothing
    mutable std::optional<std::uint64_t> uses_version_;
};

} // namespace quadrelle
