#include "canvas/stroke_loop.h"

#include "canvas/stroke_table.h"
#include "panes/toolbox.h"
#include "screen/cursor.h"
#include "screen/events.h"

#include <SDL3/SDL_timer.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace quadrelle {

namespace {

// Shorter than the shortest pause between two steps of any tool.
constexpr int tick_milliseconds = 1;

class Stroke {
public:
    Stroke(Canvas_View& canvas, const Stroke_Row& row, Pointer_State& pointer)
        : canvas_(canvas), row_(row), tile_(*canvas.tile()), pointer_(pointer), button_(pointer.button),
          pressed_(point_of(pointer)), start_(pressed_), end_(pressed_), before_(tile_),
          before_work_(canvas.work_area().state()) {}

    void press() {
        path_.push_back(start_);
        draw_path();
    }

    void move_to(const Pointer_State& pointer) {
        pointer_ = {pointer.x, pointer.y, button_};
        canvas_.set_hover(Hover{pointer_.point(), button_});
        end_ = point_of(pointer_);
        toolbox->figures().location = end_;
        if (!row_.draws_while_moving) {
            return;
        }
        if (row_.keeps_start) {
            tile_.copy_from(before_);
            canvas_.work_area().restore(before_work_);
            draw(end_, Segment_Start::included);
        } else {
            extend_to(end_);
        }
    }

    // One more application where the pointer is, when it is due; true when something was drawn.
    bool stay() { return draw_path(); }

    // Not the end of a pick: what was picked stays, but the tool stays too.
    void window_closed() { last_ = Segment_Outcome::nothing; }

    // Draws what still waits for its turn, and what comes last.
    void finish() {
        while (!path_.empty() && !draw_path()) {
            SDL_Delay(tick_milliseconds);
        }
        if (row_.finish != nullptr) {
            Drawing_Target target = canvas_.work_area().target(tile_);
            row_.finish(target, segment(pressed_, end_, Segment_Start::included));
        }
    }

    [[nodiscard]] Stroke_Outcome outcome() const {
        if (last_ == Segment_Outcome::color_picked) {
            return Stroke_Outcome::color_picked;
        }
        const bool is_same =
            std::ranges::equal(before_.pixels(), tile_.pixels()) && canvas_.work_area() == before_work_;
        return is_same ? Stroke_Outcome::nothing_changed : Stroke_Outcome::something_changed;
    }

private:
    [[nodiscard]] Tile_Point end() const { return path_.empty() ? start_ : path_.back(); }

    bool extend_to(Tile_Point point) {
        if (point != end()) {
            path_.push_back(point);
        }
        return draw_path();
    }

    // False when it is too early.
    bool draw_path() {
        if (row_.is_due != nullptr && !row_.is_due(button_)) {
            return false;
        }
        // A tool that goes on acts again where it stands.
        if (path_.empty() && row_.is_due != nullptr) {
            draw(start_, Segment_Start::included);
        }
        for (const Tile_Point point : path_) {
            draw(point, next_);
            start_ = point;
            next_ = Segment_Start::left_out;
        }
        path_.clear();
        return true;
    }

    void draw(Tile_Point to, Segment_Start start) {
        Drawing_Target target = canvas_.work_area().target(tile_);
        last_ = row_.draw_segment(target, segment(start_, to, start));
    }

    [[nodiscard]] Tile_Point point_of(const Pointer_State& pointer) const {
        return row_.snaps_to_corners ? canvas_.corner_point(pointer.point())
                                     : canvas_.tool_point(pointer.point());
    }

    [[nodiscard]] Stroke_Segment segment(Tile_Point from, Tile_Point to, Segment_Start start) {
        return {row_.action,
                from,
                to,
                start,
                button_,
                canvas_.tile_point(pointer_.point()),
                &canvas_.work_area(),
                canvas_.history()};
    }

    Canvas_View& canvas_;
    const Stroke_Row& row_;
    Tile& tile_;
    Pointer_State& pointer_;
    Mouse_Button button_;
    Tile_Point pressed_;
    Tile_Point start_; // of the next segment
    Tile_Point end_;   // where the pointer was last
    // Where the pointer went since the last time that something was drawn.
    std::vector<Tile_Point> path_;
    Segment_Start next_ = Segment_Start::included;
    Segment_Outcome last_ = Segment_Outcome::nothing;
    Tile before_;
    Work_State before_work_;
};

void run_stroke(Stroke& stroke, const Loop_Tick& tick, const std::function<void()>& redraw) {
    stroke.press();
    run_modal({"stroke", redraw,
               [&](const Input_Event& event) {
                   switch (event.kind) {
                   case Input_Kind::quit: stroke.window_closed(); return Loop_Step::end;
                   case Input_Kind::button_release:
                       return event.pointer.button == Mouse_Button::none ? Loop_Step::go_on : Loop_Step::end;
                   case Input_Kind::pointer_motion: stroke.move_to(event.pointer); break;
                   default: break;
                   }
                   return Loop_Step::go_on;
               },
               tick});
}

} // namespace

Stroke_Outcome apply_tool(Canvas_View& canvas, Canvas_Action action, Pointer_State& pointer,
                          const std::function<void()>& redraw) {
    const Stroke_Row* const row = find_stroke(action);
    if (row == nullptr) {
        return Stroke_Outcome::nothing_changed;
    }
    std::optional<Hidden_Cursor> hidden_cursor;
    if (!row->keeps_cursor) {
        hidden_cursor.emplace();
    }
    canvas.set_hover(Hover{pointer.point(), pointer.button});
    Stroke stroke(canvas, *row, pointer);
    Loop_Tick tick;
    if (row->is_due != nullptr) {
        tick = {tick_milliseconds, [&stroke] { return stroke.stay(); }};
    }
    run_stroke(stroke, tick, redraw);
    stroke.finish();
    return stroke.outcome();
}

} // namespace quadrelle
