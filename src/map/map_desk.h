#pragma once

// What the map editor of a set stands at: it is as it was when it is opened again.

#include "map/map_camera.h"
#include "map/map_stamp.h"
#include "map/tile_ids.h"

#include <cstdint>
#include <optional>

namespace quadrelle {

enum class Map_Tool { pen, rectangle, fill };

struct Map_Desk {
    Map_Tool tool = Map_Tool::pen;
    Stamp_Use use = Stamp_Use::whole;
    // The cells have ids.
    Map_Stamp stamp;
    // Another one for each gesture at random.
    std::uint32_t seed = 1;
    bool shows_grid = true;
    bool shows_uses = false;          // how often the map has each tile
    std::optional<Map_Camera> camera; // from the first time on that the map was seen
    int first_row = 0;                // of the list of tiles
    // Where the user went to the tile that is drawn; what lies around it there are its neighbours.
    std::optional<Map_Point> place;
};

// Returns the first tile that is no hole, or -1.
[[nodiscard]] int first_tile(const Map_Stamp& stamp);
// Returns how often the tile comes at random, 0 where it is not in the stamp.
[[nodiscard]] int weight_of(const Map_Stamp& stamp, int id);
// Makes the stamp a row of tiles with one more or one less; the last one stays.
void add_or_remove(Map_Stamp& stamp, int id);
// Lets the tile come more often, or, after the largest weight, as seldom as at first. One that is not there
// is added.
void raise_weight(Map_Stamp& stamp, int id);
// Tiles that are gone become holes.
void remove_gone(Map_Stamp& stamp, const Tile_Ids& ids);

} // namespace quadrelle
