// The committed sheet as the program will find it, and the composer's answers to wrong sources.

#include "screen/font_table.h"
#include "screen/sprite_table.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace quadrelle::testing {
namespace {

namespace fs = std::filesystem;

struct Pixel {
    int r = 0;
    int g = 0;
    int b = 0;

    bool operator==(const Pixel&) const = default;
};

constexpr Pixel magenta{255, 0, 255};
constexpr Pixel green{0, 255, 0};
constexpr Pixel yellow{255, 255, 0};
constexpr Pixel blue{0, 0, 255};

class Bitmap {
public:
    explicit Bitmap(const fs::path& path) {
        bytes_ = stored(path.string());
        if (bytes_.size() < 54)
            bytes_.assign(54, 0);
    }

    int width() const { return number(18, 4); }
    int height() const { return number(22, 4); }

    Pixel at(int x, int y) const {
        const std::size_t row = start() + row_size() * static_cast<std::size_t>(height() - 1 - y);
        const std::size_t place = row + static_cast<std::size_t>(x) * static_cast<std::size_t>(depth()) / 8;
        const std::size_t colour = depth() == 8 ? 54 + std::size_t{4} * bytes_.at(place) : place;
        return {bytes_.at(colour + 2), bytes_.at(colour + 1), bytes_.at(colour)};
    }

private:
    int number(std::size_t place, int size) const {
        int value = 0;
        for (int i = 0; i < size; ++i)
            value |= bytes_[place + static_cast<std::size_t>(i)] << (8 * i);
        return value;
    }
    int depth() const { return number(28, 2); }
    std::size_t start() const { return static_cast<std::size_t>(number(10, 4)); }
    std::size_t row_size() const {
        return (static_cast<std::size_t>(width()) * static_cast<std::size_t>(depth()) / 8 + 3) / 4 * 4;
    }

    Bytes bytes_;
};

const Bitmap& committed_sheet() {
    static const Bitmap sheet(source_folder() / "data" / "pool.bmp");
    return sheet;
}

struct Glyph {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// Walks along the marker line and re-reads each marker as the first column of the next glyph.
std::vector<Glyph> glyphs_of_row(const Bitmap& sheet, int y, int glyph_height) {
    std::vector<Glyph> glyphs;
    int start = 0;
    int counter = 0;
    bool expects_start = true;
    for (int x = 0; x < sheet_width;) {
        const Pixel pixel = sheet.at(x, y);
        const bool is_marker = pixel == blue || pixel == (expects_start ? green : yellow);
        if (!is_marker) {
            ++counter;
            ++x;
            continue;
        }
        glyphs.push_back({start, y + 1, counter, glyph_height});
        start = x;
        expects_start = !expects_start;
        counter = 0;
        if (pixel == blue)
            break;
    }
    return glyphs;
}

std::vector<Glyph> glyphs_of(const Bitmap& sheet, const Font_Row& font) {
    std::vector<Glyph> glyphs;
    for (int row = 0; row < font.glyph_rows; ++row) {
        const int y = font.marker_y + row * (font.glyph_height + 1);
        const auto more = glyphs_of_row(sheet, y, font.glyph_height);
        glyphs.insert(glyphs.end(), more.begin(), more.end());
    }
    return glyphs;
}

std::vector<Glyph> glyphs_of(Font font) {
    return glyphs_of(committed_sheet(), font_table[static_cast<std::size_t>(font)]);
}

int text_width(Font font, const std::string& text) {
    const auto glyphs = glyphs_of(font);
    int width = 0;
    for (const char character : text)
        width += glyphs.at(static_cast<std::size_t>(character - first_character)).width;
    return width;
}

// The widths of the grids, in the order in which they stand in the source.
std::vector<int> intended_widths(const std::string& file_name) {
    std::ifstream source(source_folder() / "art" / "fonts" / file_name);
    std::vector<int> widths;
    for (std::string line; std::getline(source, line);)
        if (line.starts_with("= ") && std::getline(source, line))
            widths.push_back(static_cast<int>(line.size()));
    return widths;
}

std::vector<int> widths_of(const std::vector<Glyph>& glyphs) {
    std::vector<int> widths;
    widths.reserve(glyphs.size());
    for (const Glyph& glyph : glyphs)
        widths.push_back(glyph.width);
    return widths;
}

int visible_pixels(const Bitmap& sheet, const Glyph& area) {
    int count = 0;
    for (int y = area.y; y < area.y + area.height; ++y)
        for (int x = area.x; x < area.x + area.width; ++x)
            count += sheet.at(x, y) == magenta ? 0 : 1;
    return count;
}

bool is_stroke(Pixel pixel) {
    return pixel != magenta && pixel.r > 128;
}

bool column_has_stroke(const Bitmap& sheet, const Glyph& glyph, int column) {
    for (int y = glyph.y; y < glyph.y + glyph.height; ++y)
        if (is_stroke(sheet.at(glyph.x + column, y)))
            return true;
    return false;
}

TEST(Sheet_Asset, every_sprite_is_drawn) {
    for (const Sprite_Row& row : sprite_table)
        EXPECT_GT(visible_pixels(committed_sheet(), {row.x, row.y, row.width, row.height}), 0) << row.name;
}

TEST(Sheet_Asset, markers_give_every_glyph_its_width) {
    EXPECT_EQ(widths_of(glyphs_of(Font::regular)), intended_widths("regular.txt"));
    EXPECT_EQ(widths_of(glyphs_of(Font::pane)), intended_widths("pane.txt"));
    EXPECT_EQ(widths_of(glyphs_of(Font::pane_header)), intended_widths("pane_header.txt"));
    EXPECT_EQ(widths_of(glyphs_of(Font::header)), intended_widths("regular.txt"))
        << "text must not move when it lights up";
}

TEST(Sheet_Asset, every_glyph_but_the_blank_is_drawn_and_touches_no_other) {
    for (const Font_Row& font : font_table) {
        const auto glyphs = glyphs_of(committed_sheet(), font);
        ASSERT_EQ(glyphs.size(), 95U) << font.name;
        EXPECT_EQ(visible_pixels(committed_sheet(), glyphs[0]), 0) << font.name;
        EXPECT_GT(glyphs[0].width, 2) << font.name;
        for (std::size_t i = 1; i < glyphs.size(); ++i) {
            const char character = static_cast<char>(first_character + static_cast<int>(i));
            EXPECT_GT(visible_pixels(committed_sheet(), glyphs[i]), 0) << font.name << ' ' << character;
            EXPECT_FALSE(column_has_stroke(committed_sheet(), glyphs[i], glyphs[i].width - 1))
                << font.name << ' ' << character;
        }
    }
}

TEST(Sheet_Asset, look_alike_letters_differ) {
    const auto picture = [](const Glyph& glyph) {
        std::string text;
        for (int y = 0; y < glyph.height; ++y) {
            for (int x = 0; x < glyph.width; ++x)
                text += is_stroke(committed_sheet().at(glyph.x + x, glyph.y + y)) ? '#' : '.';
            text += '\n';
        }
        return text;
    };
    for (const Font_Row& font : font_table) {
        std::vector<std::string> pictures;
        for (const Glyph& glyph : glyphs_of(committed_sheet(), font))
            pictures.push_back(picture(glyph));
        std::sort(pictures.begin(), pictures.end());
        const auto twin = std::adjacent_find(pictures.begin(), pictures.end());
        EXPECT_EQ(twin, pictures.end()) << font.name << '\n' << *twin;
    }
}

TEST(Sheet_Asset, numbers_do_not_jump_and_long_lines_fit) {
    for (const Font font : {Font::regular, Font::pane, Font::pane_header, Font::header})
        for (char digit = '1'; digit <= '9'; ++digit)
            EXPECT_EQ(text_width(font, {digit}), text_width(font, "0"));
    EXPECT_LT(text_width(Font::pane, "Exclude pixel size precise brush"), 200);
    EXPECT_LT(text_width(Font::regular, "Draws on the tile with the left or right color; Shift draws a line "
                                        "from the last point."),
              640);
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
        if (!fs::exists(program_))
            GTEST_SKIP() << "this build has no composer";
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
        const Bytes bytes = stored(report);
        EXPECT_EQ(succeeded, bytes.empty());
        EXPECT_EQ(succeeded, fs::exists(output()));
        return {bytes.begin(), bytes.end()};
    }

