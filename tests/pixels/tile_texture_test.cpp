#include "screen/renderer.h"
#include "tests/support/tile_art.h"

#include <SDL3/SDL.h>
#include <gtest/gtest.h>

#include <memory>

namespace quadrelle {

using testing::Art;
using testing::make_tile;

namespace {

// What tiles draw goes into a picture of 6 x 4 pixels instead of a window.
class Tile_Texture : public ::testing::Test {
protected:
    Tile_Texture() { set_active_renderer(renderer_.get()); }
    ~Tile_Texture() override { set_active_renderer(nullptr); }

    Art drawn(const Tile& tile, const Rectangle& area) {
        SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, 255);
        SDL_RenderClear(renderer_.get());
        tile.draw(area);
        SDL_RenderPresent(renderer_.get());
        Tile picture(surface_->w, surface_->h);
        for (int y = 0; y < surface_->h; ++y) {
            for (int x = 0; x < surface_->w; ++x) {
                Color color;
                SDL_ReadSurfacePixel(surface_.get(), x, y, &color.r, &color.g, &color.b, &color.a);
                picture.set_pixel(x, y, color);
            }
        }
        return testing::art(picture);
    }

private:
    std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)> surface_{
        SDL_CreateSurface(6, 4, SDL_PIXELFORMAT_ARGB8888), SDL_DestroySurface};
    std::unique_ptr<SDL_Renderer, void (*)(SDL_Renderer*)> renderer_{
        SDL_CreateSoftwareRenderer(surface_.get()), SDL_DestroyRenderer};
};

} // namespace

TEST_F(Tile_Texture, shows_the_pixels_unsmoothed) {
    const Tile tile = make_tile({"ab", " d"});
    EXPECT_EQ(drawn(tile, {1, 0, 4, 4}), (Art{".aabb.", ".aabb.", "...dd.", "...dd."}));
    EXPECT_EQ(drawn(tile, {5, 3, 2, 2}), (Art{"......", "......", "......", ".....a"}));
    EXPECT_EQ(drawn(Tile(0, 3), {0, 0, 4, 4}), (Art{"......", "......", "......", "......"}));
}

TEST_F(Tile_Texture, follows_where_an_operation_says_so) {
    Tile tile = make_tile({"a"});
    const auto shown = [&] { return drawn(tile, {0, 0, 1, 1})[0][0]; };
    EXPECT_EQ(shown(), 'a');
    tile.fill(testing::art_color('b'));
    EXPECT_EQ(shown(), 'a');
    tile.update_texture();
    EXPECT_EQ(shown(), 'b');
    make_tile({"c"}).copy_to(tile);
    EXPECT_EQ(shown(), 'c');
    make_tile({"d"}).paste_into(tile, 0, 0);
    EXPECT_EQ(shown(), 'd');
    Tile other = make_tile({"e"});
    other.swap_pixels(tile);
    EXPECT_EQ(shown(), 'e');
    EXPECT_EQ(drawn(Tile(tile), {0, 0, 1, 1})[0][0], 'e');
}

} // namespace quadrelle
