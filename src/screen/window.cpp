#include "screen/window.h"

#include "base/fatal.h"
#include "base/version.h"
#include "color/standard_colors.h"

#include <SDL3/SDL.h>

#include <algorithm>
#include <cmath>
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

// The window may be asked to have another size than it has.
bool can_change_display(const SDL_Event& event) {
    return event.type == SDL_EVENT_WINDOW_SHOWN || event.type == SDL_EVENT_WINDOW_DISPLAY_CHANGED ||
           event.type == SDL_EVENT_WINDOW_DISPLAY_SCALE_CHANGED;
}

bool has_layout_of_colors(const SDL_Surface& surface) {
    return surface.format == SDL_PIXELFORMAT_XRGB8888 || surface.format == SDL_PIXELFORMAT_ARGB8888;
}

Size times(Size size, float factor) {
    return {static_cast<int>(std::lround(static_cast<float>(size.width) * factor)),
            static_cast<int>(std::lround(static_cast<float>(size.height) * factor))};
}

// Some drivers show nothing to anybody: their display's size means nothing.
bool has_real_display() {
    const char* const driver = SDL_GetCurrentVideoDriver();
    return driver != nullptr && std::string_view(driver) != "dummy" &&
           std::string_view(driver) != "offscreen";
}

// Without what the system lays around the window, as far as that is known; in the units of the system.
Size room_on_display(SDL_Window* window) {
    const SDL_DisplayID display =
        window == nullptr ? SDL_GetPrimaryDisplay() : SDL_GetDisplayForWindow(window);
    SDL_Rect usable{0, 0, 0, 0};
    if (!has_real_display() || !SDL_GetDisplayUsableBounds(display, &usable) || usable.w <= 0 ||
        usable.h <= 0) {
        constexpr int any = 1 << 15;
        return {any, any};
    }
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
    if (window != nullptr) {
        SDL_GetWindowBordersSize(window, &top, &left, &bottom, &right);
    }
    return {std::max(usable.w - left - right, 1), std::max(usable.h - top - bottom, 1)};
}

// The system answers 0 when it does not know.
float density_of(SDL_Window* window) {
    const float density = SDL_GetWindowPixelDensity(window);
    return density > 0 ? density : 1;
}

bool counts_in_pixels() {
    const char* const driver = SDL_GetCurrentVideoDriver();
    return driver == nullptr || std::string_view(driver) != "wayland";
}

// Where the system counts in pixels, it does not change the size once more.
Size first_size(Size drawing) {
    return counts_in_pixels() ? wanted_window(drawing, SDL_GetDisplayContentScale(SDL_GetPrimaryDisplay()),
                                              room_on_display(nullptr))
                              : drawing;
}

} // namespace

void Window::Deleter::operator()(SDL_Window* window) const {
    SDL_DestroyWindow(window);
}

Window::Window(Size size) : size_(size), view_(size, size) {
    prefer_plain_memory();
    const Size first = first_size(size);
    window_.reset(SDL_CreateWindow(product_name, first.width, first.height, SDL_WINDOW_HIGH_PIXEL_DENSITY));
    if (!window_ || SDL_GetWindowSurface(window_.get()) == nullptr) {
        fatal("Unable to create window or renderer.");
    }
    fit_to_display();
    SDL_AddEventWatch(watch_event, this);
}

Window::~Window() {
    SDL_RemoveEventWatch(watch_event, this);
}

bool SDLCALL Window::watch_event(void* window, SDL_Event* event) {
    static_cast<Window*>(window)->note(*event);
    return true;
}

void Window::note(SDL_Event& event) {
    is_lost_ = is_lost_ || can_lose_pixels(event);
    fits_display_ = fits_display_ && !can_change_display(event);
    convert_positions(event);
}

void Window::convert_positions(SDL_Event& event) const {
    const auto convert = [this](float& x, float& y) {
        const Window_View::Position position = in_drawing({x, y});
        x = position.x;
        y = position.y;
    };
    switch (event.type) {
    case SDL_EVENT_MOUSE_MOTION: {
        convert(event.motion.x, event.motion.y);
        const Window_View::Position moved =
            view_.moved_in_drawing({event.motion.xrel * density_, event.motion.yrel * density_});
        event.motion.xrel = moved.x;
        event.motion.yrel = moved.y;
        break;
    }
    case SDL_EVENT_MOUSE_BUTTON_DOWN:
    case SDL_EVENT_MOUSE_BUTTON_UP: convert(event.button.x, event.button.y); break;
    case SDL_EVENT_MOUSE_WHEEL: convert(event.wheel.mouse_x, event.wheel.mouse_y); break;
    default: break;
    }
}

