#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

class Tile_Strip_Test : public Program_Test {
protected:
    static Tileset& tileset() { return document().tileset(); }
    static Tile_Strip& strip() { return document().strip(); }

    void SetUp() override {
        Program_Test::SetUp();
        make_set({1, 1}, 200, [](int, Point) { return red; });
    }
};

// The middles of the buttons; the number stands between those to the next tiles.
constexpr int button_y = 347;
constexpr int next_button = 36 + 126;

struct Place {
    int current;
    int first;
    bool operator==(const Place&) const = default;
};

TEST_F(Tile_Strip_Test, navigation_buttons_step_and_scroll_up_to_the_ends) {
    struct Row {
        int button_x;
        Place before;
        Place after;
    };
    const std::vector<Row> rows{
        {36 + 12, {0, 0}, {0, 0}},         {36 + 12, {80, 60}, {80, 0}},
        {36 + 36, {80, 60}, {80, 14}},     {36 + 36, {80, 40}, {80, 0}},
        {36 + 60, {0, 0}, {0, 0}},         {36 + 60, {80, 80}, {79, 79}},
        {36 + 60, {1, 0}, {0, 0}},         {36 + 93, {80, 60}, {80, 60}},
        {next_button, {80, 30}, {81, 31}}, {next_button, {198, 60}, {199, 149}},
        {next_button, {199, 0}, {199, 0}}, {36 + 150, {0, 0}, {0, 46}},
        {36 + 150, {0, 130}, {0, 149}},    {36 + 174, {0, 0}, {0, 149}},
        {36 + 174, {0, 149}, {0, 149}},
    };
    for (const Row& row : rows) {
        for (const Mouse_Button button : {Mouse_Button::left, Mouse_Button::right}) {
            SCOPED_TRACE(std::to_string(row.button_x) + " at " + std::to_string(row.before.current));
            // There by way of the tiles at the strip's ends.
            for (const int tile : {199, row.before.first}) {
                tileset().select(tile);
                strip().show_current();
            }
            tileset().select(row.before.current);
            ASSERT_EQ(strip().first(), row.before.first);
            play(script().click({row.button_x, button_y}, button));
            EXPECT_EQ((Place{tileset().current_index(), strip().first()}), row.after);
        }
    }
}

TEST_F(Tile_Strip_Test, navigation_button_is_held_until_the_release_wherever_that_comes) {
    const auto look = [] {
        std::vector<Color> pixels;
        for (int i = -8; i <= 8; ++i) {
            pixels.push_back(pixel_at({next_button + i, button_y + i}));
        }
        return pixels;
    };
    const std::vector<Color> normal = look();
    std::vector<Color> held;
    script().press({next_button, button_y}).check([&] { held = look(); }).motion({600, 5}).check([&] {
        EXPECT_EQ(look(), held);
    });
    play(script().release({600, 5}));
    EXPECT_NE(held, normal);
    EXPECT_EQ(look(), normal);
}

} // namespace
} // namespace quadrelle::testing
