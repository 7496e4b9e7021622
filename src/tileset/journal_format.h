#pragma once

// What the writing and the reading of the journal's bytes have in common; nothing else uses it.

#include <array>
#include <cstddef>
#include <cstdint>

namespace quadrelle::journal_format {

inline constexpr std::array<std::uint8_t, 12> head{'Q', 'D', 'L', 'J', 'R', 'N', 'L', '\n', 1, 0, 0, 0};
inline constexpr std::array<std::uint8_t, 4> mark{'Q', 'J', 'R', 0xb7};
// Mark, kind and length before the contents, the checksum behind them.
inline constexpr std::size_t bytes_before = mark.size() + 8;
inline constexpr std::size_t bytes_behind = 4;

enum class Record_Kind : std::uint32_t { change = 1, end = 2 };

// As a file of a set can tell.
inline constexpr int largest_edge = 255;
inline constexpr int most_tiles = 1 << 24;

enum Set_Flag : unsigned { named = 1, has_map = 2, map_follows = 4, knows_file = 8, knows_map_file = 16 };

} // namespace quadrelle::journal_format
