#include "panes/menu_bar.h"

#include "color/standard_colors.h"
#include "commands/command_table.h"
#include "commands/menu_table.h"
#include "screen/screen.h"
#include "ui/control.h"
#include "ui/window_layout.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

constexpr Font menu_font = Font::regular;
// The bar and every item have the same height.
constexpr int menu_item_height = window_layout::menu_bar.height;
constexpr int box_margin = 3;
constexpr Point text_offset{2, 3};
constexpr Color bar_color = standard_color(Standard_Color::pane_frame);
constexpr Color menu_color = standard_color(Standard_Color::pane_frame);
constexpr Color veil_color{menu_color.r, menu_color.g, menu_color.b, 160};
constexpr Color highlight_color = standard_color(Standard_Color::highlight_deep);

// Room for the command's name between two blanks and, with a key, its label in parentheses.
int menu_width(Command command) {
    const Command_Row& row = row_of(command);
    const auto width = [](std::string_view text) { return screen->text_width(menu_font, text); };
    const int key_width = row.key == key::none ? 0 : width(row.key_label) + width("( )");
    return width(row.name) + width("  ") + key_width;
}

int row_width(const Menu_Row& row) {
    return row.command == Command::none ? screen->text_width(menu_font, row.text) : menu_width(row.command);
}

std::string display_text(const Menu_Row& row) {
    return row.command == Command::none ? std::string(row.text) : " " + menu_text(row.command);
}

} // namespace

Menu_Bar::Menu_Bar(std::function<void()> redraw_behind, std::function<bool(Command)> can_do)
    : redraw_behind_(std::move(redraw_behind)), can_do_(std::move(can_do)) {
    area_.height = menu_item_height;
    for (std::size_t column = 0; column < menu_table.size(); ++column) {
        add_menu(column);
    }
}

Menu_Bar::~Menu_Bar() = default;

void Menu_Bar::add_menu(std::size_t column) {
    const auto& [header, rows] = menu_table.at(column);
    Menu menu;
    menu.header = screen->make_text_texture(header, Text_Style::normal);
    menu.highlighted_header = screen->make_text_texture(header, Text_Style::highlighted);
    menu.header_area = {area_.width, 0, screen->text_width(menu_font, header), menu_item_height};
    menu.box = {area_.width, menu_item_height, 0,
                static_cast<int>(rows.size()) * menu_item_height + box_margin};
    for (const Menu_Row& row : rows) {
        menu.box.width = std::max(menu.box.width, row_width(row));
    }
    Rectangle area{menu.box.x, menu.box.y, menu.box.width, menu_item_height};
    for (const Menu_Row& row : rows) {
        menu.items.push_back({display_text(row), row.command, area});
        area.y += menu_item_height;
    }
    area_.width += menu.header_area.width;
    menus_.push_back(std::move(menu));
}

void Menu_Bar::draw(const Pointer_State& pointer) const {
    screen->draw_panel(area_, bar_color);
    for (const Menu& menu : menus_) {
        draw_header(menu, menu.header_area.contains(pointer.point()));
    }
}

void Menu_Bar::draw_header(const Menu& menu, bool is_highlighted) const {
    if (is_highlighted) {
        screen->fill_rect(menu.header_area.inset(1), highlight_color);
    }
    const auto& header = is_highlighted ? menu.highlighted_header : menu.header;
    if (header) {
        screen->draw_texture(*header, {menu.header_area.x + text_offset.x, text_offset.y});
    }
}

void Menu_Bar::draw_open_menu(const Pointer_State& pointer) const {
    const Menu& menu = *open_menu();
    draw_header(menu, true);
    screen->draw_panel(menu.box, menu_color);
    for (const Item& item : menu.items) {
        draw_item(item, pointer.point());
    }
}

// What would do nothing is greyed, lit or not.
void Menu_Bar::draw_item(const Item& item, Point pointer) const {
    const bool is_lit = item.command != Command::none && item.area.contains(pointer);
    const Rectangle inner{item.area.x + 1, item.area.y + 1, item.area.width - 2, item.area.height};
    if (is_lit) {
        screen->fill_rect(inner, highlight_color);
    }
    screen->draw_text(is_lit ? Font::header : menu_font,
                      {item.area.x + text_offset.x, item.area.y + text_offset.y}, item.text);
    if (item.command != Command::none && !can_do_(item.command)) {
        screen->fill_rect(inner, veil_color);
    }
}

const Menu_Bar::Menu* Menu_Bar::open_menu() const {
    return open_menu_ < 0 ? nullptr : &menus_.at(static_cast<std::size_t>(open_menu_));
}

bool Menu_Bar::contains(Point point) const {
    const Menu* const menu = open_menu();
    return area_.contains(point) || (menu != nullptr && menu->box.contains(point));
}

Command Menu_Bar::command_at(Point point) const {
    const Menu* const menu = open_menu();
    if (menu == nullptr) {
        return Command::none;
    }
    const auto item =
        std::ranges::find_if(menu->items, [&](const Item& row) { return row.area.contains(point); });
    return item == menu->items.end() ? Command::none : item->command;
}

int Menu_Bar::header_at(Point point) const {
    const auto found =
        std::ranges::find_if(menus_, [&](const Menu& menu) { return menu.header_area.contains(point); });
    return found == menus_.end() ? -1 : static_cast<int>(found - menus_.begin());
}

Command Menu_Bar::click(Pointer_State& pointer) {
    open_menu_ = header_at(pointer.point());
    if (open_menu_ < 0) {
        return Command::none;
    }
    Command chosen = Command::none;
    run_modal({"menu",
               [&] {
                   draw_behind();
                   draw_open_menu(pointer);
                   screen->present();
               },
               [&](const Input_Event& event) { return handle(event, pointer, chosen); }});
    open_menu_ = -1;
    forget_press();
    return chosen;
}

void Menu_Bar::draw_behind() const {
    const Behind the_menu;
    redraw_behind_();
}

Loop_Step Menu_Bar::handle(const Input_Event& event, Pointer_State& pointer, Command& chosen) {
    switch (event.kind) {
    case Input_Kind::quit: return Loop_Step::end;
    // A modifier by itself is no key: the menu takes the whole chord.
    case Input_Kind::key_press: return event.chord.key == key::none ? Loop_Step::go_on : Loop_Step::end;
    case Input_Kind::pointer_motion: {
        pointer = event.pointer;
        const int header = header_at(pointer.point());
        open_menu_ = header < 0 ? open_menu_ : header;
        return Loop_Step::go_on;
    }
    case Input_Kind::button_press:
        if (event.pointer.button == Mouse_Button::none) {
            return Loop_Step::go_on;
        }
        pointer = event.pointer;
        return press(pointer.point(), chosen);
    default: return Loop_Step::go_on;
    }
}

Loop_Step Menu_Bar::press(Point point, Command& chosen) const {
    chosen = command_at(point);
    const bool is_outside = !open_menu()->box.contains(point);
    return is_outside || chosen != Command::none ? Loop_Step::end : Loop_Step::go_on;
}

} // namespace quadrelle
