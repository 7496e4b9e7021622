#include "app/palette_exchange.h"

#include "app/editor_parts.h"
#include "base/block_file.h"
#include "base/file_names.h"
#include "color/palette_formats.h"
#include "color/palette_names.h"
#include "pixels/color_use.h"
#include "pixels/picture_formats.h"
#include "pixels/tile.h"
#include "screen/text_input.h"
#include "ui/dialogs.h"
#include "views/ask_for_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quadrelle::palette_exchange {

namespace {

std::string counted(std::size_t colors) {
    return std::to_string(colors) + (colors == 1 ? " color" : " colors");
}

// Of so many colours they may not all have been counted.
std::string rest_in_words(std::size_t left_out) {
    const bool may_be_more = left_out + most_palette_colors >= most_counted_colors;
    return left_out == 0
               ? ""
               : (may_be_more ? " At least " : " ") + std::to_string(left_out) + " more had no room.";
}

void keep(Editor_Parts& editor, Palette_Reading reading) {
    if (!reading.palette) {
        dialogs->message("Note", "This is no palette. " + reading.refusal);
        return;
    }
    Palette_Area& palette = editor.panes.palette();
    const std::string count = counted(reading.palette->colors.size());
    palette.add(std::move(*reading.palette));
    editor.panes.report_palette("\"" + palette.palette().name + "\" has " + count + "." +
                                rest_in_words(reading.left_out));
}

Palette_Reading colors_of(std::span<const Tile* const> pictures, std::string name) {
    const std::vector<Color_Use> uses = colors_by_use(pictures);
    if (uses.empty()) {
        return {std::nullopt, "There is no pixel."};
    }
    std::vector<Color> colors(std::min(uses.size(), most_palette_colors));
    std::transform(uses.begin(), uses.begin() + static_cast<std::ptrdiff_t>(colors.size()), colors.begin(),
                   [](const Color_Use& use) { return use.color; });
    const std::size_t left_out = uses.size() - colors.size();
    return {Palette(std::move(name), std::move(colors)), {}, left_out};
}

void save(Editor_Parts& editor, File_Dialog_Kind kind, std::span<const std::uint8_t> content) {
    // Its extension becomes that of the kind.
    std::string path = palette_stem(editor.panes.palette().palette().name) + ".gpl";
    if (!choose_file(kind, path)) {
        return;
    }
    if (content.empty() || write_file(path, content) < 0) {
        dialogs->file_message("Could not save the file.", path);
    } else {
        editor.panes.report_palette("Saved in " + path);
    }
}

std::span<const std::uint8_t> bytes_of(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

} // namespace

void import_palette(Editor_Parts& editor, const std::string& path) {
    const bool is_table = is_color_table(path);
    const Decoded_Picture decoded =
        is_table ? Decoded_Picture{{}, Picture_Fault::unknown} : read_picture(path);
    if (decoded.picture) {
        keep(editor, colors_of(std::array{&*decoded.picture}, name_of_file(path)));
    } else if (decoded.fault == Picture_Fault::unknown) {
        keep(editor, read_palette_file(path));
    } else {
        dialogs->message("Note", text_of(decoded.fault));
    }
}

void import_file(Editor_Parts& editor) {
    if (std::string path; choose_file(File_Dialog_Kind::import_palette, path)) {
        import_palette(editor, path);
    }
}

void paste_colors(Editor_Parts& editor) {
    Palette_Reading reading = read_hex_colors(clipboard_text());
    if (reading.palette && reading.palette->name.empty()) {
        reading.palette->name = "Clipboard";
    }
    keep(editor, std::move(reading));
}

void take_from_tile(Editor_Parts& editor) {
    editor.desk.drop_lifted();
    if (const Tile* const tile = editor.canvas.tile()) {
        keep(editor, colors_of(std::array{tile}, "Tile"));
    }
}

void take_from_set(Editor_Parts& editor) {
    editor.desk.drop_lifted();
    keep(editor, colors_of(editor.documents.current().tileset().tiles(), "Tileset"));
}

void export_gpl(Editor_Parts& editor) {
    save(editor, File_Dialog_Kind::export_gpl, bytes_of(gpl_text(editor.panes.palette().palette())));
}

void export_hex(Editor_Parts& editor) {
    save(editor, File_Dialog_Kind::export_hex, bytes_of(hex_lines(editor.panes.palette().palette().colors)));
}

// A row of pixels.
void export_png(Editor_Parts& editor) {
    const std::vector<Color>& colors = editor.panes.palette().palette().colors;
    Tile picture(static_cast<int>(colors.size()), 1);
    for (int x = 0; x < picture.width(); ++x) {
        picture.set_pixel(x, 0, colors[static_cast<std::size_t>(x)]);
    }
    save(editor, File_Dialog_Kind::export_png_palette, encode_png(picture));
}

void copy_colors(Editor_Parts& editor) {
    const std::vector<Color>& colors = editor.panes.palette().palette().colors;
    set_clipboard_text(hex_lines(colors));
    editor.panes.report_palette(counted(colors.size()) + " are on the clipboard as text.");
}

} // namespace quadrelle::palette_exchange
