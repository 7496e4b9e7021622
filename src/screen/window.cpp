#include "screen/window.h"

#include "base/fatal.h"
#include "base/version.h"
#include "color/standard_colors.h"

#include <SDL3/SDL.h>

#include <cstddef>
#include <string_view>
#include <utility>

namespace quadrelle {

namespace {

// On X11 plain shared memory shows a changed part fastest; a texture would take the whole window each time.
// Other systems have no such memory, or take it by themselves. The environment has the last word.
void prefer_plain_memory() {
    const char* const driver = SDL_GetCurrentVideoDriver();
    if (driver != nullptr && std::string_view(driver) == "x11") {
        SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
    }
}

// A part of the window may have been uncovered, or its pixels are others.
bool can_lose_pixels(const SDL_Event& event) {
    const bool is_of_window = event.type >= SDL_EVENT_WINDOW_FIRST && event.type <= SDL_EVENT_WINDOW_LAST &&
                              event.type != SDL_EVENT_WINDOW_MOUSE_ENTER &&
                              event.type != SDL_EVENT_WINDOW_MOUSE_LEAVE;
    return is_of_window || event.type == SDL_EVENT_RENDER_TARGETS_RESET ||
           event.type == SDL_EVENT_RENDER_DEVICE_RESET;
}

bool SDLCALL watch_for_loss(void* is_lost, SDL_Event* event) {
    if (can_lose_pixels(*event)) {
        *static_cast<bool*>(is_lost) = true;
    }
    return true;
}

bool has_layout_of_colors(const SDL_Surface& surface) {
    return surface.format == SDL_PIXELFORMAT_XRGB8888 || surface.format == SDL_PIXELFORMAT_ARGB8888;
}

void convert(const Pixel_Rows& from, const Rectangle& area, SDL_Surface& to) {
    auto* const target = static_cast<std::byte*>(to.pixels) + static_cast<std::ptrdiff_t>(area.y) * to.pitch +
                         static_cast<std::ptrdiff_t>(area.x) * SDL_BYTESPERPIXEL(to.format);
    SDL_ConvertPixels(area.width, area.height, SDL_PIXELFORMAT_XRGB8888, from.row(area.y) + area.x,
                      static_cast<int>(from.pitch), to.format, target, to.pitch);
}

} // namespace

void Window::Deleter::operator()(SDL_Window* window) const {
    SDL_DestroyWindow(window);
}

Window::Window(Size size) : size_(size) {
    prefer_plain_memory();
    window_.reset(SDL_CreateWindow(product_name, size.width, size.height, 0));
    if (!window_ || SDL_GetWindowSurface(window_.get()) == nullptr) {
        fatal("Unable to create window or renderer.");
    }
    SDL_AddEventWatch(watch_for_loss, &is_lost_);
}

Window::~Window() {
    SDL_RemoveEventWatch(watch_for_loss, &is_lost_);
}

// Draws into the window's own pixels where they are as the drawing needs them.
Pixel_Rows Window::pixels() {
    SDL_Surface* const surface = SDL_GetWindowSurface(window_.get());
    is_lost_ = is_lost_ || surface != surface_;
    surface_ = surface;
    if (surface != nullptr && surface->w >= size_.width && surface->h >= size_.height &&
        has_layout_of_colors(*surface)) {
        return {static_cast<Color*>(surface->pixels), surface->pitch, size_};
    }
    own_pixels_.resize(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height));
    return {own_pixels_.data(), size_.width * static_cast<std::ptrdiff_t>(sizeof(Color)), size_};
}

bool Window::take_loss() {
    if (!std::exchange(is_lost_, false)) {
        return false;
    }
    if (surface_ != nullptr) {
        const Color around = standard_color(Standard_Color::frame);
        SDL_FillSurfaceRect(surface_, nullptr, SDL_MapSurfaceRGB(surface_, around.r, around.g, around.b));
    }
    shows_all_ = true;
    return true;
}

void Window::show(std::span<const Rectangle> areas) {
    const Pixel_Rows drawn = pixels();
    if (surface_ == nullptr) {
        return;
    }
    const Rectangle window{0, 0, surface_->w, surface_->h};
    std::vector<SDL_Rect> shown;
    for (const Rectangle& area : areas) {
        const Rectangle part = intersection(area, window);
        if (part.is_empty()) {
            continue;
        }
        if (drawn.first != surface_->pixels) {
            convert(drawn, part, *surface_);
        }
        shown.push_back({part.x, part.y, part.width, part.height});
    }
    if (std::exchange(shows_all_, false)) {
        shown.assign(1, {0, 0, window.width, window.height});
    }
    if (!shown.empty() &&
        !SDL_UpdateWindowSurfaceRects(window_.get(), shown.data(), static_cast<int>(shown.size()))) {
        is_lost_ = true;
    }
}

void Window::set_title(const std::string& title) {
    SDL_SetWindowTitle(window_.get(), title.c_str());
}

void Window::set_relative_mouse_mode(bool on) {
    SDL_SetWindowRelativeMouseMode(window_.get(), on);
}

void Window::warp_mouse(Point position) {
    SDL_WarpMouseInWindow(window_.get(), static_cast<float>(position.x), static_cast<float>(position.y));
}

} // namespace quadrelle
