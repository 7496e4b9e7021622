#include "color/hsv_change.h"
#include "tests/whole/program_test.h"

namespace quadrelle::testing {
namespace {

constexpr int hue_y = 74;
constexpr int saturation_y = 98;
constexpr int value_y = 122;
constexpr int less_x = 1122;
constexpr int number_x = 1157;
constexpr int middle_x = 1191;
constexpr int more_x = 1210;
constexpr int bar_left = 872;
constexpr int bar_right = 1110;
constexpr Point all_tiles{830, 156};
constexpr Point ok{820, 215};
constexpr Point cancel{1180, 215};

class Adjust_HSV_Test : public Program_Test {
protected:
    void SetUp() override {
        Program_Test::SetUp();
        paint_at_random();
    }

    static void paint_at_random() {
        static std::mt19937 random(5);
        Tile& tile = *document().tileset().current_tile();
        tile.map_colours([&](Color) { return Color::from_word(static_cast<std::uint32_t>(random())); });
        document().history().reset(document().tileset());
    }
    static Tile_Picture picture(int index = 0) { return picture_of(document().tileset().tile_at(index)); }
    static Tile_Picture changed(Tile_Picture pixels, const HSV_Change& change) {
        std::ranges::transform(pixels, pixels.begin(), [&](Color color) { return adjusted(color, change); });
        return pixels;
    }
    static std::size_t steps() { return document().history().entries().size(); }
};

TEST_F(Adjust_HSV_Test, shows_the_change_while_it_is_chosen_and_records_it_as_one_step) {
    const Tile_Picture before = picture();
    const Tile_Picture after = changed(before, {180, -100, 1});
    script().drag({{bar_left + 9, hue_y}, {bar_left, hue_y}, {2000, hue_y}});
    script().check([&] { EXPECT_EQ(picture(), changed(before, {.hue = 180})); });
    script().drag({{bar_right, saturation_y}, {bar_left - 5, 0}}).click({more_x, value_y});
    script().check([&] { EXPECT_EQ(picture(), after); });
    script().press(ok);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(), after);
    EXPECT_EQ(steps(), 2U);
    EXPECT_EQ(document().history().entries().back().kind, Command::adjust_hsv);
    EXPECT_TRUE(document().is_modified());
    editor->execute(Command::undo);
    EXPECT_EQ(picture(), before);
    editor->execute(Command::redo);
    EXPECT_EQ(picture(), after);
}

TEST_F(Adjust_HSV_Test, gives_every_pixel_back_when_given_up) {
    const Tile_Picture before = picture();
    const auto give_up = [&](const auto& end) {
        script().drag({{900, hue_y}, {1000, hue_y}}).click({less_x, value_y}).check([&] {
            EXPECT_NE(picture(), before);
        });
        end();
        execute(Command::adjust_hsv);
        EXPECT_EQ(picture(), before);
        EXPECT_EQ(steps(), 1U);
        EXPECT_FALSE(document().is_modified());
    };
    give_up([&] { script().key(key::escape); });
    give_up([&] { script().press(cancel); });
    give_up([&] { script().quit(); });
    // Accepted, but back at nothing.
    give_up([&] { script().click({middle_x, hue_y}).click({more_x, value_y}).key(key::enter); });
}

TEST_F(Adjust_HSV_Test, changes_what_floats_in_view_instead_of_the_tile) {
    Work_Area& work = editor->canvas().work_area();
    const auto floating = [&] { return picture_of(work.paste()->picture); };
    const Tile_Picture before = picture();
    work.float_paste({random_tile({5, 4}), {3, 3}});
    execute(Command::work_selection);
    const Tile_Picture floated = floating();
    for (const Keycode end : {key::escape, key::enter}) {
        script().drag({{bar_left + 9, hue_y}, {2000, hue_y}});
        script().check([&] { EXPECT_EQ(floating(), changed(floated, {.hue = 180})); }).key(end);
        execute(Command::adjust_hsv);
        EXPECT_EQ(floating() == floated, end == key::escape);
        EXPECT_EQ(picture(), before);
    }
    EXPECT_EQ(document().history().entries().back().kind, Command::adjust_hsv);
    editor->execute(Command::undo);
    EXPECT_EQ(floating(), floated);
}

TEST_F(Adjust_HSV_Test, takes_typed_numbers_the_wheel_and_keys) {
    const Tile_Picture before = picture();
    script().click({number_x, hue_y}).type("-90").key(key::enter);
    script().motion({1000, saturation_y}).wheel(-1).wheel(-1).wheel(1);
    script().key(key::left).key(key::down).key(key::down).key(key::right, Modifier::shift);
    script()
        .key(key::up)
        .key(key::up)
        .key(key::up)
        .key(key::left)
        .key(key::left, Modifier::control)
        .key(key::enter);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(), changed(before, {-92, -1, 10}));
    script().drag({{1000, hue_y}, {0, 0}}).click({less_x, hue_y}).drag({{1000, value_y}, {2000, 0}});
    script().click({more_x, value_y}).key('y');
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(), changed(changed(before, {-92, -1, 10}), {-180, 0, 100}));
}

