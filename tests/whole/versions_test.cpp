#include "screen/screen.h"
#include "tests/whole/program_test.h"
#include "views/versions_layout.h"

namespace quadrelle::testing {
namespace {

Point middle_of(const Rectangle& area) {
    return {area.x + area.width / 2, area.y + area.height / 2};
}

// Pixel (4, 4) of the tile is painted in some tests and tells the pictures apart.
class Versions_Test : public Program_Test {
protected:
    static constexpr Tile_Point probe{4, 4};

    void SetUp() override {
        Program_Test::SetUp();
        layout_ = versions_layout({24, 24}, screen->size());
    }

    [[nodiscard]] const Versions_Layout& layout() const { return layout_; }
    [[nodiscard]] Point slot(std::size_t i) const { return middle_of(layout_.slots.at(i)); }
    [[nodiscard]] Point store_button() const { return middle_of(layout_.store_button); }
    [[nodiscard]] Point take_button() const { return middle_of(layout_.take_button); }
    // What the window shows of the probe.
    [[nodiscard]] Color in_big_view() const {
        return pixel_at({layout_.big_view.x + 3 * probe.x + 1, layout_.big_view.y + 3 * probe.y + 1});
    }
    [[nodiscard]] Color in_slot(std::size_t i) const {
        const Rectangle& area = layout_.slots.at(i);
        return pixel_at({area.x + 2 * probe.x, area.y + 2 * probe.y + 1});
    }

