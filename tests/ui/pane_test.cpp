#include "ui/pane.h"
#include "panes/preview_pane.h"

#include "color/standard_colors.h"
#include "pixels/tile.h"
#include "screen/screen.h"
#include "tests/support/window_test.h"

namespace quadrelle::testing {
namespace {

class Pane_Test : public Window_Test {};

constexpr Color background = standard_color(Standard_Color::pane_background);
constexpr Color clear_color{10, 20, 30};

} // namespace

TEST_F(Pane_Test, contains_its_left_and_top_edges_only) {
    const Pane pane({0, 0, 200, 100}, "Pane");
    EXPECT_TRUE(pane.contains(5, 26));
    EXPECT_FALSE(pane.contains(4, 26));
    EXPECT_FALSE(pane.contains(5, 25));
    EXPECT_TRUE(pane.contains(194, 115));
    EXPECT_FALSE(pane.contains(195, 115));
    EXPECT_FALSE(pane.contains(194, 116));
    EXPECT_TRUE(pane.contains(Pointer_State{194.9F, 115.9F}));
    EXPECT_FALSE(pane.contains(Pointer_State{4.9F, 26.2F}));
}

TEST_F(Pane_Test, preview_stays_inside_its_client_area) {
    Preview_Pane preview({31, 32, 202, 202});
    const Rectangle client = preview.client_area();
    for (const Size size : {Size{255, 255}, Size{64, 1}, Size{0, 0}}) {
        Tile tile(size.width, size.height);
        tile.fill({200, 10, 20});
        for (const int repeat : {-1, 0, 1, 21, 1000000}) {
            preview.set_repeat(repeat, repeat);
            screen->fill_rect({0, 0, 400, 400}, clear_color);
            preview.draw(&tile);
            EXPECT_EQ(pixel_at({client.x - 1, client.y + 96}), background);
            EXPECT_EQ(pixel_at({client.right(), client.y + 96}), background);
            EXPECT_EQ(pixel_at({client.x + 96, client.bottom()}), background);
            EXPECT_EQ(pixel_at({client.right() + 5, client.y + 96}), clear_color);
        }
        EXPECT_EQ(pixel_at({client.x + 90, client.y + 96}),
                  size.width == 0 ? background : Color(200, 10, 20));
        if (size.height > 192) {
            // Up to its edges.
            EXPECT_EQ(pixel_at({client.x, client.y}), Color(200, 10, 20));
            EXPECT_EQ(pixel_at({client.right() - 1, client.bottom() - 1}), Color(200, 10, 20));
        }
    }
}

} // namespace quadrelle::testing
