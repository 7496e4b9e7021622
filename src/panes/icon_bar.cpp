#include "panes/icon_bar.h"

#include "color/standard_colors.h"
#include "panes/command_icons.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/control.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quadrelle {

namespace {

constexpr Size icon_size{24, 24};
constexpr int separator_height = 7;

enum class Place { in_group, after_separator };

struct Icon {
    Command command;
    Place place;
};

constexpr std::array icons = std::to_array<Icon>({
    {Command::pen, Place::in_group},
    {Command::lightness_pen, Place::in_group},
    {Command::colorize_pen, Place::in_group},
    {Command::smudge_brush, Place::in_group},
    {Command::stamp_brush, Place::in_group},
    {Command::dropper, Place::after_separator},
    {Command::flood_fill, Place::in_group},
    {Command::line, Place::after_separator},
    {Command::rectangle, Place::in_group},
    {Command::filled_rectangle, Place::in_group},
    {Command::circle, Place::in_group},
    {Command::filled_circle, Place::in_group},
    {Command::rectangle_selector, Place::after_separator},
    {Command::circle_selector, Place::in_group},
    {Command::brush_selector, Place::in_group},
    {Command::wand_selector, Place::in_group},
    {Command::work_selection, Place::in_group},
    {Command::scroll, Place::after_separator},
    {Command::free_rotate, Place::in_group},
    {Command::horizontal_seam_tool, Place::in_group},
    {Command::vertical_seam_tool, Place::in_group},
    {Command::center_tile_on_view, Place::after_separator},
});

constexpr int separator_count =
    static_cast<int>(std::ranges::count(icons, Place::after_separator, &Icon::place));
static_assert(static_cast<int>(icons.size()) * icon_size.height + separator_count * separator_height ==
              window_layout::icon_bar.height);

// Calls `use` with every icon and its area, from the top.
template <typename Use>
void for_each_icon(Use use) {
    Rectangle area{window_layout::icon_bar.x, window_layout::icon_bar.y, icon_size.width, icon_size.height};
    for (const Icon& icon : icons) {
        area.y += icon.place == Place::after_separator ? separator_height : 0;
        use(icon, area);
        area.y += area.height;
    }
}

struct Placed_Sprite {
    Sprite sprite;
    Point place; // in the icon
};

// The one icon without a plate of its own: the canvas with the tile in its middle, and from each of its
// edges an arrow that points at the tile.
constexpr int canvas_inset = 2;
constexpr std::array centring_icon = std::to_array<Placed_Sprite>({
    {Sprite::background_aligner, {8, 8}},
    {Sprite::seam_arrow_down, {6, 3}},
    {Sprite::seam_arrow_up, {6, 9}},
    {Sprite::seam_arrow_right, {3, 6}},
    {Sprite::seam_arrow_left, {9, 6}},
});

void draw_centring_icon(const Rectangle& area) {
    screen->draw_panel(area, standard_color(Standard_Color::pane_background));
    screen->draw_outline(area.inset(canvas_inset), standard_color(Standard_Color::black));
    screen->fill_rect(area.inset(canvas_inset + 1), standard_color(Standard_Color::dark_frame));
    for (const Placed_Sprite& part : centring_icon) {
        screen->draw_sprite(part.sprite, {area.x + part.place.x, area.y + part.place.y});
    }
}

void draw_icon(Sprite icon, const Rectangle& area, bool is_lit) {
    if (icon == Sprite::background_aligner) {
        draw_centring_icon(area);
    } else {
        screen->draw_sprite(is_lit ? lit_twin(icon) : icon, {area.x, area.y});
    }
}

} // namespace

void Icon_Bar::draw(const std::function<bool(Command)>& is_pressed) const {
    for_each_icon([&](const Icon& icon, const Rectangle& area) {
        if (icon.place == Place::after_separator) {
            screen->draw_sprite(Sprite::verti_icon_separator, {area.x, area.y - separator_height});
        }
        draw_icon(icon_of(icon.command), area, is_pressed(icon.command));
        draw_answer(area);
    });
}

Command Icon_Bar::command_at(Point point) const {
    Command found = Command::none;
    for_each_icon([&](const Icon& icon, const Rectangle& area) {
        if (area.contains(point)) {
            found = icon.command;
        }
    });
    return found;
}

} // namespace quadrelle
