#include "canvas/brush_feedback.h"

#include "color/translucency.h"
#include "tools/line.h"

#include <algorithm>
#include <cstdint>
#include <vector>

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

// None outside of the brush too.
std::optional<Color> pixel_of(const Brush_Feedback& feedback, int x, int y) {
    const Size size = feedback.brush->size();
    const bool is_inside = x >= 0 && y >= 0 && x < size.width && y < size.height;
    return is_inside ? feedback.brush->wallpaper_pixel(std::int64_t{feedback.wallpaper.x} + x,
                                                       std::int64_t{feedback.wallpaper.y} + y)
                     : std::nullopt;
}

// In cells from the brush: all that the line of brushes goes over, or the brush alone.
class Outlined_Cells {
public:
    explicit Outlined_Cells(const Brush_Feedback& feedback) : area_(outlined_area(feedback)) {
        cells_.resize(static_cast<std::size_t>(area_.width) * static_cast<std::size_t>(area_.height));
        walk_line(outlined_start(feedback), {}, [&](Tile_Point offset) { add_brush(feedback, offset); });
    }

    [[nodiscard]] static Rectangle outlined_area(const Brush_Feedback& feedback) {
        const Size size = feedback.brush->size();
        const Tile_Point start = outlined_start(feedback);
        return bounds_of({0, 0, size.width, size.height}, {start.x, start.y, size.width, size.height});
    }
    [[nodiscard]] const Rectangle& area() const { return area_; }
    [[nodiscard]] bool has(int x, int y) const { return area_.contains({x, y}) && cells_[index_of(x, y)]; }

private:
    // What is previewed needs no outline but that of its end.
    [[nodiscard]] static Tile_Point outlined_start(const Brush_Feedback& feedback) {
        return feedback.preview ? Tile_Point{} : feedback.line_start.value_or(Tile_Point{});
    }
    [[nodiscard]] std::size_t index_of(int x, int y) const {
        return static_cast<std::size_t>(y - area_.y) * static_cast<std::size_t>(area_.width) +
               static_cast<std::size_t>(x - area_.x);
    }
    void add_brush(const Brush_Feedback& feedback, Tile_Point offset) {
        for (int y = 0; y < feedback.brush->size().height; ++y) {
            for (int x = 0; x < feedback.brush->size().width; ++x) {
                const std::size_t cell = index_of(offset.x + x, offset.y + y);
                cells_[cell] = cells_[cell] || pixel_of(feedback, x, y).has_value();
            }
        }
    }

    Rectangle area_;
    std::vector<bool> cells_;
};

// Of a cell that is not left of the tile or above it.
Tile_Point tile_pixel(const Brush_Feedback& feedback, const Rectangle& cell) {
    return {(cell.x - feedback.tile.x) / cell.width, (cell.y - feedback.tile.y) / cell.height};
}

bool is_painted(const Brush_Feedback& feedback, const Rectangle& cell) {
    return !intersection(cell, feedback.tile).is_empty() &&
           (feedback.selection == nullptr || feedback.selection->contains(tile_pixel(feedback, cell)));
}

// As it will be seen in the tile.
Color shown_pixel(const Brush_Feedback& feedback, Color color, const Rectangle& cell) {
    const Tile_Point pixel = tile_pixel(feedback, cell);
    return blended_over(color, checkerboard_color(pixel.x, pixel.y, feedback.checker));
}

Point preview_corner(const Brush_Feedback& feedback, Tile_Point offset, int pixel_size) {
    return {feedback.preview->x + offset.x * pixel_size, feedback.preview->y + offset.y * pixel_size};
}

void paint_brush(const Brush_Feedback& feedback, Point corner, int pixel_size, const Pixel_Rows& target) {
    for (int y = 0; y < feedback.brush->size().height; ++y) {
        for (int x = 0; x < feedback.brush->size().width; ++x) {
            const Rectangle cell{corner.x + x * pixel_size, corner.y + y * pixel_size, pixel_size,
                                 pixel_size};
            const std::optional<Color> own = pixel_of(feedback, x, y);
            if (own && is_painted(feedback, cell)) {
                const Color shown = shown_pixel(feedback, feedback.color.value_or(*own), cell);
                change_pixels(cell, target, [shown](Color& pixel) { pixel = shown; });
            }
        }
    }
}

void paint_preview(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    walk_line(feedback.line_start.value_or(Tile_Point{}), {}, [&](Tile_Point offset) {
        paint_brush(feedback, preview_corner(feedback, offset, pixel_size), pixel_size, target);
    });
}

