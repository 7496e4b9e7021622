#include "color/color.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace quadrelle {

namespace {

constexpr double unit = 1.0 / 255.0;

struct Vector {
    double r;
    double g;
    double b;

    explicit Vector(Color color) : r(color.r / unit), g(color.g / unit), b(color.b / unit) {}
    [[nodiscard]] double length() const { return std::sqrt(r * r + g * g + b * b); }
};

double linear(std::size_t channel) {
    const double c = static_cast<double>(channel) / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

// The curve is computed once: a grid asks for the luminance of every pixel in view.
const std::array<double, 256>& linear_channels() {
    static const std::array<double, 256> table = [] {
        std::array<double, 256> channels{};
        for (std::size_t i = 0; i < channels.size(); ++i) {
            channels[i] = linear(i);
        }
        return channels;
    }();
    return table;
}

} // namespace

void Color::match_direction(Color other) {
    if (other.same_rgb(Color())) {
        set_rgb(0, 0, 0);
        return;
    }
    const double own_length = Vector(*this).length();
    const Vector target(other);
    const double target_length = target.length();
    r = truncated_channel(own_length * (target.r / target_length) * unit);
    g = truncated_channel(own_length * (target.g / target_length) * unit);
    b = truncated_channel(own_length * (target.b / target_length) * unit);
}

double Color::luminance() const {
    const auto& linear = linear_channels();
    return 0.2126 * linear[r] + 0.7152 * linear[g] + 0.0722 * linear[b];
}

bool Color::is_dark() const {
    constexpr double middle_to_the_eye = 0.184;
    return luminance() < middle_to_the_eye;
}

} // namespace quadrelle
