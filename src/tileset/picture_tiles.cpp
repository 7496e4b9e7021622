#include "tileset/picture_tiles.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_set>

namespace quadrelle {

namespace {

int cells_along(int extent, int tile, int margin, int spacing) {
    return std::max((extent - margin + spacing) / (tile + spacing), 0);
}

// The pixels of the tiles where they lie in the picture.
class Cells {
public:
    Cells(const Tile& picture, const Picture_Grid& grid, int columns)
        : picture_(picture), grid_(grid), columns_(columns) {}

    [[nodiscard]] bool is_empty(int cell) const {
        return all_rows([&](int y) {
            return std::ranges::all_of(row(cell, y), [](Color pixel) { return pixel.a == 0; });
        });
    }
    [[nodiscard]] bool are_equal(int cell, int other) const {
        return all_rows([&](int y) { return std::ranges::equal(row(cell, y), row(other, y)); });
    }
    [[nodiscard]] std::size_t fingerprint(int cell) const {
        std::size_t print = 0;
        for (int y = 0; y < grid_.tile.height; ++y) {
            const std::span<const Color> pixels = row(cell, y);
            const std::string_view bytes(reinterpret_cast<const char*>(pixels.data()), pixels.size_bytes());
            constexpr std::size_t odd = 31;
            print = print * odd + std::hash<std::string_view>{}(bytes);
        }
        return print;
    }
    [[nodiscard]] std::unique_ptr<Tile> tile(int cell) const {
        std::vector<Color> pixels;
        pixels.reserve(static_cast<std::size_t>(grid_.tile.width) *
                       static_cast<std::size_t>(grid_.tile.height));
        for (int y = 0; y < grid_.tile.height; ++y) {
            const std::span<const Color> from = row(cell, y);
            pixels.insert(pixels.end(), from.begin(), from.end());
        }
        return std::make_unique<Tile>(grid_.tile, std::move(pixels));
    }

private:
    [[nodiscard]] std::span<const Color> row(int cell, int y) const {
        const Point corner = grid_.corner(cell % columns_, cell / columns_);
        const std::size_t start =
            static_cast<std::size_t>(corner.y + y) * static_cast<std::size_t>(picture_.width()) +
            static_cast<std::size_t>(corner.x);
        return picture_.pixels().subspan(start, static_cast<std::size_t>(grid_.tile.width));
    }
    template <typename Test>
    [[nodiscard]] bool all_rows(Test test) const {
        for (int y = 0; y < grid_.tile.height; ++y) {
            if (!test(y)) {
                return false;
            }
        }
        return true;
    }

    const Tile& picture_;
    const Picture_Grid& grid_;
    int columns_;
};

// Knows which tiles there were, by their cells.
class Seen_Tiles {
public:
    explicit Seen_Tiles(const Cells& cells)
        : seen_(
              0, [&cells](int cell) { return cells.fingerprint(cell); },
              [&cells](int cell, int other) { return cells.are_equal(cell, other); }) {}

    [[nodiscard]] bool has(int cell) const { return seen_.contains(cell); }
    void add(int cell) { seen_.insert(cell); }

private:
    std::unordered_set<int, std::function<std::size_t(int)>, std::function<bool(int, int)>> seen_;
};

} // namespace

Size Picture_Grid::cells(Size picture) const {
    return {cells_along(picture.width, tile.width, margin, spacing),
            cells_along(picture.height, tile.height, margin, spacing)};
}

// When the set is full, so many more cells are told apart, and all the others have no room.
constexpr int most_told_apart = 1 << 16;

Cut_Plan plan_cut(const Tile& picture, const Picture_Cut& cut) {
    Cut_Plan plan;
    plan.cells = cut.grid.cells(picture.size());
    const int count = plan.cells.width * plan.cells.height;
    const Cells cells(picture, cut.grid, plan.cells.width);
    Seen_Tiles seen(cells);
    const auto fate_of = [&](int cell) {
        if (plan.beyond >= most_told_apart) {
            ++plan.beyond;
            return Cell_Fate::beyond;
        }
        if (cut.empty == Skip::yes && cells.is_empty(cell)) {
            ++plan.empty;
            return Cell_Fate::empty;
        }
        if (cut.equal == Skip::yes && seen.has(cell)) {
            ++plan.equal;
            return Cell_Fate::equal;
        }
        if (cut.equal == Skip::yes) {
            seen.add(cell);
        }
        const bool has_room = plan.taken < default_tile_limit;
        ++(has_room ? plan.taken : plan.beyond);
        return has_room ? Cell_Fate::taken : Cell_Fate::beyond;
    };
    plan.fates.reserve(static_cast<std::size_t>(count));
    for (int cell = 0; cell < count; ++cell) {
        plan.fates.push_back(fate_of(cell));
    }
    return plan;
}

Tileset cut_tiles(const Tile& picture, const Picture_Grid& grid, const Cut_Plan& plan) {
    Tileset tileset(grid.tile);
    const Cells cells(picture, grid, plan.cells.width);
    for (std::size_t i = 0; i < plan.fates.size(); ++i) {
        if (plan.fates[i] == Cell_Fate::taken) {
            tileset.append_loaded(cells.tile(static_cast<int>(i)));
        }
    }
    return tileset;
}

} // namespace quadrelle
