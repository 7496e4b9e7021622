#include "tests/support/window_test.h"

#include "base/data_directory.h"
#include "base/debug_monitor.h"
#include "screen/screen.h"
#include "ui/dialogs.h"

#include <SDL3/SDL.h>

#include <memory>

namespace quadrelle::testing {

namespace {

struct Surface_Deleter {
    void operator()(SDL_Surface* surface) const { SDL_DestroySurface(surface); }
};
using Picture = std::unique_ptr<SDL_Surface, Surface_Deleter>;

Picture read_picture(const Rectangle& area) {
    const SDL_Rect part{area.x, area.y, area.width, area.height};
    return Picture(SDL_RenderReadPixels(screen->renderer(), &part));
}

Color color_in(const Picture& picture, int x, int y) {
    Uint8 r = 0;
    Uint8 g = 0;
    Uint8 b = 0;
    Uint8 a = 0;
    EXPECT_TRUE(SDL_ReadSurfacePixel(picture.get(), x, y, &r, &g, &b, &a)) << SDL_GetError();
    return {r, g, b, a};
}

} // namespace

Color pixel_at(Point point) {
    return color_in(read_picture({point.x, point.y, 1, 1}), 0, 0);
}

bool has_picture(const Rectangle& area) {
    const Picture picture = read_picture(area);
    const Color first = color_in(picture, 0, 0);
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            if (color_in(picture, x, y) != first) {
                return true;
            }
        }
    }
    return false;
}

void save_picture(const std::string& path) {
    const Size size = screen->size();
    EXPECT_TRUE(SDL_SaveBMP(read_picture({0, 0, size.width, size.height}).get(), path.c_str()));
}

void use_dummy_video() {
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_DRIVER, "dummy", SDL_HINT_OVERRIDE);
    SDL_SetHintWithPriority(SDL_HINT_RENDER_DRIVER, "software", SDL_HINT_OVERRIDE);
}

Window_Test::Window_Test() {
    use_dummy_video();
    EXPECT_TRUE(SDL_Init(SDL_INIT_VIDEO)) << SDL_GetError();
    debug_monitor = std::make_unique<Debug_Monitor>();
    EXPECT_TRUE(data_directory().enter(Data_Directory::inside));
    screen = std::make_unique<Screen>(Size{1232, 664});
    dialogs = std::make_unique<Dialogs>();
    data_directory().leave();
}

Window_Test::~Window_Test() {
    dialogs.reset();
    screen.reset();
    debug_monitor.reset();
    SDL_Quit();
}

} // namespace quadrelle::testing
