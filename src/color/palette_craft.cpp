#include "color/palette_craft.h"

#include "color/hsv.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace quadrelle {

namespace {

int mixed(int from, int to, double share) {
    return static_cast<int>(std::lround(from + (to - from) * share));
}

// Both hues are the same, or no number, where a colour is grey.
double mixed_hue(double from, double to, double share) {
    constexpr double wheel = 360.0;
    const double ahead = std::fmod(to - from + wheel, wheel);
    const double turn = ahead > wheel / 2 ? ahead - wheel : ahead;
    return std::fmod(from + turn * share + wheel, wheel);
}

Color mixed_in_hsv(Color from, Color to, double share) {
    const HSV_Color start(from, to);
    const HSV_Color end(to, from);
    HSV_Color hsv;
    hsv.hue = mixed_hue(start.hue, end.hue, share);
    hsv.saturation = std::lerp(start.saturation.value(), end.saturation.value(), share);
    hsv.value = std::lerp(start.value.value(), end.value.value(), share);
    return hsv.nearest_rgb();
}

template <typename Key>
std::vector<Color> sorted_by(std::vector<Color> colors, const Key& key) {
    std::ranges::stable_sort(colors, {}, key);
    return colors;
}

// As far as it is seen at all, with the weights that the eye gives the channels.
double distance(Color one, Color other) {
    const auto difference = [&](int channel, int other_channel) {
        return (channel * one.a - other_channel * other.a) / 255.0;
    };
    const double r = difference(one.r, other.r);
    const double g = difference(one.g, other.g);
    const double b = difference(one.b, other.b);
    const double a = one.a - other.a;
    return 2.0 * r * r + 4.0 * g * g + 3.0 * b * b + 3.0 * a * a;
}

} // namespace

std::vector<Color> colors_between(Color from, Color to, int count, Ramp_Space space) {
    std::vector<Color> colors;
    for (int i = 1; i <= count; ++i) {
        const double share = static_cast<double>(i) / (count + 1);
        Color color(mixed(from.r, to.r, share), mixed(from.g, to.g, share), mixed(from.b, to.b, share));
        color = space == Ramp_Space::hsv ? mixed_in_hsv(from, to, share) : color;
        color.a = static_cast<std::uint8_t>(mixed(from.a, to.a, share));
        colors.push_back(color);
    }
    return colors;
}

std::vector<Color> sorted_by_hue(std::vector<Color> colors) {
    return sorted_by(std::move(colors), [](Color color) {
        const int kind = color.a == 0 ? 0 : color.is_grey() ? 1 : 2;
        return std::tuple(kind, color.is_grey() ? 0.0 : HSV_Color(color, color).hue, color.luminance());
    });
}

std::vector<Color> sorted_by_lightness(std::vector<Color> colors) {
    return sorted_by(std::move(colors),
                     [](Color color) { return std::pair(color.a != 0, color.luminance()); });
}

std::vector<Color> sorted_as(std::vector<Color> colors, std::span<const Color> order) {
    std::unordered_map<std::uint32_t, std::size_t> places;
    for (std::size_t i = 0; i < order.size(); ++i) {
        places.try_emplace(as_seen(order[i]).word(), i);
    }
    return sorted_by(std::move(colors), [&places, &order](Color color) {
        const auto found = places.find(as_seen(color).word());
        return found == places.end() ? order.size() : found->second;
    });
}

bool is_among(std::span<const Color> colors, Color color) {
    return color.a == 0 || std::ranges::find(colors, color) != colors.end();
}

Color nearest_of(std::span<const Color> colors, Color color) {
    return *std::ranges::min_element(colors, {}, [color](Color other) { return distance(color, other); });
}

} // namespace quadrelle
