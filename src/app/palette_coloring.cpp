#include "app/palette_coloring.h"

#include "app/editor_parts.h"
#include "app/recoloring.h"
#include "color/hex_color.h"
#include "color/palette_craft.h"
#include "panes/toolbox.h"
#include "pixels/color_use.h"
#include "ui/dialog_container.h"
#include "ui/popup.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle::palette_coloring {

namespace {

constexpr int space_id = 1;
constexpr int steps_id = 3; // its label has the one before
constexpr int first_steps = 3;

const Tool_Colors& colors_in_use() {
    return toolbox->state().colors;
}

// The selected colour stays selected.
void reorder(Editor_Parts& editor, std::vector<Color> colors, std::string_view how) {
    Palette_Area& palette = editor.panes.palette();
    const Color selected = palette.selected_color();
    palette.change(std::move(colors));
    palette.select_color(selected);
    editor.panes.report_palette("Sorted by " + std::string(how) + ". Menu, Undo takes it back.");
}

std::string pixels(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " pixel" : " pixels");
}

Color_Map replacement() {
    return [colors = colors_in_use()](Color color) {
        return as_seen(color) == as_seen(colors.left) ? colors.right : color;
    };
}

// How many pixels of the tile, and of the set in how many tiles.
struct Found {
    int in_tile = 0;
    std::size_t in_set = 0;
    int tiles = 0;
};

// What was lifted off the current tile counts as dropped into it.
Found count_in_tiles(Editor_Parts& editor, const Color_Map& map) {
    Tileset& tileset = editor.documents.current().tileset();
    std::optional<Tile> current = editor.desk.tile_with_lifted();
    Found found;
    for (int i = 0; i < tileset.count(); ++i) {
        Tile& tile = current && i == tileset.current_index() ? *current : tileset.tile_at(i);
        const int count = count_changes(Drawing_Target(tile), map);
        found.in_set += static_cast<std::size_t>(count);
        found.tiles += count > 0 ? 1 : 0;
        found.in_tile = i == tileset.current_index() ? count : found.in_tile;
    }
    return found;
}

enum class Where { title, selection, tile, set };

std::optional<Where> ask_where(Editor_Parts& editor, const Color_Map& map) {
    const Found found = count_in_tiles(editor, map);
    const bool has_something = editor.desk.has_something();
    const auto selected = static_cast<std::size_t>(has_something ? editor.desk.count_changes(map) : 0);
    const Popup popup{
        {{hex_text(colors_in_use().left) + " becomes " + hex_text(colors_in_use().right) + " in", false},
         {has_something ? "what is selected: " + pixels(selected) : "what is selected: nothing",
          selected > 0},
         {"this tile: " + pixels(static_cast<std::size_t>(found.in_tile)), found.in_tile > 0},
         {"the set: " + pixels(found.in_set) + " in " + std::to_string(found.tiles) +
              (found.tiles == 1 ? " tile" : " tiles"),
          found.in_set > 0}}};
    const Palette_Area& palette = editor.panes.palette();
    const std::optional<std::size_t> chosen = choose_row({palette.area.right(), palette.area.y}, popup);
    return chosen ? std::optional(static_cast<Where>(*chosen)) : std::nullopt;
}

} // namespace

void make_ramp(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    const auto room = static_cast<int>(most_palette_colors - palette.palette().colors.size());
    Dialog_Container dialog("Color ramp");
    dialog.add_row(make_choice_row(space_id, "Straight in RGB,Through the hues (HSV)$", 0));
    dialog.add_row(make_number_row(steps_id, "Colors between: ", {std::min(first_steps, room), 1, room}));
    dialog.finish_ok_cancel();
    if (!dialog.run()) {
        return;
    }
    const Ramp_Space space = dialog.value(space_id) == 0 ? Ramp_Space::rgb : Ramp_Space::hsv;
    const std::vector<Color> ramp =
        colors_between(colors_in_use().left, colors_in_use().right, dialog.value(steps_id), space);
    palette.select_color(colors_in_use().left);
    palette.insert(ramp);
    editor.panes.report_palette(std::to_string(ramp.size()) +
                                " colors are inserted. Menu, Undo takes them back.");
}

void sort_by_hue(Editor_Parts& editor) {
    reorder(editor, sorted_by_hue(editor.panes.palette().palette().colors), "hue");
}

void sort_by_lightness(Editor_Parts& editor) {
    reorder(editor, sorted_by_lightness(editor.panes.palette().palette().colors), "lightness");
}

void sort_by_use(Editor_Parts& editor) {
    editor.desk.drop_lifted();
    std::vector<Color> order;
    for (const Color_Use& use : colors_by_use(editor.documents.current().tileset().tiles())) {
        order.push_back(use.color);
    }
    reorder(editor, sorted_as(editor.panes.palette().palette().colors, order), "use in the set");
}

void replace_color(Editor_Parts& editor) {
    const Color_Map map = replacement();
    const std::optional<Where> where = ask_where(editor, map);
    if (!where) {
        return;
    }
    if (*where == Where::tile) {
        editor.desk.drop_lifted();
    }
    const auto change = [&] {
        return *where == Where::tile ? editor.desk.recolor_tile(map) : editor.desk.recolor(map);
    };
    const Outcome outcome = *where == Where::set ? recolor_set(editor, "Replace color", map)
                                                 : recolor_step(editor, Command::fill, change);
    if (outcome == Outcome::done) {
        editor.panes.report_palette(hex_text(colors_in_use().left) + " became " +
                                    hex_text(colors_in_use().right) + ".");
    }
}

void select_foreign(Editor_Parts& editor) {
    const std::vector<Color> colors = editor.panes.palette().palette().colors;
    recolor_step(editor, Command::wand_selector, [&] {
        return editor.desk.select_colors([&colors](Color color) { return !is_among(colors, color); });
    });
    const int count = editor.canvas.work_area().selection().count();
    editor.panes.report_palette(count == 0 ? "All pixels of the tile are in the palette."
                                           : pixels(static_cast<std::size_t>(count)) +
                                                 " of the tile are not in the palette: they are selected.");
}

void map_to_palette(Editor_Parts& editor) {
    const std::vector<Color> colors = editor.panes.palette().palette().colors;
    const Color_Map map = [&colors](Color color) {
        return is_among(colors, color) ? color : nearest_of(colors, color);
    };
    const auto count = static_cast<std::size_t>(editor.desk.count_changes(map));
    const Outcome outcome = recolor_step(editor, Command::fill, [&] { return editor.desk.recolor(map); });
    editor.panes.report_palette(outcome == Outcome::done
                                    ? pixels(count) + " took the nearest color of the palette."
                                    : "All pixels are in the palette.");
}

} // namespace quadrelle::palette_coloring
