#include "tools/shapes.h"

#include "tools/line.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace quadrelle {

namespace {

// Keeps the errors of the ellipse within 64 bits. Near its centre a larger one looks the same.
constexpr int largest_radius = 1 << 19;

struct Bounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    Bounds(Tile_Point from, Tile_Point to)
        : left(std::min(from.x, to.x)), top(std::min(from.y, to.y)), right(std::max(from.x, to.x)),
          bottom(std::max(from.y, to.y)) {}

    [[nodiscard]] bool is_edge(Tile_Point position) const {
        return position.x == left || position.x == right || position.y == top || position.y == bottom;
    }
};

// Pixels of a quadrant's steps may lie farther away than an int counts.
struct Far_Point {
    std::int64_t x = 0;
    std::int64_t y = 0;
};

Radii bounded(Radii radii) {
    const auto bound = [](int radius) {
        return static_cast<int>(std::min<std::int64_t>(std::abs(std::int64_t{radius}), largest_radius));
    };
    return {bound(radii.x), bound(radii.y)};
}

void plot(Drawing_Target& target, Far_Point position, Color color) {
    const auto [width, height] = target.size();
    if (position.x >= 0 && position.y >= 0 && position.x < width && position.y < height) {
        target.plot({static_cast<int>(position.x), static_cast<int>(position.y)}, color);
    }
}

// Rows from the top one, up to but not including the bottom one.
void fill_column(Drawing_Target& target, std::int64_t x, std::int64_t top, std::int64_t bottom, Color color) {
    const std::int64_t height = target.size().height;
    if (x < 0 || x >= target.size().width) {
        return;
    }
    const std::int64_t end = std::min(bottom, height);
    for (std::int64_t y = std::max<std::int64_t>(top, 0); y < end; ++y) {
        plot(target, {x, y}, color);
    }
}

// Calls visit(x, y) from the left end (-a, 0) until x, which is never above 0, reaches 0. Returns the next
// row, which a very narrow ellipse has before its tip.
template <typename Visit>
std::int64_t walk_quadrant(Radii radii, Visit visit) {
    const std::int64_t a = radii.x;
    const std::int64_t b = radii.y;
    std::int64_t x = -a;
    std::int64_t y = 0;
    std::int64_t error_x = (1 - 2 * a) * b * b;
    std::int64_t error_y = a * a;
    std::int64_t error = error_x + error_y;
    do {
        visit(x, y);
        const std::int64_t doubled = 2 * error;
        if (doubled >= error_x) {
            ++x;
            error_x += 2 * b * b;
            error += error_x;
        }
        if (doubled <= error_y) {
            ++y;
            error_y += 2 * a * a;
            error += error_y;
        }
    } while (x <= 0);
    return y;
}

} // namespace

void draw_rectangle(Drawing_Target& target, Tile_Point from, Tile_Point to, Color color) {
    draw_line(target, from, {to.x, from.y}, color);
    draw_line(target, from, {from.x, to.y}, color);
    draw_line(target, {from.x, to.y}, to, color);
    draw_line(target, {to.x, from.y}, to, color);
}

void draw_filled_rectangle(Drawing_Target& target, Tile_Point from, Tile_Point to, Shape_Colors colors) {
    const Bounds bounds(from, to);
    const int right = std::min(bounds.right, target.size().width - 1);
    const int bottom = std::min(bounds.bottom, target.size().height - 1);
    for (int y = std::max(bounds.top, 0); y <= bottom; ++y) {
        for (int x = std::max(bounds.left, 0); x <= right; ++x) {
            target.plot({x, y}, bounds.is_edge({x, y}) ? colors.outline : colors.inside);
        }
    }
}

void draw_ellipse(Drawing_Target& target, Tile_Point centre, Radii radii, Color color) {
    const Radii near = bounded(radii);
    const std::int64_t centre_x = centre.x;
    const std::int64_t centre_y = centre.y;
    std::int64_t y = walk_quadrant(near, [&](std::int64_t dx, std::int64_t dy) {
        plot(target, {centre_x - dx, centre_y + dy}, color);
        plot(target, {centre_x + dx, centre_y + dy}, color);
        plot(target, {centre_x + dx, centre_y - dy}, color);
        plot(target, {centre_x - dx, centre_y - dy}, color);
    });
    // The tips of an ellipse that is too narrow for the steps to reach them.
    while (y++ < near.y) {
        plot(target, {centre_x, centre_y + y}, color);
        plot(target, {centre_x, centre_y - y}, color);
    }
}

void draw_filled_ellipse(Drawing_Target& target, Tile_Point centre, Radii radii, Shape_Colors colors) {
    const Radii near = bounded(radii);
    std::int64_t column = 0;
    std::int64_t height = 0;
    const auto fill_columns = [&] {
        for (const std::int64_t x : {centre.x + column, centre.x - column}) {
            fill_column(target, x, centre.y - height, centre.y + height, colors.inside);
        }
    };
    // The last step in a column is the highest, and fills what all before it would.
    walk_quadrant(near, [&](std::int64_t dx, std::int64_t dy) {
        if (dx != column) {
            fill_columns();
        }
        column = dx;
        height = dy;
    });
    fill_columns();
    draw_ellipse(target, centre, radii, colors.outline);
}

void draw_shape(Drawing_Target& target, Canvas_Action action, Tile_Point from, Tile_Point to,
                Button_Colors colors) {
    const Shape_Colors single{colors.own, colors.own};
    const Shape_Colors both{colors.own, colors.other};
    const Radii radii = ellipse_radii(from, to);
    switch (action) {
    case Canvas_Action::line: draw_line(target, from, to, colors.own); break;
    case Canvas_Action::rectangle_outline: draw_rectangle(target, from, to, colors.own); break;
    case Canvas_Action::rectangle_filled: draw_filled_rectangle(target, from, to, single); break;
    case Canvas_Action::rectangle_filled_outline: draw_filled_rectangle(target, from, to, both); break;
    case Canvas_Action::ellipse_outline: draw_ellipse(target, from, radii, colors.own); break;
    case Canvas_Action::ellipse_filled: draw_filled_ellipse(target, from, radii, single); break;
    case Canvas_Action::ellipse_filled_outline: draw_filled_ellipse(target, from, radii, both); break;
    default: break;
    }
}

namespace {

int distance(int from, int to) {
    constexpr std::int64_t largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(std::abs(std::int64_t{to} - from), largest));
}

int pixels_between(int from, int to) {
    const int way = distance(from, to);
    return way < std::numeric_limits<int>::max() ? way + 1 : way;
}

} // namespace

Size rectangle_size(Tile_Point from, Tile_Point to) {
    return {pixels_between(from.x, to.x), pixels_between(from.y, to.y)};
}

Radii ellipse_radii(Tile_Point centre, Tile_Point to) {
    return {distance(centre.x, to.x), distance(centre.y, to.y)};
}

} // namespace quadrelle
