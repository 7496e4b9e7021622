#include "color/standard_colors.h"
#include "pixels/picture_formats.h"
#include "screen/screen.h"
#include "screen/surface.h"
#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

constexpr Rectangle dialog{355, 40, 522, 583};
constexpr Rectangle view{360, 69, 512, 512};
constexpr Point ok_button{dialog.x + 20, dialog.bottom() - 20};
constexpr Point cancel_button{dialog.right() - 20, dialog.bottom() - 20};

class Export_Test : public Program_Test {
protected:
    void answer_with(const std::string& name) {
        answer_files(File_Answer_State::chosen, folder().data_path(name));
    }
    [[nodiscard]] bool has_file(const std::string& name) {
        return std::filesystem::exists(native(folder().data_path(name)));
    }
    static void paint(const Color& color) { document().tileset().current_tile()->fill(color); }
    Script& expect_pixel(Point point, Color color) {
        return script().check([=] { EXPECT_EQ(pixel_at(point), color) << point.x << ", " << point.y; });
    }
};

TEST_F(Export_Test, writes_what_was_accepted_under_the_name_chosen) {
    for (const std::string name : {"picture", "a.b.qdl"}) {
        answer_with(name);
        script().key(key::enter);
        execute(Command::export_bitmap);
        EXPECT_EQ(asked_file(), File_Dialog_Kind::export_bitmap);
    }
    EXPECT_TRUE(has_file("picture.bmp"));
    EXPECT_TRUE(has_file("a.b.bmp"));
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(document().history().entries().size(), 1U);
    answer_with("clicked");
    script().press(cell(3, 3)).press(ok_button);
    execute(Command::export_bitmap);
    EXPECT_TRUE(has_file("clicked.bmp"));
}

TEST_F(Export_Test, given_up_asks_no_further_and_writes_nothing) {
    answer_with("never");
    script().key(key::escape);
    execute(Command::export_bitmap);
    script().press(cancel_button);
    execute(Command::export_bitmap);
    script().quit();
    execute(Command::export_bitmap);
    EXPECT_EQ(asked_file(), std::nullopt);
    answer_files(File_Answer_State::cancelled, folder().data_path("never"));
    script().key('y');
    execute(Command::export_bitmap);
    EXPECT_TRUE(asked_file().has_value());
    EXPECT_FALSE(has_file("never.bmp"));
}

TEST_F(Export_Test, tells_what_failed) {
    answer_files(File_Answer_State::failed, folder().data_path("never"));
    script().key(key::enter);
    expect_message("Note", "Unknown error occurred in file dialog.").key(key::enter);
    execute(Command::export_bitmap);
    answer_with("no folder/never");
    script().key(key::enter);
    expect_message("Note", "Could not save the file.\r" + folder().data_path("no folder/never.bmp") +
                               "\rNo such file or directory")
        .key(key::enter);
    execute(Command::export_bitmap);
    EXPECT_FALSE(document().is_modified());
}

TEST_F(Export_Test, shows_a_larger_picture_from_its_corner_and_moves_it) {
    ASSERT_TRUE(editor->documents().new_document({64, 33}));
    paint({1, 2, 3});
    Tileset& tileset = document().tileset();
    for (int i = 1; i < 16; ++i) {
        tileset.add_tile();
        paint({i * 16, 0, 99});
    }
    const auto shown_tile = [](int i) { return i == 0 ? Color(1, 2, 3) : Color(i * 16, 0, 99); };
    const Point near_corner{view.x + 20, view.y + 10};
    expect_pixel(near_corner, shown_tile(0)).key(key::right).key(key::right);
    expect_pixel(near_corner, shown_tile(1)).key(key::left);
    expect_pixel(near_corner, shown_tile(0)).drag({{600, 300}, {440, 300}, {260, 300}});
    expect_pixel(near_corner, shown_tile(6)).motion({300, 300}).drag({{600, 300}, {0, 300}});
    expect_pixel({view.right() - 60, view.y + 10}, shown_tile(15));
    // The sixteen rows of 33 pixels are 16 pixels higher than the view.
    script().wheel(-1);
    expect_pixel({view.right() - 60, view.y + 18}, {0, 0, 0}).wheel(0.5F);
    expect_pixel({view.right() - 60, view.y + 18}, shown_tile(15)).key(key::escape);
    execute(Command::export_bitmap);
}

