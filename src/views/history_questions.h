#pragma once

// Asks before all tiles of a set are changed, which no step of the history takes back.

#include "base/geometry.h"

#include <string_view>

namespace quadrelle {

class Tileset_Document;

// Both return true for an explicit yes. The first one also does where there is nothing to lose.
[[nodiscard]] bool confirm_resize(const Tileset_Document& document, Size size);
[[nodiscard]] bool confirm_change_of(int tiles, std::string_view title);

} // namespace quadrelle
