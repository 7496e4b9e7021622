#pragma once

// What the tables that are indexed by an enum have in common. Knows none of them.

#include <cstddef>

namespace quadrelle {

// Whether row i has id i, for every row.
template <typename Table>
[[nodiscard]] constexpr bool rows_follow_their_ids(const Table& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table[i].id) != i) {
            return false;
        }
    }
    return true;
}

} // namespace quadrelle
