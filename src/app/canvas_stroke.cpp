#include "app/canvas_stroke.h"

#include "app/events.h"
#include "app/strokes.h"
#include "tools/toolbox.h"

#include <algorithm>
#include <vector>

namespace quadrelle {

namespace {

class Stroke {
public:
    Stroke(Canvas_View& canvas, const Stroke_Row& row, const Pointer_State& pressed)
        : canvas_(canvas), row_(row), tile_(*canvas.tile()), button_(pressed.button),
          start_(tile_point(pressed)), before_(tile_.pixels().begin(), tile_.pixels().end()) {}

    void press() { draw(start_, Segment_Start::included); }

    void move_to(const Pointer_State& pointer) {
        const Tile_Point point = tile_point(pointer);
        toolbox->options().set_location({point.x, point.y});
        if (!row_.draws_while_moving) {
            return;
        }
        if (row_.keeps_start) {
            std::ranges::copy(before_, tile_.pixels().begin());
            draw(point, Segment_Start::included);
        } else if (point != start_ && draw(point, Segment_Start::left_out) == Segment_Outcome::drawn) {
            start_ = point;
        }
    }

    [[nodiscard]] bool has_changed_the_tile() const { return !std::ranges::equal(before_, tile_.pixels()); }

private:
    [[nodiscard]] Tile_Point tile_point(const Pointer_State& pointer) const {
        const Point offset = toolbox->pointer_offset(canvas_.pixel_size());
        const Point point = pointer.point();
        return canvas_.tile_point({point.x - offset.x, point.y - offset.y});
    }

    Segment_Outcome draw(Tile_Point to, Segment_Start start) {
        Drawing_Target target(tile_);
        const Segment_Outcome outcome =
            row_.draw_segment(target, {row_.action, start_, to, start, button_, canvas_.history()});
        tile_.update_texture();
        return outcome;
    }

    Canvas_View& canvas_;
    const Stroke_Row& row_;
    Tile& tile_;
    Mouse_Button button_;
    Tile_Point start_;
    std::vector<Color> before_;
};

void run_stroke(Stroke& stroke, const std::function<void()>& redraw) {
    stroke.press();
    run_modal({"stroke", redraw, [&](const SDL_Event& event) {
                   switch (event.type) {
                   case SDL_EVENT_QUIT: return Loop_Step::end;
                   case SDL_EVENT_MOUSE_BUTTON_UP:
                       return pointer_of(event.button).button == Mouse_Button::none ? Loop_Step::go_on
                                                                                    : Loop_Step::end;
                   case SDL_EVENT_MOUSE_MOTION: stroke.move_to(pointer_of(event.motion)); break;
                   default: break;
                   }
                   return Loop_Step::go_on;
               }});
}

} // namespace

Stroke_Outcome apply_tool(Canvas_View& canvas, Canvas_Action action, const Pointer_State& pressed,
                          const std::function<void()>& redraw) {
    const Stroke_Row* const row = find_stroke(action);
    if (row == nullptr) {
        return Stroke_Outcome::nothing_changed;
    }
    Stroke stroke(canvas, *row, pressed);
    run_stroke(stroke, redraw);
    return stroke.has_changed_the_tile() ? Stroke_Outcome::tile_changed : Stroke_Outcome::nothing_changed;
}

} // namespace quadrelle