    static Tile& tile() { return *document().tileset().current_tile(); }
    static std::size_t steps() { return document().history().entries().size(); }
    void paint(Point position) { play(script().click(position)); }
    void paint_probe() { paint(cell(probe.x, probe.y)); }
    Script& in_dialog() { return expect_loop("dialog \"Versions\""); }
    Script& in_main() { return expect_loop("main").motion({1220, 650}); }
    void store_in(Keycode digit) {
        play(script().key('v').key(digit).key_up(digit).click(store_button()).key(key::escape));
    }
    void take_from(Keycode digit) { play(script().key('v').key(digit).key_up(digit).click(take_button())); }
    // What was taken floats over the tile.
    static Tile_Picture floating() {
        return picture_of(editor->canvas().work_area().paste().value().picture);
    }

private:
    Versions_Layout layout_;
};

TEST_F(Versions_Test, previews_a_slot_while_its_key_or_a_button_on_it_is_held) {
    paint_probe();
    script().key('v').check([&] { EXPECT_EQ(in_big_view(), white); });
    script().key('3').check([&] { EXPECT_EQ(in_big_view(), black); });
    script().key_up('3').check([&] { EXPECT_EQ(in_big_view(), white); });
    script().press(slot(3)).check([&] { EXPECT_EQ(in_big_view(), black); });
    script().motion({0, 0}).check([&] { EXPECT_EQ(in_big_view(), black); });
    script().release({0, 0}, Mouse_Button::right).check([&] { EXPECT_EQ(in_big_view(), white); });
    // Other keys select nothing, show nothing and leave the dialog open.
    script().key('5').key('0').key('x').check([&] { EXPECT_EQ(in_big_view(), white); });
    in_dialog().key(key::escape);
    in_main();
    play();
}

TEST_F(Versions_Test, stores_the_tile_and_takes_it_back_as_one_step) {
    paint_probe();
    const Tile_Picture kept = tile_picture();
    document().clear_modified();
    // Without a selected slot there is nowhere to store.
    script().key('v').click(store_button());
    script().check([&] { EXPECT_FALSE(document().versions().is_stored(0)); });
    script().key('2').key_up('2').click(store_button());
    script().check([&] { EXPECT_EQ(in_slot(1), white); }).check([&] { EXPECT_EQ(in_slot(0), black); });
    in_dialog().key(key::escape);
    in_main();
    play();
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(steps(), 2U);
    EXPECT_EQ(tile_picture(), kept);

    paint(cell(9, 9));
    const Tile_Picture later = tile_picture();
    document().clear_modified();
    script().key('v').press(slot(1));
    script().check([&] { EXPECT_EQ(in_big_view(), white); });
    script().release(slot(1)).press(take_button());
    in_main();
    play();
    EXPECT_EQ(floating(), kept);
    EXPECT_EQ(tile_picture(), later);
    EXPECT_TRUE(document().is_modified());
    EXPECT_EQ(steps(), 4U);
    EXPECT_EQ(document().history().entries().back().kind, Command::paste);
    EXPECT_EQ(tools().tool, Tool::selection);
    play(script().key('p'));
    EXPECT_EQ(tile_picture(), kept);
    EXPECT_EQ(document().history().entries().back().kind, Command::plot_paste);
}

TEST_F(Versions_Test, keys_take_the_selected_one) {
    paint_probe();
    const Tile_Picture kept = tile_picture();
    store_in('4');
    for (const Keycode pressed : {key::enter, key::keypad_enter, Keycode{'y'}}) {
        // Nothing is chosen, and then an empty one.
        play(script().key('v').key(pressed).key('v').key('1').key_up('1').key(pressed));
        EXPECT_FALSE(editor->canvas().work_area().paste());
        play(script().key('v').key('4').key_up('4').key(pressed));
        EXPECT_EQ(floating(), kept);
        execute(Command::undo);
    }
}

TEST_F(Versions_Test, changes_nothing_when_left) {
    paint_probe();
    document().clear_modified();
    const Tile_Picture before = tile_picture();
    const auto leave = [&](auto how) {
        script().key('v').key('1').key_up('1');
        in_dialog();
        how();
        in_main();
        play();
        EXPECT_EQ(tile_picture(), before);
    };
    leave([&] { script().quit(); });
    leave([&] { script().press({layout().dialog.x - 1, layout().dialog.y + 40}); });
    leave([&] { script().press({layout().dialog.right(), layout().dialog.y + 40}, Mouse_Button::right); });
    // On the title and between the parts nothing happens; a middle button never acts.
    leave([&] {
        script().click({layout().dialog.x + 100, layout().dialog.y + 5}).press_number(take_button(), 2);
        script().press_number({0, 0}, 2).click(middle_of(layout().big_view));
        in_dialog().key(key::escape);
    });
    EXPECT_FALSE(document().is_modified());
    EXPECT_EQ(steps(), 2U);
}

TEST_F(Versions_Test, buttons_show_when_they_cannot_be_used) {
    const auto look = [](const Rectangle& area) {
        std::vector<Color> pixels;
        for (int x = area.x; x < area.right(); ++x) {
            pixels.push_back(pixel_at({x, area.y + area.height / 2}));
        }
        return pixels;
    };
    std::vector<Color> unusable_store;
    std::vector<Color> unusable_take;
    script().key('v').check([&] {
        unusable_store = look(layout().store_button);
        unusable_take = look(layout().take_button);
    });
    // That version is empty.
    in_dialog().key('2').key_up('2').check([&] {
        EXPECT_NE(look(layout().store_button), unusable_store);
        EXPECT_EQ(look(layout().take_button), unusable_take);
    });
    in_dialog().click(store_button()).check([&] { EXPECT_NE(look(layout().take_button), unusable_take); });
    in_dialog().press(take_button());
    in_main();
    play();
    EXPECT_TRUE(editor->canvas().work_area().paste());
}

TEST_F(Versions_Test, keep_what_was_stored_when_the_tiles_get_another_size) {
    paint_probe();
    tile().set_pixel(20, 20, {9, 8, 7, 6});
    const Tile_Picture kept = tile_picture();
    store_in('1');
    editor->documents().resize_current({12, 40});
    const Tile copy = document().versions().copy(0, {12, 40});
    EXPECT_EQ(copy.size(), (Size{12, 40}));
    EXPECT_EQ(copy.get_pixel(2, 7), document().tileset().current_pixel(2, 7));
    tile().fill({200, 0, 0});
    script().key('v').key('1').key_up('1');
    script().press(middle_of(versions_layout({12, 40}, screen->size()).take_button));
    play();
    EXPECT_EQ(floating(), picture_of(copy));
    editor->documents().resize_current({24, 24});
    take_from('1');
    EXPECT_EQ(floating(), kept);
}

} // namespace
} // namespace quadrelle::testing
