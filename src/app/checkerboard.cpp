#include "app/checkerboard.h"

#include "app/canvas_painter.h"

namespace quadrelle {

namespace {

constexpr Size square{6, 6};

} // namespace

Tile checkerboard(Size area) {
    Tile board(area.width, area.height);
    for (int y = 0; y < board.height(); ++y) {
        for (int x = 0; x < board.width(); ++x) {
            board.set_pixel(x, y, checker_color({x, y}, square));
        }
    }
    return board;
}

} // namespace quadrelle
