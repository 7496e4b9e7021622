#pragma once

// The sheet as the bytes of picture files. Equal pictures give equal bytes.

#include "sheet_picture.h"

#include <cstdint>
#include <vector>

namespace quadrelle {

using Bytes = std::vector<std::uint8_t>;

// An uncompressed BMP, with a palette when there are at most 256 colours, else with 24 bits a pixel.
Bytes encode_bmp(const Sheet_Picture& sheet);

// A PNG for looking at: twice the size, transparent places as a checkerboard.
Bytes encode_enlarged_png(const Sheet_Picture& sheet);

} // namespace quadrelle
