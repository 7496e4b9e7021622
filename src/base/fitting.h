#pragma once

// In which size a picture is shown in a box.

#include "base/geometry.h"

#include <limits>

namespace quadrelle {

enum class Shrinking {
    in_shape,      // as large as there is room for
    by_whole_steps // to every second pixel, every third, and so on
};

struct Fitting {
    int most_times = std::numeric_limits<int>::max(); // that it is enlarged
    Shrinking shrinking = Shrinking::in_shape;
};

// Enlarged by as many whole times as there is room for; shrunk where there is no room for it as it is, to one
// pixel at least. Nothing for a picture without pixels.
[[nodiscard]] Size fitted(Size picture, Size box, Fitting fitting = {});

} // namespace quadrelle
