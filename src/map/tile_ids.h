#pragma once

// Numbers of tiles that stay when tiles of the set are inserted, deleted and swapped: those that a map keeps.

#include <cstddef>
#include <vector>

namespace quadrelle {

class Tile_Ids {
public:
    // Returns the number of the tile with that index. Tiles that nobody has spoken of yet stand at the end.
    [[nodiscard]] int id_of(int index);
    // Returns that number, or -1 where it was not spoken of.
    [[nodiscard]] int known_id_of(int index) const {
        return index < static_cast<int>(id_of_.size()) ? id_of_[static_cast<std::size_t>(index)] : -1;
    }
    // Returns the index, or -1 when the tile is gone or the number is none.
    [[nodiscard]] int index_of(int id) const {
        return id >= 0 && id < count() ? index_of_[static_cast<std::size_t>(id)] : -1;
    }
    // Counts the numbers that were given.
    [[nodiscard]] int count() const { return static_cast<int>(index_of_.size()); }

    void inserted(int index);
    void deleted(int index);
    // The tile with that number, which was gone, stands behind all others now.
    void returned(int id, int index);
    void swapped(int index, int other);

private:
    void reach(int index);
    void number_anew();

    std::vector<int> index_of_;
    std::vector<int> id_of_;
};

} // namespace quadrelle
