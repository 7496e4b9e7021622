// The committed sheet as the program will find it, and the composer's answers to wrong sources.

#include "screen/sprite_sheet.h"
#include "tests/support/files.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <set>

namespace quadrelle::testing {
namespace {

namespace fs = std::filesystem;

const Surface& committed_sheet() {
    static const Surface sheet((source_folder() / "data" / "pool.bmp").string());
    return sheet;
}

// A line for each row of pixels: '#' light, '+' dark, '.' the key colour.
std::string picture_of(const Surface& sheet, const Rectangle& area) {
    std::string text;
    for (int y = area.y; y < area.bottom(); ++y, text += '\n') {
        for (int x = area.x; x < area.right(); ++x) {
            const auto pixel = sheet.get_pixel(x, y);
            const bool is_key = pixel.r == 255 && pixel.g == 0 && pixel.b == 255;
            text += is_key ? '.' : pixel.r > 128 ? '#' : '+';
        }
    }
    return text;
}

bool is_drawn(const Rectangle& area) {
    return picture_of(committed_sheet(), area).find_first_of("#+") != std::string::npos;
}

std::vector<int> widths_of(Font font) {
    std::vector<int> widths;
    for (const Rectangle& glyph :
         scan_glyphs(committed_sheet(), font_table[static_cast<std::size_t>(font)])) {
        widths.push_back(glyph.width);
    }
    return widths;
}

// The widths of the grids, in the order in which they stand in the source.
std::vector<int> intended_widths(const std::string& file_name) {
    std::ifstream source(source_folder() / "art" / "fonts" / file_name);
    std::vector<int> widths;
    for (std::string line; std::getline(source, line);) {
        if (line.starts_with("= ") && std::getline(source, line)) {
            widths.push_back(static_cast<int>(line.size()));
        }
    }
    return widths;
}

TEST(Sheet_Asset, every_sprite_is_drawn) {
    for (const Sprite_Row& row : sprite_table) {
        EXPECT_TRUE(is_drawn({row.x, row.y, row.width, row.height})) << row.name;
    }
}

TEST(Sheet_Asset, markers_give_every_glyph_its_width) {
    EXPECT_EQ(widths_of(Font::regular), intended_widths("regular.txt"));
    EXPECT_EQ(widths_of(Font::pane), intended_widths("pane.txt"));
    EXPECT_EQ(widths_of(Font::pane_header), intended_widths("pane_header.txt"));
    EXPECT_EQ(widths_of(Font::header), intended_widths("regular.txt"))
        << "text must not move when it lights up";
}

TEST(Sheet_Asset, every_glyph_but_the_blank_is_drawn_and_differs_and_touches_no_other) {
    for (const Font_Row& font : font_table) {
        const std::vector<Rectangle> glyphs = scan_glyphs(committed_sheet(), font);
        ASSERT_EQ(glyphs.size(), 95U) << font.name;
        EXPECT_FALSE(is_drawn(glyphs[0])) << font.name;
        std::set<std::string> pictures;
        for (const Rectangle& glyph : glyphs) {
            SCOPED_TRACE(std::string(font.name) + ' ' +
                         static_cast<char>(first_character + static_cast<int>(pictures.size())));
            EXPECT_TRUE(is_drawn(glyph) || pictures.empty());
            EXPECT_TRUE(pictures.insert(picture_of(committed_sheet(), glyph)).second) << "as another one";
            const Rectangle last_column{glyph.right() - 1, glyph.y, 1, glyph.height};
            EXPECT_EQ(picture_of(committed_sheet(), last_column).find('#'), std::string::npos);
        }
    }
}

TEST(Sheet_Asset, numbers_do_not_jump) {
    for (const Font_Row& font : font_table) {
        const std::vector<int> widths = widths_of(font.id);
        for (std::size_t digit = '0' - first_character; digit <= '9' - first_character; ++digit) {
            EXPECT_EQ(widths.at(digit), widths.at('0' - first_character)) << font.name;
        }
    }
}

constexpr const char* program_suffix =
#ifdef _WIN32
    ".exe";
#else
    "";
#endif

// An art folder with the real palette and fonts, and the composer that stands beside the program.
class Composer : public ::testing::Test {
protected:
    void SetUp() override {
        program_ = built_program().parent_path() / (std::string("compose_sheet") + program_suffix);
        if (!fs::exists(program_)) {
            GTEST_SKIP() << "this build has no composer";
        }
        fs::create_directories(art() / "sprites");
        fs::copy(source_folder() / "art" / "palette.txt", art());
        fs::copy(source_folder() / "art" / "fonts", art() / "fonts");
    }

