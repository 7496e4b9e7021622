#include "color/color_ramp.h"

#include "color/hsv.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr int last = ramp_size - 1;
constexpr double wheel = 360.0;
constexpr double hue_step = wheel / ramp_size;
constexpr double cool_hue = 245.0;
constexpr double warm_hue = 55.0;
// How far the ends of the ramp go towards those hues, and how much colour a grey takes on there.
constexpr double turn_share = 0.6;
constexpr double grey_tint = 0.35;
// Shadows gain saturation and lights lose it.
constexpr double shadow_gain = 0.4;
constexpr double light_loss = 0.7;

double wrapped(double hue) {
    const double rest = std::fmod(hue, wheel);
    return rest < 0.0 ? rest + wheel : rest;
}

// From one hue to the other, the shorter way round.
double turn(double from, double to) {
    const double distance = wrapped(to - from);
    return distance > wheel / 2 ? distance - wheel : distance;
}

HSV_Color hsv_of(Color color, Color reference) {
    HSV_Color hsv(color, reference);
    hsv.hue = std::isfinite(hsv.hue) ? hsv.hue : 0.0;
    return hsv;
}

int nearest_place(double fraction) {
    return std::clamp(static_cast<int>(std::lround(fraction * last)), 0, last);
}

double lightness_of(Color color) {
    return (color.max_channel() + color.min_channel()) / 510.0;
}

// The share of the way from the own colour to black, and to white, at that place.
struct Distance {
    double shadow = 0.0;
    double light = 0.0;
};

Distance distance_from(int own, int place) {
    if (place < own) {
        return {static_cast<double>(own - place) / (own + 1), 0.0};
    }
    return {0.0, static_cast<double>(place - own) / (ramp_size - own)};
}

Color shaded(Color color, Distance distance) {
    const auto channel = [distance](int level) {
        const double dark = level * (1.0 - distance.shadow);
        return truncated_channel(dark + (255.0 - dark) * distance.light + 0.5);
    };
    return {channel(color.r), channel(color.g), channel(color.b)};
}

Color with_shifted_hue(const HSV_Color& own, Distance distance) {
    const double far = std::max(distance.shadow, distance.light);
    const double aim = distance.shadow > 0.0 ? cool_hue : warm_hue;
    const bool is_grey = own.saturation.value() <= 0.0;
    HSV_Color hsv = own;
    hsv.hue = is_grey ? aim : wrapped(own.hue + turn(own.hue, aim) * turn_share * far);
    hsv.value = own.value.value() * (1.0 - distance.shadow) + (255.0 - own.value.value()) * distance.light;
    if (is_grey) {
        hsv.saturation = grey_tint * far;
    } else {
        hsv.saturation += (1.0 - own.saturation.value()) * shadow_gain * distance.shadow;
        hsv.saturation -= own.saturation.value() * light_loss * distance.light;
    }
    return hsv.nearest_rgb();
}

int own_place(Ramp_Kind kind, Color color, const HSV_Color& hsv) {
    switch (kind) {
    case Ramp_Kind::lightness: return nearest_place(lightness_of(color));
    case Ramp_Kind::saturation: return nearest_place(hsv.saturation.value());
    case Ramp_Kind::hue: return static_cast<int>(std::lround(hsv.hue / hue_step)) % ramp_size;
    case Ramp_Kind::cool_to_warm: break;
    }
    return nearest_place(hsv.value.value() / 255.0);
}

Color color_at(Ramp_Kind kind, Color color, HSV_Color hsv, int own, int place) {
    switch (kind) {
    case Ramp_Kind::lightness: return shaded(color, distance_from(own, place));
    case Ramp_Kind::saturation: hsv.saturation = static_cast<double>(place) / last; return hsv.nearest_rgb();
    case Ramp_Kind::hue: hsv.hue = wrapped(hsv.hue + (place - own) * hue_step); return hsv.nearest_rgb();
    case Ramp_Kind::cool_to_warm: break;
    }
    return with_shifted_hue(hsv, distance_from(own, place));
}

} // namespace

Color_Ramp make_ramp(Ramp_Kind kind, Color color, Color reference) {
    const HSV_Color hsv = hsv_of(color, reference);
    Color_Ramp ramp;
    ramp.own = own_place(kind, color, hsv);
    for (int place = 0; place < ramp_size; ++place) {
        Color& target = ramp.colors.at(static_cast<std::size_t>(place));
        target = place == ramp.own ? color : color_at(kind, color, hsv, ramp.own, place);
        target.a = color.a;
    }
    return ramp;
}

} // namespace quadrelle
