#include "color/palette_formats.h"

#include "tests/support/files.h"

namespace quadrelle::testing {
namespace {

using namespace std::string_literals;

Palette_Reading read(const std::string& content, const std::string& name) {
    return read_palette(Bytes(content.begin(), content.end()), name);
}

std::string riff(const std::string& before, const std::string& count, const std::string& colors) {
    return "RIFF    PAL " + before + "data    " + "\x00\x03"s + count + colors;
}

const std::string act_colors = "\x01\x02\x03\xff\x80\x00"s + std::string(762, '\0');

TEST(Palette_Formats_Test, takes_what_other_programs_write) {
    struct Case {
        std::string content, file_name, name;
        std::vector<Color> colors;
    };
    for (const Case& test : std::vector<Case>{
             {"GIMP Palette\nName: Sea green\nColumns: 4\n#\n# by hand\n  1   2   3\tdeep\n255 128   0\n",
              "a.gpl",
              "Sea green",
              {{1, 2, 3}, {255, 128, 0}}},
             {"\xef\xbb\xbfGIMP Palette\r\n#\r\n1 2 3 #01020380\r\n4 5 6 #01020380\r\n",
              "/x/Old one.gpl",
              "Old one",
              {{1, 2, 3, 128}, {4, 5, 6}}},
             {"GIMP Palette\nChannels: RGBA\n#\n1 2 3 128 Untitled\n", "a.gpl", "a", {{1, 2, 3, 128}}},
             {"ff8000\r\n010203\r\n\r\n", "sun.hex", "sun", {{255, 128, 0}, {1, 2, 3}}},
             {"#FF8000, #01020380;#fff", "a.HEX", "a", {{255, 128, 0}, {1, 2, 3, 128}, {255, 255, 255}}},
             {"; a comment\n;Palette Name: Dusk\n80010203\nFFff8000\n",
              "a.txt",
              "Dusk",
              {{1, 2, 3, 128}, {255, 128, 0}}},
             {"#01020380", "a.txt", "a", {{1, 2, 3, 128}}},
             {"80010203\nff8000", "a.txt", "a", {{1, 2, 3, 128}, {255, 128, 0}}},
             {"JASC-PAL\r\n0100\r\n2\r\n\r\n1 2 3\r\n255 128 0\r\n",
              "a.pal",
              "a",
              {{1, 2, 3}, {255, 128, 0}}},
             {"JASC-PAL\n0100\n1\n1 2 3 128", "a.pal", "a", {{1, 2, 3, 128}}},
             {riff("", "\x02\x00"s, "\x01\x02\x03\x00\xff\x80\x00\x04"s),
              "a.pal",
              "a",
              {{1, 2, 3}, {255, 128, 0}}},
             {riff("offl\x03\x00\x00\x00"
                   "abc\x00"s,
                   "\x01\x00"s, "\x01\x02\x03\x00"s),
              "a.pal",
              "a",
              {{1, 2, 3}}},
             {act_colors + "\x00\x02\x00\x01"s, "a.act", "a", {{1, 2, 3}, {255, 128, 0, 0}}},
         }) {
        const Palette_Reading reading = read(test.content, test.file_name);
        EXPECT_EQ(reading.palette, Palette(test.name, test.colors)) << test.content << reading.refusal;
    }
    const std::string filled_up = act_colors + "\x00\x00\x00\x00"s;
    for (const std::string& table : {act_colors, filled_up}) {
        const std::vector<Color> colors = read(table, "a.act").palette->colors;
        EXPECT_EQ(colors.size(), 256U);
        EXPECT_EQ(colors.front(), Color(1, 2, 3));
    }
}

TEST(Palette_Formats_Test, says_what_is_wrong) {
    struct Case {
        std::string content, file_name, refusal;
    };
    for (const Case& test : std::vector<Case>{
             {"", "a.gpl", "It holds no color."},
             {"GIMP Palette\n#\n1 2 3\n1 2\n", "a.gpl", "Line 4 is no color: \"1 2\""},
             {"GIMP Palette\n1 2 256\n", "a.gpl", "Line 2 is no color: \"1 2 256\""},
             {"GIMP Palette\n-1 2 5x\n", "a.gpl", "Line 2 is no color: \"-1 2 5x\""},
             {"ff8000\nan ordinary text\n", "a.txt", "Line 2 is no color: \"an\""},
             {"128 128 128\n", "a.txt", "Line 1 is no color: \"128\""},
             {"\x89PNG\r\n\x1a\n"s, "a.png", "Line 1 is no color: \"\x89PNG\""},
             {"JASC-PAL\n0100\nmany\n", "a.pal", "Line 3 does not say how many colors there are."},
             {"JASC-PAL\n0100\n2\n1 2 3\n", "a.pal", "It says 2 colors and ends after 1."},
             {"JASC-PAL\n0100\n1\n1 2 3 4 5\n", "a.pal", "Line 4 is no color: \"1 2 3 4 5\""},
             {riff("", "\x02\x00"s, "\x01\x02\x03\x00\xff"s), "a.pal", "It ends before its 2 colors do."},
             {riff("offl\xff\xff\xff\xff"s, "\x01\x00"s, "abcd"), "a.pal", "It holds no color."},
             {act_colors + "\x00\x02"s, "a.act", "A color table has 768 or 772 bytes, this one has 770."},
         }) {
        const Palette_Reading reading = read(test.content, test.file_name);
        EXPECT_EQ(reading.refusal, test.refusal);
        EXPECT_FALSE(reading.palette) << test.content;
    }
}

TEST(Palette_Formats_Test, every_part_of_a_file_is_taken_or_refused) {
    for (const std::string& whole :
         {riff("offl\x02\x00\x00\x00"
               "ab"s,
               "\x01\x00"s, "\x01\x02\x03\x00"s),
          "JASC-PAL\n0100\n1\n1 2 3"s, "GIMP Palette\nName: x\nChannels: RGBA\n1 2 3 4 x"s}) {
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            const Palette_Reading reading = read(whole.substr(0, length), "a.pal");
            EXPECT_NE(reading.palette.has_value(), !reading.refusal.empty()) << whole.substr(0, length);
        }
    }
}

TEST(Palette_Formats_Test, what_is_written_comes_back_and_says_no_alpha_to_who_knows_none) {
    Palette palette("Sea green", {{1, 2, 3}, {255, 128, 0, 0}, {0, 0, 0, 0}, {9, 9, 9, 128}});
    EXPECT_EQ(read(gpl_text(palette), "a.gpl").palette, palette);
    EXPECT_TRUE(gpl_text(palette).starts_with("GIMP Palette\nName: Sea green\nColumns: 8\n#\n"
                                              "  1   2   3\t#010203\n255 128   0\t#ff800000\n"));
    EXPECT_EQ(read(hex_lines(palette.colors), "Sea green.hex").palette, palette);
    palette.colors.resize(300);
    const Palette_Reading reading = read(gpl_text(palette), "a.gpl");
    EXPECT_EQ(reading.palette->colors.size(), 256U);
    EXPECT_EQ(reading.left_out, 44U);
}

} // namespace
} // namespace quadrelle::testing
