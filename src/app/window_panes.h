#pragma once

// The panes that are always on the window: where they stand, what lies under the pointer, and what a click on
// them does.

#include "app/redraw.h"
#include "app/usable_commands.h"
#include "base/input.h"
#include "panes/copy_panes.h"
#include "panes/hint_lines.h"
#include "panes/history_pane.h"
#include "panes/icon_bar.h"
#include "panes/menu_bar.h"
#include "panes/palette_area.h"
#include "panes/preview_pane.h"
#include "panes/selected_color_area.h"
#include "panes/tile_navigation_pane.h"
#include "panes/tile_strip_picture.h"
#include "ui/number_info.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quadrelle {

class Canvas_View;
class Documents;

// Where the pointer is while it is not over the window.
constexpr Pointer_State pointer_nowhere{-1, -1, Mouse_Button::none};

// What a double click on a pane asks for.
enum class Double_Click {
    none,
    paste_copy,
    edit_left_color,
    edit_right_color,
    edit_palette_color,
    edit_selected_color
};

// What a click on a pane opens.
enum class Pane_Popup { none, palette_menu, palette_names };

// What is still to be done after a click on a pane.
struct Pane_Click {
    Command command = Command::none;
    Double_Click twice = Double_Click::none;
    Pane_Popup popup = Pane_Popup::none;
};

class Window_Panes {
public:
    // Borrows what the panes show.
    Window_Panes(Canvas_View& canvas, Documents& documents, Copy_Buffer& copies, Redraw redraw);

    void draw(const Pointer_State& pointer);
    // Returns what lies there: the tool in use where there is nothing else.
    [[nodiscard]] Pointed pointed(Point point) const;
    [[nodiscard]] static Pointed tool_in_use();
    // Lets the pane that was hit answer. `count` is 2 or more when clicks follow each other quickly.
    [[nodiscard]] Pane_Click click(Pointer_State& pointer, int count);
    // Returns the area of a button that goes on acting while it is held, if one is.
    [[nodiscard]] std::optional<Rectangle> held_button() const { return navigation_.held_area(); }
    // To be called when no button of the mouse is held any more.
    void release() { navigation_.release(); }

    // The preview repeats the tile as often as the options say and as there is room.
    void size_preview();

    [[nodiscard]] Palette_Area& palette() { return palette_; }
    [[nodiscard]] const Palette_Area& palette() const { return palette_; }
    // Makes the colour that of the palette's selected entry, and tells it.
    void store_color(Color color);
    // Tells what was done with the palettes, or what went wrong with their files.
    void report_palette(std::string_view what);
    [[nodiscard]] const Preview_Pane& preview() const { return preview_; }
    [[nodiscard]] Hint_Lines& hint_lines() { return hint_lines_; }
    [[nodiscard]] const Hint_Lines& hint_lines() const { return hint_lines_; }

private:
    // A thing that can be clicked twice.
    struct Click_Target {
        Double_Click meaning = Double_Click::none;
        std::size_t index = 0;

        bool operator==(const Click_Target&) const = default;
    };

    void draw_panes();
    [[nodiscard]] bool is_lit(Command icon) const;
    [[nodiscard]] Command_Subjects subjects() const { return {canvas_, documents_, copies_}; }
    [[nodiscard]] Hint hint_at(Point point) const;
    [[nodiscard]] std::string places_in_map(const Pointed& thing, Point point) const;
    [[nodiscard]] std::optional<Pointed> thing_at(Point point) const;
    [[nodiscard]] std::optional<Pointed> pointed_on_canvas(Point point) const;
    [[nodiscard]] Command command_at(Point point) const;
    [[nodiscard]] std::optional<Place> place_at(Point point) const;
    [[nodiscard]] std::optional<Place> pane_at(Point point) const;
    [[nodiscard]] std::optional<Mouse_Button> button_color_at(Point point) const;
    [[nodiscard]] Click_Target target_at(const Pointer_State& pointer) const;
    [[nodiscard]] Double_Click double_click(const Pointer_State& pointer, int count);
    [[nodiscard]] bool take_click(const Pointer_State& pointer);
    [[nodiscard]] std::optional<std::size_t> copy_at(Point point) const;
    [[nodiscard]] bool take_palette_click(const Pointer_State& pointer);
    void drag_palette_entry();
    [[nodiscard]] Pane_Popup popup_at(Point point) const;
    [[nodiscard]] bool take_copy_click(const Pointer_State& pointer);
    [[nodiscard]] Command click_buttons(const Pointer_State& pointer);

    Canvas_View& canvas_;
    Documents& documents_;
    Copy_Buffer& copies_;
    Redraw redraw_;
    Click_Target last_target_;
    Copy_Panes copy_panes_;
    Preview_Pane preview_;
    Number_Info magnification_; // shown as "21x"
    Palette_Area palette_;
    Selected_Color_Area selected_color_;
    History_Pane history_;
    Tile_Navigation_Pane navigation_;
    Tile_Strip_Picture strip_picture_;
    Menu_Bar menu_bar_;
    Icon_Bar icon_bar_;
    Hint_Lines hint_lines_;
};

} // namespace quadrelle
