#pragma once

// The pane of the palettes: one of them at a time as a grid of colours, and which entry is selected. Beside
// their name stands a swatch that belongs to none of them: transparent.

#include "base/input.h"
#include "color/palette_list.h"
#include "screen/sprite_table.h"
#include "tools/tool_state.h"
#include "ui/pane.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quadrelle {

class Palette_Area : public Pane {
public:
    // Borrows the palettes, and the colours in use, whose entries are marked. `position` is the top-left
    // corner of the pane.
    Palette_Area(Point position, Palette_List& list, const Tool_Colors& colors);

    void draw() const override;
    // Chooses a palette, or selects an entry: then its colour is the answer.
    std::optional<Color> click(Point point);
    // Follows the pointer from a press on the selected entry and moves that entry to where it is let go;
    // beside the palette it stays. `redraw` draws and presents the window.
    void drag(const std::function<void()>& redraw);
    [[nodiscard]] std::optional<int> entry_at(Point point) const;
    [[nodiscard]] bool has_transparent_at(Point point) const { return transparent_swatch().contains(point); }
    [[nodiscard]] Rectangle menu_button() const;
    // Where the name stands.
    [[nodiscard]] Rectangle name_area() const;

    [[nodiscard]] Palette_List& list() { return list_; }
    [[nodiscard]] int index() const { return palette_; }
    [[nodiscard]] const Palette& palette() const { return list_.palette(palette_); }
    // Shows the palette with that index, or the last one.
    void show(int index);
    [[nodiscard]] int entry() const { return entry_; }
    // Selects the entry, or the last one.
    void select(int entry);
    // Selects the first entry of that colour, if there is one.
    void select_color(Color color);
    [[nodiscard]] bool has_entries() const { return !palette().colors.empty(); }
    // Goes by one entry along either axis and returns its colour; at an edge the selection stays.
    Color move_selection(int dx, int dy);
    [[nodiscard]] Color selected_color() const;
    // These change the palette, or show a copy that is changed instead. The first one makes the colour the
    // selected entry's.
    void store(Color color);
    void change(std::vector<Color> colors);
    // Whether so many more colours may be inserted.
    [[nodiscard]] bool has_room(std::size_t more) const {
        return has_entries() && palette().colors.size() + more <= most_palette_colors;
    }
    // Puts the colours, for which there is room, behind the selected entry and selects the last one.
    void insert(const std::vector<Color>& colors);
    // Keeps that palette and shows it.
    void add(Palette palette);
    [[nodiscard]] bool is_kept() const { return list_.is_kept(palette_); }
    [[nodiscard]] bool can_undo() const { return list_.can_undo(palette_); }
    [[nodiscard]] bool can_redo() const { return list_.can_redo(palette_); }

private:
    [[nodiscard]] int count() const { return static_cast<int>(palette().colors.size()); }
    [[nodiscard]] std::vector<Color> with_moved_entry(int target) const;
    // How the cells lie.
    struct Grid {
        Point corner;
        int columns = 1;
        Size cell;

        [[nodiscard]] Rectangle at(int entry) const;
    };
    [[nodiscard]] Grid grid() const;
    [[nodiscard]] Rectangle transparent_swatch() const;
    [[nodiscard]] Rectangle less_button() const;
    [[nodiscard]] Rectangle more_button() const;
    [[nodiscard]] std::string shown_name() const;
    void draw_entries() const;
    void draw_color_in_use(Mouse_Button button) const;
    void draw_empty_entries() const;
    void draw_marks() const;
    void draw_step_button(Sprite sprite, const Rectangle& place) const;

    Palette_List& list_;
    const Tool_Colors& colors_;
    int palette_;
    int entry_ = 0;
    std::optional<int> drop_; // where the entry that is dragged would come to stand
};

} // namespace quadrelle
