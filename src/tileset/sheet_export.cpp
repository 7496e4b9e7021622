#include "tileset/sheet_export.h"

#include <algorithm>
#include "map/xml_tags.h"

namespace quadrelle {

namespace {

int columns_of(int count, const Sheet_Layout& layout) {
    return std::clamp(layout.columns, 1, std::max(count, 1));
}

int extent(int cells, int tile, const Sheet_Layout& layout) {
    const int cell = tile + 2 * layout.extrusion;
    return (2 * layout.margin + cells * cell + (cells - 1) * layout.spacing) * layout.scale;
}

// Draws the tile with its repeated pixels, each scaled.
void draw_cell(const Tile& tile, Point corner, const Sheet_Layout& layout, Tile& picture) {
    const int rim = layout.extrusion;
    const Size scaled{(tile.width() + 2 * rim) * layout.scale, (tile.height() + 2 * rim) * layout.scale};
    for (int y = 0; y < scaled.height; ++y) {
        for (int x = 0; x < scaled.width; ++x) {
            const Color color = tile.get_pixel_clamped(x / layout.scale - rim, y / layout.scale - rim);
            picture.set_pixel(corner.x + x, corner.y + y, color);
        }
    }
}

} // namespace

Size sheet_size(Size tile, int count, const Sheet_Layout& layout) {
    const int columns = columns_of(count, layout);
    return {extent(columns, tile.width, layout),
            extent((count + columns - 1) / columns, tile.height, layout)};
}

bool is_possible_sheet(Size size) {
    const int longer = std::max(size.width, size.height);
    const int shorter = std::min(size.width, size.height);
    return shorter > 0 && longer <= largest_sheet_edge &&
           std::int64_t{size.width} * size.height <= most_sheet_pixels;
}

Tile sheet_picture(const std::vector<const Tile*>& tiles, const Sheet_Layout& layout) {
    const int count = static_cast<int>(tiles.size());
    const Size tile = tiles.front()->size();
    const Size size = sheet_size(tile, count, layout);
    const int columns = columns_of(count, layout);
    Tile picture(size.width, size.height);
    picture.fill({0, 0, 0, 0});
    const auto start = [&](int cell, int edge) {
        return (layout.margin + cell * (edge + 2 * layout.extrusion + layout.spacing)) * layout.scale;
    };
    for (int i = 0; i < count; ++i) {
        const Point corner{start(i % columns, tile.width), start(i / columns, tile.height)};
        draw_cell(*tiles[static_cast<std::size_t>(i)], corner, layout, picture);
    }
    return picture;
}

std::string sheet_description(const std::string& picture_name, Size tile, int count,
                              const Sheet_Layout& layout) {
    const Size size = sheet_size(tile, count, layout);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<tileset version=\"1.8\"" +
           xml_attribute("name", picture_name.substr(0, picture_name.rfind('.'))) +
           xml_attribute("tilewidth", tile.width * layout.scale) +
           xml_attribute("tileheight", tile.height * layout.scale) +
           xml_attribute("spacing", (layout.spacing + 2 * layout.extrusion) * layout.scale) +
           xml_attribute("margin", (layout.margin + layout.extrusion) * layout.scale) +
           xml_attribute("tilecount", count) + xml_attribute("columns", columns_of(count, layout)) +
           ">\n <image" + xml_attribute("source", picture_name) + xml_attribute("width", size.width) +
           xml_attribute("height", size.height) + "/>\n</tileset>\n";
}

} // namespace quadrelle
