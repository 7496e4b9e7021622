#include "tools/recolor.h"

#include <optional>

namespace quadrelle {

namespace {

// Neighbours mostly have one colour, so the last answer is kept.
class Cached_Map {
public:
    explicit Cached_Map(const Color_Map& map) : map_(map) {}

    Color operator()(Color color) {
        if (color != last_) {
            last_ = color;
            answer_ = map_(color);
        }
        return answer_;
    }

private:
    const Color_Map& map_;
    std::optional<Color> last_;
    Color answer_;
};

} // namespace

void recolor(Drawing_Target& target, const Tile& source, const Color_Map& map) {
    Cached_Map cached(map);
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x) {
            target.plot({x, y}, cached(source.get_pixel(x, y)));
        }
    }
}

void recolor(Drawing_Target& target, const Color_Map& map) {
    recolor(target, Tile(target.tile()), map);
}

int count_changes(const Drawing_Target& target, const Color_Map& map) {
    Cached_Map cached(map);
    int count = 0;
    for (int y = 0; y < target.size().height; ++y) {
        for (int x = 0; x < target.size().width; ++x) {
            const Color color = target.get({x, y});
            count += target.is_selected({x, y}) && cached(color) != color ? 1 : 0;
        }
    }
    return count;
}

} // namespace quadrelle
