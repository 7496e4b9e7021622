#pragma once

// The sheet as picture files. Both answer whether the file could be written.

#include "sheet_picture.h"

#include <filesystem>

namespace quadrelle {

// An uncompressed BMP, with a palette when there are at most 256 colours, else with 24 bits a pixel. Equal
// sheets give equal files.
bool write_bmp(const Sheet_Picture& sheet, const std::filesystem::path& path);

// A PNG for looking at: twice the size, transparent places as a checkerboard.
bool write_enlarged_png(const Sheet_Picture& sheet, const std::filesystem::path& path);

} // namespace quadrelle
