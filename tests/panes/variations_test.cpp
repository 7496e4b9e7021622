#include "panes/variations.h"

#include "tests/color/hsv_grid.h"
#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

constexpr std::array kinds{Ramp_Kind::lightness, Ramp_Kind::saturation, Ramp_Kind::hue,
                           Ramp_Kind::cool_to_warm};

int sum(Color color) {
    return color.r + color.g + color.b;
}

TEST(Color_Ramp, holds_its_own_colour_exactly_and_its_alpha_everywhere) {
    for_many_colors([](Color color) {
        color.a = color.r == 50 ? 90 : 255;
        for (const Ramp_Kind kind : kinds) {
            const Color_Ramp ramp = make_ramp(kind, color, {255, 0, 0});
            ASSERT_TRUE(ramp.own >= 0 && ramp.own < ramp_size);
            EXPECT_EQ(ramp.colors.at(static_cast<std::size_t>(ramp.own)), color);
            for (const Color other : ramp.colors) {
                EXPECT_EQ(other.a, color.a);
            }
        }
    });
}

TEST(Color_Ramp, grows_lighter_or_more_saturated_from_left_to_right) {
    for_many_colors([](Color color) {
        const Color_Ramp light = make_ramp(Ramp_Kind::lightness, color, {255, 0, 0});
        const Color_Ramp warm = make_ramp(Ramp_Kind::cool_to_warm, color, {255, 0, 0});
        const Color_Ramp strong = make_ramp(Ramp_Kind::saturation, color, {255, 0, 0});
        for (std::size_t i = 1; i < ramp_size; ++i) {
            EXPECT_GE(sum(light.colors[i]), sum(light.colors[i - 1]));
            EXPECT_GE(warm.colors[i].max_channel() + 1, warm.colors[i - 1].max_channel());
            EXPECT_LE(strong.colors[i].min_channel(), strong.colors[i - 1].min_channel() + 1);
            EXPECT_EQ(strong.colors[i].max_channel(), color.max_channel());
        }
    });
}

TEST(Color_Ramp, hues_go_once_around_and_stay_when_one_is_taken) {
    const Color_Ramp ramp = make_ramp(Ramp_Kind::hue, {200, 60, 60}, {});
    for (std::size_t i = 0; i < ramp_size; ++i) {
        const double expected = 30.0 * static_cast<double>(i);
        EXPECT_NEAR(std::remainder(hsv_of(ramp.colors[i]).hue - expected, 360.0), 0.0, 1.5);
        const Color_Ramp next = make_ramp(Ramp_Kind::hue, ramp.colors[i], {});
        EXPECT_EQ(next.own, static_cast<int>(i));
        for (std::size_t k = 0; k < ramp_size; ++k) {
            EXPECT_LT(std::abs(sum(next.colors[k]) - sum(ramp.colors[k])), 6);
        }
    }
}

// Half around and half around again.
TEST(Color_Ramp, hues_are_rounded_so_that_the_opposite_of_the_opposite_is_the_same) {
    const auto opposite = [](Color color) {
        const Color_Ramp ramp = make_ramp(Ramp_Kind::hue, color, {255, 0, 0});
        return ramp.colors.at(static_cast<std::size_t>((ramp.own + ramp_size / 2) % ramp_size));
    };
    for_many_colors([&](Color color) { EXPECT_EQ(opposite(opposite(color)), color); });
}

TEST(Color_Ramp, a_grey_takes_the_hue_of_the_reference) {
    const Color_Ramp ramp = make_ramp(Ramp_Kind::saturation, {90, 90, 90}, {0, 255, 0});
    EXPECT_EQ(ramp.own, 0);
    EXPECT_EQ(ramp.colors.back(), Color(0, 90, 0));
    for (const Color color : make_ramp(Ramp_Kind::saturation, {90, 90, 90}, {7, 7, 7}).colors) {
        EXPECT_EQ(color.max_channel(), 90);
    }
}

class Variations_Test : public Window_Test {};

TEST_F(Variations_Test, clicks_along_a_ramp_lead_back_to_the_colour_they_began_with) {
    Color_Variations pane({1026, 478, 202, 133});
    for (const Color start : {Color(200, 30, 90), Color(97, 18, 124, 90), Color(3, 2, 1), Color(9, 9, 9)}) {
        for (int row = 0; row < 4; ++row) {
            SCOPED_TRACE(start.r * 10 + row);
            const auto click = [&](int column) {
                const Rectangle client = pane.client_area();
                return *pane.click({client.x + column * 16, client.y + 14 + row * 31});
            };
            pane.set_color({1, 2, 3});
            pane.set_color(start);
            int own = 0;
            while (click(own) != start) {
                ++own;
            }
            Color last;
            for (int step = 1; step <= 12; ++step) {
                last = click((own + step) % 12);
                pane.set_color(last);
            }
            EXPECT_EQ(last, start);
        }
    }
}

TEST_F(Variations_Test, every_cell_gives_the_colour_it_shows_and_the_own_one_is_marked) {
    Color_Variations pane({1026, 478, 202, 133});
    for (const Color color : {Color(255, 255, 255), Color(0, 0, 0), Color(200, 30, 90), Color(9, 9, 9)}) {
        pane.set_color(color);
        pane.draw();
        const Rectangle client = pane.client_area();
        for (int row = 0; row < 4; ++row) {
            bool is_marked = false;
            for (int column = 0; column < 12; ++column) {
                const Point corner{client.x + column * 16, client.y + 14 + row * 31};
                const std::optional<Color> chosen = pane.click(corner);
                ASSERT_TRUE(chosen);
                EXPECT_EQ(pane.click({corner.x + 15, corner.y + 15}), chosen);
                EXPECT_EQ(pixel_at({corner.x + 8, corner.y + 8}), *chosen);
                const bool has_mark = pixel_at(corner) == Color(0, 0, 0) &&
                                      pixel_at({corner.x + 1, corner.y + 1}) == Color(255, 255, 255);
                EXPECT_FALSE(has_mark && is_marked);
                is_marked = is_marked || has_mark;
                if (has_mark) {
                    EXPECT_EQ(*chosen, color);
                }
            }
            EXPECT_TRUE(is_marked) << row;
            EXPECT_FALSE(pane.click({client.x, client.y + 13 + row * 31}));
            EXPECT_FALSE(pane.click({client.x + 192, client.y + 20 + row * 31}));
        }
    }
    EXPECT_EQ(pane.area.bottom(), 632);
}

TEST_F(Variations_Test, a_ramp_of_one_colour_is_hatched) {
    Color_Variations pane({1026, 478, 202, 133});
    pane.set_color(Color(255, 255, 255));
    pane.draw();
    const Rectangle client = pane.client_area();
    const auto is_plain = [&](int row) {
        return !has_picture({client.x + 16 * 5, client.y + 14 + row * 31, 16, 16});
    };
    EXPECT_TRUE(is_plain(0) && is_plain(1));
    EXPECT_FALSE(is_plain(2)) << "white has no other hues";
}

} // namespace
} // namespace quadrelle::testing
