#pragma once

// What goes on in the map editor while a button of the mouse is held.

#include "map/edited_map.h"
#include "map/map_desk.h"
#include "map/map_stamp.h"

#include <functional>
#include <optional>

namespace quadrelle {

// What all of them need to know of the editor.
struct Map_Gesture {
    std::function<Map_Point(Point)> cell_at; // of a point of the window
    std::function<void(Point)> follow;       // the pointer is there now
    std::function<void()> draw;              // and present the window
};

// Places what the pattern has, by the tool, from the press on until the release. Escape takes it back.
// Returns whether anything is different; it is one step.
bool place_while_held(Edited_Map& map, const Map_Pattern& pattern, Map_Tool tool, Map_Point start,
                      const Map_Gesture& gesture);

// Calls follow(cell) for each cell that the pointer comes to. False when Escape or the window's end gave it
// up.
bool drag_over_cells(const Map_Gesture& gesture, const std::function<void(Map_Point)>& visit);

} // namespace quadrelle
