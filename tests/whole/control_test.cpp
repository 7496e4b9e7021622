#include "screen/screen.h"
#include "tests/whole/program_test.h"
#include "ui/window_layout.h"

namespace quadrelle::testing {
namespace {

struct Control {
    const char* name;
    Rectangle area;
};

void PrintTo(const Control& control, std::ostream* out) {
    *out << control.name;
}

class Control_Answer_Test : public Program_Test, public ::testing::WithParamInterface<Control> {
protected:
    static std::vector<Color> shown() {
        screen->paint();
        std::vector<Color> colors;
        const Rectangle& area = GetParam().area;
        for (int y = area.y; y < area.bottom(); ++y) {
            const Color* const row = screen->pixels().row(y);
            colors.insert(colors.end(), row + area.x, row + area.right());
        }
        return colors;
    }
};

INSTANTIATE_TEST_SUITE_P(
    Controls, Control_Answer_Test,
    ::testing::Values(Control{"icon", {784, 32, 24, 24}}, Control{"tool", {816, 266, 202, 26}},
                      Control{"tab", {265, 33, 60, 19}}, Control{"step of an option", {843, 190, 15, 15}},
                      Control{"step of the palettes", {213, 453, 15, 15}},
                      Control{"color of the palette", {108, 512, 24, 20}},
                      Control{"color of the left button", {1031, 58, 17, 17}},
                      Control{"variation", {1047, 518, 16, 16}}, Control{"store", {83, 611, 62, 16}},
                      Control{"step of a handle", {1167, 366, 15, 15}}, Control{"tile", {28, 636, 24, 24}},
                      Control{"step to a tile", {150, 336, 24, 23}},
                      Control{"size of the brush", {857, 138, 18, 18}}),
    [](const auto& control) {
        std::string name = control.param.name;
        std::ranges::replace(name, ' ', '_');
        return name;
    });

// It acts on the press, so that what it looks like afterwards is no longer the same by itself.
TEST_P(Control_Answer_Test, is_lit_under_the_pointer_and_pushed_in_while_held) {
    make_set({24, 24}, 3, [](int, Point) { return Color(); });
    const Rectangle& area = GetParam().area;
    const Point inside{area.x + area.width / 2, area.y + area.height / 2};
    std::vector<Color> idle;
    std::vector<Color> held;
    script().motion({20, 600}).check([&] { idle = shown(); }).motion(inside);
    script().check([&] { EXPECT_TRUE(shown() != idle); }).press(inside).check([&] { held = shown(); });
    script().release(inside).check([&] { EXPECT_TRUE(shown() != held); }).motion({20, 600});
    play();
    EXPECT_TRUE(shown() != held);
}

} // namespace
} // namespace quadrelle::testing
