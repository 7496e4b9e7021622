#pragma once

// What was done to a map, walked back and forth. Keeps no more than what changed, in few bytes.

#include "map/map_step.h"
#include "map/tile_map.h"

#include <cstddef>
#include <deque>
#include <memory>

namespace quadrelle {

class Map_History {
public:
    // Without a limit on steps: beyond so many bytes those that are farthest away go to the disk, and are
    // forgotten when it does not take them, but never the nearest.
    static constexpr std::size_t most_bytes = std::size_t{8} << 20U;

    // What was undone and not redone is forgotten. The sides say where the size has changed. False, with
    // nothing added, where both are the same.
    bool add(const Tile_Map& before, const Tile_Map& after, const Map_Sides& sides = {});
    // Change the map, which must be as the last step left it. False when there is no step.
    bool undo(Tile_Map& map);
    bool redo(Tile_Map& map);
    // Takes the step that was just added back as if it had never been: what could be redone before can be
    // again.
    bool take_back(Tile_Map& map);

    [[nodiscard]] bool can_undo() const { return position_ > 0; }
    [[nodiscard]] bool can_redo() const { return position_ < steps_.size(); }
    [[nodiscard]] std::size_t bytes() const { return bytes_; }
    // Returns where the first cell of the map at the beginning lies now.
    [[nodiscard]] Map_Point origin() const { return origin_; }

private:
    void push(Map_Step step);
    void pop_back();
    void pop_front();
    void pass(std::size_t index, Tile_Map& map);
    void forget_what_newest_forgot();
    void make_room();
    void put_aside(Map_Step& step);

    // Each leads to the map before it where it can be undone, and to the one behind it else.
    std::deque<Map_Step> steps_;
    std::size_t position_ = 0;
    std::deque<Map_Step> forgotten_; // by the newest step
    std::size_t bytes_ = 0;          // of them all
    Map_Point origin_;
    std::shared_ptr<Scratch_File> scratch_ = std::make_shared<Scratch_File>();
};

} // namespace quadrelle
