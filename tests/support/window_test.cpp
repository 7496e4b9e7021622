#include "tests/support/window_test.h"

#include "base/data_directory.h"
#include "base/debug_monitor.h"
#include "screen/screen.h"
#include "ui/dialogs.h"

#include <SDL3/SDL.h>

#include <memory>

namespace quadrelle::testing {

namespace {

Color painted(Point point) {
    return screen->pixels().row(point.y)[point.x];
}

} // namespace

Color pixel_at(Point point) {
    screen->paint();
    return painted(point);
}

bool has_picture(const Rectangle& area) {
    screen->paint();
    const Color first = painted({area.x, area.y});
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            if (painted({x, y}) != first) {
                return true;
            }
        }
    }
    return false;
}

void use_dummy_video() {
    SDL_SetHintWithPriority(SDL_HINT_VIDEO_DRIVER, "dummy", SDL_HINT_OVERRIDE);
}

Window_Test::Window_Test() {
    use_dummy_video();
    EXPECT_TRUE(SDL_Init(SDL_INIT_VIDEO)) << SDL_GetError();
    message_log = std::make_unique<Debug_Monitor>();
    EXPECT_TRUE(data_directory().enter(Data_Directory::inside));
    screen = std::make_unique<Screen>(Size{1232, 664});
    dialogs = std::make_unique<Dialogs>();
    data_directory().leave();
}

Window_Test::~Window_Test() {
    dialogs.reset();
    screen.reset();
    message_log.reset();
    SDL_Quit();
}

} // namespace quadrelle::testing
