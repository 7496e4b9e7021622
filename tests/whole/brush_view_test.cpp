// What shows of the brush where the pointer is, and when the system's cursor gives way to it.

#include "tests/whole/program_test.h"

#include "screen/cursor.h"
#include "ui/dialog_item.h"

namespace quadrelle::testing {
namespace {

constexpr Point beside_the_canvas{800, 600};

class Brush_View_Test : public Program_Test {
protected:
    // To the next of its values.
    static void change(Option option) {
        const int count = option == Option::precise_brush ? 3 : 2;
        set_option(option, (options->value(option) + 1) % count);
    }
    void hover(Point position) { play(script().motion(position)); }
    // In the middle of a cell.
    static Color shown(int column, int row) { return pixel_at(cell(column, row)); }
    static Tile_Picture reds_shown() {
        Tile_Picture reds;
        for (int i = 0; i < 24 * 24; ++i) {
            reds.push_back(shown(i % 24, i / 24) == red ? red : black);
        }
        return reds;
    }
    // A line runs left of each red pixel that has none to its left.
    static bool is_outlined(const Tile_Picture& reds) {
        for (std::size_t i = 1; i < reds.size(); ++i) {
            const Point middle = cell(static_cast<int>(i % 24), static_cast<int>(i / 24));
            if (i % 24 != 0 && reds[i] == red && reds[i - 1] != red &&
                pixel_at({middle.x - 6, middle.y}) != white) {
                return false;
            }
        }
        return true;
    }
    static Color corner_of(int column, int row) {
        return pixel_at({cell(column, row).x - 6, cell(column, row).y - 6});
    }
};

TEST_F(Brush_View_Test, preview_lies_where_a_press_paints) {
    tools().colors.set(Mouse_Button::left, red);
    tools().chosen_brush.select_shape(Brush_Shape::falling_diagonal);
    constexpr std::array sizes{0, 1, 4, 5};
    // None of these brings a line of the outline through the middle of a cell.
    constexpr std::array places{Point{483, 272}, Point{488, 279}, Point{402, 202}};
    for (std::size_t i = 0; i < 3 * sizes.size() * places.size(); ++i) {
        SCOPED_TRACE(i);
        const Point at = places.at(i % 3);
        const auto mode = static_cast<Pen_Mode>(i / 12);
        tools().options.pen_mode = mode;
        tools().chosen_brush.select_size(sizes.at(i / 3 % 4));
        document().tileset().current_tile()->fill(Color(0, 0, 0));
        hover(at);
        const Tile_Picture previewed = reds_shown();
        EXPECT_GT(std::ranges::count(previewed, red), 0);
        if (mode != Pen_Mode::brush && sizes.at(i / 3 % 4) > 0) {
            EXPECT_TRUE(is_outlined(previewed));
        }
        for (int beside = 0; beside < 24; ++beside) {
            EXPECT_NE(shown(-1, beside), red);
            EXPECT_NE(shown(beside, -1), red);
        }
        play(script().click(at).motion(beside_the_canvas));
        EXPECT_EQ(tile_picture(), previewed);
    }
}

// Where the lines around four cells meet.
TEST_F(Brush_View_Test, corner_that_the_rectangle_selector_takes_is_marked) {
    static constexpr Point crossing{400 + 8 * 10 - 1, 200 + 7 * 10 - 1};
    const auto mark_at = [this](Point pointer) {
        hover(pointer);
        return std::vector{pixel_at(crossing), pixel_at({crossing.x - 5, crossing.y}),
                           pixel_at({crossing.x, crossing.y + 5})};
    };
    execute(Command::rectangle_selector);
    for (const Point pointer : {Point{483, 272}, Point{475, 265}, Point{484, 274}}) {
        EXPECT_EQ(mark_at(pointer), std::vector(3, white));
        play(script().drag({pointer, cell(9, 8)}));
        EXPECT_EQ(editor->canvas().work_area().selection().bounds(), (Rectangle{8, 7, 2, 2}));
        execute(Command::deselect);
    }
    EXPECT_NE(mark_at({486, 272}), std::vector(3, white));
    execute(Command::circle_selector);
    EXPECT_NE(mark_at({483, 272}), std::vector(3, white));
}

TEST_F(Brush_View_Test, outline_is_precise_blocky_or_off) {
    change(Option::show_shadow_brush);
    const Color line(255, 255, 255);
    hover({485, 275});
    EXPECT_NE(corner_of(8, 7), line) << "a brush of one pixel has no outline";
    change(Option::precise_brush);
    change(Option::precise_brush);
    ASSERT_EQ(options->value(Option::precise_brush), 1);
    hover({485, 275});
    EXPECT_EQ(corner_of(8, 7), line);
    hover({488, 275});
    EXPECT_EQ(pixel_at({482, 269}), line) << "between the cells, around the pointer";
    change(Option::blocky_precise_brush);
    hover({488, 275});
    EXPECT_EQ(corner_of(8, 7), line) << "around the cell";
    change(Option::precise_brush);
    change(Option::precise_brush);
    ASSERT_EQ(options->value(Option::precise_brush), 0);
    tools().chosen_brush.select_size(3);
    hover({488, 275});
    EXPECT_NE(corner_of(8, 7), line);
}

TEST_F(Brush_View_Test, cursor_is_hidden_over_the_canvas_only_where_a_brush_shows) {
    const auto cursor_at = [this](Point position) {
        hover(position);
        return current_cursor();
    };
    EXPECT_EQ(cursor_at(cell(3, 3)), Cursor::shown);
    change(Option::hide_or_show_cursor);
    EXPECT_EQ(cursor_at(cell(3, 3)), Cursor::hidden);
    EXPECT_EQ(cursor_at(beside_the_canvas), Cursor::shown);
    EXPECT_EQ(cursor_at({270, 70}), Cursor::shown) << "beside the tile nothing is previewed";
    tools().chosen_brush.select_size(1);
    EXPECT_EQ(cursor_at({270, 70}), Cursor::hidden) << "the outline is there";
    play(script().key('d'));
    EXPECT_EQ(current_cursor(), Cursor::shown);
    play(script().key('p'));
    EXPECT_EQ(current_cursor(), Cursor::hidden);
    // A dialog shows it, wherever the pointer was.
    Cursor in_dialog = Cursor::hidden;
    script().check([&] { in_dialog = current_cursor(); });
    script().check([] { EXPECT_TRUE(has_picture({560, 285, 100, 20})) << "the logo"; }).key(key::escape);
    execute(Command::about);
    EXPECT_EQ(in_dialog, Cursor::shown);
    EXPECT_EQ(current_cursor(), Cursor::hidden);
    change(Option::show_shadow_brush);
    tools().chosen_brush.select_size(0);
    EXPECT_EQ(cursor_at(cell(3, 3)), Cursor::shown) << "nothing of the brush shows";
}

TEST_F(Brush_View_Test, strokes_hide_the_cursor_and_give_it_back) {
    const auto during_stroke = [this](Point end) {
        Cursor seen = Cursor::shown;
        script().press(cell(3, 3)).motion(end).check([&] { seen = current_cursor(); }).release(end);
        play();
        return seen;
    };
    EXPECT_EQ(during_stroke(cell(5, 5)), Cursor::hidden);
    EXPECT_EQ(current_cursor(), Cursor::shown);
    EXPECT_EQ(during_stroke(beside_the_canvas), Cursor::hidden);
    EXPECT_EQ(current_cursor(), Cursor::shown);
    change(Option::hide_or_show_cursor);
    hover(cell(3, 3));
    EXPECT_EQ(during_stroke(cell(5, 5)), Cursor::hidden);
    EXPECT_EQ(current_cursor(), Cursor::hidden);
    EXPECT_EQ(during_stroke(beside_the_canvas), Cursor::hidden);
    EXPECT_EQ(current_cursor(), Cursor::shown) << "it was let go beside the canvas";
    execute(Command::dropper);
    EXPECT_EQ(during_stroke(cell(5, 5)), Cursor::shown);
    // A window that is closed during a stroke ends the stroke.
    execute(Command::pen);
    play(script().press(cell(3, 3)).quit());
    EXPECT_EQ(current_cursor(), Cursor::hidden);
}

} // namespace
} // namespace quadrelle::testing
