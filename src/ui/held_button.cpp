#include "ui/held_button.h"

#include "screen/events.h"

#include <chrono>

namespace quadrelle {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds pause_before_first{300};
constexpr std::chrono::milliseconds pause{30};

} // namespace

void repeat_while_held(const Held_Button& button, Point& pointer) {
    Clock::time_point due = Clock::now() + pause_before_first;
    const auto act_when_due = [&] {
        const Clock::time_point now = Clock::now();
        if (now < due || !button.area.contains(pointer)) {
            return Tick_Outcome::nothing_new;
        }
        due = now + pause;
        button.act();
        return Tick_Outcome::draw;
    };
    // Also after each event: motions may come faster than the pauses go by.
    run_modal({"held button",
               button.draw,
               [&](const Input_Event& event) {
                   if (ends_hold(event)) {
                       return Loop_Step::end;
                   }
                   if (event.kind == Input_Kind::pointer_motion) {
                       pointer = event.pointer.point();
                   }
                   act_when_due();
                   return Loop_Step::go_on;
               },
               {static_cast<int>(pause.count()), act_when_due}});
}

} // namespace quadrelle
