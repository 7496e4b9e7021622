#pragma once

// The part of the window that shows the map. Keeps its picture, and paints only what is another than before.

#include "map/edited_map.h"
#include "map/map_painter.h"
#include "map/map_region.h"
#include "map/map_stamp.h"
#include "screen/opaque_texture.h"

#include <optional>
#include <vector>

namespace quadrelle {

class Tileset;

// What shows in the place of cells of the map.
struct Map_Overlay {
    std::vector<Map_Run> runs;
    std::optional<Map_Pattern> pattern; // there is one where there are runs
};

class Map_View {
public:
    // Borrows both. The tiles must stay as they are.
    Map_View(const Edited_Map& map, const Tileset& tileset);

    void draw(const Map_Camera& camera, Map_Grid grid, const Map_Overlay& overlay);
    // A tile has changed.
    void forget() { shown_.reset(); }
    // The set has others than before.
    void take_tiles(const Tileset& tileset);

private:
    [[nodiscard]] Map_Picture picture_of(const Map_Camera& camera, Map_Grid grid, const Map_Overlay& overlay);
    // In pixels of the view.
    [[nodiscard]] Rectangle changed_part(const Map_Picture& picture) const;

    const Edited_Map& map_;
    std::vector<const Tile*> tiles_;
    Map_Painter painter_;
    std::optional<Map_Picture> shown_;
    std::vector<Map_Cell> spare_cells_;
    Opaque_Texture texture_;
};

} // namespace quadrelle
