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

    // They stay as they are from frame to frame, unless they are lost.
    [[nodiscard]] Pixel_Rows pixels();
    // Whether the pixels, or what the system shows of them, were lost since the last call.
    [[nodiscard]] bool take_loss() { return std::exchange(is_lost_, false); }
    void set_lost() { is_lost_ = true; }
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
    bool is_lost_ = true;
};

} // namespace quadrelle
