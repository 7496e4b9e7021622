#pragma once

// The last states of the tiles of a set, walked back and forth. Says what to restore; the caller restores it.

#include "commands/command.h"
#include "selection/work_area.h"
#include "tileset/tile_snapshot.h"
#include "tools/tool_state.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace quadrelle {

class Tileset;

// The tile after an edit.
struct Undo_Entry {
    Command kind = Command::none;                  // what was done; of a stroke the command of its tool
    std::shared_ptr<const Tile_Snapshot> snapshot; // of the same version as the tile was
    int tile_index = 0;
    Tool_In_Hand tool; // when the entry was made
    Work_State work;   // what was selected and what floated over the tile

    [[nodiscard]] std::size_t memory_size() const {
        return 12 + snapshot->memory_size() + work.memory_size();
    }
};

// The tileset must have a current tile.
[[nodiscard]] Undo_Entry undo_entry_of(const Tileset& tileset, Command kind, Tool_In_Hand tool,
                                       Work_State work = {});

class Undo_History {
public:
    static constexpr int default_capacity = 18;

    explicit Undo_History(int capacity = default_capacity);

    // What was undone and not redone is forgotten, and beyond the capacity the oldest entry.
    void add(Undo_Entry entry);
    // Lets the entry that is added next take the place of the current one, unless that is the first.
    void give_up_current() { position_ -= position_ > 0 ? 1 : 0; }
    void clear();
    // Takes the place of all; the position is that of one of the entries.
    void restore(std::vector<Undo_Entry> entries, int position);
    // Nothing but the current tile is left: the floor that undoing ends at. Without tiles, nothing.
    void reset(const Tileset& tileset);
    // Both return the entry to restore, or null, with nothing changed, at the first and at the last one.
    [[nodiscard]] const Undo_Entry* undo();
    [[nodiscard]] const Undo_Entry* redo();

    // Must be called after the tileset changed, so that entries keep to their tiles.
    void tile_inserted(int index);
    // The entries of the tile are dropped. Where nothing is left to stand on, as `reset`.
    void tile_deleted(int index, const Tileset& tileset);

    // The oldest entry comes first.
    [[nodiscard]] std::span<const Undo_Entry> entries() const { return entries_; }
    // Returns how many entries before the oldest one were forgotten for newer ones.
    [[nodiscard]] std::size_t forgotten() const { return forgotten_; }
    // Returns the index of the entry that matches what is on screen; -1 without entries.
    [[nodiscard]] int position() const { return position_; }
    // Returns that entry; null without entries.
    [[nodiscard]] const Undo_Entry* current() const {
        return position_ < 0 ? nullptr : &entries_[static_cast<std::size_t>(position_)];
    }
    // Returns whether there is a step to undo, or to redo.
    [[nodiscard]] bool has_steps() const { return count() > 1; }
    // Returns the memory in units of 1024 bytes, rounded down.
    [[nodiscard]] int size_kb() const;

private:
    [[nodiscard]] int count() const { return static_cast<int>(entries_.size()); }

    int capacity_;
    int position_ = -1;
    std::size_t forgotten_ = 0;
    std::vector<Undo_Entry> entries_;
};

} // namespace quadrelle
