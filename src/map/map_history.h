#pragma once

// What was done to a map, walked back and forth. Keeps no more than what changed, in few bytes.

#include "map/map_code.h"
#include "map/tile_map.h"

#include <cstddef>
#include <deque>

namespace quadrelle {

class Map_History {
public:
    // Without a limit on steps: beyond so many bytes the oldest ones are forgotten, but never the newest.
    static constexpr std::size_t most_bytes = std::size_t{10} << 20U;

    // What was undone and not redone is forgotten. False, with nothing added, where both are the same.
    bool add(const Tile_Map& before, const Tile_Map& after);
    // Change the map, which must be as the last step left it. False when there is no step.
    bool undo(Tile_Map& map);
    bool redo(Tile_Map& map);
    // Takes the newest step back for good.
    bool take_back(Tile_Map& map);

    [[nodiscard]] bool can_undo() const { return position_ > 0; }
    [[nodiscard]] bool can_redo() const { return position_ < steps_.size(); }
    [[nodiscard]] std::size_t bytes() const { return bytes_; }

private:
    enum class Side { before, after };

    // Of one size: runs of cells that changed, each with the cells between it and the one before it. Else all
    // cells before and all after.
    struct Step {
        Size before;
        Size after;
        Map_Bytes changes;
    };

    static Step step_of(const Tile_Map& before, const Tile_Map& after);
    static void restore(const Step& step, Side side, Tile_Map& map);
    static void restore_runs(const Step& step, Side side, Tile_Map& map);
    void forget_undone();
    void forget_oldest();

    std::deque<Step> steps_;
    std::size_t position_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace quadrelle
