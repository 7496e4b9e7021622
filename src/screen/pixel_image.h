#pragma once

// An opaque picture that the program writes and reads pixel by pixel, and the texture that shows it.

#include "base/geometry.h"
#include "color/color.h"
#include "screen/opaque_texture.h"
#include "screen/sprite_table.h"

#include <vector>

namespace quadrelle {

class Pixel_Image {
public:
    // Black. The screen must be there.
    explicit Pixel_Image(Size size);

    // Inside the picture only.
    [[nodiscard]] Color pixel(Point position) const { return pixels_.at(index_of(position)); }
    // `color` lies over what is there; the result stays opaque. Shown after the next `upload`.
    void set_pixel(Point position, Color color);
    void fill_rect(const Rectangle& area, Color color);
    // What shows through a translucent colour.
    void fill_checkers(const Rectangle& area);
    void draw_sprite(Sprite sprite, Point position);
    void upload();

    void draw_at(Point position) const { texture_.draw_at(position); }
    [[nodiscard]] Size size() const { return size_; }

private:
    [[nodiscard]] std::size_t index_of(Point position) const {
        return static_cast<std::size_t>(position.y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(position.x);
    }

    Size size_;
    std::vector<Color> pixels_;
    Opaque_Texture texture_;
};

} // namespace quadrelle