TEST_F(Adjust_HSV_Test, changes_all_tiles_after_a_question_and_starts_the_history_anew) {
    execute(Command::add_new_tile);
    paint_at_random();
    execute(Command::add_new_tile);
    paint_at_random();
    const std::vector<Tile_Picture> before{picture(0), picture(1), picture(2)};
    script().click({more_x, hue_y}).press(all_tiles).key('a').key('a', Modifier::control).check([&] {
        EXPECT_EQ(picture(0), before[0]);
        EXPECT_EQ(picture(2), changed(before[2], {.hue = 1}));
    });
    script().key(key::enter);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(0), before[0]);
    EXPECT_EQ(steps(), 2U);

    script().click({more_x, hue_y}).key('a').key(key::escape);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(2), changed(before[2], {.hue = 1}));
    EXPECT_EQ(steps(), 2U);

    document().tileset().tile_at(1).fill(black);
    const auto adjust_all = [&](Keycode answer) {
        script().click({more_x, hue_y}).press(all_tiles).key(key::enter);
        expect_question("Adjust HSV", "Change 2 tiles of the set?\rThis can't be undone: the undo history of "
                                      "the set is lost.");
        script().key(answer);
        execute(Command::adjust_hsv);
    };
    adjust_all(key::escape);
    EXPECT_EQ(picture(0), before[0]);
    EXPECT_EQ(steps(), 2U);
    adjust_all(key::enter);
    EXPECT_EQ(picture(0), changed(before[0], {.hue = 1}));
    EXPECT_EQ(picture(1), Tile_Picture(24 * 24, black));
    EXPECT_EQ(picture(2), changed(changed(before[2], {.hue = 1}), {.hue = 1}));
    EXPECT_EQ(steps(), 1U);
    const Tile_Picture after = picture(2);
    editor->execute(Command::undo);
    EXPECT_EQ(picture(2), after);
}

TEST_F(Adjust_HSV_Test, keeps_to_the_selection_unless_all_tiles_change) {
    execute(Command::add_new_tile);
    paint_at_random();
    const std::vector<Tile_Picture> before{picture(0), picture(1)};
    const HSV_Change change{.value = 1};
    const auto in_corner = [&] {
        Tile_Picture pixels = changed(before[1], change);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            pixels[i] = i % 24 < 6 && i / 24 < 4 ? pixels[i] : before[1][i];
        }
        return pixels;
    };
    editor->canvas().work_area().select(selected_rectangle({24, 24}, {0, 0}, {6, 4}), Selection_Change::add);
    script().click({more_x, value_y}).check([&] { EXPECT_EQ(picture(1), in_corner()); });
    script().key('a').check([&] { EXPECT_EQ(picture(1), changed(before[1], change)); });
    script().key('a').check([&] { EXPECT_EQ(picture(1), in_corner()); }).key('a').key(key::escape);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(1), before[1]);

    script().click({more_x, value_y}).key(key::enter);
    execute(Command::adjust_hsv);
    EXPECT_EQ(picture(1), in_corner());
    EXPECT_EQ(picture(0), before[0]);
}

TEST_F(Adjust_HSV_Test, works_on_a_shifted_tile_and_comes_from_the_selected_pane) {
    const Tile_Picture before = picture();
    execute(Command::horizontal_seam_tool);
    script().click({more_x, value_y}).key(key::enter);
    execute(Command::adjust_hsv);
    execute(Command::horizontal_seam_tool);
    EXPECT_EQ(picture(), changed(before, {.value = 1}));
    editor->execute(Command::undo);
    EXPECT_EQ(picture(), before);

    const auto press_button = [this] {
        script().click({190, 619});
        return &expect_loop("dialog \"Adjust HSV\"").click({more_x, value_y});
    };
    play(press_button()->key(key::escape));
    EXPECT_EQ(picture(), before);
    play(press_button()->key(key::enter));
    EXPECT_EQ(picture(), changed(before, {.value = 1}));
    EXPECT_EQ(steps(), 2U);
}

TEST_F(Adjust_HSV_Test, has_nothing_to_do_without_tiles_or_on_grey_ones) {
    Tile& tile = *document().tileset().current_tile();
    tile.fill({90, 90, 90});
    script().click({more_x, hue_y}).click({less_x, saturation_y}).key(key::enter);
    execute(Command::adjust_hsv);
    EXPECT_EQ(steps(), 1U);
    EXPECT_FALSE(document().is_modified());

    editor->canvas().set_tile(nullptr);
    expect_message("Note", "There is no tile to adjust.").key(key::enter);
    execute(Command::adjust_hsv);
}

} // namespace
} // namespace quadrelle::testing
