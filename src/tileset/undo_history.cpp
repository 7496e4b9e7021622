#include "tileset/undo_history.h"

#include "tileset/tileset.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

Undo_Entry undo_entry_of(const Tileset& tileset, Command kind, Tool_In_Hand tool, Work_State work) {
    const Tile& tile = *tileset.current_tile();
    static_cast<void>(tile.version()); // known, it goes along
    return {kind, std::make_shared<const Tile_Snapshot>(tile), tileset.current_index(), tool,
            std::move(work)};
}

Undo_History::Undo_History(int capacity) : capacity_(capacity) {}

void Undo_History::add(Undo_Entry entry) {
    entries_.erase(entries_.begin() + (position_ + 1), entries_.end());
    entries_.push_back(std::move(entry));
    if (count() > capacity_) {
        entries_.erase(entries_.begin());
        ++forgotten_;
    }
    position_ = count() - 1;
}

void Undo_History::clear() {
    entries_.clear();
    position_ = -1;
    forgotten_ = 0;
}

void Undo_History::restore(std::vector<Undo_Entry> entries, int position) {
    entries_ = std::move(entries);
    position_ = position;
    forgotten_ = 0;
}

void Undo_History::reset(const Tileset& tileset) {
    clear();
    if (tileset.has_tiles()) {
        // Deliberately labelled as a fill: that is how a tile comes into being.
        add(undo_entry_of(tileset, Command::flood_fill, {}));
    }
}

const Undo_Entry* Undo_History::undo() {
    if (position_ <= 0) {
        return nullptr;
    }
    --position_;
    return &entries_[static_cast<std::size_t>(position_)];
}

const Undo_Entry* Undo_History::redo() {
    if (position_ + 1 >= count()) {
        return nullptr;
    }
    ++position_;
    return &entries_[static_cast<std::size_t>(position_)];
}

void Undo_History::tile_inserted(int index) {
    for (Undo_Entry& entry : entries_) {
        entry.tile_index += entry.tile_index >= index ? 1 : 0;
    }
}

void Undo_History::tile_deleted(int index, const Tileset& tileset) {
    const auto is_dropped = [index](const Undo_Entry& entry) { return entry.tile_index == index; };
    const auto dropped_so_far =
        std::count_if(entries_.begin(), entries_.begin() + (position_ + 1), is_dropped);
    position_ -= static_cast<int>(dropped_so_far);
    if (position_ < 0) {
        reset(tileset);
        return;
    }
    std::erase_if(entries_, is_dropped);
    for (Undo_Entry& entry : entries_) {
        entry.tile_index -= entry.tile_index > index ? 1 : 0;
    }
}

int Undo_History::size_kb() const {
    std::size_t bytes = 0;
    for (const Undo_Entry& entry : entries_) {
        bytes += entry.memory_size();
    }
    return static_cast<int>(bytes / 1024);
}

} // namespace quadrelle
