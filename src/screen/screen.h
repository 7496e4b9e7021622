#pragma once

// The one window, its renderer, and every drawing call that the interface makes.

#include "base/geometry.h"
#include "base/input.h"
#include "color/color.h"
#include "screen/font_table.h"
#include "screen/sprite_table.h"
#include "screen/texture.h"

#include <memory>
#include <string>
#include <string_view>

struct SDL_Window;

namespace quadrelle {

class Opaque_Texture;
class Sprite_Sheet;

enum class Text_Style { normal, highlighted };
enum class Bevel { raised, sunken };
enum class Header_Style { active, passive };

class Screen {
public:
    // The current directory must hold "pool.bmp". Fatal without window, renderer or sheet.
    explicit Screen(Size size);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    void clear();
    void present();
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
    // Lines of regular text that fit into the window's height.
    [[nodiscard]] int text_rows() const;

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] const Sprite_Sheet& sprites() const { return *sprites_; }
    [[nodiscard]] SDL_Renderer* renderer() const { return renderer_.get(); }

private:
    struct Window_Deleter {
        void operator()(SDL_Window* window) const;
    };
    struct Renderer_Deleter {
        void operator()(SDL_Renderer* renderer) const;
    };
    void open_window();
    void make_frame_block();
    void set_draw_color(Color color);

    Size size_;
    std::unique_ptr<SDL_Window, Window_Deleter> window_;
    std::unique_ptr<SDL_Renderer, Renderer_Deleter> renderer_;
    std::unique_ptr<Opaque_Texture> frame_block_; // a block of the frame colour
    std::unique_ptr<Sprite_Sheet> sprites_;
};

// Built at start-up before everything that draws, destroyed after it.
extern std::unique_ptr<Screen> screen;

} // namespace quadrelle