    std::string complaints_about(const std::string& sprites) const {
        write("sprites/a.txt", sprites);
        return complaints();
    }

    // The sprite's pixels as the characters of a palette of three.
    std::string drawn(const std::string& name) const {
        const Bitmap sheet(output());
        const auto row = std::find_if(sprite_table.begin(), sprite_table.end(),
                                      [&](const Sprite_Row& candidate) { return candidate.name == name; });
        std::string text;
        for (int y = row->y; y < row->y + row->height; ++y, text += '\n')
            for (int x = row->x; x < row->x + row->width; ++x) {
                const Pixel pixel = sheet.at(x, y);
                text += pixel == magenta ? '.' : pixel == Pixel{1, 2, 3} ? 'a' : 'b';
            }
        return text;
    }

private:
    Temporary_Folder folder_;
    fs::path program_;
};

std::string repeated(const std::string& row, int count) {
    std::string rows;
    for (int i = 0; i < count; ++i)
        rows += row + '\n';
    return rows;
}

const std::string colours = ": a 010203\n: b a0b0c0\n";

TEST_F(Composer, draws_plates_and_derived_grids) {
    EXPECT_EQ(complaints_about(colours + "@ plate\n" + repeated("bbbbbbbb", 8) +
                               "# a comment\n= background aligner on plate\n" + "aaa.....\n" +
                               repeated("........", 7)),
              "");
    EXPECT_EQ(drawn("background aligner"), "aaabbbbb\n" + repeated("bbbbbbbb", 7));

    EXPECT_EQ(complaints_about(colours + "@ mark\naaa.....\n" + repeated("........", 7) +
                               "= background aligner from mark shift 1 6 recolour ab\n"),
              "");
    EXPECT_EQ(drawn("background aligner"), repeated("........", 6) + ".bbb....\n........\n");
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
    std::stringstream font;
    font << std::ifstream(art() / "fonts" / "pane.txt").rdbuf();
    std::string text = font.str();
    const std::size_t start = text.find("= Q\n");
    text.erase(start, text.find("= R\n") - start);
    write("fonts/pane.txt", text);
    EXPECT_NE(complaints().find("pane.txt:6: pane font: the glyph 81 is missing"), std::string::npos);

    write("fonts/pane.txt", "");
    EXPECT_NE(complaints().find("no glyphs for the \"pane font\""), std::string::npos);
}

} // namespace
} // namespace quadrelle::testing