Window_View::Position Window::in_drawing(Window_View::Position in_system) const {
    return view_.in_drawing({in_system.x * density_, in_system.y * density_});
}

// A size that the system does not give is made good by the view.
void Window::fit_to_display() {
    fits_display_ = true;
    density_ = density_of(window_.get());
    const Size wanted = wanted_window(size_, SDL_GetWindowDisplayScale(window_.get()),
                                      times(room_on_display(window_.get()), density_));
    const Size in_system = times(wanted, 1 / density_);
    Size now;
    SDL_GetWindowSize(window_.get(), &now.width, &now.height);
    if (now != in_system) {
        SDL_SetWindowSize(window_.get(), in_system.width, in_system.height);
        SDL_SyncWindow(window_.get());
    }
}

// Draws into the window's own pixels where they are as the drawing needs them.
Pixel_Rows Window::pixels() {
    if (!fits_display_) {
        fit_to_display();
    }
    SDL_Surface* const surface = SDL_GetWindowSurface(window_.get());
    is_lost_ = is_lost_ || surface != surface_;
    surface_ = surface;
    if (surface == nullptr) {
        return own_pixels();
    }
    view_ = Window_View(size_, {surface->w, surface->h});
    density_ = density_of(window_.get());
    if (!view_.is_plain() || !has_layout_of_colors(*surface)) {
        return own_pixels();
    }
    auto* const row = static_cast<std::byte*>(surface->pixels) +
                      static_cast<std::ptrdiff_t>(view_.area().y) * surface->pitch;
    return {static_cast<Color*>(static_cast<void*>(row)) + view_.area().x, surface->pitch, size_};
}

Pixel_Rows Window::own_pixels() {
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

// Pixels that are smaller than drawn hang together, so all of them are shown.
void Window::show_scaled(const Rectangle& part) {
    const Rectangle from = view_.is_sharp() ? part : Rectangle{0, 0, size_.width, size_.height};
    const Rectangle to = view_.shown(part);
    const Pixel_Rows drawn = own_pixels();
    SDL_Surface* const source = SDL_CreateSurfaceFrom(size_.width, size_.height, SDL_PIXELFORMAT_XRGB8888,
                                                      drawn.first, static_cast<int>(drawn.pitch));
    const SDL_Rect source_area{from.x, from.y, from.width, from.height};
    const SDL_Rect target_area{to.x, to.y, to.width, to.height};
    SDL_BlitSurfaceScaled(source, &source_area, surface_, &target_area,
                          view_.is_sharp() ? SDL_SCALEMODE_NEAREST : SDL_SCALEMODE_LINEAR);
    SDL_DestroySurface(source);
}

void Window::show(std::span<const Rectangle> areas) {
    const bool is_drawn_in_place = pixels().first != own_pixels_.data();
    if (surface_ == nullptr) {
        return;
    }
    const Rectangle drawing{0, 0, size_.width, size_.height};
    std::vector<SDL_Rect> shown;
    for (const Rectangle& area : areas) {
        const Rectangle part = intersection(area, drawing);
        if (part.is_empty()) {
            continue;
        }
        if (!is_drawn_in_place) {
            show_scaled(part);
        }
        const Rectangle in_window = view_.shown(part);
        shown.push_back({in_window.x, in_window.y, in_window.width, in_window.height});
        if (!view_.is_sharp()) {
            break;
        }
    }
    if (std::exchange(shows_all_, false)) {
        shown.assign(1, {0, 0, surface_->w, surface_->h});
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
    const Window_View::Position in_window =
        view_.in_window({static_cast<float>(position.x), static_cast<float>(position.y)});
    SDL_WarpMouseInWindow(window_.get(), in_window.x / density_, in_window.y / density_);
}

Window_View::Position Window::pointer() const {
    Window_View::Position in_system;
    SDL_GetMouseState(&in_system.x, &in_system.y);
    return in_drawing(in_system);
}

} // namespace quadrelle
