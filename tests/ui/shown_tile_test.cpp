#include "ui/shown_tile.h"

#include "screen/screen.h"
#include "tests/support/tiles.h"
#include "tests/support/window_test.h"

#include <utility>

namespace quadrelle::testing {
namespace {

class Shown_Tile_Test : public Window_Test {
protected:
    // In the window's corner of 6 x 4 pixels.
    Art drawn(const Tile& tile, const Rectangle& area) {
        screen->fill_rect({0, 0, 12, 12}, black);
        shown_.draw(tile, area);
        Tile picture(6, 4);
        for (int i = 0; i < picture.pixel_count(); ++i) {
            picture.set_pixel_at(i, pixel_at({i % 6, i / 6}));
        }
        return art(picture);
    }

private:
    Shown_Tile shown_;
};

} // namespace

TEST_F(Shown_Tile_Test, shows_the_pixels_unsmoothed) {
    const Tile tile = make_tile({"ab", " d"});
    EXPECT_EQ(drawn(tile, {1, 0, 4, 4}), (Art{".aabb.", ".aabb.", "...dd.", "...dd."}));
    EXPECT_EQ(drawn(tile, {5, 3, 2, 2}), (Art{"......", "......", "......", ".....a"}));
    EXPECT_EQ(drawn(Tile(0, 3), {0, 0, 4, 4}), (Art{"......", "......", "......", "......"}));
}

TEST_F(Shown_Tile_Test, follows_every_change) {
    Tile tile = make_tile({"a"});
    Tile other = make_tile({"z"});
    const auto shown = [&] { return drawn(tile, {0, 0, 1, 1})[0][0]; };
    EXPECT_EQ(shown(), 'a');
    const std::vector<std::pair<char, std::function<void()>>> changes{
        {'b', [&] { tile.set_pixel(0, 0, art_color('b')); }},
        {'c', [&] { tile.set_pixel_at(0, art_color('c')); }},
        {'d', [&] { tile.fill(art_color('d')); }},
        {'e', [&] { make_tile({"e"}).copy_to(tile); }},
        {'f', [&] { make_tile({"f"}).paste_into(tile, 0, 0); }},
        {'z', [&] { other.swap_pixels(tile); }},
        {'f', [&] { tile.swap_pixels(other); }},
        {'g', [&] { tile.map_colours([](Color) { return art_color('g'); }); }},
        {'h', [&] { tile.mirror(make_tile({"h"})); }},
        {'i', [&] { tile.replace_near(0, 0, art_color('h'), art_color('i')); }},
        {'.',
         [&] {
             tile.read_pixels(std::array<std::uint8_t, 4>{255, 0, 0, 0});
         }},
        {' ', [&] { tile.replace_alpha(255, 0); }},
    };
    for (const auto& [mark, change] : changes) {
        change();
        EXPECT_EQ(shown(), mark == ' ' ? '.' : mark);
    }
}

TEST_F(Shown_Tile_Test, tells_tiles_apart) {
    const Tile first = make_tile({"ab"});
    const Tile second = make_tile({"cd"});
    Tile copy(first);
    EXPECT_EQ(drawn(first, {0, 0, 2, 1})[0], "ab....");
    EXPECT_EQ(drawn(second, {0, 0, 2, 1})[0], "cd....");
    EXPECT_EQ(drawn(copy, {0, 0, 2, 1})[0], "ab....");
    copy.set_pixel(0, 0, art_color('e'));
    EXPECT_EQ(drawn(copy, {0, 0, 2, 1})[0], "eb....");
    EXPECT_EQ(drawn(first, {0, 0, 2, 1})[0], "ab....");
    EXPECT_EQ(drawn(make_tile({"f", "g"}), {0, 0, 1, 2}), (Art{"f.....", "g.....", "......", "......"}));
}

} // namespace quadrelle::testing
