#pragma once

// The part of the window that shows the map. Keeps its picture, and paints only what is another than before.

#include "map/edited_map.h"
#include "map/map_painter.h"
#include "screen/opaque_texture.h"

#include <optional>
#include <vector>

namespace quadrelle {

class Tileset;

// Cells that show in the place of those of the map, with ids.
struct Map_Overlay {
    struct Place {
        Map_Point point;
        Map_Cell cell;
    };
    std::vector<Place> places;
};

class Map_View {
public:
    // Borrows both. The tiles must stay as they are.
    Map_View(const Edited_Map& map, const Tileset& tileset);

    void draw(const Map_Camera& camera, Map_Grid grid, const Map_Overlay& overlay);
    // A tile has changed.
    void forget() { shown_.reset(); }

private:
    [[nodiscard]] Map_Picture picture_of(const Map_Camera& camera, Map_Grid grid,
                                         const Map_Overlay& overlay) const;
    // In pixels of the view.
    [[nodiscard]] Rectangle changed_part(const Map_Picture& picture) const;

    const Edited_Map& map_;
    std::vector<const Tile*> tiles_;
    Map_Painter painter_;
    std::optional<Map_Picture> shown_;
    Opaque_Texture texture_;
};

} // namespace quadrelle
