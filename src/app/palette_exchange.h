#pragma once

// Palettes from files, pictures, tiles and the clipboard, and to them.

#include <string>

namespace quadrelle {

struct Editor_Parts;

namespace palette_exchange {

// Keeps and shows the palette that the file holds, or the colours of a picture, the most used one first.
// Tells what came of it.
void import_palette(Editor_Parts& editor, const std::string& path);

void import_file(Editor_Parts& editor);
void paste_colors(Editor_Parts& editor);
void take_from_tile(Editor_Parts& editor);
void take_from_set(Editor_Parts& editor);

// The palette has entries.
void export_gpl(Editor_Parts& editor);
void export_hex(Editor_Parts& editor);
void export_png(Editor_Parts& editor);
void copy_colors(Editor_Parts& editor);

} // namespace palette_exchange

} // namespace quadrelle
