#include "color/color_edit.h"

#include "tests/color/hsv_grid.h"

namespace quadrelle::testing {
namespace {

TEST(color_edit, agrees_with_an_independent_conversion_both_ways) {
    for_many_colors([](Color color) {
        Color_Edit edit(color);
        const Exact_HSV exact = hsv_of(color);
        ASSERT_NEAR(edit.number(Color_Channel::saturation), 100.0 * exact.saturation, 0.5 + 1e-9);
        ASSERT_NEAR(edit.number(Color_Channel::value), exact.value / 2.55, 0.5 + 1e-9);
        ASSERT_NEAR(std::remainder(edit.number(Color_Channel::hue) - exact.hue, 360.0), 0.0, 0.5 + 1e-9);

        const auto expect = [&](Color_Channel channel, int number, const Exact_HSV& wanted) {
            Color_Edit changed = edit;
            changed.set_number(channel, number);
            if (changed.number(channel) != edit.number(channel)) {
                ASSERT_TRUE(is_near(changed.color(), exact_rgb(wanted))) << color.word();
            }
            ASSERT_EQ(changed.number(channel), number);
        };
        expect(Color_Channel::hue, 77, {77.0, exact.saturation, exact.value});
        expect(Color_Channel::saturation, 35, {exact.hue, 0.35, exact.value});
        expect(Color_Channel::value, 62, {exact.hue, exact.saturation, 0.62 * 255.0});
        edit.set_number(Color_Channel::hue, edit.number(Color_Channel::hue));
        ASSERT_EQ(edit.color(), color);
    });
}

TEST(color_edit, keeps_the_hue_through_every_grey) {
    for (int hue = 0; hue < 360; ++hue) {
        Color_Edit edit(Color(200, 100, 50, 77));
        edit.set_number(Color_Channel::hue, hue);
        edit.set_number(Color_Channel::saturation, 0);
        ASSERT_TRUE(edit.color().is_grey());
        edit.set_color({90, 90, 90, 77});
        edit.set_number(Color_Channel::red, 40);
        edit.set_color({40, 40, 40, 77});
        edit.set_color({0, 0, 0, 77});
        // Turned by the red that was added on the way.
        ASSERT_EQ(edit.number(Color_Channel::hue), 180);
        edit.set_number(Color_Channel::hue, hue);
        edit.set_color({120, 120, 120, 77});
        ASSERT_EQ(edit.number(Color_Channel::hue), hue);
        edit.set_number(Color_Channel::saturation, 100);
        edit.set_number(Color_Channel::value, 100);
        ASSERT_TRUE(is_near(edit.color(), exact_rgb({hue + 0.0, 1.0, 255.0}))) << hue;
        ASSERT_EQ(edit.color().a, 77);
    }
}

// Also through numbers that leave nothing to see of it.
TEST(color_edit, one_component_leaves_the_others) {
    constexpr std::array components{Color_Channel::hue, Color_Channel::saturation, Color_Channel::value};
    const Color_Edit before(Color(97, 18, 124, 200));
    for (const Color_Channel changed : components) {
        Color_Edit edit(before);
        edit.set_number(changed, 0);
        edit.set_number(changed, 9);
        for (const Color_Channel other : components) {
            EXPECT_EQ(edit.number(other), other == changed ? 9 : before.number(other));
        }
    }
}

} // namespace
} // namespace quadrelle::testing
