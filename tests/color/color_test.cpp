#include "color/color.h"

#include "tests/color/hsv_grid.h"

#include <bit>
#include <cstdint>
#include <limits>

namespace quadrelle::testing {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

static_assert(std::bit_cast<std::uint32_t>(Color(0x12, 0x34, 0x56, 0x78)) == 0x78123456 ||
              std::endian::native != std::endian::little);

template <typename Action>
Color changed(Color color, Action action) {
    action(color);
    return color;
}

TEST(Color, addition_wraps_and_clamped_addition_tells_of_its_bound) {
    EXPECT_EQ(changed({100, 1, 255, 200}, [](Color& c) { c.add(200, -2, 1, 56); }), Color(44, 255, 0, 0));
    EXPECT_EQ(changed({1, 2, 3, 4}, [](Color& c) { c.add_rgb(255, 256, -3); }), Color(0, 2, 0, 4));

    Color color(250, 3, 0, 128);
    EXPECT_EQ(color.add_clamped(0, 5), 0);
    EXPECT_EQ(color.add_clamped(0, 1), -1);
    EXPECT_EQ(color.add_clamped(1, -3), 0);
    EXPECT_EQ(color.add_clamped(2, std::numeric_limits<int>::min()), -1);
    EXPECT_EQ(color.add_clamped(3, std::numeric_limits<int>::max()), -1);
    EXPECT_EQ(color, Color(255, 0, 0, 255));
}

TEST(Color, brightening_is_the_clamped_and_truncated_sum) {
    for (int channel = 0; channel <= 255; ++channel) {
        const Color color(channel, 0, 255, 9);
        for (int amount = -300; amount <= 300; amount += 7) {
            const auto sum = [amount](int start) { return std::min(255, std::max(0, start + amount)); };
            const Color expected(sum(channel), sum(0), sum(255), 9);
            EXPECT_EQ(changed(color, [&](Color& c) { c.brighten(amount); }), expected);
            EXPECT_EQ(changed(color, [&](Color& c) { c.darken(-amount); }), expected);
        }
    }
    EXPECT_EQ(changed({10, 0, 255}, [](Color& c) { c.brighten(0.9); }), Color(10, 0, 255));
    EXPECT_EQ(changed({10, 0, 255}, [](Color& c) { c.darken(0.1); }), Color(9, 0, 254));
}

TEST(Color, amounts_without_sense_stay_in_range) {
    const Color color(10, 20, 30, 40);
    EXPECT_EQ(changed(color, [](Color& c) { c.brighten(nan); }), Color(0, 0, 0, 40));
    EXPECT_EQ(changed(color, [](Color& c) { c.brighten(infinity); }), Color(255, 255, 255, 40));
    EXPECT_EQ(changed(color, [](Color& c) { c.darken(1e300); }), Color(0, 0, 0, 40));
    EXPECT_EQ(changed(color, [](Color& c) { c.brighten_weighted(-infinity); }), Color(0, 0, 0, 40));
    EXPECT_EQ(changed(color, [&](Color& c) { c.blend({1, 2, 3, 4}, nan); }), Color(0, 0, 0, 4));
}

// The reference counts in thousandths, with the unusual weight of blue.
TEST(Color, weighted_brightening_has_the_weights_299_587_144) {
    for (int channel = 0; channel <= 255; ++channel) {
        const auto after = [channel](int amount) {
            const auto sum = [&](int weight) {
                return std::clamp(channel * 1000 + amount * weight, 0, 255000) / 1000;
            };
            return Color(sum(299), sum(587), sum(144));
        };
        const Color grey(channel, channel, channel);
        EXPECT_EQ(changed(grey, [](Color& c) { c.brighten_weighted(3.0); }), after(3));
        EXPECT_EQ(changed(grey, [](Color& c) { c.darken_weighted(51.0); }), after(-51));
    }
}

TEST(Color, mixes_truncate_and_take_the_other_alpha) {
    EXPECT_EQ(changed({255, 1, 0, 7}, [](Color& c) { c.average({254, 2, 1, 99}); }), Color(254, 1, 0, 99));
    const auto blend = [](Color& c) { c.blend({100, 200, 11, 99}, 0.25); };
    EXPECT_EQ(changed({200, 100, 10, 7}, blend), Color(125, 175, 10, 99));
    for_many_colors([](Color color) {
        const Color other(color.b, color.r, 255 - color.g, 3);
        EXPECT_EQ(changed(color, [&](Color& c) { c.blend(other, 0.5); }),
                  changed(color, [&](Color& c) { c.average(other); }));
        EXPECT_TRUE(changed(color, [&](Color& c) { c.blend(other, 1.0); }).same_rgb(color));
        EXPECT_EQ(changed(color, [&](Color& c) { c.blend(other, 0.0); }), other);
    });
}

TEST(Color, matching_a_direction_keeps_the_length) {
    for_many_colors([](Color own) {
        const Color other(own.g, 255 - own.b, own.r ^ 21);
        const auto length = [](Color c) { return std::sqrt(1.0 * (c.r * c.r + c.g * c.g + c.b * c.b)); };
        const Color result = changed(own, [&](Color& c) { c.match_direction(other); });
        for (int i = 0; i < 3; ++i) {
            const double exact = std::min(255.0, length(own) * other.channel(i) / length(other));
            EXPECT_NEAR(result.channel(i), exact - 0.5, 0.5 + 1e-9);
        }
    });
    EXPECT_EQ(changed({1, 2, 3, 50}, [](Color& c) { c.match_direction({}); }), Color(0, 0, 0, 50));
}

TEST(Color, taking_a_hue_keeps_value_and_alpha) {
    EXPECT_EQ(changed({100, 50, 50, 8}, [](Color& c) { take_hue(c, {0, 0, 255}); }), Color(0, 0, 100, 8));
    EXPECT_EQ(changed({100, 50, 50, 8}, [](Color& c) { take_hue(c, {7, 7, 7}); }), Color(100, 100, 100, 8));
    for_many_colors([](Color color) {
        const Color result = changed(color, [](Color& c) { take_hue(c, {255, 128, 0, 3}); });
        EXPECT_EQ(result.r, color.max_channel());
        EXPECT_EQ(result.g, color.max_channel() * 128 / 255);
        EXPECT_EQ(result.b, 0);
        EXPECT_EQ(result.a, 255);
    });
}

TEST(Color, luminance_follows_the_curve_of_the_eye) {
    EXPECT_DOUBLE_EQ(Color(255, 255, 255).luminance(), 1.0);
    EXPECT_DOUBLE_EQ(Color(0, 0, 0).luminance(), 0.0);
    EXPECT_DOUBLE_EQ(Color(0, 255, 0).luminance(), 0.7152);
    EXPECT_NEAR(Color(10, 10, 10).luminance(), 0.00303527, 1e-8); // on the straight part
    EXPECT_NEAR(Color(188, 188, 188).luminance(), 0.50288646, 1e-8);
    EXPECT_TRUE(Color(0, 0, 255).is_dark());
    EXPECT_TRUE(Color(100, 100, 100).is_dark());
    EXPECT_FALSE(Color(137, 137, 137).is_dark());
    EXPECT_FALSE(Color(0, 255, 0).is_dark());
}

} // namespace
} // namespace quadrelle::testing
