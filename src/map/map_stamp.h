#pragma once

// What a press places: a rectangle of cells as a whole, one of them at random, or nothing, which erases.

#include "map/tile_map.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quadrelle {

constexpr int largest_weight = 9;

struct Stamp_Cell {
    Map_Cell cell;  // an empty one is a hole: what lies there stays
    int weight = 1; // how often it comes at random, compared with the others

    bool operator==(const Stamp_Cell&) const = default;
};

struct Map_Stamp {
    Size size;
    std::vector<Stamp_Cell> cells; // row by row

    [[nodiscard]] const Stamp_Cell& at(int x, int y) const {
        return cells[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                     static_cast<std::size_t>(x)];
    }
    [[nodiscard]] bool is_empty() const;

    bool operator==(const Map_Stamp&) const = default;
};

// What lies in that area of the map.
[[nodiscard]] Map_Stamp stamp_of(const Tile_Map& map, const Rectangle& area);

enum class Stamp_Change { mirror, flip, turn_right, turn_left };

// Returns the whole stamp, with each of its cells, mirrored, flipped or turned.
[[nodiscard]] Map_Stamp changed(const Map_Stamp& stamp, Stamp_Change change);

enum class Stamp_Use { whole, at_random, erase };

// What comes at random, each as often as its weight says. Holes do not come.
class Stamp_Chances {
public:
    Stamp_Chances() = default;
    // Not all cells are holes.
    explicit Stamp_Chances(const Map_Stamp& stamp);

    [[nodiscard]] Map_Cell of(std::uint32_t random_number) const;

private:
    std::vector<Map_Cell> cells_;
    std::vector<std::uint32_t> ends_; // the weights of each cell and those before it
};

// The stamp repeated all over the plane from the anchor on, or its cells at random: the same seed gives the
// same cell at the same place.
class Map_Pattern {
public:
    // The stamp is borrowed.
    Map_Pattern(const Map_Stamp& stamp, Stamp_Use use, Map_Point anchor, std::uint32_t seed);

    // Writes what it has into cells of one row that begin at the point; the others stay.
    void place(Map_Point first, std::span<Map_Cell> cells) const;
    // Returns the cells that one press of the pen at that point places.
    [[nodiscard]] Rectangle reach(Map_Point point) const;

private:
    void place_stamp(Map_Point first, std::span<Map_Cell> cells) const;
    void place_at_random(Map_Point first, std::span<Map_Cell> cells) const;

    const Map_Stamp& stamp_;
    Stamp_Use use_;
    Map_Point anchor_;
    std::uint32_t seed_;
    bool has_nothing_;
    Stamp_Chances chances_; // where they are asked for
};

} // namespace quadrelle
