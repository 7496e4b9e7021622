#pragma once

// The dialog that changes hue, saturation and value of a tile, seen while it is done. Knows neither history
// nor tilesets.

#include "color/hsv_change.h"
#include "tools/drawing_target.h"

#include <functional>
#include <optional>

namespace quadrelle {

enum class Adjusted_Tiles { current, all };

struct HSV_Adjustment {
    HSV_Change change;
    Adjusted_Tiles tiles = Adjusted_Tiles::current;
};

// Whether the user may choose to adjust all tiles.
enum class All_Tiles_Choice { hidden, shown };

// Shows the change on the target while it is being chosen; at the end every pixel is as before. `changed` is
// called whenever that made the target another one. Returns none when given up.
[[nodiscard]] std::optional<HSV_Adjustment> ask_hsv_adjustment(
    const Drawing_Target& target, All_Tiles_Choice choice, const std::function<void()>& changed = [] {});

} // namespace quadrelle
