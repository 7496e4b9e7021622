#pragma once

// The one window of the system, and the pixels that it shows.

#include "base/geometry.h"
#include "color/color.h"
#include "color/pixel_rows.h"

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

struct SDL_Surface;
struct SDL_Window;

namespace quadrelle {

class Window {
public:
    // Fatal when the system gives none, or no memory to show it from.
    explicit Window(Size size);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // They stay as they are from frame to frame, unless they are lost.
    [[nodiscard]] Pixel_Rows pixels();
    // Whether the pixels, or what the system shows of them, were lost since the last call. Then all of the
    // window is shown next, what lies around the pixels in the frame colour.
    [[nodiscard]] bool take_loss();
    // Brings these parts of the pixels to the screen.
    void show(std::span<const Rectangle> areas);

    void set_title(const std::string& title);
    void set_relative_mouse_mode(bool on);
    void warp_mouse(Point position);
    [[nodiscard]] SDL_Window* handle() const { return window_.get(); }

private:
    struct Deleter {
        void operator()(SDL_Window* window) const;
    };

    Size size_;
    std::unique_ptr<SDL_Window, Deleter> window_;
    SDL_Surface* surface_ = nullptr; // of the window
    std::vector<Color> own_pixels_;  // where those of the surface have another size or layout
    bool is_lost_ = true;            // set as soon as the system tells, before anybody asks for the event
    bool shows_all_ = false;
};

} // namespace quadrelle
