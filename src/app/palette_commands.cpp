#include "app/palette_commands.h"

#include "app/editor_parts.h"
#include "color/hex_color.h"
#include "panes/toolbox.h"
#include "ui/dialogs.h"
#include "ui/name_prompt.h"
#include "ui/shown_text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle::palette_commands {

namespace {

std::string quoted_name(const Palette_Area& palette) {
    return "\"" + palette.palette().name + "\"";
}

} // namespace

void make(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    if (const std::optional<std::string> name = ask_name("New palette", "Palette")) {
        palette.add({*name, {toolbox->state().colors.current()}});
        editor.panes.report_palette(quoted_name(palette) +
                                    " has one color. Menu, Insert lit color adds more.");
    }
}

void duplicate(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    palette.add(palette.palette());
    editor.panes.report_palette("The copy is called " + quoted_name(palette) + ".");
}

void rename(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    if (const std::optional<std::string> name = ask_name("Rename palette", palette.palette().name)) {
        palette.show(palette.list().rename(palette.index(), *name));
        editor.panes.report_palette("It is called " + quoted_name(palette) + ".");
    }
}

void delete_shown(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    const std::string name = quoted_name(palette);
    constexpr int widest_name = 300;
    const std::string asked = fitted_text(Font::regular, name, widest_name, Left_Out::middle);
    if (dialogs->ask("Delete palette", "Delete " + asked + " with its file?\rThis can't be undone.")) {
        palette.list().remove(palette.index());
        palette.show(palette.index());
        editor.panes.report_palette(name + " is deleted.");
    }
}

void undo(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    palette.list().undo(palette.index());
    palette.show(palette.index());
    editor.panes.report_palette("The last change of " + quoted_name(palette) + " is taken back.");
}

void redo(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    palette.list().redo(palette.index());
    palette.show(palette.index());
    editor.panes.report_palette("The change of " + quoted_name(palette) + " is back.");
}

void insert_color(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    const Color color = toolbox->state().colors.current();
    palette.insert({color});
    editor.panes.report_palette(hex_text(color) + " is inserted in " + quoted_name(palette) + ".");
}

void remove_entry(Editor_Parts& editor) {
    Palette_Area& palette = editor.panes.palette();
    const Color color = palette.selected_color();
    std::vector<Color> colors = palette.palette().colors;
    colors.erase(colors.begin() + palette.entry());
    palette.change(std::move(colors));
    editor.panes.report_palette(hex_text(color) + " is removed. Menu, Undo brings it back.");
}

} // namespace quadrelle::palette_commands
