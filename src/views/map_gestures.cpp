#include "views/map_gestures.h"

#include "map/map_strokes.h"
#include "screen/events.h"

namespace quadrelle {

bool drag_over_cells(const Map_Gesture& gesture, const std::function<void(Map_Point)>& visit) {
    bool is_given_up = false;
    run_modal({"map drag", gesture.draw, [&](const Input_Event& event) {
                   is_given_up = event.kind == Input_Kind::quit ||
                                 (event.kind == Input_Kind::key_press && event.chord.key == key::escape);
                   if (is_given_up || ends_hold(event)) {
                       return Loop_Step::end;
                   }
                   if (event.kind == Input_Kind::pointer_motion) {
                       gesture.follow(event.pointer.point());
                       visit(gesture.cell_at(event.pointer.point()));
                   }
                   return Loop_Step::go_on;
               }});
    return !is_given_up;
}

bool place_while_held(Edited_Map& map, const Map_Pattern& pattern, Map_Tool tool, Map_Point start,
                      const Map_Gesture& gesture) {
    map.begin();
    Map_Point last = start;
    switch (tool) {
    case Map_Tool::pen: place_at(map, pattern, start); break;
    case Map_Tool::rectangle: place_rectangle(map, pattern, start, start); break;
    case Map_Tool::fill: place_region(map, pattern, start); break;
    }
    const bool is_done = drag_over_cells(gesture, [&](Map_Point cell) {
        if (cell == last || tool == Map_Tool::fill) {
            return;
        }
        if (tool == Map_Tool::pen) {
            place_line(map, pattern, last, cell);
        } else {
            map.restart();
            place_rectangle(map, pattern, start, cell);
        }
        last = cell;
    });
    if (!is_done) {
        map.give_up();
        return false;
    }
    return map.commit();
}

} // namespace quadrelle
