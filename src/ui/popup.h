#pragma once

// A list of rows that opens over the window, of which one is chosen with a click or the keys.

#include "base/geometry.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quadrelle {

struct Popup_Row {
    std::string text; // without one the row parts those around it
    bool is_usable = true;
    bool is_marked = false; // it is what is chosen now
};

struct Popup {
    std::vector<Popup_Row> rows;
    // Told whenever another row is under the pointer or was come to with the keys.
    std::function<void(std::size_t row)> explain = {};
};

// Opens at that corner, or as near as it has room; with many rows it scrolls. Returns the chosen row, which
// can be used; none when it was given up.
[[nodiscard]] std::optional<std::size_t> choose_row(Point corner, const Popup& popup);

} // namespace quadrelle
