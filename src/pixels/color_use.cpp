#include "pixels/color_use.h"

#include "pixels/tile.h"

#include <algorithm>
#include <utility>

namespace quadrelle {

namespace {

struct Counted {
    Color_Use use;
    std::size_t first = 0; // the place of its first pixel
};

Color seen(Color color) {
    return color.a == 0 ? Color(0, 0, 0, 0) : color;
}

// Neighbours of one colour are counted together.
std::vector<Counted> runs_of(std::span<const Tile* const> pictures) {
    std::vector<Counted> runs;
    std::size_t place = 0;
    for (const Tile* const picture : pictures) {
        for (const Color pixel : picture->pixels()) {
            const Color color = seen(pixel);
            if (runs.empty() || runs.back().use.color != color) {
                runs.push_back({{color, 0}, place});
            }
            ++runs.back().use.count;
            ++place;
        }
    }
    return runs;
}

void unite_same_colors(std::vector<Counted>& runs) {
    std::ranges::sort(runs, {},
                      [](const Counted& run) { return std::pair(run.use.color.word(), run.first); });
    std::size_t kept = 0;
    for (std::size_t i = 1; i < runs.size(); ++i) {
        if (runs[i].use.color == runs[kept].use.color) {
            runs[kept].use.count += runs[i].use.count;
        } else {
            runs[++kept] = runs[i];
        }
    }
    runs.resize(std::min(runs.size(), kept + 1));
}

} // namespace

std::vector<Color_Use> colors_by_use(std::span<const Tile* const> pictures) {
    std::vector<Counted> counted = runs_of(pictures);
    unite_same_colors(counted);
    std::ranges::sort(counted, [](const Counted& one, const Counted& other) {
        return std::pair(other.use.count, one.first) < std::pair(one.use.count, other.first);
    });
    std::vector<Color_Use> uses(counted.size());
    std::ranges::transform(counted, uses.begin(), &Counted::use);
    return uses;
}

} // namespace quadrelle
