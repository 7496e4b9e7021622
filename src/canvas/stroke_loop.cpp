#include "canvas/stroke_loop.h"

#include "screen/cursor.h"
#include "screen/events.h"

#include <chrono>
#include <optional>

namespace quadrelle {

namespace {

// Shorter than the shortest pause between two steps of any tool.
constexpr int tick_milliseconds = 1;

Stroke_Moment now() {
    using std::chrono::milliseconds;
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    const Held_Modifiers held = held_modifiers();
    return {std::chrono::duration_cast<milliseconds>(time).count(), held.shift, held.control};
}

void take_key(Stroke& stroke, const Input_Event& event) {
    if (event.kind == Input_Kind::key_press && event.chord.key == key::escape) {
        stroke.take_back();
    } else {
        stroke.hold(now());
    }
}

void follow_events(Stroke& stroke, const Loop_Tick& tick, const std::function<void()>& redraw) {
    stroke.press(now());
    run_modal({"stroke", redraw,
               [&](const Input_Event& event) {
                   switch (event.kind) {
                   case Input_Kind::quit: stroke.window_closed(); return Loop_Step::end;
                   case Input_Kind::button_release:
                       return event.pointer.button == Mouse_Button::none ? Loop_Step::go_on : Loop_Step::end;
                   case Input_Kind::pointer_motion: stroke.move_to(event.pointer, now()); break;
                   case Input_Kind::key_press:
                   case Input_Kind::key_release: take_key(stroke, event); break;
                   default: break;
                   }
                   return Loop_Step::go_on;
               },
               tick});
    stroke.finish(now());
}

} // namespace

Stroke_Outcome run_stroke(Canvas_View& canvas, const Stroke_Row& row, const Stroke_Tools& tools,
                          Pointer_State& pointer, const std::function<void()>& redraw) {
    // After the first frame: the window system takes longer to hide the cursor for the first time.
    std::optional<Hidden_Cursor> hidden_cursor;
    const auto draw = [&] {
        redraw();
        if (!row.keeps_cursor && !hidden_cursor) {
            hidden_cursor.emplace();
        }
    };
    Stroke stroke(canvas, row, pointer, tools);
    Loop_Tick tick;
    if (row.is_due != nullptr) {
        tick = {tick_milliseconds, [&stroke] {
                    return stroke.is_taken_back() ? Tick_Outcome::rest
                           : stroke.stay(now())   ? Tick_Outcome::draw
                                                  : Tick_Outcome::nothing_new;
                }};
    }
    follow_events(stroke, tick, draw);
    return stroke.outcome();
}

} // namespace quadrelle
