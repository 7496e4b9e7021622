#pragma once

// Shows around the tile on the canvas what lies around it in the map of its set.

#include "map/tile_map.h"

#include <array>
#include <cstdint>
#include <optional>

namespace quadrelle {

class Canvas_View;
class Tileset_Document;

class Surroundings {
public:
    // To be called before the canvas is drawn. Where nothing has changed it costs next to nothing.
    void show(const Tileset_Document& document, Canvas_View& canvas);

private:
    // What the place depends on.
    struct Subject {
        const Tileset_Document* document = nullptr;
        std::uint64_t map_version = 0;
        int tile = 0;
        std::optional<Map_Point> preferred;

        bool operator==(const Subject&) const = default;
    };
    // The versions of the pictures around the place, row by row; 0 where there is none.
    using Versions = std::array<std::uint64_t, 9>;

    [[nodiscard]] Versions versions_around(const Tileset_Document& document) const;

    std::optional<Subject> subject_; // of what is shown
    std::optional<Map_Point> place_;
    Versions versions_{};
};

} // namespace quadrelle
