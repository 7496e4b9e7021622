#include "panes/toolbox.h"

#include "color/palette_store.h"
#include "panes/tool_colors.h"
#include "tests/whole/program_test.h"
#include "ui/dialog_container.h"
#include "ui/options.h"

namespace quadrelle::testing {
namespace {

class Toolbox_Test : public Program_Test {};

// From the brush's corner to the pointer, half the brush without its first pixel.
TEST_F(Toolbox_Test, pointer_offset_centres_a_precise_brush) {
    struct Case {
        int size_index;
        int pixel_size;
        int offset;
    };
    for (const Case& test : {Case{0, 10, 0}, {1, 10, 5}, {2, 10, 10}, {1, 3, 1}, {5, 21, 52}}) {
        toolbox->select_brush_size(test.size_index);
        EXPECT_EQ(toolbox->pointer_offset(test.pixel_size), (Point{test.offset, test.offset}));
    }
    constexpr int precise_brush_id = 31;
    options->dialog().item(precise_brush_id)->notify(Dialog_Event_Kind::increase);
    options->load();
    ASSERT_EQ(options->value(Option::precise_brush), 0);
    EXPECT_EQ(toolbox->pointer_offset(10), Point{});
}

} // namespace
} // namespace quadrelle::testing
