#pragma once

// Four slots of a document in which the user keeps states of its tiles. They are in no file.

#include "tileset/tile_snapshot.h"

#include <array>
#include <memory>

namespace quadrelle {

// Slots are counted from 0. Each keeps what was stored as it was: when the tiles get another size, only
// copies that are taken have it, and nothing is lost on the way back.
class Tile_Versions {
public:
    static constexpr int slot_count = 4;

    // Every slot holds what a new tile of that size looks like.
    explicit Tile_Versions(Size tile_size);

    void store(int slot, const Tile& tile);
    // Whether the user has put something there.
    [[nodiscard]] bool is_stored(int slot) const { return slot_at(slot).is_stored; }
    [[nodiscard]] const Tile& tile(int slot) const { return slot_at(slot).snapshot->tile; }
    // Returns the tile, resampled to that size where it has another one.
    [[nodiscard]] Tile copy(int slot, Size tile_size) const;

private:
    struct Slot {
        std::unique_ptr<const Tile_Snapshot> snapshot;
        bool is_stored = false;
    };

    [[nodiscard]] const Slot& slot_at(int slot) const { return slots_.at(static_cast<std::size_t>(slot)); }

    std::array<Slot, slot_count> slots_;
};

} // namespace quadrelle
