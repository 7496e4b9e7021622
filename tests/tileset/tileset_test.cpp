#include "tileset/tileset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace quadrelle {

namespace {

constexpr Color black;

Color tag(int number) {
    return {number % 256, number / 256, 99};
}

// The tiles as one colour each, in the plainest way.
struct Model {
    std::vector<Color> tiles;
    std::size_t current = 0;
    std::size_t limit = 0;

    bool insert(std::size_t at, Color color) {
        if (tiles.size() >= limit) {
            return false;
        }
        tiles.insert(tiles.begin() + static_cast<std::ptrdiff_t>(at), color);
        current = at;
        return true;
    }
    bool erase() {
        if (tiles.size() < 2) {
            std::ranges::fill(tiles, black);
            return false;
        }
        tiles.erase(tiles.begin() + static_cast<std::ptrdiff_t>(current));
        current = std::min(current, tiles.size() - 1);
        return true;
    }
    bool step(bool possible, int by) {
        current += possible ? static_cast<std::size_t>(by) : 0;
        return possible;
    }
    bool swap(int i, int j) {
        const auto is_tile = [&](int at) { return at >= 0 && at < static_cast<int>(tiles.size()); };
        if (i == j || !is_tile(i) || !is_tile(j)) {
            return false;
        }
        std::swap(tiles[static_cast<std::size_t>(i)], tiles[static_cast<std::size_t>(j)]);
        return true;
    }
    void select(int i) {
        current = 0;
        while (static_cast<int>(current) != i && current + 1 < tiles.size()) {
            ++current;
        }
    }
};

class Random_Walk {
public:
    Random_Walk(unsigned seed, int limit)
        : random_(seed), tileset_({3, 2}, limit), model_{{}, 0, static_cast<std::size_t>(limit)} {}

    void step() {
        const int choice = number(0, 9);
        const int i = number(-2, 7);
        const int j = number(-2, 7);
        const std::size_t after = model_.tiles.empty() ? 0 : model_.current + 1;
        switch (choice) {
        case 0: EXPECT_EQ(tileset_.add_tile(), model_.insert(model_.tiles.size(), black)); break;
        case 1: EXPECT_EQ(tileset_.insert_tile(), model_.insert(model_.current, black)); break;
        case 2: EXPECT_EQ(tileset_.insert_copy_after(source(i)), model_.insert(after, tag(i + 20))); break;
        case 3: EXPECT_EQ(tileset_.next(), model_.step(after < model_.tiles.size(), 1)); break;
        case 4: EXPECT_EQ(tileset_.previous(), model_.step(model_.current > 0, -1)); break;
        case 5: EXPECT_EQ(tileset_.swap_tiles(i, j), model_.swap(i, j)); break;
        case 6: EXPECT_EQ(tileset_.delete_current(), model_.erase()); break;
        case 7:
            tileset_.select(i);
            model_.select(i);
            break;
        default: paint(tag(++painted_)); break;
        }
    }

    void compare() const {
        ASSERT_EQ(static_cast<std::size_t>(tileset_.count()), model_.tiles.size());
        ASSERT_EQ(static_cast<std::size_t>(tileset_.current_index()), model_.current);
        ASSERT_EQ(tileset_.is_full(), model_.tiles.size() >= model_.limit);
        ASSERT_EQ(tileset_.is_last(), model_.current + 1 == model_.tiles.size());
        for (int i = 0; i < tileset_.count(); ++i) {
            const Color expected = model_.tiles[static_cast<std::size_t>(i)];
            ASSERT_TRUE(
                std::ranges::all_of(tileset_.tile_at(i).pixels(), [=](Color c) { return c == expected; }));
        }
        ASSERT_EQ(tileset_.current_tile(),
                  model_.tiles.empty() ? nullptr : &tileset_.tile_at(tileset_.current_index()));
    }

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    static Tile source(int i) {
        Tile tile(3, 2);
        tile.fill(tag(i + 20));
        return tile;
    }
    void paint(Color color) {
        if (Tile* tile = tileset_.current_tile()) {
            tile->fill(color);
            model_.tiles[model_.current] = color;
        }
    }

    std::mt19937 random_;
    Tileset tileset_;
    Model model_;
    int painted_ = 0;
};

} // namespace

TEST(Tileset, without_tiles_refuses_all_but_adding) {
    Tileset tileset({4, 4});
    EXPECT_EQ(tileset.current_tile(), nullptr);
    EXPECT_FALSE(tileset.next());
    EXPECT_FALSE(tileset.previous());
    EXPECT_FALSE(tileset.delete_current());
    EXPECT_FALSE(tileset.swap_tiles(0, 1));
    tileset.select(3);
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_EQ(tileset.current_pixel(0, 0), (Color{255, 0, 255, 0}));
    tileset.resize_all({5, 6});
    EXPECT_TRUE(tileset.insert_copy_after(Tile(2, 2)));
    EXPECT_EQ(tileset.current_tile()->size(), (Size{5, 6}));
}

TEST(Tileset, takes_loaded_tiles_past_its_limit_and_then_refuses_more) {
    Tileset tileset({1, 1}, 2);
    for (int i = 0; i < 3; ++i) {
        tileset.append_loaded(std::make_unique<Tile>(1, 1));
    }
    EXPECT_EQ(tileset.count(), 3);
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_FALSE(tileset.add_tile());
    EXPECT_FALSE(tileset.insert_tile());
    EXPECT_FALSE(tileset.insert_copy_after(tileset.tile_at(0)));
    EXPECT_EQ(tileset.count(), 3);
}

TEST(Tileset, resizes_every_tile_and_selects_the_first) {
    Tileset tileset({24, 24});
    for (int i = 0; i < 3; ++i) {
        tileset.add_tile();
        tileset.current_tile()->fill(tag(40 * i));
    }
    tileset.resize_all({10, 60});
    EXPECT_EQ(tileset.current_index(), 0);
    EXPECT_EQ(tileset.tile_size(), (Size{10, 60}));
    EXPECT_EQ(tileset.total_bytes(), 3 * 10 * 60 * 4);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(tileset.tile_at(i).size(), (Size{10, 60}));
        EXPECT_NEAR(tileset.tile_at(i).get_pixel(9, 59).r, 40 * i, 1);
    }
}

} // namespace quadrelle
