#include "panes/tile_navigation_pane.h"

#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "tileset/tile_strip.h"
#include "tileset/tileset.h"
#include "ui/control.h"
#include "ui/window_layout.h"

#include <array>
#include <string>

namespace quadrelle {

namespace {

bool is_rewindable(const Tile_Strip& strip) {
    return !strip.is_at_start();
}

bool is_forwardable(const Tile_Strip& strip) {
    return !strip.is_at_end();
}

bool has_previous(const Tile_Strip& strip) {
    return strip.tileset().current_index() != 0;
}

bool has_next(const Tile_Strip& strip) {
    return strip.tileset().current_index() < strip.count() - 1;
}

bool never(const Tile_Strip&) {
    return false;
}

struct Button {
    Sprite normal;
    Sprite held;
    Sprite disabled;
    Command command;
    bool (*is_enabled)(const Tile_Strip& strip);
};

// clang-format off
constexpr std::array<Button, 7> buttons{{
    {Sprite::rewind_depressed,        Sprite::rewind_pressed,        Sprite::rewind_grey,     Command::rewind_strip,        is_rewindable},
    {Sprite::strip_prev_depressed,    Sprite::strip_prev_pressed,    Sprite::strip_prev_grey, Command::previous_tile_strip, is_rewindable},
    {Sprite::prev_tile_depressed,     Sprite::prev_tile_pressed,     Sprite::prev_tile_grey,  Command::previous_tile,       has_previous},
    {Sprite::current_tile_id,         Sprite::current_tile_id,       Sprite::current_tile_id, Command::none,                never},
    {Sprite::next_tile_depressed,     Sprite::next_tile_pressed,     Sprite::next_tile_grey,  Command::next_tile,           has_next},
    {Sprite::strip_next_depressed,    Sprite::strip_next_pressed,    Sprite::strip_next_grey, Command::next_tile_strip,     is_forwardable},
    {Sprite::strip_forward_depressed, Sprite::strip_forward_pressed, Sprite::forward_grey,    Command::forward_strip,       is_forwardable},
}};
// clang-format on

constexpr Rectangle first_on_sheet = sprite_rect(buttons.front().normal);

void draw_number(int number, const Rectangle& area) {
    const std::string text = std::to_string(number);
    const Size size{screen->text_width(Font::pane, text), screen->text_height(Font::pane, text)};
    const Rectangle place = centred(size, area);
    screen->draw_text(Font::pane, {place.x, place.y}, text);
}

} // namespace

Tile_Navigation_Pane::Tile_Navigation_Pane(Point position)
    : Pane(below_title(
               {position.x, position.y, window_layout::navigation.width, window_layout::navigation.height}),
           "Tileset navigation") {}

// Side by side as on the sheet.
Rectangle Tile_Navigation_Pane::area_of(std::size_t button) const {
    const Rectangle on_sheet = sprite_rect(buttons.at(button).normal);
    return {client_area().x + on_sheet.x - first_on_sheet.x, client_area().y, on_sheet.width,
            on_sheet.height};
}

void Tile_Navigation_Pane::draw(const Tile_Strip& strip) const {
    Pane::draw();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const Button& button = buttons[i];
        const Rectangle area_here = area_of(i);
        const Sprite enabled = held_ == i ? button.held : button.normal;
        screen->draw_sprite(button.is_enabled(strip) ? enabled : button.disabled, {area_here.x, area_here.y});
        // The sprites show by themselves what is held.
        if (button.is_enabled(strip) && control_state(area_here) == Control_State::hovered) {
            draw_answer(area_here);
        }
        if (button.normal == Sprite::current_tile_id && strip.tileset().has_tiles()) {
            draw_number(strip.tileset().current_index(), area_here);
        }
    }
}

std::optional<std::size_t> Tile_Navigation_Pane::button_at(Point point) const {
    for (std::size_t i = 0; contains(point) && i < buttons.size(); ++i) {
        if (area_of(i).contains(point)) {
            return i;
        }
    }
    return std::nullopt;
}

Command Tile_Navigation_Pane::command_at(Point point) const {
    const std::optional<std::size_t> button = button_at(point);
    return button ? buttons.at(*button).command : Command::none;
}

Command Tile_Navigation_Pane::click(Point point) {
    if (const std::optional<std::size_t> button = button_at(point)) {
        held_ = button;
    }
    return command_at(point);
}

} // namespace quadrelle
