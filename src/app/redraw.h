#pragma once

// How a part of the editor asks for the whole window to be drawn.

#include <functional>

namespace quadrelle {

enum class Present { no, yes };

// Draws the whole window.
using Redraw = std::function<void(Present)>;

} // namespace quadrelle
