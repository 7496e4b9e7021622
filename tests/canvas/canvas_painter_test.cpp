#include "canvas/canvas_painter.h"

#include "color/standard_colors.h"
#include "screen/float_rectangle.h"

#include <SDL3/SDL.h>

#include "tests/support/tiles.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quadrelle::testing {
namespace {

constexpr Size viewport{96, 80};

std::vector<Color> composed(const Canvas_Picture& picture) {
    std::vector<Color> pixels(static_cast<std::size_t>(viewport.width * viewport.height), Color(1, 2, 3, 4));
    Canvas_Painter painter;
    painter.paint(picture, {pixels.data(), viewport.width * 4, viewport});
    return pixels;
}

// The plain way: rectangles drawn one over the other by the renderer, the checkerboard counted cell by cell.
class Reference {
public:
    Reference()
        : surface_(SDL_CreateSurface(viewport.width, viewport.height, SDL_PIXELFORMAT_XRGB8888)),
          renderer_(SDL_CreateSoftwareRenderer(surface_)) {}
    ~Reference() {
        SDL_DestroyRenderer(renderer_);
        SDL_DestroySurface(surface_);
    }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

    void draw(const Canvas_Picture& picture) {
        fill({0, 0, viewport.width, viewport.height}, picture.surround);
        bool starts_light = false;
        int row_counter = 0;
        for (int row = 0; row < picture.tile->height(); ++row) {
            draw_row(picture, row, starts_light);
            if (++row_counter == picture.checker.height) {
                row_counter = 0;
                starts_light = !starts_light;
            }
        }
        SDL_FlushRenderer(renderer_);
    }

    [[nodiscard]] Color at(int x, int y) const {
        Uint8 r = 0;
        Uint8 g = 0;
        Uint8 b = 0;
        SDL_ReadSurfacePixel(surface_, x, y, &r, &g, &b, nullptr);
        return {r, g, b};
    }

private:
    void fill(const Rectangle& area, Color color) {
        const SDL_FRect rect = float_rectangle(area);
        SDL_SetRenderDrawBlendMode(renderer_, SDL_BLENDMODE_BLEND);
        SDL_SetRenderDrawColor(renderer_, color.r, color.g, color.b, color.a);
        SDL_RenderFillRect(renderer_, &rect);
    }

    void draw_row(const Canvas_Picture& picture, int row, bool is_light) {
        const int edge = picture.pixel_size;
        int column_counter = 0;
        for (int column = 0; column < picture.tile->width(); ++column) {
            const int x = picture.origin.x + column * edge;
            const int y = picture.origin.y + row * edge;
            const Color background =
                standard_color(is_light ? Standard_Color::checker_light : Standard_Color::checker_dark);
            const Color pixel = picture.tile->get_pixel(column, row);
            fill({x, y, edge, edge}, background);
            fill({x, y, edge, edge}, pixel);
            const Color grid = grid_color(pixel, picture.grid_intensity);
            fill({x, y + edge - 1, edge, 1}, grid);
            fill({x + edge - 1, y, 1, edge - 1}, grid);
            if (++column_counter == picture.checker.width) {
                column_counter = 0;
                is_light = !is_light;
            }
        }
    }

    SDL_Surface* surface_;
    SDL_Renderer* renderer_;
};

void expect_same_as_rectangles(const Canvas_Picture& picture) {
    const std::vector<Color> pixels = composed(picture);
    Reference reference;
    reference.draw(picture);
    for (int y = 0; y < viewport.height; ++y) {
        for (int x = 0; x < viewport.width; ++x) {
            ASSERT_EQ(pixels[static_cast<std::size_t>(y * viewport.width + x)], reference.at(x, y))
                << x << ", " << y << " with pixel size " << picture.pixel_size << ", origin "
                << picture.origin.x << ", " << picture.origin.y;
        }
    }
}

TEST(Canvas_Painter, paints_what_rectangles_drawn_cell_by_cell_show) {
    const Tile tile = random_tile({9, 7}, 7);
    Canvas_Picture picture;
    picture.tile = &tile;
    picture.grid_intensity = 64;
    picture.checker = {2, 3};
    picture.surround = standard_color(Standard_Color::dark_frame);
    for (const int pixel_size : {3, 8, 13, 32}) {
        for (const Point origin : {Point{5, 4}, Point{0, 0}, Point{-4, -17}, Point{90, 70}, Point{-1, 79},
                                   Point{96, 80}, Point{-300, 5}, Point{3, -2000}}) {
            picture.pixel_size = pixel_size;
            picture.origin = origin;
            expect_same_as_rectangles(picture);
        }
    }
}

TEST(Canvas_Painter, shows_the_surround_without_a_tile_or_without_pixels) {
    const Tile empty(0, 5);
    const Tile flat(5, 0);
    Canvas_Picture picture;
    picture.surround = Color(10, 20, 30);
    const Cell_Marker marker{{1, 1}, {Color(255, 0, 1)}};
    picture.column_marker = &marker;
    picture.row_marker = &marker;
    for (const Tile* tile : {static_cast<const Tile*>(nullptr), &empty, &flat}) {
        picture.tile = tile;
        for (const Color pixel : composed(picture)) {
            ASSERT_EQ(pixel, picture.surround);
        }
    }
}

TEST(Canvas_Painter, grid_contrasts_with_the_pixel_and_vanishes_at_intensity_0) {
    EXPECT_EQ(grid_color(Color(0, 0, 0), 64), Color(64, 64, 64));
    EXPECT_EQ(grid_color(Color(255, 255, 255), 64), Color(191, 191, 191));
    EXPECT_EQ(grid_color(Color(12, 200, 90), 0), Color(12, 200, 90));
}

} // namespace

} // namespace quadrelle::testing
