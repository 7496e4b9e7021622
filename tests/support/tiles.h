#pragma once

// Tiles as rows of characters: '.' opaque black, ' ' transparent black, '#' white, letters colours of their
// own. A picture before, something drawn on it, the picture after. Brings what most tests need besides.

#include "pixels/tile.h"
#include "tools/drawing_target.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace quadrelle::testing {

inline constexpr Color white(255, 255, 255);
inline constexpr Color black(0, 0, 0);
inline constexpr Color red(200, 30, 40);
inline constexpr Color clear(0, 0, 0, 0);

using Art = std::vector<std::string>;

[[nodiscard]] Color art_color(char mark);
[[nodiscard]] Tile make_tile(const Art& rows);
[[nodiscard]] Art art(const Tile& tile);
// A picture of opaque black.
[[nodiscard]] Art blank(int width, int height);
[[nodiscard]] Art drawn(const Art& before, const std::function<void(Drawing_Target&)>& draw);
// The same, with the white pixels of the mask selected.
[[nodiscard]] Art drawn(const Art& before, const Art& selection,
                        const std::function<void(Drawing_Target&)>& draw);

using Tile_Picture = std::vector<Color>;

[[nodiscard]] Tile_Picture picture_of(const Tile& tile);
[[nodiscard]] Tile random_tile(Size size, std::mt19937& random);
[[nodiscard]] Tile random_tile(Size size, unsigned seed = 1);

} // namespace quadrelle::testing
