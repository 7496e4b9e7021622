#include "canvas/canvas_painter.h"

#include "color/translucency.h"

#include <algorithm>
#include <cstdint>

namespace quadrelle {

namespace {

// The cells that reach into `extent` pixels when the first one starts at `start`.
int first_cell(int start, int pixel_size) {
    return start >= 0 ? 0 : -start / pixel_size;
}

int end_cell(int start, int pixel_size, int extent, int count) {
    return start >= extent ? 0 : std::min(count, (extent - start + pixel_size - 1) / pixel_size);
}

// Where its own pixels are transparent nothing is changed.
void draw_marker(const Cell_Marker& marker, Point corner, const Pixel_Rows& target) {
    const int right = std::min(corner.x + marker.size.width, target.size.width);
    const int bottom = std::min(corner.y + marker.size.height, target.size.height);
    for (int y = std::max(corner.y, 0); y < bottom; ++y) {
        for (int x = std::max(corner.x, 0); x < right; ++x) {
            const int i = (y - corner.y) * marker.size.width + x - corner.x;
            const Color color = marker.pixels[static_cast<std::size_t>(i)];
            if (color.a != 0) {
                target.row(y)[x] = color;
            }
        }
    }
}

// Over the pixels that are not selected.
constexpr Color dimming(28, 28, 30, 150);

// Of the cell in that column or row, in checker squares of that width or height.
const Cell_Marker& marker_of(const std::array<Cell_Marker, 2>& markers, int cell, int checker) {
    return markers[static_cast<std::size_t>(cell % checker % 2)];
}

} // namespace

Color grid_color(Color pixel, int intensity) {
    if (pixel.is_dark()) {
        pixel.brighten(intensity);
    } else {
        pixel.darken(intensity);
    }
    return pixel;
}

void Canvas_Painter::paint(const Canvas_Picture& picture, const Pixel_Rows& target) {
    const auto width = static_cast<std::size_t>(target.size.width);
    cell_line_.assign(width, picture.surround);
    grid_line_.assign(width, picture.surround);
    const int tile_rows = picture.tile == nullptr ? 0 : picture.tile->height();
    const int tile_columns = picture.tile == nullptr ? 0 : picture.tile->width();
    const Range columns{first_cell(picture.origin.x, picture.pixel_size),
                        end_cell(picture.origin.x, picture.pixel_size, target.size.width, tile_columns)};
    const Range rows{first_cell(picture.origin.y, picture.pixel_size),
                     end_cell(picture.origin.y, picture.pixel_size, target.size.height, tile_rows)};

    const int top = std::clamp(picture.origin.y + rows.first * picture.pixel_size, 0, target.size.height);
    const int bottom = rows.end <= rows.first
                           ? top
                           : std::min(picture.origin.y + rows.end * picture.pixel_size, target.size.height);
    for (int y = 0; y < top; ++y) {
        std::ranges::copy(cell_line_, target.row(y));
    }
    for (int y = bottom; y < target.size.height; ++y) {
        std::ranges::copy(cell_line_, target.row(y));
    }
    for (int row = rows.first; row < rows.end; ++row) {
        paint_row(picture, columns, row, target);
    }
    if (picture.around != nullptr) {
        paint_around(picture, target);
    }
    if (columns.first < columns.end && rows.first < rows.end) {
        for (const Selection_Outline& outline : picture.outlines) {
            paint_outline(picture, outline, columns, rows, target);
        }
        paint_markers(picture, columns, rows, target);
    }
    if (picture.handles) {
        paint_handles(*picture.handles, target);
    }
}

void Canvas_Painter::paint_outline(const Canvas_Picture& picture, const Selection_Outline& outline,
                                   Range columns, Range rows, const Pixel_Rows& target) {
    if (outline.edges == nullptr) {
        return;
    }
    const Selection& selection = *outline.selection;
    const int edge = picture.pixel_size;
    for (int row = rows.first; row < rows.end; ++row) {
        const int y = picture.origin.y + row * edge;
        const Cell_Marker& vertical = marker_of(outline.edges->vertical, row, picture.checker.height);
        for (int column = columns.first; column < columns.end; ++column) {
            if (!selection.contains({column, row})) {
                continue;
            }
            const int x = picture.origin.x + column * edge;
            const Cell_Marker& horizontal =
                marker_of(outline.edges->horizontal, column, picture.checker.width);
            if (!selection.contains({column, row - 1})) {
                draw_marker(horizontal, {x, y}, target);
            }
            if (!selection.contains({column, row + 1})) {
                draw_marker(horizontal, {x, y + edge - horizontal.size.height}, target);
            }
            if (!selection.contains({column - 1, row})) {
                draw_marker(vertical, {x, y}, target);
            }
            if (!selection.contains({column + 1, row})) {
                draw_marker(vertical, {x + edge - vertical.size.width, y}, target);
            }
        }
    }
}

// Paler than the tile, and without a grid: nothing can be drawn there.
void Canvas_Painter::paint_around(const Canvas_Picture& picture, const Pixel_Rows& target) {
    constexpr std::uint8_t veil_alpha = 90;
    Color veil = picture.surround;
    veil.a = veil_alpha;
    const int edge = picture.pixel_size;
    const Point margin{(picture.around->width() - picture.tile->width()) / 2,
                       (picture.around->height() - picture.tile->height()) / 2};
    const Point start{picture.origin.x - margin.x * edge, picture.origin.y - margin.y * edge};
    const Range columns{first_cell(start.x, edge),
                        end_cell(start.x, edge, target.size.width, picture.around->width())};
    const int last_row = end_cell(start.y, edge, target.size.height, picture.around->height());
    for (int row = first_cell(start.y, edge); row < last_row; ++row) {
        for (int column = columns.first; column < columns.end; ++column) {
            const Color color = picture.around->get_pixel(column, row);
            if (color.a == 0 || !picture.tile->is_outside(column - margin.x, row - margin.y)) {
                continue;
            }
            const Color shown = blended_over(veil, blended_over(color, picture.surround));
            const int left = std::max(start.x + column * edge, 0);
            const int right = std::min(start.x + (column + 1) * edge, target.size.width);
            const int bottom = std::min(start.y + (row + 1) * edge, target.size.height);
            for (int y = std::max(start.y + row * edge, 0); y < bottom; ++y) {
                std::fill(target.row(y) + left, target.row(y) + right, shown);
            }
        }
    }
}

Color Canvas_Painter::pixel_shown(const Floating_Paste& paste, Tile_Point pixel, Color below) {
    const std::optional<Color> above = paste.pixel_over(pixel);
    return above ? laid_over(*above, below) : below;
}

void Canvas_Painter::paint_markers(const Canvas_Picture& picture, Range columns, Range rows,
                                   const Pixel_Rows& target) {
    const auto cell = [&picture](int column, int row) {
        return Point{picture.origin.x + column * picture.pixel_size,
                     picture.origin.y + row * picture.pixel_size};
    };
    for (int row = rows.first; picture.column_marker != nullptr && row < rows.end; ++row) {
        draw_marker(*picture.column_marker, cell(picture.tile->width() / 2, row), target);
    }
    for (int column = columns.first; picture.row_marker != nullptr && column < columns.end; ++column) {
        draw_marker(*picture.row_marker, cell(column, picture.tile->height() / 2), target);
    }
}

void Canvas_Painter::paint_row(const Canvas_Picture& picture, Range columns, int row,
                               const Pixel_Rows& target) {
    compose_lines(picture, columns, row);
    const int top = picture.origin.y + row * picture.pixel_size;
    const int grid_y = top + picture.pixel_size - 1;
    for (int y = std::max(top, 0); y < std::min(grid_y, target.size.height); ++y) {
        std::ranges::copy(cell_line_, target.row(y));
    }
    if (grid_y >= 0 && grid_y < target.size.height) {
        std::ranges::copy(grid_line_, target.row(grid_y));
    }
}

void Canvas_Painter::compose_lines(const Canvas_Picture& picture, Range columns, int row) {
    const auto pixels = picture.tile->pixels().subspan(static_cast<std::size_t>(row) *
                                                       static_cast<std::size_t>(picture.tile->width()));
    const int width = static_cast<int>(cell_line_.size());
    // Neighbours often show the same colour.
    Color pixel;
    Color background;
    Color cell;
    Color grid;
    bool is_dimmed = false;
    bool is_known = false;
    for (int column = columns.first; column < columns.end; ++column) {
        const Color own = pixels[static_cast<std::size_t>(column)];
        const Color next_pixel =
            picture.paste == nullptr ? own : pixel_shown(*picture.paste, {column, row}, own);
        const bool next_is_dimmed =
            picture.selection != nullptr && !picture.selection->contains({column, row});
        const Color next_background =
            next_pixel.a == 255 ? background : checkerboard_color(column, row, picture.checker);
        if (!is_known || next_pixel != pixel || next_background != background ||
            next_is_dimmed != is_dimmed) {
            pixel = next_pixel;
            background = next_background;
            is_dimmed = next_is_dimmed;
            cell = blended_over(pixel, background);
            grid = blended_over(grid_color(pixel, picture.grid_intensity), cell);
            if (is_dimmed) {
                cell = blended_over(dimming, cell);
                grid = blended_over(dimming, grid);
            }
            is_known = true;
        }
        const int left = picture.origin.x + column * picture.pixel_size;
        fill_cell({std::max(left, 0), std::min(left + picture.pixel_size, width)}, {cell, grid},
                  left + picture.pixel_size <= width);
    }
}

void Canvas_Painter::fill_cell(Range extent, Cell_Colors colors, bool shows_right_line) {
    Color* const cell = cell_line_.data();
    Color* const grid = grid_line_.data();
    for (int x = extent.first; x < extent.end; ++x) {
        cell[x] = colors.cell;
        grid[x] = colors.grid;
    }
    if (shows_right_line) {
        cell[extent.end - 1] = colors.grid;
    }
}

} // namespace quadrelle
