#include "panes/color_handles.h"

#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

constexpr Point position{1026, 339};

class Color_Handles_Test : public Window_Test {
protected:
    // The middle of a button: 0 less, 1 middle, 2 more.
    static Point button(int row, int column) {
        return {position.x + 5 + 1 + 135 + 20 * column + 7, position.y + 26 + 1 + 17 * row + 8};
    }
    // Released at once.
    bool click(Point point) {
        Script script;
        script.release(point);
        return handles_.click(point, [] {});
    }
    [[nodiscard]] Color after_press(Color from, int row, int column) {
        handles_.set_color(from);
        EXPECT_TRUE(click(button(row, column)));
        return handed_on_.back();
    }

    std::vector<Color> handed_on_;
    Color_Handles handles_{position, [this](Color color) { handed_on_.push_back(color); }};
};

TEST_F(Color_Handles_Test, rows_begin_a_pixel_below_the_client_area_s_top_17_pixels_apart) {
    for (int row = 0; row < 6; ++row) {
        const int top = handles_.client_area().y + 1 + 17 * row;
        for (const auto& [y, is_hit] :
             {std::pair{top - 1, false}, {top, true}, {top + 14, true}, {top + 15, false}}) {
            EXPECT_EQ(click({button(row, 0).x, y}), is_hit) << row << ", " << y;
        }
    }
}

constexpr Color mixed{40, 130, 250, 77};

TEST_F(Color_Handles_Test, channels_step_by_one_and_stop_at_their_bounds) {
    for (int row = 0; row < 4; ++row) {
        const auto with = [row](int level) {
            std::array<int, 4> channels{mixed.r, mixed.g, mixed.b, mixed.a};
            channels.at(static_cast<std::size_t>(row)) = level;
            return Color(channels[0], channels[1], channels[2], channels[3]);
        };
        for (const auto& [before, column, after] : std::vector<std::array<int, 3>>{{0, 0, 0},
                                                                                   {1, 0, 0},
                                                                                   {200, 0, 199},
                                                                                   {255, 0, 254},
                                                                                   {0, 1, 128},
                                                                                   {128, 1, 128},
                                                                                   {255, 1, 128},
                                                                                   {0, 2, 1},
                                                                                   {200, 2, 201},
                                                                                   {254, 2, 255},
                                                                                   {255, 2, 255}}) {
            EXPECT_EQ(after_press(with(before), row, column), with(after))
                << row << ": " << before << ", button " << column;
        }
    }
}

// From the definition of the form: at full saturation one channel is empty up to the middle lightness.
TEST_F(Color_Handles_Test, saturation_and_lightness_step_by_a_113th) {
    struct Case {
        Color before;
        int row, button;
        Color after;
    };
    for (const Case& test : {
             Case{{255, 0, 0}, 4, 2, {255, 0, 0}},      // full already
             {{255, 0, 0}, 4, 0, {254, 1, 1}},          // 112/113 of the way from grey
             {{255, 0, 0}, 4, 1, {191, 64, 64}},        // half
             {{100, 100, 100}, 4, 0, {100, 100, 100}},  // none
             {{100, 100, 100}, 4, 2, {101, 99, 99}},    // a grey turns to red
             {{255, 255, 255}, 5, 2, {255, 255, 255}},  // white
             {{255, 255, 255}, 5, 0, {253, 253, 253}},  // 112/113
             {{255, 255, 255}, 5, 1, {128, 128, 128}},  // half
             {{0, 0, 0}, 5, 0, {0, 0, 0}},              // black
             {{0, 0, 0}, 5, 2, {2, 2, 2}},              // 1/113
             {{0, 0, 255, 90}, 5, 1, {0, 0, 255, 255}}, // deliberately opaque
             {{254, 254, 254}, 5, 2, {255, 255, 255}},  // the bound, less than a step away
         }) {
        EXPECT_EQ(after_press(test.before, test.row, test.button), test.after)
            << test.row << ", button " << test.button;
    }
}

} // namespace
} // namespace quadrelle::testing
