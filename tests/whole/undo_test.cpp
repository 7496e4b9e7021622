#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

class Undo_Test : public Program_Test {
protected:
    static const Undo_History& history() { return document().history(); }

    void stroke(const std::vector<Point>& points) { play(script().drag(points)); }
    void press_undo() { play(script().key('z', Modifier::control)); }
};

TEST_F(Undo_Test, shows_the_newest_seven_states_in_its_pane) {
    constexpr Point first{36, 394};
    constexpr int step = 26;
    // A thumbnail of this tile has the size of the tile; its pixel (12, 3 + i) comes with the i-th stroke.
    const auto shows = [&](int place, int number) {
        return pixel_at({first.x + place * step + 12, first.y + 3 + number}) == white;
    };
    for (int i = 0; i < 3; ++i) {
        stroke({cell(12, 3 + i)});
    }
    for (int place = 1; place < 4; ++place) {
        EXPECT_TRUE(shows(place, place - 1)) << place;
        EXPECT_FALSE(shows(place, place)) << place;
    }
    for (int i = 3; i < 9; ++i) {
        stroke({cell(12, 3 + i)});
    }
    for (int place = 0; place < 7; ++place) {
        EXPECT_TRUE(shows(place, place + 2)) << place;
        EXPECT_FALSE(shows(place, place + 3)) << place;
    }
    const Color marked = pixel_at({first.x + 6 * step, first.y});
    press_undo();
    EXPECT_NE(pixel_at({first.x + 6 * step, first.y}), marked);
    EXPECT_EQ(pixel_at({first.x + 5 * step, first.y}), marked);
}

TEST_F(Undo_Test, lists_all_states_until_any_key_click_or_quit) {
    const auto expect_list = [this]() -> Script& { return expect_loop("dialog \"Undo history\""); };
    for (int i = 0; i < 3; ++i) {
        stroke({cell(i, 3)});
    }
    // Four rows, the newest one on top: only it is lit, until something is undone.
    constexpr int dialog_height = 24 + 4 * 30 + 7;
    const Point row{466 + 290, (664 - dialog_height) / 2 + 24 + 4 + 14};
    const Color active(70, 130, 75);
    expect_list().check([&] {
        EXPECT_EQ(pixel_at(row), active);
        EXPECT_NE(pixel_at({row.x, row.y + 30}), active);
    });
    script().motion({5, 5});
    expect_list().key('z', Modifier::control);
    execute(Command::view_undo_history);
    press_undo();
    expect_list().check([&] {
        EXPECT_NE(pixel_at(row), active);
        EXPECT_EQ(pixel_at({row.x, row.y + 30}), active);
    });
    script().click(cell(5, 5));
    editor->execute(Command::view_undo_history);
    play();
    expect_list().quit();
    execute(Command::view_undo_history);
    EXPECT_EQ(tile_pixel(5, 5), black);
    EXPECT_EQ(history().entries().size(), 4U);
    EXPECT_EQ(history().position(), 2);
}

} // namespace
} // namespace quadrelle::testing
