#include "canvas/paste_handles.h"

#include "tests/support/drawing_board.h"
#include "tests/support/tiles.h"

#include <cmath>
#include <numbers>

namespace quadrelle::testing {
namespace {

constexpr std::array all_handles{Paste_Handle::top_left, Paste_Handle::top_right, Paste_Handle::bottom_left,
                                 Paste_Handle::bottom_right, Paste_Handle::turn};

TEST(Paste_Handles, lie_in_the_viewport_and_clear_of_each_other_wherever_the_picture_is) {
    constexpr Size viewport{100, 90};
    const Rectangle all{0, 0, viewport.width, viewport.height};
    for (const Size size : {Size{3, 3}, Size{3, 200}, Size{200, 3}, Size{40, 30}, Size{300, 300}}) {
        for (int y = 1 - size.height; y < viewport.height; ++y) {
            for (int x = 1 - size.width; x < viewport.width; ++x) {
                const Rectangle picture{x, y, size.width, size.height};
                const Paste_Handles handles = handles_around(picture, viewport);
                for (const Paste_Handle handle : all_handles) {
                    const Rectangle& area = handles.areas.at(static_cast<std::size_t>(handle));
                    ASSERT_TRUE(all.encloses(area)) << x << ", " << y;
                    // The first one that is found there, so that none lies over another one.
                    ASSERT_EQ(handle_at(handles, {area.x, area.y}), handle) << x << ", " << y;
                    ASSERT_EQ(handle_at(handles, {area.right() - 1, area.bottom() - 1}), handle);
                    const bool has_room = all.encloses(picture.inset(-30));
                    ASSERT_TRUE(!has_room || intersection(area, picture).is_empty());
                }
            }
        }
    }
}

// What floats, a picture without two pixels alike, and drags at its handles.
class Paste_Handles_On_Board : public ::testing::Test {
protected:
    Paste_Handles_On_Board() {
        board.tools.select(Command::work_selection);
        board.canvas.work_area().float_paste({random_tile({6, 4}), {8, 9}});
    }
    [[nodiscard]] const Floating_Paste& paste() const { return *board.canvas.work_area().paste(); }
    [[nodiscard]] Point middle_of(Paste_Handle handle) const {
        for (int y = 64; y < 576; ++y) {
            for (int x = 264; x < 776; ++x) {
                if (board.canvas.handle_at({x, y}, board.tools) == handle) {
                    return {x + paste_handle_edge / 2, y + paste_handle_edge / 2};
                }
            }
        }
        ADD_FAILURE() << "no such handle";
        return {};
    }
    Stroke_Outcome pull(Paste_Handle handle, Point by) {
        const Point from = middle_of(handle);
        board.press(from);
        board.move({from.x + 1, from.y});
        board.move({from.x + by.x, from.y + by.y});
        return board.release();
    }
    // About where that turn leads.
    void turn(int degrees) {
        const Point from = middle_of(Paste_Handle::turn);
        const Point corner = board.at(paste().position);
        const double x = from.x - (corner.x - 5 + 5.0 * paste().picture->width());
        const double y = from.y - (corner.y - 5 + 5.0 * paste().picture->height());
        const double angle = degrees * std::numbers::pi / 180;
        pull(Paste_Handle::turn, {static_cast<int>(x * std::cos(angle) - y * std::sin(angle) - x),
                                  static_cast<int>(x * std::sin(angle) + y * std::cos(angle) - y)});
    }

    Drawing_Board board{Tile(24, 24)};
};

TEST_F(Paste_Handles_On_Board, at_the_corners_scale_it_and_leave_the_tile) {
    const Tile_Picture before = picture_of(paste().picture);
    EXPECT_EQ(pull(Paste_Handle::bottom_right, {118, 36}), Stroke_Outcome::something_changed);
    EXPECT_EQ(paste().picture->size(), (Size{18, 8}));
    EXPECT_EQ(paste().position, (Tile_Point{8, 9}));
    EXPECT_EQ(board.tools.figures.size, (Size{18, 8}));
    EXPECT_EQ(pull(Paste_Handle::top_left, {118, 0}), Stroke_Outcome::something_changed);
    EXPECT_EQ(paste().position, (Tile_Point{20, 9}));
    board.is_shift_held = true;
    EXPECT_EQ(pull(Paste_Handle::bottom_left, {0, 0}), Stroke_Outcome::something_changed);
    EXPECT_EQ(paste().picture->size(), (Size{12, 8}));
    EXPECT_EQ(paste().position, (Tile_Point{14, 9}));
    EXPECT_EQ(pull(Paste_Handle::top_right, {-200, 200}), Stroke_Outcome::something_changed);
    EXPECT_EQ(picture_of(paste().picture), before);
    EXPECT_EQ(paste().position, (Tile_Point{14, 13}));
    EXPECT_EQ(picture_of(board.tile), picture_of(Tile(24, 24)));
}

TEST_F(Paste_Handles_On_Board, above_it_turns_it_so_that_six_small_turns_are_one_large_one) {
    const Floating_Paste before = paste();
    board.is_shift_held = true;
    turn(90);
    const Floating_Paste large = paste();
    EXPECT_EQ(board.tools.figures.degrees, 90);
    turn(-90);
    EXPECT_EQ(paste(), before);
    for (int i = 0; i < 24; ++i) {
        turn(15);
        EXPECT_EQ(paste() == large, i == 5) << i;
        EXPECT_EQ(paste() == before, i == 23) << i;
    }
    // A click on a handle plots nothing and changes nothing.
    const Point handle = middle_of(Paste_Handle::turn);
    board.press(handle);
    EXPECT_EQ(board.release(), Stroke_Outcome::nothing_changed);
}

TEST_F(Paste_Handles_On_Board, show_for_no_other_tool_and_nothing_else) {
    const Point handle = middle_of(Paste_Handle::top_left);
    board.tools.select(Command::free_rotate);
    EXPECT_EQ(board.canvas.handle_at(handle, board.tools), Paste_Handle::none);
    board.tools.select(Command::work_selection);
    board.canvas.scroll_origin(-600, 0);
    EXPECT_EQ(board.canvas.handle_at({264 + 4, handle.y}, board.tools), Paste_Handle::none);
    board.canvas.scroll_origin(600, 0);
    board.canvas.work_area().drop_paste();
    EXPECT_EQ(board.canvas.handle_at(handle, board.tools), Paste_Handle::none);
}

} // namespace
} // namespace quadrelle::testing
