#pragma once

// Draws the sprite grids to their places on the sheet.

#include "problems.h"
#include "sheet_picture.h"
#include "source_file.h"

#include <vector>

namespace quadrelle {

enum class Missing_Sprites { refused, allowed };

void draw_sprites(Sheet_Picture& sheet, const std::vector<Source_File>& files, Missing_Sprites missing,
                  Problems& problems);

} // namespace quadrelle
