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

Map_Pattern::Map_Pattern(const Map_Stamp& stamp, Stamp_Use use, Map_Point anchor, std::uint32_t seed)
    : stamp_(stamp), use_(use), anchor_(anchor), seed_(seed) {
    for (const Stamp_Cell& cell : stamp.cells) {
        all_weights_ += cell.cell.is_empty() ? 0 : cell.weight;
    }
}

std::optional<Map_Cell> Map_Pattern::at(Map_Point point) const {
    if (use_ == Stamp_Use::erase) {
        return Map_Cell();
    }
    if (all_weights_ == 0) {
        return std::nullopt;
    }
    if (use_ == Stamp_Use::at_random) {
        return random_cell(point);
    }
    const Map_Cell cell = stamp_
                              .at(remainder_of(point.x - anchor_.x, stamp_.size.width),
                                  remainder_of(point.y - anchor_.y, stamp_.size.height))
                              .cell;
    return cell.is_empty() ? std::nullopt : std::optional(cell);
}

std::optional<Map_Cell> Map_Pattern::random_cell(Map_Point point) const {
    const auto x = static_cast<std::uint32_t>(point.x);
    const auto y = static_cast<std::uint32_t>(point.y);
    const std::uint32_t number = scattered(scattered(scattered(seed_) ^ x) ^ y);
    int left = static_cast<int>(number % static_cast<std::uint32_t>(all_weights_));
    for (const Stamp_Cell& cell : stamp_.cells) {
        left -= cell.cell.is_empty() ? 0 : cell.weight;
        if (left < 0) {
            return cell.cell;
        }
    }
    return std::nullopt;
}

Rectangle Map_Pattern::reach(Map_Point point) const {
    const bool is_whole = use_ == Stamp_Use::whole && all_weights_ > 0;
    const Size size = is_whole ? stamp_.size : Size{1, 1};
    return {point.x, point.y, size.width, size.height};
}

} // namespace quadrelle
