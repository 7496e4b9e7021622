// Pictures of the whole window, compared to the pixel with those in docs/pictures/expected: what the panes
// say, and where. QUADRELLE_WRITE_PICTURES=1 writes them anew and compares nothing, so the tests are skipped;
// look at each picture.

#include "screen/screen.h"
#include "tests/support/stored_picture.h"
#include "tests/whole/program_test.h"
#include "views/versions_layout.h"

#include <memory>
#include <ostream>

namespace quadrelle::testing {
namespace {

class Pictures_Test;

struct Scene {
    const char* name;
    void (Pictures_Test::*play)();
};

void PrintTo(const Scene& scene, std::ostream* out) {
    *out << scene.name;
}

class Pictures_Test : public Program_Test, public ::testing::WithParamInterface<Scene> {
public:
    void start() { show(); }

    // Dragged out of a line, in the last of more sets than there is room for tabs.
    void large_tile() {
        for (int i = 0; i < 6; ++i) {
            editor->documents().new_document({24, 24});
        }
        make_set({64, 64}, 5, 3);
        execute(Command::horizontal_seam_tool);
        execute(Command::line);
        script().key('l').key('l').key('j').wheel(1).wheel(1).wheel(1).wheel(1);
        script().press({420, 250}).motion({500, 270}).motion({600, 330});
        show_in_loop().release({600, 330});
        play();
    }

    // With the Edit menu over it.
    void selection() {
        make_set({24, 24}, 2, 1);
        execute(Command::rectangle_selector);
        script().drag({cell(2, 3), cell(15, 17)});
        script().drag({cell(10, 8), cell(19, 12)}, Mouse_Button::right);
        script().motion({48, 12}).press({48, 12}).motion({60, 25 + 25 * 9 + 12});
        show_in_loop().key(key::escape).motion({1220, 650});
        play();
    }

    // And copies beside it; the hint is about a pixel.
    void floating() {
        make_set({24, 24}, 3, 2);
        for (const int i : {2, 5, 9}) {
            select({i, 1}, {2 * i + 3, i + 4});
            execute(Command::copy);
            execute(Command::deselect);
        }
        execute(Command::paste);
        play(script().drag({cell(12, 12), cell(16, 15)}).motion(cell(3, 5)));
        show();
    }

    // Four brushes, the second one chosen and the third one lit.
    void brush_pad() {
        make_set({24, 24}, 1, 0);
        for (const int i : {2, 5, 9, 4}) {
            select({i, 1}, {2 * i + 1, i + 4});
            execute(Command::use_as_brush);
            execute(Command::move_to_pad);
        }
        execute(Command::deselect);
        tools().options.stamp_mode = Pen_Mode::offset;
        play(script().click({1028 + 3 * 10, 58 + 3 * 2}).motion({1028 + 3 * 22, 58 + 3 * 3}));
        show();
    }

    void color_editor() {
        make_set({24, 24}, 1, 0);
        tools().colors.set(Mouse_Button::left, {97, 18, 124, 200});
        tools().colors.set(Mouse_Button::right, {40, 160, 90});
        script().key(key::down).key(key::down).key(key::right, Modifier::shift);
        show_in_loop().key(key::escape);
        execute(Command::color_editor);
    }

    void adjust_hsv() {
        make_set({24, 24}, 2, 1);
        execute(Command::scroll);
        script().click({1157, 74}).type("-120").key(key::enter).key(key::down);
        script().key(key::right, Modifier::shift).key(key::down).key(key::left).key('a');
        show_in_loop().key(key::escape);
        execute(Command::adjust_hsv);
    }

    void arrangement() {
        make_set({16, 16}, 28, 18);
        execute(Command::wand_selector);
        script().press({16 + 32 * 5, 16 + 32}).press_number({16 + 32 * 9 + 4, 16 + 4}, 2).key(key::tab);
        show_in_loop().key(key::escape);
        execute(Command::arrange_select);
    }

