#include "screen/surface.h"

#include "pixels/tile.h"
#include "tests/support/files.h"

#include <SDL3/SDL.h>

namespace quadrelle::testing {
namespace {

constexpr Rgba_Quad magenta{255, 0, 255, 255};

// A bitmap file of one row.
std::string save_row(const Temporary_Folder& folder, const std::vector<Rgba_Quad>& pixels,
                     SDL_PixelFormat format) {
    const std::string path = folder.path("row.bmp");
    SDL_Surface* row = SDL_CreateSurface(static_cast<int>(pixels.size()), 1, format);
    for (std::size_t x = 0; x < pixels.size(); ++x) {
        const Rgba_Quad pixel = pixels[x];
        SDL_WriteSurfacePixel(row, static_cast<int>(x), 0, pixel.r, pixel.g, pixel.b, pixel.a);
    }
    EXPECT_TRUE(SDL_SaveBMP(row, path.c_str())) << SDL_GetError();
    SDL_DestroySurface(row);
    return path;
}

TEST(Surface_Test, loads_the_key_colour_as_transparent_and_all_else_as_opaque) {
    const Temporary_Folder folder;
    const std::vector<Rgba_Quad> pixels{
        magenta, {254, 0, 255, 255}, {255, 0, 255, 9}, {1, 2, 3, 0}, {0, 0, 0, 255}};
    for (const SDL_PixelFormat format : {SDL_PIXELFORMAT_ARGB8888, SDL_PIXELFORMAT_BGR24}) {
        const Surface keyed(save_row(folder, pixels, format), magenta);
        ASSERT_EQ(keyed.size(), (Size{5, 1}));
        EXPECT_EQ(keyed.get_pixel(0, 0), (Rgba_Quad{255, 0, 255, 0}));
        EXPECT_EQ(keyed.get_pixel(1, 0), (Rgba_Quad{254, 0, 255, 255}));
        EXPECT_EQ(keyed.get_pixel(2, 0), (Rgba_Quad{255, 0, 255, 0}));
        EXPECT_EQ(keyed.get_pixel(3, 0), (Rgba_Quad{1, 2, 3, 255}));
        EXPECT_EQ(keyed.get_pixel(4, 0), (Rgba_Quad{0, 0, 0, 255}));
    }
    const Surface plain(save_row(folder, pixels, SDL_PIXELFORMAT_ARGB8888));
    EXPECT_EQ(plain.get_pixel(0, 0), magenta);
    EXPECT_EQ(plain.get_pixel(3, 0), (Rgba_Quad{1, 2, 3, 255}));
}

} // namespace
} // namespace quadrelle::testing
