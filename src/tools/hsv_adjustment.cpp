#include "tools/hsv_adjustment.h"

#include <optional>

namespace quadrelle {

namespace {

// Neighbours mostly have one colour, so the last answer is kept.
class Adjuster {
public:
    explicit Adjuster(const HSV_Change& change) : change_(change) {}

    Color operator()(Color color) {
        if (color != last_) {
            last_ = color;
            answer_ = adjusted(color, change_);
        }
        return answer_;
    }

private:
    HSV_Change change_;
    std::optional<Color> last_;
    Color answer_;
};

} // namespace

void adjust_hsv(Drawing_Target& target, const Tile& source, const HSV_Change& change) {
    Adjuster adjuster(change);
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x) {
            target.plot({x, y}, adjuster(source.get_pixel(x, y)));
        }
    }
}

Adjustment_Outcome adjust_hsv(Drawing_Target& target, const HSV_Change& change) {
    const Tile source(target.tile());
    adjust_hsv(target, source, change);
    return target.tile().same_pixels(source) ? Adjustment_Outcome::nothing_changed
                                             : Adjustment_Outcome::tile_changed;
}

} // namespace quadrelle
