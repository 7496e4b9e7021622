#include "views/options_dialog.h"

#include "base/data_directory.h"
#include "tests/support/window_test.h"

#include <memory>

namespace quadrelle::testing {
namespace {

class Options_Test : public Window_Test {
protected:
    [[nodiscard]] std::string file() { return folder().data_path("options.dlg"); }
};

// With their dialog in reach.
struct Own_Options {
    Own_Options() : Own_Options(std::make_unique<Options_Dialog>()) {}
    explicit Own_Options(std::unique_ptr<Options_Dialog> made) : dialog(*made), values(std::move(made)) {}

    Options_Dialog& dialog;
    Options values;
};

using Values = std::array<int, option_count>;

constexpr Values initial_values{2, 0, 1, 0, 0, 10, 64, 1, 2, 2, 6, 6, 0};

Values values_of(const Own_Options& some) {
    Values values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values.at(i) = some.values.value(static_cast<Option>(i));
    }
    return values;
}

// What a fresh start has.
Values loaded_values() {
    Own_Options fresh;
    fresh.values.load();
    return values_of(fresh);
}

Point middle_of(Own_Options& some, Option option, std::size_t item) {
    const Dialog_Row& row = some.dialog.container().rows().rows().at(static_cast<std::size_t>(option));
    const Rectangle& area = row.items().at(item)->area;
    return {area.x + area.width / 2, area.y + area.height / 2};
}

} // namespace

TEST_F(Options_Test, accepted_changes_are_kept_between_runs) {
    Own_Options some;
    some.values.load();
    Script script;
    const auto press = [&](Option option, std::size_t item) { script.click(middle_of(some, option, item)); };
    press(Option::precise_brush, 1);
    press(Option::show_shadow_brush, 0);
    press(Option::editor_pixel_size, 0);
    press(Option::repeat_x_tiles, 0);
    press(Option::repeat_x_tiles, 0);
    press(Option::clone_style, 1);
    script.press(middle_of(some, Option::grid_intensity, 3)).type("200").key(key::enter);
    script.check([&] { EXPECT_EQ(values_of(some), initial_values); }).key(key::enter);
    EXPECT_TRUE(some.values.edit());
    const Values changed{0, 0, 0, 0, 0, 9, 200, 1, 21, 2, 6, 6, 1};
    EXPECT_EQ(values_of(some), changed);
    EXPECT_EQ(loaded_values(), changed);
    // The file lies in the data folder from wherever it is read.
    data_directory().enter(Data_Directory::inside);
    EXPECT_EQ(loaded_values(), changed);
}

} // namespace quadrelle::testing
