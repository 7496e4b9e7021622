#pragma once

// What leads from one map to another, in few bytes: columns and rows at the sides, and the cells that are
// others then.

#include "base/compressed.h"
#include "map/tile_map.h"

#include <cstddef>
#include <memory>
#include <utility>

namespace quadrelle {

class Map_Step {
public:
    // The first map, with its size changed by these sides, is as large as the second one.
    Map_Step(const Tile_Map& from, const Tile_Map& to, const Map_Sides& sides);

    // Leads the map on, which must be as the first one was, and returns the way back.
    [[nodiscard]] Map_Step apply(Tile_Map& map) const;
    [[nodiscard]] const Map_Sides& sides() const { return sides_; }
    // Lets the file keep it where it is large. False where it does not.
    bool put_aside(const std::shared_ptr<Scratch_File>& file);
    [[nodiscard]] std::size_t memory_size() const { return sizeof(*this) + changes_.kept_size(); }

private:
    explicit Map_Step(Compressed_Bytes changes) : changes_(std::move(changes)) {}

    Map_Sides sides_;
    // Runs of cells that change, each with how many stay before it, its length and the cells.
    Compressed_Bytes changes_;
};

} // namespace quadrelle