    fs::path art() const { return folder_.native_path() / "art"; }
    fs::path output() const { return folder_.native_path() / "pool.bmp"; }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(art() / name, std::ios::binary) << text;
    }

    // What the composer complains about; nothing when it succeeds.
    std::string complaints(const std::string& options = "--allow-missing ") const {
        fs::remove(output());
        const std::string report = folder_.path("report");
        const std::string command =
            program_.string() + " " + options + art().string() + " " + output().string() + " 2> " + report;
        const bool succeeded = std::system(command.c_str()) == 0;
        const std::string said = stored_text(report);
        EXPECT_EQ(succeeded, said.empty());
        EXPECT_EQ(succeeded, fs::exists(output()));
        return said;
    }

    std::string complaints_about(const std::string& sprites) const {
        write("sprites/a.txt", sprites);
        return complaints();
    }

    [[nodiscard]] std::string drawn(Sprite sprite) const {
        return picture_of(Surface(output().string()), sprite_rect(sprite));
    }

private:
    Temporary_Folder folder_;
    fs::path program_;
};

std::string repeated(const std::string& row, int count) {
    std::string rows;
    for (int i = 0; i < count; ++i) {
        rows += row + '\n';
    }
    return rows;
}

const std::string colours = ": a 010203\n: b a0b0c0\n";

TEST_F(Composer, draws_plates_and_derived_grids) {
    EXPECT_EQ(complaints_about(colours + "@ plate\n" + repeated("bbbbbbbb", 8) +
                               "# a comment\n= background aligner on plate\n" + "aaa.....\n" +
                               repeated("........", 7)),
              "");
    EXPECT_EQ(drawn(Sprite::background_aligner), "+++#####\n" + repeated("########", 7));

    EXPECT_EQ(complaints_about(colours + "@ mark\naaa.....\n" + repeated("........", 7) +
                               "= background aligner from mark shift 1 6 recolour ab\n"),
              "");
    EXPECT_EQ(drawn(Sprite::background_aligner), repeated("........", 6) + ".###....\n........\n");
}

TEST_F(Composer, names_file_and_line_of_a_wrong_sprite) {
    const auto complains = [&](const std::string& sprites, const std::string& words) {
        const std::string said = complaints_about(colours + sprites);
        EXPECT_NE(said.find(words), std::string::npos) << "wanted: " << words << "\nsaid: " << said;
    };
    complains("= background aligner\n" + repeated("aaaaaaaa", 7), "a.txt:3: background aligner is 8 x 7");
    complains("= background aligner\n" + repeated("aaaaaaa", 8), "a.txt:3: background aligner is 7 x 8");
    complains("= background aligner\n" + repeated("aaaaaaaa", 7) + "aaaaaaaaa\n", "a.txt:11: ");
    complains("= background aligner\n" + repeated("aaaa?aaa", 8), "a.txt:4: background aligner: the palette");
    complains("= backround aligner\n" + repeated("aaaaaaaa", 8), "a.txt:3: the table has no sprite");
    complains("= background aligner from nothing\n", "a.txt:3: there is no grid \"nothing\"");
    complains("= background aligner from background aligner\n", "a.txt:3: \"background aligner\" is derived");
    complains("= background aligner\n\naaaaaaaa\n", "a.txt:5: a line that belongs to no grid");
    complains(": c 01020\n", "a.txt:3: a colour line");
    complains(": c ff00ff\n", "a.txt:3: a colour line");
    complains("= horiz selector one\n" + std::string(32, 'a') + "\n= verti selector one\n" +
                  repeated("b", 32),
              "verti selector one and horiz selector one differ in their common pixel 0, 173");
}

TEST_F(Composer, lists_all_missing_sprites_at_once) {
    write("sprites/a.txt", colours + "= background aligner\n" + repeated("aaaaaaaa", 8));
    const std::string said = complaints("");
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 117);
    EXPECT_EQ(said.find("background aligner"), std::string::npos);
}

TEST_F(Composer, misses_no_glyph) {
    std::string text = stored_text((art() / "fonts" / "pane.txt").string());
    const std::size_t start = text.find("= Q\n");
    text.erase(start, text.find("= R\n") - start);
    write("fonts/pane.txt", text);
    EXPECT_NE(complaints().find("pane.txt:6: pane font: the glyph 81 is missing"), std::string::npos);

    write("fonts/pane.txt", "");
    EXPECT_NE(complaints().find("no glyphs for the \"pane font\""), std::string::npos);
}

} // namespace
} // namespace quadrelle::testing
