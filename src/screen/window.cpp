#include "screen/window.h"

#include "base/fatal.h"
#include "base/version.h"

#include <SDL3/SDL.h>

#include <cstddef>

namespace quadrelle {

namespace {

// Plain shared memory shows a changed part fastest where there is no GPU; a texture of the window system
// would take the whole window each time. The environment has the last word.
void prefer_plain_memory() {
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0", SDL_HINT_DEFAULT);
}

// Where the window system has no plain memory to give, a texture does it. Null when there is neither.
SDL_Surface* surface_of(SDL_Window* window) {
    SDL_Surface* const surface = SDL_GetWindowSurface(window);
    if (surface != nullptr) {
        return surface;
    }
    SDL_SetHintWithPriority(SDL_HINT_FRAMEBUFFER_ACCELERATION, "1", SDL_HINT_DEFAULT);
    return SDL_GetWindowSurface(window);
}

bool has_layout_of_colors(const SDL_Surface& surface) {
    return surface.format == SDL_PIXELFORMAT_XRGB8888 || surface.format == SDL_PIXELFORMAT_ARGB8888;
}

void convert(const Pixel_Rows& from, const Rectangle& area, SDL_Surface& to) {
    for (int y = area.y; y < area.bottom(); ++y) {
        auto* const target = static_cast<std::byte*>(to.pixels) + static_cast<std::ptrdiff_t>(y) * to.pitch +
                             static_cast<std::ptrdiff_t>(area.x) * SDL_BYTESPERPIXEL(to.format);
        SDL_ConvertPixels(area.width, 1, SDL_PIXELFORMAT_XRGB8888, from.row(y) + area.x,
                          static_cast<int>(from.pitch), to.format, target, to.pitch);
    }
}

} // namespace

void Window::Deleter::operator()(SDL_Window* window) const {
    SDL_DestroyWindow(window);
}

Window::Window(Size size) : size_(size) {
    prefer_plain_memory();
    window_.reset(SDL_CreateWindow(product_name, size.width, size.height, 0));
    if (!window_ || surface_of(window_.get()) == nullptr) {
        fatal("Unable to create window or renderer.");
    }
}

// Draws into the window's own pixels where they are as the drawing needs them.
Pixel_Rows Window::pixels() {
    SDL_Surface* const surface = surface_of(window_.get());
    is_lost_ = is_lost_ || surface != surface_;
    surface_ = surface;
    if (surface != nullptr && surface->w >= size_.width && surface->h >= size_.height &&
        has_layout_of_colors(*surface)) {
        return {static_cast<Color*>(surface->pixels), surface->pitch, size_};
    }
    own_pixels_.resize(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height));
    return {own_pixels_.data(), size_.width * static_cast<std::ptrdiff_t>(sizeof(Color)), size_};
}

void Window::show(std::span<const Rectangle> areas) {
    const Pixel_Rows drawn = pixels();
    if (surface_ == nullptr) {
        return;
    }
    std::vector<SDL_Rect> shown;
    for (const Rectangle& area : areas) {
        const Rectangle part = intersection(area, {0, 0, surface_->w, surface_->h});
        if (drawn.first != surface_->pixels) {
            convert(drawn, part, *surface_);
        }
        shown.push_back({part.x, part.y, part.width, part.height});
    }
    if (!shown.empty()) {
        SDL_UpdateWindowSurfaceRects(window_.get(), shown.data(), static_cast<int>(shown.size()));
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
