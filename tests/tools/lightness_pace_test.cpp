#include "tools/lightness_pace.h"

#include <limits>

#include <gtest/gtest.h>

namespace quadrelle {

TEST(Lightness_Pace, waits_longer_than_its_interval) {
    const Lightness_Pace moderate;
    EXPECT_FALSE(lightness_step(1008, 1000, moderate, 6, Mouse_Button::left));
    EXPECT_TRUE(lightness_step(1009, 1000, moderate, 6, Mouse_Button::left));
    EXPECT_FALSE(lightness_step(999, 1000, moderate, 6, Mouse_Button::left));
    const Lightness_Pace compensated{Lightness_Speed::moderate, Size_Compensation::on, {}};
    EXPECT_FALSE(lightness_step(1020, 1000, compensated, 6, Mouse_Button::left));
    EXPECT_TRUE(lightness_step(1021, 1000, compensated, 6, Mouse_Button::left));
    EXPECT_EQ(lightness_interval({Lightness_Speed::extremely_slow, {}, {}}, 1), 14);
    EXPECT_EQ(lightness_interval({Lightness_Speed::extremely_fast, Size_Compensation::on, {}}, 1), 4);
}

} // namespace quadrelle
