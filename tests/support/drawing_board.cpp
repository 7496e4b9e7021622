#include "tests/support/drawing_board.h"

namespace quadrelle::testing {

namespace {

Pointer_State pointer_at(Point point, Mouse_Button button) {
    return {static_cast<float>(point.x), static_cast<float>(point.y), button};
}

} // namespace

Drawing_Board::Drawing_Board(const Tile& picture) : tile(picture) {
    canvas.set_tile(&tile);
    canvas.centre();
}

Point Drawing_Board::at(Tile_Point pixel) const {
    const int size = canvas.pixel_size();
    return {canvas.origin().x + size * pixel.x + size / 2, canvas.origin().y + size * pixel.y + size / 2};
}

void Drawing_Board::press(Point point, Mouse_Button button) {
    pointer_ = pointer_at(point, button);
    stroke_.emplace(
        canvas, *find_stroke(tools.canvas_action()), pointer_,
        Stroke_Tools{tools, settings, [this](const Stroke_Findings& found) { tools.take(found); }});
    stroke_->press(moment());
}

void Drawing_Board::move(Point point) {
    stroke_->move_to(pointer_at(point, Mouse_Button::none), moment());
}

void Drawing_Board::pause(int milliseconds) {
    for (int i = 0; i < milliseconds; ++i) {
        ++time_;
        stroke_->stay(moment());
    }
}

Stroke_Outcome Drawing_Board::release() {
    stroke_->finish(moment());
    return stroke_->outcome();
}

Stroke_Outcome Drawing_Board::drag(const std::vector<Tile_Point>& path, Mouse_Button button) {
    press(at(path.front()), button);
    for (const Tile_Point pixel : path) {
        move(at(pixel));
    }
    return release();
}

} // namespace quadrelle::testing
