#include "color/color_data.h"

#include "tests/support/scratch_files.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace quadrelle {

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

TEST(Color_Data, lists_the_table_up_to_its_end_and_finds_each_row) {
    const Color_Data data;
    std::vector<Named_Color> list = {{"kept", {}}};
    data.all(list);
    ASSERT_EQ(list.size(), 25U);
    EXPECT_EQ(list[0].name, "kept");
    EXPECT_EQ(list[1].name, "Red");
    EXPECT_EQ(list[24].name, "Cadmium green");
    for (std::size_t i = 1; i < list.size(); ++i) {
        EXPECT_EQ(data.name_of(list[i].color), list[i].name);
    }
}

TEST(Color_Data, a_color_named_twice_is_fatal) {
    static constexpr std::array twice = {Named_Color{"One", {1, 2, 3}}, Named_Color{"Two", {4, 5, 6}},
                                         Named_Color{"Three", {1, 2, 3}}};
    EXPECT_EQ(test::fatal_output([] { const Color_Data data(twice); }),
              "Error: Matching id found in color data.!\n");
}

TEST(Color_Data, information_text) {
    EXPECT_EQ(color_information({255, 255, 255}), "R: 255, G: 255, B: 255\rAlpha: 255\rLuminance: 100.0");
    EXPECT_EQ(color_information({0, 255, 7, 0}), "R: 0, G: 255, B: 7\rAlpha: 0\rLuminance: 71.5");
}

} // namespace quadrelle
