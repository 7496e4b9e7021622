#include "ui/shown_tile.h"

#include "screen/renderer.h"
#include "tests/support/tiles.h"

#include <SDL3/SDL.h>

#include <memory>
#include <utility>

namespace quadrelle::testing {
namespace {

// What tiles draw goes into a picture of 6 x 4 pixels instead of a window.
class Shown_Tile_Test : public ::testing::Test {
protected:
    Shown_Tile_Test() { set_active_renderer(renderer_.get()); }
    ~Shown_Tile_Test() override { set_active_renderer(nullptr); }

    Art drawn(const Tile& tile, const Rectangle& area) {
        SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, 255);
        SDL_RenderClear(renderer_.get());
        shown_.draw(tile, area);
        SDL_RenderPresent(renderer_.get());
        Tile picture(surface_->w, surface_->h);
        for (int y = 0; y < surface_->h; ++y) {
            for (int x = 0; x < surface_->w; ++x) {
                Color color;
                SDL_ReadSurfacePixel(surface_.get(), x, y, &color.r, &color.g, &color.b, &color.a);
                picture.set_pixel(x, y, color);
            }
        }
        return art(picture);
    }

private:
    std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)> surface_{
        SDL_CreateSurface(6, 4, SDL_PIXELFORMAT_ARGB8888), SDL_DestroySurface};
    std::unique_ptr<SDL_Renderer, void (*)(SDL_Renderer*)> renderer_{
        SDL_CreateSoftwareRenderer(surface_.get()), SDL_DestroyRenderer};
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
