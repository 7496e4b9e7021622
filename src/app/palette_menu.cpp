#include "app/palette_menu.h"

#include "app/editor_parts.h"
#include "app/palette_coloring.h"
#include "app/palette_commands.h"
#include "app/palette_exchange.h"
#include "ui/popup.h"
#include "ui/shown_text.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace quadrelle::palette_menu {

namespace {

bool always(const Palette_Area& /*palette*/) {
    return true;
}

bool is_kept(const Palette_Area& palette) {
    return palette.is_kept();
}

bool has_entries(const Palette_Area& palette) {
    return palette.has_entries();
}

bool has_room(const Palette_Area& palette) {
    return palette.has_room(1);
}

constexpr int widest_name = 300;

constexpr Menu_Entry separator{"", "", nullptr, nullptr};

// clang-format off
using namespace palette_coloring;
using namespace palette_commands;
using namespace palette_exchange;
constexpr std::array menu = {
    Menu_Entry{"New palette",          "A palette of its own that begins with the lit color.",                             make,         always},
    Menu_Entry{"Duplicate",            "A copy of this palette, to be changed without it.",                                duplicate,    has_entries},
    Menu_Entry{"Rename",               "Another name for this palette and its file. One of the built-in ones is copied.",  rename,       has_entries},
    Menu_Entry{"Delete palette",       "Removes this palette with its file, after a question. The built-in ones stay.",    delete_shown, is_kept},
    separator,
    Menu_Entry{"Undo in palette",      "Takes back what was stored, moved, inserted or removed in this palette last.",     undo,         [](const Palette_Area& palette) { return palette.can_undo(); }},
    Menu_Entry{"Redo in palette",      "Brings back what was taken back last.",                                            redo,         [](const Palette_Area& palette) { return palette.can_redo(); }},
    separator,
    Menu_Entry{"Insert lit color",     "The lit color becomes an entry of its own behind the selected one.",               insert_color, has_room},
    Menu_Entry{"Remove entry",         "The selected entry goes, and those behind it move up.",                            remove_entry, [](const Palette_Area& palette) { return palette.palette().colors.size() > 1; }},
    separator,
    Menu_Entry{"Ramp, left to right color", "Inserts colors between those of the left and the right button, which are marked.", make_ramp, has_room},
    Menu_Entry{"Sort by hue", "Greys come first, then the colors around the wheel.", sort_by_hue, has_entries},
    Menu_Entry{"Sort by lightness", "The darkest color comes first.", sort_by_lightness, has_entries},
    Menu_Entry{"Sort by use", "The color that most pixels of the set have comes first.", sort_by_use, has_entries},
    separator,
    Menu_Entry{"Replace left by right color", "Shows how many pixels have the left button's color, and gives them the right one's: in what is selected, the tile, or the set.", replace_color, always},
    Menu_Entry{"Select what is not in it", "Selects the pixels of the tile whose colors are not in this palette.", select_foreign, has_entries},
    Menu_Entry{"Only palette colors", "What floats, is selected, or else the whole tile takes the nearest colors of this palette.", map_to_palette, has_entries},
    separator,
    Menu_Entry{"Import file", "From a .gpl, .hex, .pal, .act or .txt of another program, or the colors of a PNG or BMP.", import_file, always},
    Menu_Entry{"Paste colors", "A palette of the hexadecimal colors that are on the clipboard as text.", paste_colors, always},
    Menu_Entry{"Colors of the tile", "A palette of the colors of the current tile, the most used one first.", take_from_tile, always},
    Menu_Entry{"Colors of the set", "A palette of the colors of all tiles, the most used one first.", take_from_set, always},
    separator,
    Menu_Entry{"Export as .gpl", "A file that most editors read. Alpha stands where others have the colors' names.", export_gpl, has_entries},
    Menu_Entry{"Export as .hex", "A text with a line for each color.", export_hex, has_entries},
    Menu_Entry{"Export as .png", "A picture one pixel high, with a pixel for each color.", export_png, has_entries},
    Menu_Entry{"Copy as text", "Puts the colors on the clipboard in hexadecimal digits.", copy_colors, has_entries},
};
// clang-format on

void open_menu(Editor_Parts& editor) {
    const Palette_Area& palette = editor.panes.palette();
    Popup popup;
    for (const Menu_Entry& entry : menu) {
        popup.rows.push_back(
            {std::string(entry.text), entry.can_be_used != nullptr && entry.can_be_used(palette)});
    }
    popup.explain = [&editor](std::size_t row) {
        const Menu_Entry& entry = menu.at(row);
        editor.panes.hint_lines().report({std::string(entry.text), std::string(entry.hint)});
    };
    const std::optional<std::size_t> chosen =
        choose_row({palette.area.right(), palette.menu_button().y}, popup);
    editor.panes.hint_lines().end_report();
    if (chosen) {
        menu.at(*chosen).carry_out(editor);
    }
}

void open_names(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    Popup popup;
    for (int i = 0; i < palette.list().size(); ++i) {
        popup.rows.push_back(
            {fitted_text(Font::pane, palette.list().palette(i).name, widest_name, Left_Out::middle), true,
             i == palette.index()});
    }
    if (const std::optional<std::size_t> chosen = choose_row({palette.area.right(), palette.area.y}, popup)) {
        palette.show(static_cast<int>(*chosen));
    }
}

} // namespace

std::span<const Menu_Entry> entries() {
    return menu;
}

void open(Editor_Parts& editor, Pane_Popup popup) {
    if (popup == Pane_Popup::palette_menu) {
        open_menu(editor);
    } else {
        open_names(editor);
    }
}

} // namespace quadrelle::palette_menu
