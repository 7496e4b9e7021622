#include "map/map_region.h"

#include <cstddef>

namespace quadrelle {

namespace {

class Filling {
public:
    Filling(const Tile_Map& map, Map_Cell wanted)
        : map_(map), wanted_(wanted), is_reached_(map.cells().size()) {}

    std::vector<Map_Run> from(Map_Point start) {
        waiting_.push_back(start);
        while (!waiting_.empty()) {
            const Map_Point point = waiting_.back();
            waiting_.pop_back();
            if (is_wanted(point)) {
                take_run(point);
            }
        }
        return std::move(runs_);
    }

private:
    [[nodiscard]] std::size_t index_of(Map_Point point) const {
        return static_cast<std::size_t>(point.y) * static_cast<std::size_t>(map_.size().width) +
               static_cast<std::size_t>(point.x);
    }
    [[nodiscard]] bool is_wanted(Map_Point point) const {
        return map_.contains(point) && map_.at(point) == wanted_ && !is_reached_[index_of(point)];
    }

    void take_run(Map_Point point) {
        int first = point.x;
        while (is_wanted({first - 1, point.y})) {
            --first;
        }
        int end = point.x;
        while (is_wanted({end, point.y})) {
            is_reached_[index_of({end, point.y})] = true;
            ++end;
        }
        for (int x = first; x < point.x; ++x) {
            is_reached_[index_of({x, point.y})] = true;
        }
        runs_.push_back({{first, point.y}, end - first});
        wait_for(first, end, point.y - 1);
        wait_for(first, end, point.y + 1);
    }

    // One point for each run of the row beside it.
    void wait_for(int first, int end, int y) {
        bool was_wanted = false;
        for (int x = first; x < end; ++x) {
            const bool is_one = is_wanted({x, y});
            if (is_one && !was_wanted) {
                waiting_.push_back({x, y});
            }
            was_wanted = is_one;
        }
    }

    const Tile_Map& map_;
    Map_Cell wanted_;
    std::vector<bool> is_reached_;
    std::vector<Map_Point> waiting_;
    std::vector<Map_Run> runs_;
};

} // namespace

std::vector<Map_Run> filled_region(const Tile_Map& map, Map_Point start) {
    return Filling(map, map.at(start)).from(start);
}

} // namespace quadrelle
