#pragma once

// The root of every rectangular thing on the screen.

#include "base/geometry.h"
#include "ui/window_layout.h"

namespace quadrelle {

class Element {
public:
    Element() = default;
    explicit Element(const Rectangle& outer) : area(outer) {}
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element() = default;

    [[nodiscard]] virtual Rectangle client_area() const { return area; }
    // Recomputes what depends on the area, after a move or a resize.
    virtual void layout() {}
    virtual void draw() const {}
    // Moves, lays out, and returns the y for the next element below.
    virtual int place(int x, int y);

    void move(int x, int y);
    void resize(int width, int height);

    Rectangle area; // in window pixels
};

} // namespace quadrelle
