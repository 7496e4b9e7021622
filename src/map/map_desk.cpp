#include "map/map_desk.h"

#include <algorithm>

namespace quadrelle {

namespace {

auto place_of(Map_Stamp& stamp, int id) {
    return std::ranges::find(stamp.cells, id, [](const Stamp_Cell& cell) { return cell.cell.tile(); });
}

// Its cells without the holes, beside each other.
Map_Stamp in_a_row(Map_Stamp stamp) {
    std::erase_if(stamp.cells, [](const Stamp_Cell& cell) { return cell.cell.is_empty(); });
    stamp.size = {static_cast<int>(stamp.cells.size()), 1};
    return stamp;
}

} // namespace

int first_tile(const Map_Stamp& stamp) {
    const auto found =
        std::ranges::find_if(stamp.cells, [](const Stamp_Cell& cell) { return !cell.cell.is_empty(); });
    return found == stamp.cells.end() ? -1 : found->cell.tile();
}

int weight_of(const Map_Stamp& stamp, int id) {
    const auto found =
        std::ranges::find(stamp.cells, id, [](const Stamp_Cell& cell) { return cell.cell.tile(); });
    return id < 0 || found == stamp.cells.end() ? 0 : found->weight;
}

void add_or_remove(Map_Stamp& stamp, int id) {
    Map_Stamp row = in_a_row(stamp);
    const auto place = place_of(row, id);
    if (place == row.cells.end()) {
        row.cells.push_back({Map_Cell(id)});
    } else if (row.cells.size() > 1) {
        row.cells.erase(place);
    }
    stamp = in_a_row(row);
}

void raise_weight(Map_Stamp& stamp, int id) {
    const auto place = place_of(stamp, id);
    if (place == stamp.cells.end()) {
        add_or_remove(stamp, id);
        return;
    }
    const int weight = place->weight % largest_weight + 1;
    for (Stamp_Cell& cell : stamp.cells) {
        cell.weight = cell.cell.tile() == id ? weight : cell.weight;
    }
}

void remove_gone(Map_Stamp& stamp, const Tile_Ids& ids) {
    for (Stamp_Cell& cell : stamp.cells) {
        cell.cell = ids.index_of(cell.cell.tile()) < 0 ? Map_Cell() : cell.cell;
    }
}

} // namespace quadrelle
