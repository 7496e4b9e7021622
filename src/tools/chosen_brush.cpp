#include "tools/chosen_brush.h"

namespace quadrelle {

Chosen_Brush::Chosen_Brush() : brush_(built_in_brush(shape_, size_index_, Color())) {}

void Chosen_Brush::rebuild() {
    set_owner(is_stamp() ? Brush_Owner::pen : brush_.owner());
}

void Chosen_Brush::select_size(int size_index) {
    if (size_index != size_index_ || is_stamp()) {
        size_index_ = size_index;
        rebuild();
    }
}

void Chosen_Brush::select_shape(Brush_Shape shape) {
    if (shape != shape_ || is_stamp()) {
        shape_ = shape;
        rebuild();
    }
}

void Chosen_Brush::set_owner(Brush_Owner owner) {
    brush_ = built_in_brush(shape_, size_index_, Color(), owner);
}

void Chosen_Brush::set_stamp(const Brush& stamp) {
    brush_ = stamp;
}

} // namespace quadrelle
