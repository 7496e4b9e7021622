#include "map/edited_map.h"

#include <cstddef>
#include <set>
#include <utility>

namespace quadrelle {

Edited_Map::Edited_Map(Tile_Map map) : map_(std::move(map)) {
    give_ids();
}

void Edited_Map::give_ids() {
    for (Map_Cell& cell : map_.cells()) {
        if (!cell.is_empty()) {
            cell = cell.with_tile(ids_.id_of(cell.tile()));
        }
    }
}

Tile_Map Edited_Map::indexed_map() const {
    Tile_Map result(map_);
    give_indices(result.cells());
    return result;
}

// For a whole view of cells, each frame: what an id becomes is looked up once for all of them.
void Edited_Map::give_indices(std::span<Map_Cell> cells) const {
    std::vector<int> indices{-1};
    for (int id = 0; id < ids_.count(); ++id) {
        indices.push_back(ids_.index_of(id));
    }
    for (Map_Cell& cell : cells) {
        const int place = cell.tile() + 1;
        cell = cell.with_number(indices[static_cast<std::size_t>(place)]);
    }
}

int Edited_Map::uses_of(int index) const {
    if (uses_version_ != version_) {
        uses_.assign(static_cast<std::size_t>(ids_.count()) + 1, 0);
        for (const Map_Cell cell : map_.cells()) {
            const int place = cell.tile() + 1;
            ++uses_[static_cast<std::size_t>(place)];
        }
        uses_version_ = version_;
    }
    const int place = ids_.known_id_of(index) + 1;
    return place == 0 || place >= static_cast<int>(uses_.size()) ? 0 : uses_[static_cast<std::size_t>(place)];
}

void Edited_Map::begin() {
    give_up();
    before_ = map_;
}

void Edited_Map::set(Map_Point point, Map_Cell cell) {
    map_.set(point, cell);
    ++version_;
}

void Edited_Map::restart() {
    if (before_) {
        map_ = *before_;
        ++version_;
    }
}

std::span<Map_Cell> Edited_Map::row_to_change(Map_Point first, int length) {
    ++version_;
    const std::ptrdiff_t start = std::ptrdiff_t{first.y} * map_.size().width + first.x;
    return map_.cells().subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
}

bool Edited_Map::end_step(const Tile_Map& before, const Map_Sides& sides) {
    ++version_;
    return history_.add(before, map_, sides);
}

bool Edited_Map::commit() {
    if (!before_) {
        return false;
    }
    const Tile_Map before = *std::exchange(before_, std::nullopt);
    return end_step(before);
}

void Edited_Map::give_up() {
    restart();
    before_.reset();
}

bool Edited_Map::resize(const Map_Sides& sides) {
    give_up();
    const Tile_Map before = std::exchange(map_, map_.resized(sides));
    return end_step(before, sides);
}

bool Edited_Map::replace(Tile_Map map) {
    give_up();
    const Tile_Map before = std::exchange(map_, std::move(map));
    give_ids();
    const Size size = before.size();
    return end_step(before, {0, 0, map_.size().width - size.width, map_.size().height - size.height});
}

bool Edited_Map::undo(const Bring_Back& bring_back) {
    give_up();
    const bool is_done = history_.undo(map_);
    ask_for_gone(bring_back);
    return is_done;
}

bool Edited_Map::redo(const Bring_Back& bring_back) {
    give_up();
    const bool is_done = history_.redo(map_);
    ask_for_gone(bring_back);
    return is_done;
}

bool Edited_Map::take_back() {
    give_up();
    const bool is_done = history_.take_back(map_);
    empty_gone();
    return is_done;
}

void Edited_Map::tile_inserted(int index) {
    ids_.inserted(index);
    ++version_;
}

void Edited_Map::tiles_swapped(int index, int other) {
    ids_.swapped(index, other);
    ++version_;
}

int Edited_Map::tile_deleted(int index) {
    give_up();
    if (uses_of(index) == 0) {
        ids_.deleted(index);
        ++version_;
        return 0;
    }
    const Tile_Map before = map_;
    ids_.deleted(index);
    const int count = empty_gone();
    history_.add(before, map_);
    return count;
}

void Edited_Map::ask_for_gone(const Bring_Back& bring_back) {
    std::set<int> gone;
    for (const Map_Cell cell : std::as_const(map_).cells()) {
        if (!cell.is_empty() && ids_.index_of(cell.tile()) < 0) {
            gone.insert(cell.tile());
        }
    }
    for (const int id : gone) {
        const int index = bring_back ? bring_back(id) : -1;
        if (index >= 0) {
            ids_.returned(id, index);
        }
    }
    left_empty_ = empty_gone();
}

int Edited_Map::empty_gone() {
    int count = 0;
    for (Map_Cell& cell : map_.cells()) {
        if (!cell.is_empty() && ids_.index_of(cell.tile()) < 0) {
            cell = {};
            ++count;
        }
    }
    ++version_;
    return count;
}

} // namespace quadrelle
