#include "app/surroundings.h"

#include "canvas/canvas_view.h"
#include "map/map_surroundings.h"
#include "tileset/document.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace quadrelle {

namespace {

// Pixels of the neighbours; no more than one neighbour at each side.
constexpr int widest_margin = 24;

} // namespace

Surroundings::Versions Surroundings::versions_around(const Tileset_Document& document) const {
    Versions versions{};
    for (std::size_t i = 0; i < versions.size(); ++i) {
        const Map_Point cell{place_->x + static_cast<int>(i % 3) - 1,
                             place_->y + static_cast<int>(i / 3) - 1};
        const int tile = document.map()->indexed(document.map()->map().at(cell)).tile();
        // The tile in the middle itself is on the canvas anyway.
        versions.at(i) =
            tile < 0 || i == versions.size() / 2 ? 0 : document.tileset().tile_at(tile).version();
    }
    return versions;
}

void Surroundings::show(const Tileset_Document& document, Canvas_View& canvas) {
    const Edited_Map* const map = document.map();
    const bool is_wanted = map != nullptr && document.tileset().tile_bytes() > 0 &&
                           canvas.tile() != nullptr && canvas.shows_surroundings() && !canvas.is_shifted();
    if (!is_wanted) {
        canvas.set_surroundings(nullptr);
        subject_.reset();
        return;
    }
    const Subject subject{&document, map->version(), document.tileset().current_index(),
                          document.map_place()};
    const bool is_same = subject_ == subject;
    if (!is_same) {
        subject_ = subject;
        place_ = place_of(*map, subject.tile, subject.preferred);
    }
    if (!place_) {
        canvas.set_surroundings(nullptr);
        return;
    }
    const Versions versions = versions_around(document);
    if (std::exchange(versions_, versions) != versions || !is_same) {
        const Size tile = document.tileset().tile_size();
        const int margin = std::min({tile.width, tile.height, widest_margin});
        canvas.set_surroundings(std::make_unique<const Tile>(
            picture_around(*map, document.tileset().tiles(), tile, *place_, margin)));
    }
}

} // namespace quadrelle
