#include "tools/line.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace quadrelle {

namespace {

// No pointer on a screen gets so far; single precision still tells whole pixels apart there.
constexpr int reach = 1 << 20;

struct Line {
    Tile_Point from;
    Tile_Point to;
};

// The part of a line that is within reach, as shares 0 to 1 of its way.
struct Share {
    double begin = 0.0;
    double end = 1.0;

    void cut(double start, double way) {
        const double low = (-reach - start) / way;
        const double high = (reach - start) / way;
        begin = std::max(begin, std::min(low, high));
        end = std::min(end, std::max(low, high));
    }
};

bool is_near(Tile_Point point) {
    return std::max(std::abs(std::int64_t{point.x}), std::abs(std::int64_t{point.y})) <= reach;
}

// Its axis is left alone along which the line does not move: what lies too far there is caught at the end.
std::optional<Line> near_part(Line line) {
    if (is_near(line.from) && is_near(line.to)) {
        return line;
    }
    const double way_x = static_cast<double>(line.to.x) - line.from.x;
    const double way_y = static_cast<double>(line.to.y) - line.from.y;
    Share share;
    if (way_x != 0.0) {
        share.cut(line.from.x, way_x);
    }
    if (way_y != 0.0) {
        share.cut(line.from.y, way_y);
    }
    if (share.begin > share.end) {
        return std::nullopt;
    }
    const auto point_at = [&](double part) {
        return Tile_Point{static_cast<int>(std::round(line.from.x + part * way_x)),
                          static_cast<int>(std::round(line.from.y + part * way_y))};
    };
    const Line part{point_at(share.begin), point_at(share.end)};
    return is_near(part.from) && is_near(part.to) ? std::optional(part) : std::nullopt;
}

} // namespace

Line_Steps line_steps(Tile_Point from, Tile_Point to) {
    const std::optional<Line> line = near_part({from, to});
    if (!line) {
        return {};
    }
    const int dx = line->to.x - line->from.x;
    const int dy = line->to.y - line->from.y;
    const int count = std::max(std::abs(dx), std::abs(dy));
    const auto divisor = static_cast<float>(std::max(count, 1));
    return {static_cast<float>(line->from.x), static_cast<float>(line->from.y),
            static_cast<float>(dx) / divisor, static_cast<float>(dy) / divisor, count + 1};
}

void draw_line(Drawing_Target& target, Tile_Point from, Tile_Point to, Color color) {
    walk_line(from, to, [&](Tile_Point position) { target.plot(position, color); });
}

std::int64_t line_length(Tile_Point from, Tile_Point to) {
    const double dx = static_cast<double>(to.x) - from.x;
    const double dy = static_cast<double>(to.y) - from.y;
    return static_cast<std::int64_t>(std::sqrt(dx * dx + dy * dy)) + 1;
}

} // namespace quadrelle
