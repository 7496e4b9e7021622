#include "color/translucency.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"

#include <SDL3/SDL_keyboard.h>

namespace quadrelle::testing {
namespace {

constexpr int middle_button = 2;
constexpr Point off_grid{600, 300};
constexpr Point on_title{24, 540};
constexpr Size tile_size{4, 1};
// The first pixel of such a tile on the canvas, where it is 40 x 10 large.
constexpr Point first_pixel{505, 320};

// Of a tile of 4 x 1 that was made as number `image`.
Color image_pixel(int image, int x) {
    return {image % 256, image / 256, 40 * x};
}

// The corner of a cell of the grid.
Point grid_cell(int tile) {
    return {16 + tile % 16 * 32, 16 + tile / 16 * 32};
}

Point in_cell(int tile) {
    return {grid_cell(tile).x + 17, grid_cell(tile).y + 16};
}

class Set_Views_Test : public Program_Test {
protected:
    static Tileset& tileset() { return document().tileset(); }
    static const Undo_History& history() { return document().history(); }
    static Canvas_View& canvas() { return editor->canvas(); }

    void make(int count) {
        make_set(tile_size, count, [](int tile, Point pixel) { return image_pixel(tile, pixel.x); });
        document().history().reset(tileset());
    }

    static void expect_images(const std::vector<int>& images) {
        ASSERT_EQ(tileset().count(), static_cast<int>(images.size()));
        for (int i = 0; i < tileset().count(); ++i) {
            for (int x = 0; x < tile_size.width; ++x) {
                ASSERT_EQ(tileset().tile_at(i).get_pixel(x, 0),
                          image_pixel(images[static_cast<std::size_t>(i)], x))
                    << "tile " << i << ", pixel " << x;
            }
        }
    }
};

TEST_F(Set_Views_Test, arrangement_changes_nothing_beside_its_keys_and_cells) {
    make(8);
    const std::vector<std::function<void()>> ends{
        [this] { script().key(key::escape); }, [this] { script().key(key::enter); },
        [this] { script().key('y'); },         [this] { script().press(on_title); },
        [this] { script().quit(); },
    };
    for (const auto& add_end : ends) {
        for (const Point outside : {Point{15, 16}, {528, 100}, {100, 528}, {5, 5}, off_grid, in_cell(8)}) {
            script().click(outside).press_number(outside, middle_button);
        }
        script().press(in_cell(5), Mouse_Button::right).wheel(1).key('x').key('z', Modifier::control);
        expect_loop("Arrange/Select").key(key::tab);
        add_end();
        execute(Command::arrange_select);
        expect_images({0, 1, 2, 3, 4, 5, 6, 7});
        EXPECT_EQ(tileset().current_index(), 0);
    }
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(history().entries().size(), 1U);
}

// What the pen's history mode draws from is the image that came into view, though in the same tile.
TEST_F(Set_Views_Test, arrangement_shows_what_it_swapped_in) {
    make(8);
    script().press(in_cell(0)).press_number(in_cell(3), middle_button).key(key::tab).key(key::escape);
    execute(Command::arrange_select);
    EXPECT_EQ(tileset().current_index(), 0);
    EXPECT_EQ(canvas().history()->get_pixel(0, 0), image_pixel(3, 0));
    EXPECT_EQ(pixel_at(first_pixel), image_pixel(3, 0));
}

TEST_F(Set_Views_Test, every_view_works_without_tiles) {
    load_empty_set(tile_size);
    script().press(in_cell(0)).press_number(in_cell(1), middle_button).key(key::tab).key(key::space);
    execute(Command::arrange_select);
    script().press(in_cell(0));
    execute(Command::view_tile_array);
    script().check([] { EXPECT_EQ(pixel_at({6, 0}), checkerboard_color(6, 0)); });
    script().key('+').key('a');
    execute(Command::view_in_real_size);
    EXPECT_FALSE(document().is_modified());
    EXPECT_TRUE(history().entries().empty());
}

TEST_F(Set_Views_Test, real_size_repeats_the_tile_all_over_the_window) {
    make(2);
    tileset().tile_at(0).set_pixel(3, 0, {90, 60, 30, 128});
    const auto expect_scale = [this](int scale) {
        script().check([scale] {
            SCOPED_TRACE(scale);
            const Size window = screen->size();
            for (const Point point : {Point{0, 0}, Point{17, 3}, Point{window.width - 1, 0},
                                      Point{window.width - 1, window.height - 1}, Point{803, 401}}) {
                const Color pixel = tileset().tile_at(0).get_pixel(point.x / scale % 4, 0);
                EXPECT_EQ(pixel_at(point), blended_over(pixel, checkerboard_color(point.x, point.y)));
            }
        });
    };
    execute(Command::horizontal_seam_tool);
    expect_scale(1);
    script().key('-').wheel(1);
    expect_scale(1);
    script().key('=', Modifier::shift);
    expect_scale(2);
    for (int i = 0; i < 9; ++i) {
        script().key(key::keypad_plus);
    }
    expect_scale(8);
    script().key('-').key(key::keypad_minus);
    expect_scale(6);
    script().check([] { SDL_SetModState(SDL_KMOD_RSHIFT); }).wheel(-2).check([] {
        SDL_SetModState(SDL_KMOD_NONE);
    });
    expect_scale(5);
    script().key('q');
    execute(Command::view_in_real_size);
    EXPECT_EQ(canvas().horizontal_seam_shift(), no_seam_shift);
}

TEST_F(Set_Views_Test, tile_array_closes_without_a_choice) {
    make(60);
    const std::vector<std::function<void()>> ends{
        [this] { script().key(key::escape); },
        [this] { script().key(key::tab); },
        [this] { script().key(key::keypad_enter); },
        [this] { script().press(off_grid); },
        [this] { script().press(in_cell(60)); },
        [this] { script().press(in_cell(0)); },
        [this] { script().press(on_title, Mouse_Button::right); },
        [this] { script().quit(); },
    };
    for (const auto& add_end : ends) {
        script()
            .key(key::tab)
            .repeated_key(key::tab)
            .press_number(in_cell(5), middle_button)
            .key('p')
            .wheel(-1);
        expect_loop("tile array");
        add_end();
        expect_loop("main").motion({5, 5});
        play();
        EXPECT_EQ(tileset().current_index(), 0);
    }
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(history().entries().size(), 1U);
}

TEST_F(Set_Views_Test, preview_follows_every_motion_of_a_stroke) {
    script().press(cell(2, 2)).check([] { EXPECT_EQ(count_in_preview(white), 4); });
    script().motion(cell(5, 2)).check([] { EXPECT_EQ(count_in_preview(white), 16); });
    script().motion(cell(5, 3)).check([] { EXPECT_EQ(count_in_preview(white), 20); });
    play(script().release(cell(5, 3)));
    execute(Command::line);
    script().press(cell(10, 9)).motion(cell(19, 9)).check([] {
        EXPECT_EQ(count_in_preview(white), 20 + 40);
    });
    script().motion(cell(11, 9)).check([] { EXPECT_EQ(count_in_preview(white), 20 + 8); });
    play(script().release(cell(11, 9)));
}

} // namespace
} // namespace quadrelle::testing
