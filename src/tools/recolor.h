#pragma once

// Changes of all that has a colour, wherever it is.

#include "color/color.h"
#include "tools/drawing_target.h"

#include <functional>

namespace quadrelle {

// What becomes of a colour.
using Color_Map = std::function<Color(Color)>;

// Paints the source, changed, over the target; the source is another tile of the same size.
void recolor(Drawing_Target& target, const Tile& source, const Color_Map& map);
// Changes the target's own pixels.
void recolor(Drawing_Target& target, const Color_Map& map);
// Returns how many of them would change.
[[nodiscard]] int count_changes(const Drawing_Target& target, const Color_Map& map);

} // namespace quadrelle
