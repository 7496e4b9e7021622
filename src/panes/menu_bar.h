#pragma once

// The menus at the window's top left. An open menu runs its own loop and answers with the chosen command.

#include "base/geometry.h"
#include "base/input.h"
#include "commands/command.h"
#include "screen/events.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

class Texture;

class Menu_Bar {
public:
    // `redraw_behind` draws the whole window without presenting it, `can_do` tells which commands would do
    // something.
    Menu_Bar(std::function<void()> redraw_behind, std::function<bool(Command)> can_do);
    ~Menu_Bar();

    // Draws the six headers. An open menu is drawn by its own loop only.
    void draw(const Pointer_State& pointer) const;
    // Runs the menu whose header lies under the pointer until an item is chosen or the menu dismissed. Keeps
    // the pointer up to date meanwhile.
    [[nodiscard]] Command click(Pointer_State& pointer);
    // Returns whether a header or the open menu is at `point`.
    [[nodiscard]] bool contains(Point point) const;
    // Returns the command of the open menu's row at `point`, or none.
    [[nodiscard]] Command command_at(Point point) const;

private:
    struct Item {
        std::string text;
        Command command = Command::none;
        Rectangle area;
    };
    struct Menu {
        std::unique_ptr<Texture> header;
        std::unique_ptr<Texture> highlighted_header;
        Rectangle header_area;
        Rectangle box;
        std::vector<Item> items;
    };

    void add_menu(std::size_t column);
    void draw_header(const Menu& menu, bool is_highlighted) const;
    void draw_behind() const;
    void draw_open_menu(const Pointer_State& pointer) const;
    void draw_item(const Item& item, Point pointer) const;
    // Returns null while none is open.
    [[nodiscard]] const Menu* open_menu() const;
    [[nodiscard]] int header_at(Point point) const;
    [[nodiscard]] Loop_Step handle(const Input_Event& event, Pointer_State& pointer, Command& chosen);
    [[nodiscard]] Loop_Step press(Point point, Command& chosen) const;

    std::function<void()> redraw_behind_;
    std::function<bool(Command)> can_do_;
    Rectangle area_;
    std::vector<Menu> menus_;
    int open_menu_ = -1;
};

} // namespace quadrelle
