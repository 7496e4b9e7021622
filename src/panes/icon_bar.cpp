#include "panes/icon_bar.h"

#include "color/standard_colors.h"
#include "panes/command_icons.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
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

// The smallest of the icons has no plate of its own.
void draw_icon(Sprite icon, const Rectangle& area, bool is_lit) {
    if (icon == Sprite::background_aligner) {
        const Rectangle sprite = sprite_rect(icon);
        screen->draw_panel(area, standard_color(Standard_Color::pane_background));
        const Rectangle middle = centred({sprite.width, sprite.height}, area);
        screen->draw_sprite(icon, {middle.x, middle.y});
        return;
    }
    screen->draw_sprite(is_lit ? lit_twin(icon) : icon, {area.x, area.y});
}

} // namespace

void Icon_Bar::draw(const std::function<bool(Command)>& is_pressed) const {
    for_each_icon([&](const Icon& icon, const Rectangle& area) {
        if (icon.place == Place::after_separator) {
            screen->draw_sprite(Sprite::verti_icon_separator, {area.x, area.y - separator_height});
        }
        draw_icon(icon_of(icon.command), area, is_pressed(icon.command));
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
