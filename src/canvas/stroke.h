#pragma once

// A stroke on the canvas, told of each event: what it draws, when it is due, and whether it changed
// something. Reads no clock and no keyboard, and runs no loop.

#include "canvas/canvas_view.h"
#include "canvas/stroke_table.h"

#include <functional>
#include <optional>
#include <vector>

namespace quadrelle {

enum class Stroke_Outcome { nothing_changed, something_changed, color_picked, taken_back };

// The state of the tools, which `take` changes by what the stroke finds.
struct Stroke_Tools {
    const Tool_State& state;
    Canvas_Settings settings;
    std::function<void(const Stroke_Findings&)> take;
};

class Stroke {
public:
    // The canvas must show a tile. `pointer`, where the button was pressed, follows the motions.
    Stroke(Canvas_View& canvas, const Stroke_Row& row, Pointer_State& pointer, Stroke_Tools tools);

    void press(const Stroke_Moment& moment);
    void move_to(const Pointer_State& pointer, const Stroke_Moment& moment);
    // Shift or Ctrl may be held now, or no longer: what is drawn from the press on is shaped anew.
    void hold(const Stroke_Moment& moment);
    // One more application where the pointer is, when it is due; true when something was drawn.
    bool stay(const Stroke_Moment& moment);
    // Nothing more is drawn, however long the button is held.
    [[nodiscard]] bool is_taken_back() const { return is_taken_back_; }
    // Not the end of a pick: what was picked stays, but the tool stays too.
    void window_closed() { has_picked_ = false; }
    // Everything is as it was at the press, colours that were picked too; what follows draws nothing.
    void take_back();
    // Draws what still waits for its turn, and what comes last.
    void finish(const Stroke_Moment& moment);

    [[nodiscard]] Stroke_Outcome outcome() const;

private:
    [[nodiscard]] Tile_Point path_end() const { return path_.empty() ? start_ : path_.back(); }
    void begin_at_last_end();
    void draw_anew(const Stroke_Moment& moment);
    void restore();
    void extend_to(Tile_Point point, const Stroke_Moment& moment);
    // False when it is too early.
    bool draw_when_due(const Stroke_Moment& moment);
    void draw_path(const Stroke_Moment& moment);
    void draw(Tile_Point to, Segment_Start start, const Stroke_Moment& moment);
    [[nodiscard]] Tile_Point point_of(const Pointer_State& pointer) const;
    [[nodiscard]] Stroke_Segment segment(Tile_Point from, Tile_Point to, Segment_Start start,
                                         const Stroke_Moment& moment);

    Canvas_View& canvas_;
    const Stroke_Row& row_;
    Tile& tile_;
    Pointer_State& pointer_;
    Stroke_Tools tools_;
    Mouse_Button button_;
    Grip grip_;
    Tile_Point pressed_;
    Tile_Point start_; // of the next segment
    Tile_Point end_;   // where the pointer was last
    // Where the pointer went since the last time that something was drawn.
    std::vector<Tile_Point> path_;
    Segment_Start next_ = Segment_Start::included;
    bool has_picked_ = false; // wherever the pointer went since
    bool is_taken_back_ = false;
    Tile before_;
    Work_State before_work_;
    Tool_Colors colors_before_;
    Tool_Figures figures_before_;
};

} // namespace quadrelle
