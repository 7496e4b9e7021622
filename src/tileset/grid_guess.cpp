#include "tileset/grid_guess.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <optional>

namespace quadrelle {

namespace {

constexpr int smallest_guess = 6;
constexpr int largest_guess = 64;
constexpr int widest_gap = 8;

// Which columns, or which rows, have no visible pixel.
class Axis {
public:
    Axis(const Tile& picture, bool is_across)
        : blank_(static_cast<std::size_t>(is_across ? picture.width() : picture.height()), true) {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.alpha_at(x, y) != 0) {
                    blank_[static_cast<std::size_t>(is_across ? x : y)] = false;
                }
            }
        }
    }

    [[nodiscard]] int extent() const { return static_cast<int>(blank_.size()); }
    [[nodiscard]] bool is_blank(int line) const { return blank_[static_cast<std::size_t>(line)]; }

    [[nodiscard]] bool has_margin(int margin) const {
        return std::all_of(blank_.begin(), blank_.begin() + margin, std::identity()) &&
               std::all_of(blank_.end() - margin, blank_.end(), std::identity());
    }
    // Whether every gap between tiles is blank, and no larger gap would be.
    [[nodiscard]] bool has_gaps(int tile, int margin, int spacing) const {
        bool is_tight_before = false;
        bool is_tight_after = false;
        for (int start = margin + tile; start < extent() - margin; start += tile + spacing) {
            for (int line = start; line < start + spacing; ++line) {
                if (!is_blank(line)) {
                    return false;
                }
            }
            is_tight_before = is_tight_before || !is_blank(start - 1);
            is_tight_after = is_tight_after || !is_blank(start + spacing);
        }
        return is_tight_before && is_tight_after;
    }
    // Returns the smallest tile that fills the picture with such gaps, if one does.
    [[nodiscard]] std::optional<int> tile_with_gaps(int margin, int spacing) const {
        const int inside = extent() - 2 * margin;
        if (inside < smallest_guess || !has_margin(margin)) {
            return std::nullopt;
        }
        for (int tile = smallest_guess; 2 * tile + spacing <= inside; ++tile) {
            if ((inside + spacing) % (tile + spacing) == 0 && has_gaps(tile, margin, spacing)) {
                return tile;
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] std::optional<int> tile_alone(int margin) const {
        const int inside = extent() - 2 * margin;
        const bool is_one = inside >= smallest_guess && inside <= largest_guess && has_margin(margin);
        return is_one ? std::optional(inside) : std::nullopt;
    }
    // Whether there is a blank line at one side of every border between two tiles that touch.
    [[nodiscard]] bool has_blank_borders(int tile) const {
        for (int start = tile; start < extent(); start += tile) {
            if (!is_blank(start - 1) && !is_blank(start)) {
                return false;
            }
        }
        return true;
    }

private:
    std::vector<bool> blank_;
};

enum class Lines { many, one_allowed };

// One gap alone may be anything.
std::optional<Picture_Grid> by_gaps(const Axis& across, const Axis& down, Lines lines) {
    const auto tile_along = [lines](const Axis& axis, int margin, int spacing) {
        const std::optional<int> tile = axis.tile_with_gaps(margin, spacing);
        return !tile && lines == Lines::one_allowed ? axis.tile_alone(margin) : tile;
    };
    for (int spacing = 1; spacing <= widest_gap; ++spacing) {
        for (int margin = 0; margin <= widest_gap; ++margin) {
            const std::optional<int> width = tile_along(across, margin, spacing);
            const std::optional<int> height = tile_along(down, margin, spacing);
            const Picture_Grid grid{{width.value_or(0), height.value_or(0)}, margin, spacing};
            const Size cells = grid.cells({across.extent(), down.extent()});
            if (width && height && cells.width + cells.height > 3) {
                return grid;
            }
        }
    }
    return std::nullopt;
}

bool divides(int edge, Size size) {
    return size.width % edge == 0 && size.height % edge == 0;
}

std::optional<int> by_borders(const Axis& across, const Axis& down) {
    const Size size{across.extent(), down.extent()};
    for (int edge = 8; edge <= largest_guess; edge += 4) {
        const int borders = size.width / edge + size.height / edge - 2;
        if (borders >= 2 && divides(edge, size) && across.has_blank_borders(edge) &&
            down.has_blank_borders(edge)) {
            return edge;
        }
    }
    return std::nullopt;
}

// A strip is as high as its tiles, or as wide; a small square is one tile.
std::optional<int> by_strip(Size size) {
    const int edge = std::min(size.width, size.height);
    constexpr int highest_strip = 48;
    return edge >= smallest_guess && edge <= highest_strip && divides(edge, size) ? std::optional(edge)
                                                                                  : std::nullopt;
}

std::optional<int> by_usual_sizes(Size size) {
    constexpr std::array edges{16, 32, 24, 48, 64, 8, 20, 12, 40, 10};
    const auto fits = [&](int edge) {
        return divides(edge, size) && size.width / edge * (size.height / edge) <= default_tile_limit;
    };
    if (const auto* const found = std::ranges::find_if(edges, fits); found != edges.end()) {
        return *found;
    }
    const auto* const any = std::ranges::find_if(edges, [&](int edge) { return divides(edge, size); });
    return any != edges.end() ? std::optional(*any) : std::nullopt;
}

// Some size, where none is likely.
Size fallback(Size size) {
    const int common = std::gcd(size.width, size.height);
    if (common >= smallest_guess && common <= largest_guess) {
        return {common, common};
    }
    const bool is_one_tile = std::max(size.width, size.height) <= largest_guess;
    return is_one_tile && std::min(size.width, size.height) >= smallest_guess ? size : Size{16, 16};
}

} // namespace

Picture_Grid guess_grid(const Tile& picture) {
    const Axis across(picture, true);
    const Axis down(picture, false);
    for (const Lines lines : {Lines::many, Lines::one_allowed}) {
        if (const std::optional<Picture_Grid> grid = by_gaps(across, down, lines)) {
            return *grid;
        }
    }
    std::optional<int> edge = by_borders(across, down);
    edge = edge ? edge : by_strip(picture.size());
    edge = edge ? edge : by_usual_sizes(picture.size());
    return {edge ? Size{*edge, *edge} : fallback(picture.size())};
}

} // namespace quadrelle
