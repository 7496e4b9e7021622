#pragma once

// Tiles as one picture for other programs, and the text that tells map editors where they lie in it.

#include "pixels/tile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quadrelle {

// In pixels of the tiles, before all is scaled.
struct Sheet_Layout {
    int columns = 16;
    int margin = 0;    // around the picture
    int spacing = 0;   // between tiles
    int extrusion = 0; // how often the outermost pixels of each tile are repeated around it
    int scale = 1;

    bool operator==(const Sheet_Layout&) const = default;
};

enum class Exported : int { whole_set, current_tile, selection };

// What is exported, and how.
struct Sheet_Choice {
    Exported what = Exported::whole_set;
    Sheet_Layout layout = {};
    bool has_description = false; // a tileset file beside the picture
};

// How a set was exported last: as a bitmap, if there is no choice.
struct Export_Record {
    std::string path;
    std::optional<Sheet_Choice> choice;
};

// The picture would have no pixel, or more than this.
constexpr int largest_sheet_edge = 16384;
constexpr std::int64_t most_sheet_pixels = std::int64_t{8192} * 8192;

// Returns the size of the picture of that many tiles, which may be too large to be made.
[[nodiscard]] Size sheet_size(Size tile, int count, const Sheet_Layout& layout);
[[nodiscard]] bool is_possible_sheet(Size size);
// The tiles have one size. The last row ends with the last tile; what no tile covers is transparent.
[[nodiscard]] Tile sheet_picture(const std::vector<const Tile*>& tiles, const Sheet_Layout& layout);
// Returns a tileset file ".tsx" about such a picture, which is named as it lies beside it.
[[nodiscard]] std::string sheet_description(const std::string& picture_name, Size tile, int count,
                                            const Sheet_Layout& layout);

} // namespace quadrelle
