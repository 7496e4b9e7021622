#pragma once

// Hue, saturation and value of all that a drawing target lets through.

#include "color/hsv_change.h"
#include "tools/drawing_target.h"

namespace quadrelle {

enum class Adjustment_Outcome { nothing_changed, tile_changed };

// Paints the source, changed, over the target; the source is another tile of the same size.
void adjust_hsv(Drawing_Target& target, const Tile& source, const HSV_Change& change);
// Changes the target's own pixels.
Adjustment_Outcome adjust_hsv(Drawing_Target& target, const HSV_Change& change);

} // namespace quadrelle
