#pragma once

// The renderer takes its rectangles in floats.

#include "base/geometry.h"

#include <SDL3/SDL_rect.h>

namespace quadrelle {

[[nodiscard]] constexpr SDL_FRect float_rectangle(const Rectangle& area) {
    return {static_cast<float>(area.x), static_cast<float>(area.y), static_cast<float>(area.width),
            static_cast<float>(area.height)};
}

} // namespace quadrelle
