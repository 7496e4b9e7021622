#pragma once

// How everything that can be clicked answers the pointer. A control asks with its area each time it is drawn,
// and so keeps nothing of it.

#include "base/geometry.h"
#include "color/color.h"

namespace quadrelle {

enum class Control_State { idle, hovered, held, disabled };

// Whether a click would do anything.
enum class Usable { no, yes };
[[nodiscard]] constexpr Usable usable_if(bool is_usable) {
    return is_usable ? Usable::yes : Usable::no;
}

// While a button is held, nothing but what it was pressed on answers, and that while the pointer is on it.
[[nodiscard]] Control_State control_state(const Rectangle& area, Usable usable = Usable::yes);

// Whether the pointer is on the area and nothing lies over it: where it is not, none of the many controls
// there has to be asked.
[[nodiscard]] bool is_pointed_at(const Rectangle& area);

// These draw the answer over a control that is drawn there: a button, an icon or a row gets lighter, is
// pushed in, or steps back; a colour or a picture stays as it is and gets an outline.
void draw_answer(const Rectangle& area, Usable usable = Usable::yes);
void draw_outlined_answer(const Rectangle& area, Control_State state);
inline void draw_outlined_answer(const Rectangle& area) {
    draw_outlined_answer(area, control_state(area));
}
// What is laid over a control in that state, whatever its form: a clear colour over one that is idle.
[[nodiscard]] Color answer_tint(Control_State state);

// While it lives, what is drawn lies behind something else that takes the clicks.
class Behind {
public:
    Behind();
    ~Behind();
    Behind(const Behind&) = delete;
    Behind& operator=(const Behind&) = delete;
};

} // namespace quadrelle
