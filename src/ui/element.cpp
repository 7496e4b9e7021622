#include "ui/element.h"

namespace quadrelle {

int Element::place(int x, int y) {
    move(x, y);
    return area.bottom() + element_gap;
}

void Element::move(int x, int y) {
    area.x = x;
    area.y = y;
    layout();
}

void Element::resize(int width, int height) {
    area.width = width;
    area.height = height;
    layout();
}

} // namespace quadrelle
