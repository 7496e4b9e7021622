#include "map/map_fit.h"

#include "base/checksum.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <span>
#include <utility>

namespace quadrelle {

namespace {

constexpr int gone = -1;

// Finds out where each tile of before is now.
class Tile_Search {
public:
    Tile_Search(const Tile_Sums& before, const Tile_Sums& now)
        : before_(before), now_(now), places_(before.size(), gone), is_taken_(now.size()) {}

    // Nothing where no tile is to be recognized.
    std::optional<std::vector<int>> places() {
        find_in_place();
        find_elsewhere();
        if (found_ == 0 && !before_.empty()) {
            return std::nullopt;
        }
        find_changed();
        return std::move(places_);
    }

private:
    void take(std::size_t tile, std::size_t place) {
        places_[tile] = static_cast<int>(place);
        is_taken_[place] = true;
    }

    void find_in_place() {
        for (std::size_t i = 0; i < std::min(before_.size(), now_.size()); ++i) {
            if (before_[i] == now_[i]) {
                take(i, i);
                ++found_;
            }
        }
    }

    // Of several that look the same, each is taken once as long as there are others.
    void find_elsewhere() {
        std::map<std::uint32_t, std::size_t> all;
        std::multimap<std::uint32_t, std::size_t> free;
        for (std::size_t i = 0; i < now_.size(); ++i) {
            all.emplace(now_[i], i);
            if (!is_taken_[i]) {
                free.emplace(now_[i], i);
            }
        }
        for (std::size_t i = 0; i < before_.size(); ++i) {
            const auto same = all.find(before_[i]);
            if (places_[i] != gone || same == all.end()) {
                continue;
            }
            const auto found = free.find(before_[i]);
            take(i, found == free.end() ? same->second : found->second);
            if (found != free.end()) {
                free.erase(found);
            }
            ++found_;
        }
    }

    // In a set of as many tiles that are mostly the same, what is new in a place was made of the old one.
    void find_changed() {
        if (before_.size() != now_.size() || 2 * found_ < before_.size()) {
            return;
        }
        for (std::size_t i = 0; i < before_.size(); ++i) {
            if (places_[i] == gone && !is_taken_[i]) {
                take(i, i);
            }
        }
    }

    const Tile_Sums& before_;
    const Tile_Sums& now_;
    std::vector<int> places_;
    std::vector<bool> is_taken_;
    std::size_t found_ = 0;
};

// Returns how many cells have become empty.
int renumber(Tile_Map& map, const std::vector<int>& places) {
    int emptied = 0;
    for (Map_Cell& cell : map.cells()) {
        if (cell.is_empty()) {
            continue;
        }
        const auto tile = static_cast<std::size_t>(cell.tile());
        const int place = tile < places.size() ? places[tile] : gone;
        cell = place == gone ? Map_Cell() : cell.with_tile(place);
        emptied += place == gone ? 1 : 0;
    }
    return emptied;
}

} // namespace

Tile_Sums sums_of(Tile_Pictures tiles) {
    static_assert(sizeof(Color) == 4);
    Tile_Sums sums;
    sums.reserve(tiles.size());
    for (const Tile* const tile : tiles) {
        const auto pixels = std::as_bytes(tile->pixels());
        sums.push_back(checksum({reinterpret_cast<const std::uint8_t*>(pixels.data()), pixels.size()}));
    }
    return sums;
}

Fitted_Map fitted(Stored_Map stored, const Tile_Sums& tiles) {
    const Tile_Sums& before = stored.tiles ? *stored.tiles : tiles;
    const std::optional<std::vector<int>> places = Tile_Search(before, tiles).places();
    Fitted_Map result{std::nullopt, before != tiles, 0};
    if (places) {
        result.emptied = renumber(stored.map, *places);
        result.has_other_tiles = result.has_other_tiles || result.emptied > 0;
        result.map = std::move(stored.map);
    }
    return result;
}

} // namespace quadrelle
