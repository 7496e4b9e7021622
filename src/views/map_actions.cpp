#include "views/map_actions.h"

#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "ui/control.h"
#include "ui/text_button.h"
#include "views/map_layout.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Font font = Font::pane;
constexpr int gap = 3;
constexpr int group_gap = 11;
constexpr int narrowest = 22;
constexpr int drop = (map_layout::button_height - line_height(font)) / 2;

constexpr bool begins_group(Map_Action action) {
    return action == Map_Action::erase || action == Map_Action::mirror || action == Map_Action::undo ||
           action == Map_Action::grid || action == Map_Action::size || action == Map_Action::save;
}

void draw_chosen(const Rectangle& area, std::string_view label) {
    const Color fill = standard_color(Standard_Color::list_active);
    screen->fill_rect(area, fill);
    screen->draw_bevel(area, fill, Bevel::sunken);
    const int x = area.x + (area.width - screen->text_width(font, label)) / 2;
    screen->draw_text(font, {x, area.y + drop}, label);
    draw_answer(area);
}

} // namespace

std::optional<Map_Action> action_of_key(const Input_Event& press) {
    const Command command = find_command(press.chord);
    const Key_Row* const by_chord = find_key(press.chord);
    const Key_Row* const further =
        by_chord != nullptr ? by_chord : find_key(Key_Chord{press.character, Modifier::none});
    const auto has_key = [&](const Map_Action_Row& row) {
        if (row.further.key != key::none && row.further == press.chord) {
            return true;
        }
        const bool is_command =
            row.command != Command::none &&
            (row.command == command || (further != nullptr && row.command == further->command));
        const bool is_action =
            row.action != Key_Action::none && further != nullptr && row.action == further->action;
        return is_command || is_action;
    };
    const auto* const row = std::ranges::find_if(map_action_table, has_key);
    const bool is_meant = row != map_action_table.end() && (row->repeats || !press.is_repeat);
    return is_meant ? std::optional(row->id) : std::nullopt;
}

Map_Buttons::Map_Buttons() {
    int x = map_layout::buttons.x;
    for (const Map_Action_Row& row : map_action_table) {
        x += begins_group(row.id) ? group_gap - gap : 0;
        const int width = std::max(screen->text_width(font, row.label) + 14, narrowest);
        areas_.at(static_cast<std::size_t>(row.id)) = {x, map_layout::buttons.y, width,
                                                       map_layout::button_height};
        x += width + gap;
    }
}

void Map_Buttons::draw(const std::function<Map_Button_State(Map_Action)>& state_of) const {
    for (const Map_Action_Row& row : map_action_table) {
        const Rectangle& area = area_of(row.id);
        const Map_Button_State state = state_of(row.id);
        if (state == Map_Button_State::chosen) {
            draw_chosen(area, row.label);
        } else {
            draw_button(area, {font, row.label, drop}, usable_if(state == Map_Button_State::plain));
        }
    }
}

std::optional<Map_Action> Map_Buttons::at(Point point) const {
    const auto* const found =
        std::ranges::find_if(areas_, [point](const Rectangle& area) { return area.contains(point); });
    return found == areas_.end() ? std::nullopt
                                 : std::optional(static_cast<Map_Action>(found - areas_.begin()));
}

} // namespace quadrelle