// Whatever lies below, the line stands out.
void contrast(Color& pixel) {
    pixel = pixel.is_dark() ? Color(255, 255, 255) : Color(0, 0, 0);
}

// Along the grid lines around the cells, so that no pixel of the tile is covered. Each pixel of the lines is
// changed once, or it would turn back.
void paint_outline(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    const Outlined_Cells cells(feedback);
    for (int y = cells.area().y; y <= cells.area().bottom(); ++y) {
        for (int x = cells.area().x; x <= cells.area().right(); ++x) {
            const Point cell{feedback.outline->x + x * pixel_size, feedback.outline->y + y * pixel_size};
            const bool here = cells.has(x, y);
            const bool is_left_edge = here != cells.has(x - 1, y);
            const bool is_top_edge = here != cells.has(x, y - 1);
            if (is_left_edge) {
                change_pixels({cell.x - 1, cell.y, 1, pixel_size - 1}, target, contrast);
            }
            if (is_top_edge) {
                change_pixels({cell.x, cell.y - 1, pixel_size - 1, 1}, target, contrast);
            }
            if (is_left_edge || is_top_edge || here != cells.has(x - 1, y - 1)) {
                change_pixels({cell.x - 1, cell.y - 1, 1, 1}, target, contrast);
            }
        }
    }
}

// Half of a cell, so that crosses on neighbouring corners could be told apart.
Rectangle cross_area(Point corner, int pixel_size) {
    const int arm = std::max(pixel_size / 2, 2);
    return {corner.x - 1 - arm, corner.y - 1 - arm, 2 * arm + 1, 2 * arm + 1};
}

void paint_cross(const Rectangle& area, const Pixel_Rows& target) {
    const int arm = area.width / 2;
    change_pixels({area.x, area.y + arm, area.width, 1}, target, contrast);
    change_pixels({area.x + arm, area.y, 1, arm}, target, contrast);
    change_pixels({area.x + arm, area.y + arm + 1, 1, arm}, target, contrast);
}

Rectangle cells_of(const Brush& brush, Point corner, int pixel_size) {
    return {corner.x, corner.y, brush.size().width * pixel_size, brush.size().height * pixel_size};
}

// Empty where nothing is selected.
Rectangle preview_area(const Brush_Feedback& feedback, int pixel_size) {
    const Point start = preview_corner(feedback, feedback.line_start.value_or(Tile_Point{}), pixel_size);
    const Rectangle area = intersection(bounds_of(cells_of(*feedback.brush, *feedback.preview, pixel_size),
                                                  cells_of(*feedback.brush, start, pixel_size)),
                                        feedback.tile);
    for (int y = area.y; y < area.bottom(); y += pixel_size) {
        for (int x = area.x; x < area.right(); x += pixel_size) {
            if (is_painted(feedback, {x, y, pixel_size, pixel_size})) {
                return area;
            }
        }
    }
    return {};
}

} // namespace

Brush_Feedback seen_from(Point start, Brush_Feedback feedback) {
    for (std::optional<Point>* const corner :
         {&feedback.outline, &feedback.preview, &feedback.taken_corner}) {
        if (*corner) {
            *corner = Point{(*corner)->x - start.x, (*corner)->y - start.y};
        }
    }
    feedback.tile.x -= start.x;
    feedback.tile.y -= start.y;
    return feedback;
}

// The outline runs along the pixels before the brush and along its last ones.
Rectangle feedback_area(const Brush_Feedback& feedback, int pixel_size) {
    Rectangle area;
    if (feedback.preview) {
        area = preview_area(feedback, pixel_size);
    }
    if (feedback.outline) {
        const Rectangle cells = Outlined_Cells::outlined_area(feedback);
        area = bounds_of(area, {feedback.outline->x + cells.x * pixel_size - 1,
                                feedback.outline->y + cells.y * pixel_size - 1, cells.width * pixel_size + 1,
                                cells.height * pixel_size + 1});
    }
    return feedback.taken_corner ? bounds_of(area, cross_area(*feedback.taken_corner, pixel_size)) : area;
}

void paint_brush_feedback(const Brush_Feedback& feedback, int pixel_size, const Pixel_Rows& target) {
    if (feedback.preview) {
        paint_preview(feedback, pixel_size, target);
    }
    if (feedback.outline) {
        paint_outline(feedback, pixel_size, target);
    }
    if (feedback.taken_corner) {
        paint_cross(cross_area(*feedback.taken_corner, pixel_size), target);
    }
}

} // namespace quadrelle
