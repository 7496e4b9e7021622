#pragma once

// Lays the glyph grids of the fonts out on the sheet, with the marker pixels between them.

#include "problems.h"
#include "sheet_picture.h"
#include "source_file.h"

#include <vector>

namespace quadrelle {

// Each font has glyphs for the characters from 32 to this one.
constexpr int last_character = 126;

void draw_fonts(Sheet_Picture& sheet, const std::vector<Source_File>& files, Problems& problems);

} // namespace quadrelle
