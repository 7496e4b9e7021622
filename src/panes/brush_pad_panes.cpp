#include "panes/brush_pad_panes.h"

#include "base/fitting.h"
#include "color/standard_colors.h"
#include "color/translucency.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int cell_edge = 3;
constexpr Rectangle selected_area{0, 0, window_layout::column_width, window_layout::pane_height(150)};
constexpr int largest_cell_edge = 6; // of the current brush; as much larger as it may be
constexpr Size checker{2, 2};
constexpr Color frame_color = standard_color(Standard_Color::dark_frame);
constexpr Color hovered_color = standard_color(Standard_Color::red);

void paint_brush(Tile& target, const Pad_Brush& brush, Tile_Point corner, Color frame) {
    for (int y = 0; y < brush.outline.height(); ++y) {
        for (int x = 0; x < brush.outline.width(); ++x) {
            if (!brush.outline.is_empty_at(x, y)) {
                target.set_pixel(corner.x + x, corner.y + y, frame);
            }
        }
    }
    for (int y = 0; y < brush.brush.size().height; ++y) {
        for (int x = 0; x < brush.brush.size().width; ++x) {
            if (const std::optional<Color> color = brush.brush.pixel(x, y)) {
                target.set_pixel(corner.x + 1 + x, corner.y + 1 + y,
                                 blended_over(*color, checkerboard_color(x, y, checker)));
            }
        }
    }
}

} // namespace

Brush_Pad_Panes::Brush_Pad_Panes()
    : selected_pane_(below_title(selected_area), "Selected"),
      board_pane_(below_title(window_layout::brush_pad), "Brush pad"),
      board_picture_(Brush_Pad::board_size.width, Brush_Pad::board_size.height) {}

int Brush_Pad_Panes::move_selected(Point position) {
    selected_pane_.move(position.x, position.y);
    return selected_pane_.area.bottom() + element_gap;
}

std::optional<Tile_Point> Brush_Pad_Panes::cell_at(Point point) const {
    if (!board_pane_.contains(point)) {
        return std::nullopt;
    }
    const Rectangle client = board_pane_.client_area();
    return Tile_Point{(point.x - client.x) / cell_edge, (point.y - client.y) / cell_edge};
}

void Brush_Pad_Panes::update_pictures(const Brush_Pad& pad, std::uint8_t hovered) {
    if (shown_revision_ == pad.revision() && shown_hovered_ == hovered) {
        return;
    }
    shown_revision_ = pad.revision();
    shown_hovered_ = hovered;
    board_picture_.fill(standard_color(Standard_Color::transparent));
    for (const auto& brush : pad.brushes()) {
        paint_brush(board_picture_, *brush, brush->position,
                    brush->id == hovered ? hovered_color : frame_color);
    }
    selected_picture_.reset();
    if (const Pad_Brush* const current = pad.current()) {
        selected_picture_ = std::make_unique<Tile>(current->outline.width(), current->outline.height());
        selected_picture_->fill(standard_color(Standard_Color::transparent));
        paint_brush(*selected_picture_, *current, {0, 0}, frame_color);
    }
}

void Brush_Pad_Panes::draw(const Brush_Pad& pad, Point pointer) {
    const std::optional<Tile_Point> cell = cell_at(pointer);
    update_pictures(pad, cell ? pad.identifier_at(*cell) : std::uint8_t{0});
    board_pane_.draw();
    board_pane_.draw_frame();
    const Rectangle client = board_pane_.client_area();
    shown_board_.draw(board_picture_, {client.x, client.y, cell_edge * board_picture_.width(),
                                       cell_edge * board_picture_.height()});
    draw_selected();
}

void Brush_Pad_Panes::draw_selected() {
    selected_pane_.draw();
    selected_pane_.draw_frame();
    if (selected_picture_) {
        const Rectangle area = selected_pane_.client_area();
        const Size size = fitted(selected_picture_->size(), {area.width, area.height}, {largest_cell_edge});
        shown_selected_.draw(*selected_picture_, centred(size, area));
    }
}

} // namespace quadrelle
