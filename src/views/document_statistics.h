#pragma once

// What a document takes, in numbers.

#include <string>

namespace quadrelle {

class Tileset_Document;

// Returns lines parted by "\r", which fit into the window.
[[nodiscard]] std::string statistics_text(const Tileset_Document& document);

} // namespace quadrelle
