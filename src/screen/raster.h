#pragma once

// Draws into pixels in memory. Nothing outside of `clip` is touched, which must lie inside the target.

#include "base/geometry.h"
#include "color/color.h"
#include "color/pixel_rows.h"

namespace quadrelle {

struct Image;

struct Clipped_Target {
    Pixel_Rows pixels;
    Rectangle clip;
};

// What is translucent lies over what is there.
void fill(const Clipped_Target& target, const Rectangle& area, Color color);
// Both ends belong to the line.
void draw_line(const Clipped_Target& target, Point from, Point to, Color color);
// The part `source`, which must lie inside of the image, stretched over `destination`: each pixel shows the
// nearest one.
void draw_image(const Clipped_Target& target, const Image& image, const Rectangle& source,
                const Rectangle& destination);

} // namespace quadrelle
