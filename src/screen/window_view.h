#pragma once

// Where the drawing lies in the pixels of the window, and how large. It has a size of its own: a window of
// another size shows it at a whole multiple, or, where it has no room, scaled down.

#include "base/geometry.h"

namespace quadrelle {

class Window_View {
public:
    // Both sizes in pixels; the drawing lies in the middle of the window, whole.
    Window_View(Size drawing, Size window);

    // Returns where it lies in the window.
    [[nodiscard]] const Rectangle& area() const { return area_; }
    // Whether each of its pixels is one, or a square, of the window's.
    [[nodiscard]] bool is_sharp() const { return scale_ > 0; }
    // Whether they are those of the window, but for where they begin.
    [[nodiscard]] bool is_plain() const { return scale_ == 1; }
    // Returns the pixels of the window that show that part of the drawing.
    [[nodiscard]] Rectangle shown(const Rectangle& part) const;

    struct Position {
        float x = 0;
        float y = 0;
    };
    // Convert between pixels of the window and of the drawing, also beside it.
    [[nodiscard]] Position in_drawing(Position in_window) const;
    [[nodiscard]] Position in_window(Position in_drawing) const;
    // The same for distances.
    [[nodiscard]] Position moved_in_drawing(Position in_window) const;

private:
    Size drawing_;
    int scale_ = 0; // 0: it is smaller than drawn
    Rectangle area_;
};

// Returns how large a window to ask for, in pixels, on a display with such a scale and so much room: the
// drawing at the whole multiple that is nearest below the scale, at a smaller one where there is no room for
// that, or as large as there is room.
[[nodiscard]] Size wanted_window(Size drawing, float display_scale, Size room);

} // namespace quadrelle