TEST_F(Export_Test, takes_the_tile_as_it_is_without_the_seam) {
    play(script().click(cell(0, 0)));
    execute(Command::horizontal_seam_tool);
    answer_with("seam");
    script().key(key::enter);
    execute(Command::export_bitmap);
    const Surface written(folder().data_path("seam.bmp"));
    EXPECT_EQ(written.get_pixel(0, 0), to_rgba(Color(255, 255, 255)));
    EXPECT_EQ(written.get_pixel(12, 0), to_rgba(Color(0, 0, 0)));
}

// The arrows that make the numbers of the dialog larger, from the kind of export on.
constexpr Point more(int row) {
    return {365, 435 + 23 * row};
}
constexpr Point png_button{484, 602};

Tile written_picture(const std::string& path) {
    return read_picture(path).picture.value_or(Tile(0, 0));
}

TEST_F(Export_Test, png_has_the_tiles_that_there_are_as_they_are_laid_out) {
    make_set({8, 8}, 3,
             [](int tile, Point pixel) { return Color(tile * 90, pixel.x * 9, pixel.y * 9, tile * 100); });
    const std::string path = folder().data_path("sheet.png");
    answer_with("sheet");
    // Spacing 1, scale 2, a description.
    script().press(png_button).click(more(3)).click(more(5)).click({343, 573}).key(key::enter);
    execute(Command::export_bitmap);
    EXPECT_EQ(asked_file(), File_Dialog_Kind::export_png);
    EXPECT_EQ(written_picture(path).size(), (Size{2 * (3 * 8 + 2), 16}));
    EXPECT_EQ(written_picture(path).get_pixel(18 + 15, 15), Color(90, 63, 63, 100));
    EXPECT_TRUE(has_file("sheet.tsx"));
    EXPECT_FALSE(document().is_modified());
    // Again, with what has been drawn since, and without a question.
    paint({1, 2, 3});
    play(script().key('e', Modifier::control));
    EXPECT_EQ(written_picture(path).get_pixel(0, 0), Color(1, 2, 3));
    // The description that is there is not replaced unasked.
    script().press(png_button).key(key::enter);
    expect_question("Export", "Save over existing file?").key(key::enter);
    expect_question("Export", "Save over existing tileset file (.tsx)?").key(key::escape);
    execute(Command::export_bitmap);
}

TEST_F(Export_Test, png_of_a_tile_or_of_what_is_selected) {
    const std::string path = folder().data_path("part.png");
    answer_with("part");
    play(script().click(cell(2, 1)));
    script().press(png_button).click(more(0)).key(key::enter);
    execute(Command::export_bitmap);
    EXPECT_EQ(picture_of(written_picture(path)), tile_picture());
    // Without a selection there is nothing to export.
    script().press(png_button).click(more(0)).key(key::enter);
    expect_message("Note", "Nothing is selected.").key(key::enter).key(key::escape);
    execute(Command::export_bitmap);
    execute(Command::rectangle_selector);
    play(script().drag({{420, 210}, {450, 240}}));
    script().press(png_button).click(more(0)).key(key::enter);
    expect_question("Export", "Save over existing file?").key(key::enter);
    execute(Command::export_bitmap);
    const Tile part = written_picture(path);
    EXPECT_LT(part.width(), 6);
    EXPECT_EQ(std::ranges::count(part.pixels(), Color(255, 255, 255)), 1);
}

TEST_F(Export_Test, again_tells_that_there_was_no_first_time) {
    play(script().key('e', Modifier::control));
    EXPECT_EQ(asked_file(), std::nullopt);
    answer_with("plain");
    script().key(key::enter);
    execute(Command::export_bitmap);
    paint({9, 8, 7});
    play(script().key('e', Modifier::control));
    EXPECT_EQ(written_picture(folder().data_path("plain.bmp")).get_pixel(0, 0), Color(9, 8, 7));
}

TEST_F(Export_Test, of_tiles_without_pixels_is_refused) {
    const std::string path = folder().data_path("flat.qdl");
    store(path, {'Q', 'D', 'L', '\n', 0, 24, 0, 1, 0, 0, 0});
    answer_files(File_Answer_State::chosen, path);
    execute(Command::load);
    expect_message("Note", "The tiles of this set have no pixels.").key(key::enter);
    execute(Command::export_bitmap);
}

} // namespace
} // namespace quadrelle::testing
