#include "app/canvas_stroke.h"

#include "app/events.h"
#include "app/screen.h"
#include "tools/drawing_target.h"
#include "tools/pens.h"
#include "tools/tool_colors.h"
#include "tools/toolbox.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quadrelle {

namespace {

struct Segment {
    Tile_Point from;
    Tile_Point to;
    Segment_Start start = Segment_Start::included;
    Color color; // of the pressed button
};

using Draw_Segment = void (*)(Drawing_Target& target, const Segment& segment);

void pen_segment(Drawing_Target& target, const Segment& segment) {
    Ink ink;
    ink.color = segment.color;
    draw_segment(target, {toolbox->brush(), Pen_Mode::brush, ink}, segment.from, segment.to, segment.start);
}

// How the strokes differ.
struct Stroke_Row {
    Canvas_Action action;
    bool keeps_cursor; // the system's cursor stays visible meanwhile
    bool keeps_start;  // every segment begins where the button was pressed
    Draw_Segment draw_segment;
};

constexpr std::array stroke_table = {
    Stroke_Row{Canvas_Action::pen, true, false, pen_segment},
};

class Stroke {
public:
    Stroke(Canvas_View& canvas, const Stroke_Row& row, const Pointer_State& pressed)
        : canvas_(canvas), row_(row), target_(*canvas.tile()), button_(pressed.button),
          start_(tile_point(pressed)) {}

    void press() { draw(start_, Segment_Start::included); }

    void move_to(const Pointer_State& pointer) {
        const Tile_Point point = tile_point(pointer);
        if (row_.keeps_start) {
            draw(point, Segment_Start::included);
        } else if (point != start_) {
            draw(point, Segment_Start::left_out);
            start_ = point;
        }
    }

private:
    [[nodiscard]] Tile_Point tile_point(const Pointer_State& pointer) const {
        const Point offset = toolbox->pointer_offset(canvas_.pixel_size());
        const Point point = pointer.point();
        return canvas_.tile_point({point.x - offset.x, point.y - offset.y});
    }

    void draw(Tile_Point to, Segment_Start start) {
        row_.draw_segment(target_, {start_, to, start, tool_colors->color(button_)});
        canvas_.tile()->update_texture();
    }

    Canvas_View& canvas_;
    const Stroke_Row& row_;
    Drawing_Target target_;
    Mouse_Button button_;
    Tile_Point start_;
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
    const auto row = std::ranges::find(stroke_table, action, &Stroke_Row::action);
    if (row == stroke_table.end()) {
        return Stroke_Outcome::nothing_changed;
    }
    const std::span<const Color> pixels = canvas.tile()->pixels();
    const std::vector<Color> before(pixels.begin(), pixels.end());
    if (!row->keeps_cursor) {
        screen->show_cursor(false);
    }
    Stroke stroke(canvas, *row, pressed);
    run_stroke(stroke, redraw);
    if (!row->keeps_cursor) {
        screen->show_cursor(true);
    }
    return std::ranges::equal(before, canvas.tile()->pixels()) ? Stroke_Outcome::nothing_changed
                                                               : Stroke_Outcome::tile_changed;
}

} // namespace quadrelle
