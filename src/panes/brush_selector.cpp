#include "panes/brush_selector.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/surface.h"
#include "ui/control.h"
#include "ui/window_layout.h"

namespace quadrelle {

namespace {

constexpr int icon_edge = 18;
constexpr int largest_size_index = brush_size_count - 1;
constexpr Rectangle row_area =
    below_title({0, 0, window_layout::column_width, window_layout::row_pane_height});
constexpr Color icon_background = standard_color(Standard_Color::dark_frame);
constexpr Color icon_frame = standard_color(Standard_Color::frame);
constexpr Color mask_color = standard_color(Standard_Color::light_grey);
constexpr Color chosen_color = standard_color(Standard_Color::highlight);

enum class Icon_State { plain, chosen };

void frame_icon(Surface& icons, const Rectangle& icon, Icon_State state) {
    icons.fill_rect(icon, state == Icon_State::chosen ? chosen_color : icon_frame);
    icons.fill_rect(icon.inset(1), icon_background);
}

// The mask at twice its size in the middle of the icon with that index.
void draw_icon(Surface& icons, int index, const Brush& brush, Icon_State state) {
    const Rectangle icon{index * icon_edge, 0, icon_edge, icon_edge};
    frame_icon(icons, icon, state);
    const int inset = 2 + brush_size_count + 1 - brush.size().width;
    const Color color = state == Icon_State::chosen ? chosen_color : mask_color;
    for (int y = 0; y < brush.size().height; ++y) {
        for (int x = 0; x < brush.size().width; ++x) {
            if (brush.pixel(x, y)) {
                icons.fill_rect({icon.x + inset + 2 * x, icon.y + inset + 2 * y, 2, 2}, color);
            }
        }
    }
}

std::unique_ptr<Texture> make_shape_icons(Brush_Shape chosen) {
    Surface icons(Size{brush_shape_count * icon_edge, icon_edge});
    for (int i = 0; i < brush_shape_count; ++i) {
        const auto shape = static_cast<Brush_Shape>(i);
        draw_icon(icons, i, built_in_brush(shape, largest_size_index, Color()),
                  shape == chosen ? Icon_State::chosen : Icon_State::plain);
    }
    return std::make_unique<Texture>(icons);
}

std::unique_ptr<Texture> make_size_icons(Brush_Shape shape, int chosen) {
    Surface icons(Size{brush_size_count * icon_edge, icon_edge});
    for (int i = 0; i < brush_size_count; ++i) {
        draw_icon(icons, i, built_in_brush(shape, i, Color()),
                  i == chosen ? Icon_State::chosen : Icon_State::plain);
    }
    return std::make_unique<Texture>(icons);
}

// The client area is two pixels less high than the icons, which stand in its middle.
Point icons_position(const Pane& row) {
    return {row.client_area().x, row.client_area().y - 1};
}

void draw_icons(const Pane& row, const Texture& icons, int count) {
    const Point corner = icons_position(row);
    screen->draw_texture(icons, corner);
    for (int i = 0; i < count; ++i) {
        draw_answer({corner.x + i * icon_edge, corner.y, icon_edge, icon_edge});
    }
}

int icon_at(const Pane& row, Point point, int count) {
    const Point corner = icons_position(row);
    const Rectangle icons{corner.x, corner.y, count * icon_edge, icon_edge};
    return icons.contains(point) ? (point.x - corner.x) / icon_edge : -1;
}

} // namespace

Brush_Selector::Brush_Selector() : shape_row_(row_area, "Shape"), size_row_(row_area, "Size") {}

void Brush_Selector::update_icons(const Chosen_Brush& chosen) {
    if (shown_shape_ == chosen.shape() && shown_size_ == chosen.size_index()) {
        return;
    }
    shown_shape_ = chosen.shape();
    shown_size_ = chosen.size_index();
    shape_icons_ = make_shape_icons(chosen.shape());
    size_icons_ = make_size_icons(chosen.shape(), chosen.size_index());
}

int Brush_Selector::move(Point position) {
    for (Pane* row : {&shape_row_, &size_row_}) {
        row->move(position.x, position.y);
        position.y = row->area.bottom() + element_gap;
    }
    return position.y;
}

void Brush_Selector::draw(const Chosen_Brush& chosen) {
    update_icons(chosen);
    shape_row_.draw();
    size_row_.draw();
    draw_icons(shape_row_, *shape_icons_, brush_shape_count);
    draw_icons(size_row_, *size_icons_, brush_size_count);
}

bool Brush_Selector::click(Point point, Chosen_Brush& chosen) const {
    const int shape = icon_at(shape_row_, point, brush_shape_count);
    if (shape >= 0 && shape != static_cast<int>(chosen.shape())) {
        chosen.select_shape(static_cast<Brush_Shape>(shape));
        return true;
    }
    const int size = icon_at(size_row_, point, brush_size_count);
    if (size >= 0 && size != chosen.size_index()) {
        chosen.select_size(size);
        return true;
    }
    return false;
}

} // namespace quadrelle