    // The third of them is held, which shows it in large.
    void versions() {
        make_set({24, 24}, 4, 0);
        execute(Command::circle_selector);
        const Rectangle button = versions_layout({24, 24}, screen->size()).store_button;
        for (const std::string slot : {"1", "3"}) {
            go_to(std::stoi(slot));
            script().type(slot).click({button.x + 5, button.y + 5}).key(key::escape);
            execute(Command::versions);
        }
        script().key('3');
        show_in_loop().key(key::escape);
        execute(Command::versions);
    }

    void undo_list() {
        make_set({24, 24}, 1, 0);
        play(script().drag({cell(2, 2), cell(9, 9)}));
        for (const Command command : {Command::mirror, Command::rotate, Command::flip, Command::circle}) {
            execute(command);
        }
        script().drag({cell(5, 6), cell(12, 15)}).key(key::left).key('z', Modifier::control);
        play(script().key('z', Modifier::control));
        execute(Command::free_rotate);
        show_in_loop().key(key::escape);
        execute(Command::view_undo_history);
    }

    void keyboard_list() {
        execute(Command::brush_selector);
        show_in_loop().key(key::escape);
        execute(Command::keyboard_commands);
    }

    void tile_array() {
        make_set({16, 16}, 300, 270);
        execute(Command::lightness_pen);
        script().motion({16 + 32 * 5 + 8, 16 + 32 + 8});
        show_in_loop().key(key::escape);
        execute(Command::view_tile_array);
    }

    void options_dialog() {
        show_in_loop().key(key::escape);
        execute(Command::options);
    }

    // The strip scrolled to its end, a button held, and a brush of the second size in the toolbox.
    void tile_strip() {
        make_set({8, 8}, 200, 60);
        execute(Command::forward_strip);
        execute(Command::select_brush_size_2);
        script().press({36 + 126, 347});
        show_in_loop().release({36 + 126, 347});
        play();
    }

    void export_dialog() {
        make_set({24, 24}, 20, 3);
        show_in_loop().key(key::escape);
        execute(Command::export_bitmap);
    }

    void compare() const { expect_stored_picture(GetParam().name, shown_); }

private:
    // Every tile another one, all of them with edges, ramps and clear pixels.
    void make_set(Size size, int count, int current) {
        Program_Test::make_set(size, count, [size](int tile, Point pixel) {
            const int column = pixel.x * 6 / size.width;
            const int row = pixel.y * 6 / size.height;
            const int alpha = (pixel.y * size.width + pixel.x) % (size.width + 1) == 3 ? 80 : 255;
            return Color(column * 50, row * 50, (column * row * 40 + tile * 70) % 256, alpha);
        });
        go_to(current);
    }
    void go_to(int tile) {
        document().tileset().select(tile);
        execute(Command::change_tile);
    }
    static void select(Tile_Point from, Tile_Point to) {
        const Selection area = selected_rectangle(document().tileset().tile_size(), from, to);
        editor->canvas().work_area().select(area, Selection_Change::add);
    }
    void show() { shown_ = window_picture(); }
    Script& show_in_loop() {
        return script().check([this] { show(); });
    }

    Picture shown_;
};

constexpr std::array scenes = std::to_array<Scene>({
    {"start", &Pictures_Test::start},
    {"large_tile", &Pictures_Test::large_tile},
    {"selection", &Pictures_Test::selection},
    {"floating", &Pictures_Test::floating},
    {"brush_pad", &Pictures_Test::brush_pad},
    {"color_editor", &Pictures_Test::color_editor},
    {"adjust_hsv", &Pictures_Test::adjust_hsv},
    {"arrangement", &Pictures_Test::arrangement},
    {"versions", &Pictures_Test::versions},
    {"undo_list", &Pictures_Test::undo_list},
    {"keyboard_list", &Pictures_Test::keyboard_list},
    {"tile_array", &Pictures_Test::tile_array},
    {"options_dialog", &Pictures_Test::options_dialog},
    {"tile_strip", &Pictures_Test::tile_strip},
    {"export_dialog", &Pictures_Test::export_dialog},
});

TEST_P(Pictures_Test, shows_what_is_stored) {
    (this->*GetParam().play)();
    compare();
}

INSTANTIATE_TEST_SUITE_P(Scenes, Pictures_Test, ::testing::ValuesIn(scenes),
                         [](const auto& scene) { return std::string(scene.param.name); });

} // namespace
} // namespace quadrelle::testing
