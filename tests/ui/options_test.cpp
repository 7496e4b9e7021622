#include "ui/options.h"

#include "base/data_directory.h"
#include "tests/support/fatal_checks.h"
#include "tests/support/window_test.h"
#include "ui/dialog_container.h"

#include <array>
#include <cstddef>
#include <random>
#include <string>

namespace quadrelle {

using testing::Bytes;
using testing::Script;
using testing::store;
using testing::stored;

namespace {

class Options_Test : public testing::Window_Test {
protected:
    [[nodiscard]] std::string file() { return folder().data_path("options.dlg"); }
};

using Values = std::array<int, option_count>;

constexpr Values initial_values{2, 0, 1, 0, 0, 10, 64, 1, 2, 2, 6, 6, 0};

Values values_of(const Options& some) {
    Values values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values.at(i) = some.value(static_cast<Option>(i));
    }
    return values;
}

// What a fresh start has.
Values loaded_values() {
    Options fresh;
    fresh.load();
    return values_of(fresh);
}

Point middle_of(Options& some, Option option, std::size_t item) {
    const Dialog_Row& row = some.dialog().rows().rows().at(static_cast<std::size_t>(option));
    const Rectangle& area = row.items().at(item)->area;
    return {area.x + area.width / 2, area.y + area.height / 2};
}

} // namespace

TEST_F(Options_Test, start_with_their_table) {
    Options fresh;
    EXPECT_EQ(values_of(fresh), Values{});
    fresh.load();
    EXPECT_EQ(values_of(fresh), initial_values);
    EXPECT_EQ(fresh.dialog().value(31), 2);
    EXPECT_EQ(fresh.dialog().value(170), 0);
    EXPECT_EQ(fresh.dialog().value(91), 64);
}

TEST_F(Options_Test, dialog_fits_into_the_window) {
    Options fresh;
    const Rectangle& box = fresh.dialog().frame().area();
    EXPECT_TRUE((Rectangle{20, 20, 1192, 624}.contains({box.x, box.y})));
    EXPECT_TRUE((Rectangle{20, 20, 1192, 624}.contains({box.right(), box.bottom()})));
    for (const Dialog_Row& row : fresh.dialog().rows().rows()) {
        EXPECT_LE(row.area.right(), box.right());
    }
}

TEST_F(Options_Test, accepted_changes_are_kept_between_runs) {
    Options some;
    some.load();
    Script script;
    const auto press = [&](Option option, std::size_t item) { script.press(middle_of(some, option, item)); };
    press(Option::precise_brush, 1);
    press(Option::show_shadow_brush, 0);
    press(Option::editor_pixel_size, 0);
    press(Option::repeat_x_tiles, 0);
    press(Option::repeat_x_tiles, 0);
    press(Option::clone_style, 1);
    script.press(middle_of(some, Option::grid_intensity, 3)).type("200").key(key::enter);
    script.check([&] { EXPECT_EQ(values_of(some), initial_values); }).key(key::enter);
    EXPECT_TRUE(some.edit());
    const Values changed{0, 0, 0, 0, 0, 9, 200, 1, 21, 2, 6, 6, 1};
    EXPECT_EQ(values_of(some), changed);
    EXPECT_EQ(loaded_values(), changed);
    // The file lies in the data folder from wherever it is read.
    data_directory().enter(Data_Directory::inside);
    EXPECT_EQ(loaded_values(), changed);
}

TEST_F(Options_Test, cancelled_changes_are_not) {
    Options some;
    some.load();
    Script script;
    for (const Keycode end : {key::escape, key::none}) {
        script.press(middle_of(some, Option::show_shadow_brush, 0));
        script.press(middle_of(some, Option::alpha_grid_width, 1));
        if (end == key::none) {
            script.press(middle_of(some, Option::count, 1));
        } else {
            script.key(end);
        }
        EXPECT_FALSE(some.edit());
        EXPECT_EQ(values_of(some), initial_values);
    }
    EXPECT_TRUE(stored(file()).empty());
}

TEST_F(Options_Test, broken_files_leave_every_value_inside_its_bounds) {
    Options some;
    Script script;
    script.key(key::enter);
    ASSERT_TRUE(some.edit());
    const Bytes whole = stored(file());
    ASSERT_GT(whole.size(), 50U);
    constexpr unsigned seed = 20240611;
    std::mt19937 random(seed);
    for (int round = 0; round < 2000; ++round) {
        Bytes bytes = whole;
        for (int flips = 0; flips < 1 + round % 5; ++flips) {
            bytes.at(4 + random() % (bytes.size() - 4)) = static_cast<std::uint8_t>(random());
        }
        store(file(), bytes);
        Options loaded;
        loaded.load();
        for (const Option_Row& row : option_table) {
            EXPECT_GE(loaded.value(row.id), row.low + row.offset) << row.key << "round " << round;
            EXPECT_LE(loaded.value(row.id), row.high + row.offset) << row.key << "round " << round;
        }
    }
}

TEST_F(Options_Test, a_file_shorter_than_it_says_is_fatal) {
    const std::string path = data_directory().path("options.dlg");
    for (const Bytes& bytes :
         {Bytes{}, Bytes{9, 0, 0}, Bytes{9, 0, 0, 0, '1'}, Bytes{255, 255, 255, 255, '1'}}) {
        store(file(), bytes);
        EXPECT_FATAL(Options(), "Unable to load block from  " + path);
    }
    store(file(), {0, 0, 0, 0});
    EXPECT_EQ(loaded_values(), initial_values);
    // Fourteen rows are announced, and none is there.
    store(file(), {3, 0, 0, 0, '1', '4', ':'});
    EXPECT_EQ(loaded_values(), initial_values);
}

} // namespace quadrelle
