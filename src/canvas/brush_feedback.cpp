#include "canvas/brush_feedback.h"

#include "color/translucency.h"

#include <algorithm>

namespace quadrelle {

namespace {

template <typename Change>
void change_pixels(const Rectangle& area, const Pixel_Rows& target, Change change) {
    for (int y = std::max(area.y, 0); y < std::min(area.bottom(), target.size.height); ++y) {
        for (int x = std::max(area.x, 0); x < std::min(area.right(), target.size.width); ++x) {
            change(target.row(y)[x]);
        }
    }
}

bool is_set(const Brush& brush, int x, int y) {
    return x >= 0 && y >= 0 && x < brush.size().width && y < brush.size().height && brush.pixel(x, y);
}

void paint_preview(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    const Brush& brush = *feedback.brush;
    for (int y = 0; y < brush.size().height; ++y) {
        for (int x = 0; x < brush.size().width; ++x) {
            if (const std::optional<Color> own = brush.pixel(x, y)) {
                const Color color = feedback.color.value_or(*own);
                change_pixels({feedback.preview->x + x * pixel_size, feedback.preview->y + y * pixel_size,
                               pixel_size, pixel_size},
                              target, [color](Color& pixel) { pixel = blended_over(color, pixel); });
            }
        }
    }
}

// Whatever lies below, the line stands out.
void contrast(Color& pixel) {
    pixel = pixel.is_dark() ? Color(255, 255, 255) : Color(0, 0, 0);
}

// Along the grid lines around the cells, so that no pixel of the tile is covered. Each pixel of the lines is
// changed once, or it would turn back.
void paint_outline(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    const Brush& brush = *feedback.brush;
    for (int y = 0; y <= brush.size().height; ++y) {
        for (int x = 0; x <= brush.size().width; ++x) {
            const Point cell{feedback.outline->x + x * pixel_size, feedback.outline->y + y * pixel_size};
            const bool here = is_set(brush, x, y);
            const bool is_left_edge = here != is_set(brush, x - 1, y);
            const bool is_top_edge = here != is_set(brush, x, y - 1);
            if (is_left_edge) {
                change_pixels({cell.x - 1, cell.y, 1, pixel_size - 1}, target, contrast);
            }
            if (is_top_edge) {
                change_pixels({cell.x, cell.y - 1, pixel_size - 1, 1}, target, contrast);
            }
            if (is_left_edge || is_top_edge || here != is_set(brush, x - 1, y - 1)) {
                change_pixels({cell.x - 1, cell.y - 1, 1, 1}, target, contrast);
            }
        }
    }
}

} // namespace

// The outline runs along the pixels before the brush and along its last ones.
Rectangle feedback_area(const Brush_Feedback& feedback, int pixel_size) {
    Rectangle area;
    for (const std::optional<Point>& corner : {feedback.outline, feedback.preview}) {
        if (corner) {
            const Size size = feedback.brush->size();
            area = bounds_of(area, {corner->x - 1, corner->y - 1, size.width * pixel_size + 1,
                                    size.height * pixel_size + 1});
        }
    }
    return area;
}

void paint_brush_feedback(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    if (feedback.preview) {
        paint_preview(feedback, pixel_size, target);
    }
    if (feedback.outline) {
        paint_outline(feedback, pixel_size, target);
    }
}

} // namespace quadrelle
