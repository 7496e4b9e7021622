#include "color/color_data.h"

#include "tests/support/files.h"

namespace quadrelle::testing {

TEST(Color_Data, names_are_exact) {
    const Color_Data data;
    EXPECT_EQ(data.name_of({0, 0, 0}), "Black");
    EXPECT_EQ(data.name_of({196, 2, 52}), "Red");
    EXPECT_EQ(data.name_of({0, 0, 255}), "Dark blue");
    EXPECT_EQ(data.name_of({0, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(data.name_of({196, 2, 53}), std::nullopt);
    EXPECT_EQ(data.shown_name({196, 2, 52, 254}), "---");
    EXPECT_EQ(data.shown_name({255, 0, 0}), "---");
}

TEST(Color_Data, information_text) {
    EXPECT_EQ(color_information({255, 255, 255}), "R: 255, G: 255, B: 255\rAlpha: 255\rLuminance: 100.0");
    EXPECT_EQ(color_information({0, 255, 7, 0}), "R: 0, G: 255, B: 7\rAlpha: 0\rLuminance: 71.5");
}

} // namespace quadrelle::testing
