#include "panes/brush_pad_panes.h"

#include "base/fitting.h"
#include "color/standard_colors.h"
#include "color/translucency.h"
#include "screen/screen.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int cell_edge = 3;
constexpr Rectangle selected_area{0, 0, window_layout::column_width, window_layout::pane_height(150)};
constexpr int largest_cell_edge = 6; // of the current brush; as much larger as it may be
constexpr int frame_distance = 3;
constexpr int text_margin = 2;
constexpr int text_height = 18;
constexpr Size checker{2, 2};
constexpr Color frame_color = standard_color(Standard_Color::dark_frame);
constexpr Color hovered_color = standard_color(Standard_Color::red);

// In the given colour, or else its own ones.
void paint_pixels(Tile& target, const Brush& brush, Tile_Point corner, std::optional<Color> color = {}) {
    for (int y = 0; y < brush.size().height; ++y) {
        for (int x = 0; x < brush.size().width; ++x) {
            if (const std::optional<Color> own = brush.pixel(x, y)) {
                target.set_pixel(corner.x + x, corner.y + y,
                                 blended_over(color.value_or(*own), checkerboard_color(x, y, checker)));
            }
        }
    }
}

void paint_brush(Tile& target, const Pad_Brush& brush, Tile_Point corner, Color frame) {
    for (int y = 0; y < brush.outline.height(); ++y) {
        for (int x = 0; x < brush.outline.width(); ++x) {
            if (!brush.outline.is_empty_at(x, y)) {
                target.set_pixel(corner.x + x, corner.y + y, frame);
            }
        }
    }
    paint_pixels(target, brush.brush, {corner.x + 1, corner.y + 1});
}

// In the border of the pane, so that no brush touches it.
void draw_frame_around(const Rectangle& client) {
    screen->draw_outline(client.inset(-frame_distance), standard_color(Standard_Color::pane_frame));
}

Tile empty_picture(Size size) {
    Tile picture(size.width, size.height);
    picture.fill(standard_color(Standard_Color::transparent));
    return picture;
}

Tile picture_of(const Pad_Brush& brush) {
    Tile picture = empty_picture(brush.outline.size());
    paint_brush(picture, brush, {0, 0}, frame_color);
    return picture;
}

Tile picture_of(const Brush& built_in, Color color) {
    Tile picture = empty_picture(built_in.size());
    paint_pixels(picture, built_in, {0, 0}, color);
    return picture;
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

void Brush_Pad_Panes::update_board(const Brush_Pad& pad, std::uint8_t hovered) {
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
}

void Brush_Pad_Panes::draw_board(const Brush_Pad& pad, Point pointer) {
    const std::optional<Tile_Point> cell = cell_at(pointer);
    update_board(pad, cell ? pad.identifier_at(*cell) : std::uint8_t{0});
    board_pane_.draw();
    const Rectangle client = board_pane_.client_area();
    draw_frame_around(client);
    shown_board_.draw(board_picture_, {client.x, client.y, cell_edge * board_picture_.width(),
                                       cell_edge * board_picture_.height()});
}

void Brush_Pad_Panes::draw_selected(const Brush_Pad& pad, const Chosen_Brush& chosen, Color color) {
    const Pad_Brush* const stamp = pad.current();
    const bool is_stamp = chosen.is_stamp() && stamp != nullptr;
    const Shared_Picture picture = is_stamp ? picture_of(*stamp) : picture_of(chosen.brush(), color);
    if (!selected_picture_ || !selected_picture_->same_pixels(picture)) {
        selected_picture_ = picture;
    }
    selected_pane_.draw();
    const Rectangle area = selected_pane_.client_area();
    draw_frame_around(area);
    const Size size = fitted((*selected_picture_)->size(), {area.width, area.height}, {largest_cell_edge});
    shown_selected_.draw(*selected_picture_, centred(size, area));
    if (!is_stamp) {
        screen->draw_text(Font::pane, {area.x + text_margin, area.y}, "Built-in brush");
    }
    if (!is_stamp && stamp != nullptr) {
        screen->draw_text(Font::pane, {area.x + text_margin, area.bottom() - text_height},
                          "Click: the stamp again");
    }
}

} // namespace quadrelle
