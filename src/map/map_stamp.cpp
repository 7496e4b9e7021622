#include "map/map_stamp.h"

#include "base/table.h"
#include "pixels/turn_and_mirror.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

int remainder_of(int number, int divisor) {
    const int rest = number % divisor;
    return rest < 0 ? rest + divisor : rest;
}

// Scatters its bits: neighbours get numbers that have nothing to do with each other.
std::uint32_t scattered(std::uint32_t number) {
    number ^= number >> 16U;
    number *= 0x7feb352dU;
    number ^= number >> 15U;
    number *= 0x846ca68bU;
    return number ^ (number >> 16U);
}

struct Change_Row {
    Stamp_Change id;
    const Placement& placement;
    Orientation (Orientation::*change)() const;
};

constexpr std::array change_table = {
    Change_Row{Stamp_Change::mirror, mirrored, &Orientation::then_mirrored},
    Change_Row{Stamp_Change::flip, flipped, &Orientation::then_flipped},
    Change_Row{Stamp_Change::turn_right, turned_right, &Orientation::then_turned_right},
    Change_Row{Stamp_Change::turn_left, turned_left, &Orientation::then_turned_left},
};
static_assert(rows_follow_their_ids(change_table));

} // namespace

bool Map_Stamp::is_empty() const {
    return std::ranges::all_of(cells, [](const Stamp_Cell& cell) { return cell.cell.is_empty(); });
}

Map_Stamp stamp_of(const Tile_Map& map, const Rectangle& area) {
    const Rectangle inside = intersection(area, map.area());
    Map_Stamp stamp{{inside.width, inside.height}, {}};
    for (int y = inside.y; y < inside.bottom(); ++y) {
        for (int x = inside.x; x < inside.right(); ++x) {
            stamp.cells.push_back({map.at({x, y})});
        }
    }
    return stamp;
}

Map_Stamp changed(const Map_Stamp& stamp, Stamp_Change change) {
    const Change_Row& row = change_table.at(static_cast<std::size_t>(change));
    Map_Stamp result{row.placement.size_after(stamp.size), {}};
    for (int y = 0; y < result.size.height; ++y) {
        for (int x = 0; x < result.size.width; ++x) {
            const Tile_Point source = row.placement.origin({x, y}, result.size);
            Stamp_Cell cell = stamp.at(source.x, source.y);
            cell.cell = cell.cell.with((cell.cell.orientation().*row.change)());
            result.cells.push_back(cell);
        }
    }
    return result;
}

Stamp_Chances::Stamp_Chances(const Map_Stamp& stamp) {
    std::uint32_t sum = 0;
    for (const Stamp_Cell& cell : stamp.cells) {
        if (!cell.cell.is_empty()) {
            sum += static_cast<std::uint32_t>(cell.weight);
            cells_.push_back(cell.cell);
            ends_.push_back(sum);
        }
    }
}

Map_Cell Stamp_Chances::of(std::uint32_t random_number) const {
    const auto found = std::ranges::upper_bound(ends_, random_number % ends_.back());
    return cells_[static_cast<std::size_t>(found - ends_.begin())];
}

Map_Pattern::Map_Pattern(const Map_Stamp& stamp, Stamp_Use use, Map_Point anchor, std::uint32_t seed)
    : stamp_(stamp), use_(use), anchor_(anchor), seed_(seed), has_nothing_(stamp.is_empty()) {
    if (use == Stamp_Use::at_random && !has_nothing_) {
        chances_ = Stamp_Chances(stamp);
    }
}

void Map_Pattern::place(Map_Point first, std::span<Map_Cell> cells) const {
    if (use_ == Stamp_Use::erase) {
        std::ranges::fill(cells, Map_Cell());
    } else if (has_nothing_) {
        return;
    } else if (use_ == Stamp_Use::at_random) {
        place_at_random(first, cells);
    } else {
        place_stamp(first, cells);
    }
}

void Map_Pattern::place_stamp(Map_Point first, std::span<Map_Cell> cells) const {
    const Stamp_Cell* const row = &stamp_.at(0, remainder_of(first.y - anchor_.y, stamp_.size.height));
    int x = remainder_of(first.x - anchor_.x, stamp_.size.width);
    for (Map_Cell& cell : cells) {
        cell = row[x].cell.is_empty() ? cell : row[x].cell;
        x = x + 1 == stamp_.size.width ? 0 : x + 1;
    }
}

void Map_Pattern::place_at_random(Map_Point first, std::span<Map_Cell> cells) const {
    const std::uint32_t row_seed = scattered(seed_);
    auto x = static_cast<std::uint32_t>(first.x);
    for (Map_Cell& cell : cells) {
        cell = chances_.of(scattered(scattered(row_seed ^ x) ^ static_cast<std::uint32_t>(first.y)));
        ++x;
    }
}

Rectangle Map_Pattern::reach(Map_Point point) const {
    const bool is_whole = use_ == Stamp_Use::whole && !has_nothing_;
    const Size size = is_whole ? stamp_.size : Size{1, 1};
    return {point.x, point.y, size.width, size.height};
}

} // namespace quadrelle
