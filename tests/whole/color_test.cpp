// The column of colour panes and the palette in the whole program.

#include "color/palette_list.h"
#include "tests/whole/program_test.h"

#include <SDL3/SDL_keyboard.h>

namespace quadrelle::testing {
namespace {

class Color_Test : public Program_Test {
protected:
    void TearDown() override {
        SDL_SetModState(SDL_KMOD_NONE);
        Program_Test::TearDown();
    }

    static Color left() { return tools().colors.of(Mouse_Button::left); }
    static Color right() { return tools().colors.of(Mouse_Button::right); }
};

constexpr Point square{1032, 201};
constexpr Point right_panel{1100, 140};
constexpr Point red_less{1031 + 1 + 135 + 7, 366 + 8};
constexpr Point red_slider{1031 + 1 + 17, 366 + 8};
constexpr Point entry_10{36 + 2 * 24 + 12, 472 + 20 + 10};
constexpr Point store_button{110, 619};
constexpr Point left_swatch{197, 572};
constexpr Point right_swatch{222, 572};
constexpr Point transparent_swatch{180, 460};

Point variation(int row, int column) {
    return {1031 + 16 * column + 8, 504 + 14 + 31 * row + 8};
}

TEST_F(Color_Test, selector_sets_the_colour_of_the_pressed_button) {
    script()
        .press({square.x + 127, square.y})
        .check([] { EXPECT_EQ(left(), Color(255, 0, 0)); })
        .motion({square.x + 400, square.y + 300})
        .check([] { EXPECT_EQ(left(), black); })
        .release({square.x, square.y})
        .press({square.x + 127, square.y}, Mouse_Button::right)
        .release({square.x, square.y}, Mouse_Button::right);
    play();
    EXPECT_EQ(left(), black);
    EXPECT_EQ(right(), Color(255, 0, 0));
    EXPECT_EQ(tools().colors.active_side, Mouse_Button::left);
}

TEST_F(Color_Test, handles_and_variations_are_about_the_active_side) {
    tools().colors.set(Mouse_Button::right, {10, 20, 30});
    play(script().click(red_less));
    EXPECT_EQ(left(), Color(254, 255, 255));
    play(script().click(right_panel).click(red_less));
    EXPECT_EQ(right(), Color(9, 20, 30));
    EXPECT_EQ(pixel_at({variation(2, 7).x, variation(2, 7).y}), right());
    script()
        .press(red_slider)
        .motion({red_slider.x + 500, 10})
        .check([] { EXPECT_EQ(right(), Color(255, 20, 30)); })
        .release({1, 1});
    play();
    EXPECT_EQ(left(), Color(254, 255, 255));
    execute(Command::swap_tool_colors);
    play(script().click(red_less));
    EXPECT_EQ(right(), Color(253, 255, 255));
}

TEST_F(Color_Test, tool_colours_are_stored_in_a_palette_that_is_kept) {
    const auto entry = [](int index) {
        return palette_list->palette(3).colors.at(static_cast<std::size_t>(index));
    };
    tools().colors.set(Mouse_Button::left, {1, 2, 3, 4});
    tools().colors.set(Mouse_Button::right, {5, 6, 7});
    // Without shift the entry's colour is taken, and nothing stored.
    play(script().click(entry_10, Mouse_Button::right));
    EXPECT_EQ(right(), palette_store->color(0, 10));
    EXPECT_EQ(palette_list->size(), 3);
    play(script().click(store_button));
    EXPECT_EQ(entry(10), Color(1, 2, 3, 4));
    tools().colors.set(Mouse_Button::right, {5, 6, 7});
    SDL_SetModState(SDL_KMOD_LSHIFT);
    play(script().click({entry_10.x + 24, entry_10.y}, Mouse_Button::right));
    EXPECT_EQ(entry(11), Color(5, 6, 7));
    EXPECT_EQ(right(), Color(5, 6, 7));
    play(script().click({entry_10.x, entry_10.y + 20}));
    EXPECT_EQ(entry(18), Color(1, 2, 3, 4));
    // The left button stores what Store does.
    tools().colors.active_side = Mouse_Button::right;
    play(script().click(entry_10).click({entry_10.x + 24, entry_10.y}, Mouse_Button::right));
    EXPECT_EQ(entry(10), Color(5, 6, 7));
    EXPECT_EQ(entry(11), Color(1, 2, 3, 4));
    EXPECT_EQ(palette_list->size(), 4);
    EXPECT_FALSE(palette_store->changed());
}

TEST_F(Color_Test, both_colours_are_in_view_and_can_be_lit_whatever_the_tool_is) {
    tools().colors.set(Mouse_Button::left, {10, 20, 30});
    tools().colors.set(Mouse_Button::right, {40, 50, 60});
    for (const Tool_Row& tool : tool_table) {
        SCOPED_TRACE(tool.name);
        execute(tool.command);
        for (const auto& [lit, other, side] : {std::tuple{right_swatch, left_swatch, Mouse_Button::right},
                                               {left_swatch, right_swatch, Mouse_Button::left}}) {
            play(script().click(lit));
            EXPECT_EQ(tools().colors.active_side, side);
            EXPECT_EQ(pixel_at(lit), tools().colors.of(side));
            EXPECT_NE(pixel_at(other), pixel_at(lit));
            EXPECT_NE(pixel_at({lit.x, lit.y - 11}), pixel_at({other.x, other.y - 11}));
            EXPECT_EQ(pixel_at({103 - 8, 619}), tools().colors.of(side)) << "what Store shows";
        }
    }
}

TEST_F(Color_Test, transparent_swatch_makes_pens_erase) {
    document().tileset().current_tile()->fill({9, 9, 9});
    play(script().click(transparent_swatch, Mouse_Button::right).click(cell(3, 3), Mouse_Button::right));
    EXPECT_EQ(left(), white);
    EXPECT_EQ(right(), Color(0, 0, 0, 0));
    EXPECT_EQ(tile_pixel(3, 3), Color(0, 0, 0, 0));
    // It is no entry: nothing is stored there.
    SDL_SetModState(SDL_KMOD_LSHIFT);
    play(script().click(transparent_swatch));
    EXPECT_EQ(left(), Color(0, 0, 0, 0));
    EXPECT_EQ(palette_list->size(), 3);
}

} // namespace
} // namespace quadrelle::testing
