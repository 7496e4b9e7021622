#include "tools/flood_fill.h"

#include <array>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr std::int32_t open = 0;
constexpr std::int32_t blocked = flood_wave_limit + 1;

std::size_t index_of(Tile_Point position, int width) {
    return static_cast<std::size_t>(position.x) +
           static_cast<std::size_t>(position.y) * static_cast<std::size_t>(width);
}

// A fully transparent pixel hides its red, green and blue, which the smudge brush and others may leave there.
bool is_one_color(Color color, Color other) {
    return color == other || (color.a == 0 && other.a == 0);
}

std::array<Tile_Point, 4> neighbours(Tile_Point position) {
    const auto [x, y] = position;
    return {{{x - 1, y}, {x, y - 1}, {x + 1, y}, {x, y + 1}}};
}

} // namespace

Flood_Area::Flood_Area(const Drawing_Target& target, Tile_Point seed, Flood_Bounds bounds)
    : size_(target.size()), cells_(target.tile().pixels().size(), blocked) {
    const auto is_within_bounds = [&](Tile_Point position) {
        return bounds == Flood_Bounds::whole_tile || target.is_selected(position);
    };
    if (!target.contains(seed) || !is_within_bounds(seed)) {
        return;
    }
    const Color color = target.get(seed);
    for (int y = 0; y < size_.height; ++y) {
        for (int x = 0; x < size_.width; ++x) {
            if (is_one_color(target.get({x, y}), color) && is_within_bounds({x, y})) {
                cells_[index_of({x, y}, size_.width)] = open;
            }
        }
    }
    flood(seed);
}

void Flood_Area::flood(Tile_Point seed) {
    std::vector<Tile_Point> wave{seed};
    std::vector<Tile_Point> next;
    cells_[index_of(seed, size_.width)] = 1;
    for (std::int32_t number = 2; number <= flood_wave_limit && !wave.empty(); ++number) {
        next.clear();
        for (const Tile_Point position : wave) {
            for (const Tile_Point neighbour : neighbours(position)) {
                if (is_inside(neighbour) && cells_[index_of(neighbour, size_.width)] == open) {
                    cells_[index_of(neighbour, size_.width)] = number;
                    next.push_back(neighbour);
                }
            }
        }
        wave.swap(next);
    }
}

bool Flood_Area::is_inside(Tile_Point position) const {
    return position.x >= 0 && position.y >= 0 && position.x < size_.width && position.y < size_.height;
}

void flood_fill(Drawing_Target& target, Tile_Point seed, Color color, Flood_Bounds bounds) {
    Flood_Area(target, seed, bounds).for_each([&](Tile_Point position) { target.plot(position, color); });
}

void flood_fill_with_brush(Drawing_Target& target, Tile_Point seed, const Brush& brush,
                           std::optional<Color> color) {
    Flood_Area(target, seed, Flood_Bounds::selection).for_each([&](Tile_Point position) {
        if (const std::optional<Color> pixel =
                brush.wallpaper_pixel(position.x - seed.x, position.y - seed.y)) {
            target.plot(position, color.value_or(*pixel));
        }
    });
}

} // namespace quadrelle
