#pragma once

// The shape and size of the built-in brush, and the two rows of icons in which they are chosen.

#include "tools/brush.h"
#include "ui/pane.h"

#include <memory>

namespace quadrelle {

class Brush_Selector {
public:
    Brush_Selector();

    [[nodiscard]] const Brush& brush() const { return brush_; }
    // 0 to 5, one less than the brush's width. Keeps the shape.
    void select_size(int size_index);
    void select_shape(Brush_Shape shape);
    // Makes the chosen built-in brush the current one.
    void set_owner(Brush_Owner owner);
    // A brush with colours of its own, until another built-in one is chosen.
    void set_stamp(const Brush& stamp);

    // Both rows below each other; the y for what comes below.
    int move(Point position);
    void draw() const;
    // False where there is no icon, or the one chosen already.
    bool click(Point point);

private:
    void rebuild();

    Brush_Shape shape_ = Brush_Shape::disc;
    int size_index_ = 0;
    Brush_Owner owner_ = Brush_Owner::pen;
    Brush brush_;
    Pane shape_row_;
    Pane size_row_;
    std::unique_ptr<Texture> shape_icons_;
    std::unique_ptr<Texture> size_icons_;
};

} // namespace quadrelle
