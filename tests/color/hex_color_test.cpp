#include "color/hex_color.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace quadrelle {

TEST(hex_color, reads_what_people_write) {
    using Rows = std::vector<std::pair<std::string_view, Color>>;
    for (const auto& [text, color] : Rows{{"#61127c", {0x61, 0x12, 0x7c}},
                                          {"61127C", {0x61, 0x12, 0x7c}},
                                          {" \t#61127c80\r\n", {0x61, 0x12, 0x7c, 0x80}},
                                          {"00000000", {0, 0, 0, 0}},
                                          {"FFFFFFFF", {255, 255, 255}},
                                          {"#1aF", {0x11, 0xaa, 0xff}},
                                          {"000", {0, 0, 0}}}) {
        EXPECT_EQ(read_hex(text).color, color) << text;
        EXPECT_EQ(read_hex(text).refusal, "") << text;
    }
}

TEST(hex_color, says_what_is_wrong) {
    for (const auto& [text, refusal] : std::vector<std::pair<std::string_view, std::string_view>>{
             {"", "It takes 3, 6 or 8 digits, not 0"},
             {"#", "It takes 3, 6 or 8 digits, not 0"},
             {"#61127", "It takes 3, 6 or 8 digits, not 5"},
             {"6112", "It takes 3, 6 or 8 digits, not 4"},
             {"61127c8", "It takes 3, 6 or 8 digits, not 7"},
             {"61127c80f", "It takes 3, 6 or 8 digits, not 9"},
             {"61127g", "\"g\" is no digit: 0 to 9, a to f"},
             {"-1127c", "\"-\" is no digit: 0 to 9, a to f"},
             {"0x61127c", "\"x\" is no digit: 0 to 9, a to f"},
             {"61 12 7c", "\" \" is no digit: 0 to 9, a to f"},
             {"##61127c", "\"#\" is no digit: 0 to 9, a to f"}}) {
        EXPECT_FALSE(read_hex(text).color) << text;
        EXPECT_EQ(read_hex(text).refusal, refusal) << text;
    }
}

TEST(hex_color, reads_what_it_writes) {
    EXPECT_EQ(hex_text({0x61, 0x12, 0x7c}), "#61127c");
    EXPECT_EQ(hex_text({0, 0, 0, 0}), "#00000000");
    for (int i = 0; i < 256; ++i) {
        const Color color(i, 255 - i, i * 7 % 256, i * 13 % 256);
        EXPECT_EQ(read_hex(hex_text(color)).color, color) << i;
    }
}

} // namespace quadrelle
