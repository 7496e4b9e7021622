#pragma once

// The brush that the tools lay: one of the built-in brushes, or a stamp.

#include "tools/brush.h"

namespace quadrelle {

class Chosen_Brush {
public:
    // Begins with the pen's brush of one pixel.
    Chosen_Brush();

    [[nodiscard]] const Brush& brush() const { return brush_; }
    // Shape and size are those of the built-in brush, also while a stamp takes its place.
    [[nodiscard]] Brush_Shape shape() const { return shape_; }
    [[nodiscard]] int size_index() const { return size_index_; }

    [[nodiscard]] bool is_stamp() const { return brush_.owner() == Brush_Owner::stamp_brush; }

    // Sizes go from 0 to 5, one less than the brush's width. Each choice of a size or shape ends a stamp.
    void select_size(int size_index);
    void select_shape(Brush_Shape shape);
    // Brings the built-in brush back.
    void set_owner(Brush_Owner owner);
    // A brush with colours of its own, until a built-in one is chosen.
    void set_stamp(const Brush& stamp);

private:
    void rebuild();

    Brush_Shape shape_ = Brush_Shape::disc;
    int size_index_ = 0;
    Brush brush_;
};

} // namespace quadrelle
