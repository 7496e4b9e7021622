#include "map/tile_ids.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quadrelle {

void Tile_Ids::reach(int index) {
    while (static_cast<int>(id_of_.size()) <= index) {
        id_of_.push_back(count());
        index_of_.push_back(static_cast<int>(id_of_.size()) - 1);
    }
}

void Tile_Ids::number_anew() {
    std::ranges::fill(index_of_, -1);
    for (std::size_t i = 0; i < id_of_.size(); ++i) {
        index_of_[static_cast<std::size_t>(id_of_[i])] = static_cast<int>(i);
    }
}

int Tile_Ids::id_of(int index) {
    reach(index);
    return id_of_[static_cast<std::size_t>(index)];
}

void Tile_Ids::inserted(int index) {
    reach(index - 1);
    id_of_.insert(id_of_.begin() + index, count());
    index_of_.push_back(index);
    number_anew();
}

void Tile_Ids::deleted(int index) {
    reach(index);
    id_of_.erase(id_of_.begin() + index);
    number_anew();
}

void Tile_Ids::returned(int id, int index) {
    reach(index - 1);
    id_of_.push_back(id);
    number_anew();
}

void Tile_Ids::swapped(int index, int other) {
    reach(std::max(index, other));
    std::swap(id_of_[static_cast<std::size_t>(index)], id_of_[static_cast<std::size_t>(other)]);
    number_anew();
}

} // namespace quadrelle
