#pragma once

// The program's icon as picture files. All answer whether the file could be written.

#include "cells.h"

#include <filesystem>
#include <vector>

namespace quadrelle {

// A PNG with as many pixels for each cell, in each direction, as `times` says.
bool write_icon_png(const Cells& icon, int times, const std::filesystem::path& path);

struct Scaled_Icon {
    const Cells* icon;
    int times;
};
// The file of Windows that holds all sizes. Equal icons give equal files: nothing in it is packed.
bool write_ico(const std::vector<Scaled_Icon>& icons, const std::filesystem::path& path);

} // namespace quadrelle
