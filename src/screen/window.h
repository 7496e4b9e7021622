#pragma once

// The one window of the system, and the pixels that it shows.

#include "base/geometry.h"
#include "color/color.h"
#include "color/pixel_rows.h"
#include "screen/window_view.h"

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

union SDL_Event;
struct SDL_Surface;
struct SDL_Window;

namespace quadrelle {

// What is drawn has one size. On displays of high density, and on those with less room, the window has
// another one: then the pixels are shown as squares, or scaled down, and the positions of pointer events are
// converted before they wait in the queue.
class Window {
public:
    // The size is that of the drawing. Fatal when the system gives no window, or no memory to show it from.
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
    [[nodiscard]] Window_View::Position pointer() const;
    [[nodiscard]] SDL_Window* handle() const { return window_.get(); }

private:
    struct Deleter {
        void operator()(SDL_Window* window) const;
    };

    static bool watch_event(void* window, SDL_Event* event);
    void note(SDL_Event& event);
    void convert_positions(SDL_Event& event) const;
    void fit_to_display();
    [[nodiscard]] Pixel_Rows own_pixels();
    void show_scaled(const Rectangle& part);
    [[nodiscard]] Window_View::Position in_drawing(Window_View::Position in_system) const;

    Size size_;
    std::unique_ptr<SDL_Window, Deleter> window_;
    SDL_Surface* surface_ = nullptr; // of the window
    Window_View view_;
    float density_ = 1;             // pixels of the window for each unit in which the system counts
    std::vector<Color> own_pixels_; // where those of the surface have another size or layout
    bool is_lost_ = true;           // set as soon as the system tells, before anybody asks for the event
    bool fits_display_ = true;      // the same, when the display has become another one
    bool shows_all_ = false;
};

} // namespace quadrelle
