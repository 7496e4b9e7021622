#pragma once

// "Map editor": a map of the set's tiles is laid out over the whole window.

#include "base/input.h"
#include "base/wheel_steps.h"
#include "map/edited_map.h"
#include "map/map_desk.h"
#include "screen/events.h"
#include "ui/text_pane.h"
#include "views/map_actions.h"
#include "views/map_gestures.h"
#include "views/map_tile_list.h"
#include "views/map_view.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

class Tileset;
class Tileset_Document;

// What the map editor leaves to others.
struct Map_Editor_Links {
    std::function<void()> note_change; // the map is another one than before
    // The last change was none: the map is as it was before, when the document was modified, or was not.
    std::function<void(bool was_modified)> note_taken_back;
    std::function<std::string()> save; // returns what came of it
};

// A place of the map that the user went to, and the tile there.
struct Map_Visit {
    Map_Point place;
    int tile = 0;
};

class Map_Editor {
public:
    // Borrows both. The document has a map, and tiles with pixels.
    Map_Editor(Tileset_Document& document, const Map_Editor_Links& links);

    // Waits until it is closed.
    [[nodiscard]] std::optional<Map_Visit> run();
    // The user was asked: the map is to go.
    [[nodiscard]] bool is_map_unwanted() const { return is_map_unwanted_; }

private:
    // The first of what may become two clicks; all else that happens ends that.
    struct First_Click {
        Map_Point place;
        bool has_placed = false;
        bool was_modified = false; // the document, before
    };

    void draw();
    void draw_outlines() const;
    void draw_hint() const;
    [[nodiscard]] std::string info() const;
    [[nodiscard]] Map_Button_State state_of(Map_Action action) const;
    [[nodiscard]] Map_Pattern pattern(Map_Point anchor) const;
    [[nodiscard]] Map_Overlay overlay();
    [[nodiscard]] const std::vector<Map_Run>& region();
    // Those of a press now.
    [[nodiscard]] Map_Tool tool() const;
    [[nodiscard]] Rectangle reach_of_press() const;
    [[nodiscard]] bool is_over_map() const;
    [[nodiscard]] Map_Point cell_at(Point point) const;
    [[nodiscard]] Map_Camera& camera() const { return *desk_.camera; }
    [[nodiscard]] Map_Gesture gesture();

    Loop_Step handle(const Input_Event& event);
    Loop_Step handle_key(const Input_Event& event);
    bool pan_by_key(Key_Chord chord);
    void turn_wheel(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    void press_on_list(const Input_Event& event);
    void press_on_map(const Input_Event& event);
    void place(Map_Point cell);
    void take_stamp(Map_Point cell);
    void pan();
    Loop_Step visit(const First_Click& first);
    void find_position();

    Loop_Step act(Map_Action action);
    Loop_Step ask_to_remove();
    void toggle(Stamp_Use use);
    void change_stamp(Stamp_Change change);
    void zoom(int steps, Point about);
    void change_size();
    void follow_origin(Map_Point before);
    void import();
    void report_export();
    void step_back_or_on(bool (Tileset_Document::*step)(), std::string_view otherwise);
    void note_change_if(bool is_changed, std::string_view otherwise);
    void choose(int tile);
    // All between the two in the list, as a whole.
    void choose_to(int tile, int other);

    Tileset_Document& document_;
    const Tileset& tileset_;
    Edited_Map& map_;
    Map_Desk& desk_;
    const Map_Editor_Links& links_;
    Text_Pane pane_;
    Map_Buttons buttons_;
    Map_Tile_List list_;
    Map_View view_;
    Point pointer_{-1, -1};
    Map_Point position_;             // the cell that the pointer was on last
    std::string report_;             // until the pointer moves
    std::optional<Rectangle> taken_; // the cells that a drag takes
    Wheel_Steps wheel_;
    bool is_placing_ = false;
    std::optional<First_Click> first_click_;
    // What a fill reaches: of that version of the map.
    std::vector<Map_Run> region_;
    std::optional<std::uint64_t> region_version_;
    std::optional<Map_Visit> visit_;
    bool is_map_unwanted_ = false;
};

} // namespace quadrelle
