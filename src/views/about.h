#pragma once

// What the program says about itself.

#include <string>

namespace quadrelle {

// Lines separated by "\r": version, renderer and licences.
[[nodiscard]] std::string about_text();

} // namespace quadrelle
