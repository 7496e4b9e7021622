#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

class Stroke_Test : public Program_Test {
protected:
    static int count_of(Color color) {
        return static_cast<int>(std::ranges::count(document().tileset().current_tile()->pixels(), color));
    }
};

TEST_F(Stroke_Test, begins_on_the_strip_left_of_and_above_the_tile_but_not_beyond) {
    play(script().click({399, 205}).click({405, 191}).click({390, 225}).click({640, 225}).click({525, 440}));
    EXPECT_EQ(tile_pixel(0, 0), white);
    EXPECT_EQ(count_of(white), 1);
}

TEST_F(Stroke_Test, ends_with_the_window_close_and_the_program_goes_on) {
    script().press(cell(2, 3)).quit();
    expect_loop("main").motion(cell(9, 9));
    play();
    EXPECT_EQ(count_of(white), 1);
    EXPECT_TRUE(document().is_modified());
}

TEST_F(Stroke_Test, keeps_every_point_of_motions_that_come_at_once) {
    std::vector<Point> points;
    for (int i = 0; i < 60; ++i) {
        points.push_back(cell(i * 7 % 24, i * 5 % 11));
    }
    play(script().drag(points));
    const Tile_Picture one_by_one = tile_picture();
    editor->execute(Command::undo);
    ASSERT_EQ(count_of(white), 0);
    play(script().drag(points).at_once(points.size() + 1));
    EXPECT_EQ(tile_picture(), one_by_one);
}

// Escape that stays down until after the release asks nothing.
TEST_F(Stroke_Test, is_taken_back_by_escape_and_leaves_no_step) {
    script().press(cell(2, 3)).motion(cell(5, 3)).key(key::escape).check([] {
        EXPECT_EQ(count_of(white), 0);
    });
    script().motion(cell(9, 3)).release(cell(9, 3)).repeated_key(key::escape);
    expect_loop("main").key_up(key::escape);
    play();
    EXPECT_EQ(count_of(white), 0);
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(document().history().entries().size(), 1U);
}

TEST_F(Stroke_Test, takes_no_keys_and_wheels_meanwhile) {
    script().press(cell(2, 3)).key('x').wheel(1).motion(cell(3, 3)).release(cell(3, 3));
    play();
    EXPECT_EQ(editor->canvas().pixel_size(), 10);
    EXPECT_EQ(tools().colors.of(Mouse_Button::left), white);
    EXPECT_EQ(count_of(white), 2);
}

TEST_F(Stroke_Test, no_other_button_does_anything_anywhere) {
    for (const int number : {2, 4, 5}) {
        for (const Point point :
             {cell(5, 5), Point{20, 12}, Point{60, 500}, Point{900, 90}, Point{1100, 90}}) {
            script().press_number(point, number).release(point, Mouse_Button::none);
            expect_loop("main").motion(point);
        }
    }
    play();
    EXPECT_EQ(count_of(white), 0);
    EXPECT_EQ(tools().colors.of(Mouse_Button::left), white);

    script().press(cell(2, 2)).press_number(cell(3, 2), 2).release(cell(4, 2), Mouse_Button::none);
    expect_loop("stroke").motion(cell(5, 2)).release(cell(5, 2));
    play();
    EXPECT_EQ(count_of(white), 4);
}

} // namespace
} // namespace quadrelle::testing
