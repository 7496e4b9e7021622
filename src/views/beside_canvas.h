#pragma once

// Where a dialog lies that changes what the canvas and the preview show.

#include "base/geometry.h"

namespace quadrelle {

// Over the panes right of the canvas, down to the lowest of them.
constexpr Rectangle beside_canvas{784, 28, 444, 604};

} // namespace quadrelle
