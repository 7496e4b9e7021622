#pragma once

// The one window, and every drawing call that the interface makes. The calls of a frame are written down;
// when it is presented, only what differs from the frame before is drawn and brought to the window.

#include "base/geometry.h"
#include "base/input.h"
#include "color/color.h"
#include "screen/font_table.h"
#include "screen/frame.h"
#include "screen/region.h"
#include "screen/sprite_table.h"
#include "screen/texture.h"
#include "screen/window.h"

#include <memory>
#include <string>
#include <string_view>

namespace quadrelle {

class Sprite_Sheet;
struct Clipped_Target;

enum class Text_Style { normal, highlighted };
enum class Bevel { raised, sunken };
enum class Header_Style { active, passive };

class Screen {
public:
    // The current directory must hold "pool.bmp". Fatal without window or sheet.
    explicit Screen(Size size);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    // Begins a frame: the whole window in the frame colour. What is drawn without it lies over the frame
    // before.
    void clear();
    void present();
    // Draws what was called for since the last time. `present` does that too.
    void paint();
    void fill_rect(const Rectangle& area, Color color);
    void draw_line(Point from, Point to, Color color);
    // A one-pixel outline in one colour.
    void draw_outline(const Rectangle& area, Color color);
    // A one-pixel outline, top and left a little darker than `color`, bottom and right much darker.
    void draw_frame(const Rectangle& area, Color color);
    // The frame, filled with `color`.
    void draw_box(const Rectangle& area, Color color);
    void draw_bevel(const Rectangle& area, Color color, Bevel bevel);
    // A raised bevel, filled with `color`.
    void draw_panel(const Rectangle& area, Color color);

    void draw_sprite(Sprite sprite, Point position);
    void draw_sprite_sized(Sprite sprite, const Rectangle& destination);
    void draw_texture(const Texture& texture, Point position);

    // Text that may hold the line break "\r". Returns the position behind its last character.
    Point draw_text(Font font, Point position, std::string_view text);
    // Returns the width of the widest line.
    [[nodiscard]] int text_width(Font font, std::string_view text) const;
    [[nodiscard]] int text_height(Font font, std::string_view text) const;
    // One line as a picture of its own; null when there is nothing to show.
    [[nodiscard]] std::unique_ptr<Texture> make_text_texture(std::string_view text, Text_Style style) const;
    // A title bar 21 pixels high, as wide as its title and both ends.
    [[nodiscard]] std::unique_ptr<Texture> make_header(std::string_view title, Header_Style style) const;

    // The window's title becomes the product's name and version, " - " and `text`.
    void set_title(std::string_view text);
    void set_relative_mouse_mode(bool on);
    void show_cursor(bool visible);
    void warp_mouse(Point position);
    [[nodiscard]] Pointer_State read_pointer() const;
    [[nodiscard]] std::string renderer_name() const;

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] const Sprite_Sheet& sprites() const { return *sprites_; }
    [[nodiscard]] SDL_Window* window() const { return window_.handle(); }
    // The window's pixels as they were painted last.
    [[nodiscard]] Pixel_Rows pixels() { return window_.pixels(); }

private:
    void paint_part(const Pixel_Rows& pixels, const Rectangle& area) const;
    void draw(const Drawing_Call& call, const Clipped_Target& target) const;
    void check_painted(const Pixel_Rows& painted);
    [[nodiscard]] Rectangle whole() const { return {0, 0, size_.width, size_.height}; }

    Size size_;
    Window window_;
    std::unique_ptr<Sprite_Sheet> sprites_;
    Frame frame_;    // what is still to be painted
    Frame shown_;    // what was painted before
    Region changes_; // painted since the window was shown
};

// Built at start-up before everything that draws, destroyed after it.
extern std::unique_ptr<Screen> screen;

} // namespace quadrelle
