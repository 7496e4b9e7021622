#pragma once

// Pictures that go into files row by row: no more than one row of them is in memory.

#include "base/geometry.h"
#include "color/color.h"

#include <functional>
#include <span>
#include <string>

namespace quadrelle {

// Fills the row with that number. Rows may be asked for from the bottom.
using Picture_Rows = std::function<void(int y, std::span<Color> row)>;

// Both replace the file whole or not at all; false where that failed.
[[nodiscard]] bool write_png_rows(const std::string& path, Size size, const Picture_Rows& rows);
[[nodiscard]] bool write_bitmap_rows(const std::string& path, Size size, const Picture_Rows& rows);

} // namespace quadrelle
