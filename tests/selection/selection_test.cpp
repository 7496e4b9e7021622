#include "commands/command_table.h"
#include "selection/copy_buffer.h"
#include "selection/floating_paste.h"
#include "selection/transform_table.h"
#include "selection/transforms.h"
#include "selection/work_area.h"
#include "tests/support/tiles.h"

namespace quadrelle::testing {
namespace {

Art mask_art(const Selection& selection) {
    Art rows = art(selection.mask());
    for (std::string& row : rows) {
        std::ranges::replace(row, ' ', '.');
    }
    return rows;
}

Selection selected(const Art& rows) {
    const Tile mask = make_tile(rows);
    Selection selection(mask.size());
    selection.change([&](Tile& tile) {
        for (int i = 0; i < tile.pixel_count(); ++i) {
            tile.set_pixel_at(i, mask.get_pixel_at(i) == white ? white : clear);
        }
    });
    return selection;
}

Tile_Picture sorted(Tile_Picture pixels) {
    std::ranges::sort(pixels, {}, &Color::word);
    return pixels;
}

class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(engine_); }
    Tile tile(Size size) { return random_tile(size, engine_); }
    // Never empty.
    Selection selection(Size size) {
        Selection selection(size);
        for (int i = 0; i < 3 || selection.is_empty(); ++i) {
            const Tile_Point from{below(size.width + 1), below(size.height + 1)};
            selection.combine(selected_rectangle(size, from, {below(size.width + 1), below(size.height + 1)}),
                              i == 1 ? Selection_Change::remove : Selection_Change::add);
        }
        return selection;
    }

private:
    std::mt19937 engine_;
};

TEST(Selection, is_made_of_areas_that_are_added_and_taken_away) {
    Selection selection({7, 5});
    EXPECT_TRUE(selection.is_empty());
    EXPECT_EQ(selection.bounds(), Rectangle{});
    // Whichever corner comes first, and cut to the tile.
    selection.combine(selected_rectangle({7, 5}, {4, 3}, {1, 1}), Selection_Change::add);
    selection.combine(selected_rectangle({7, 5}, {5, 4}, {90, -3}), Selection_Change::add);
    selection.combine(selected_rectangle({7, 5}, {2, 2}, {3, 9}), Selection_Change::remove);
    selection.combine(selected_rectangle({7, 5}, {0, 4}, {7, 4}), Selection_Change::add);
    EXPECT_EQ(mask_art(selection), (Art{".....##", ".###.##", ".#.#.##", ".....##", "......."}));
    EXPECT_EQ(selection.bounds(), (Rectangle{1, 0, 6, 4}));
    EXPECT_EQ(selection.count(), 13);
    EXPECT_FALSE(selection.contains({7, 0}));
    EXPECT_FALSE(selection.contains({-1, 1}));

    selection.invert();
    EXPECT_EQ(mask_art(selection), (Art{"#####..", "#...#..", "#.#.#..", "#####..", "#######"}));
    EXPECT_EQ(selection.count(), 35 - 13);
    selection.clear();
    EXPECT_TRUE(selection.is_empty());
    selection.invert();
    EXPECT_EQ(selection.count(), 35);
}

TEST(Floating_Paste, lifts_what_is_selected_and_plots_it_where_it_lies) {
    const Art before{"abcde", "fghij", "klmno"};
    Tile tile = make_tile(before);
    const Selection selection = selected({".....", "..##.", "...#."});
    Floating_Paste paste = lifted(tile, selection);
    EXPECT_EQ(art(paste.picture), (Art{"hi", " n"}));
    EXPECT_EQ(paste.position, (Tile_Point{2, 1}));
    clear_selected(tile, selection);
    EXPECT_EQ(art(tile), (Art{"abcde", "fg  j", "klm o"}));

    Drawing_Target target(tile);
    paste.position = {-1, 0};
    EXPECT_EQ(mask_art(paste.area(tile.size())), (Art{"#....", "#....", "....."}));
    paste.plot(target);
    EXPECT_EQ(art(tile), (Art{"ibcde", "ng  j", "klm o"}));
    // Nothing of what hung over is lost.
    paste.position = {2, 1};
    paste.plot(target);
    EXPECT_EQ(art(tile), (Art{"ibcde", "nghij", "klmno"}));
}

TEST(Floating_Paste, honours_alpha) {
    const Color red(200, 0, 0);
    EXPECT_EQ(laid_over(red, {1, 2, 3, 4}), red);
    EXPECT_EQ(laid_over({9, 9, 9, 0}, red), red);
    EXPECT_EQ(laid_over({0, 0, 200, 128}, {0, 0, 0, 0}), Color(0, 0, 200, 128));
    EXPECT_EQ(laid_over({0, 0, 200, 51}, red), Color(160, 0, 40));
    EXPECT_EQ(laid_over({0, 0, 200, 254}, red), Color(1, 0, 199));
    // Two halves over each other let a quarter through, and the upper one counts twice as much.
    EXPECT_EQ(laid_over({0, 0, 240, 128}, {240, 0, 0, 128}), Color(80, 0, 160, 192));
}

TEST(Floating_Paste, is_softened_within_its_own_alpha) {
    Tile picture = make_tile({"      ", " aab  ", " aab  ", "      "});
    picture.set_pixel(1, 1, {200, 0, 0, 90});
    const Tile soft = softened(picture);
    EXPECT_NE(soft.get_pixel(2, 2), picture.get_pixel(2, 2));
    for (int i = 0; i < picture.pixel_count(); ++i) {
        const Color before = picture.get_pixel_at(i);
        EXPECT_EQ(soft.get_pixel_at(i).a, before.a) << i;
        EXPECT_TRUE(before.a != 0 || soft.get_pixel_at(i) == before) << i;
    }
    Work_Area work;
    work.resize({9, 9});
    work.float_paste({picture, {1, 2}});
    EXPECT_EQ(work.transform_paste(Command::anti_alias), Outcome::done);
    EXPECT_TRUE(work.paste()->picture->same_pixels(soft));
    // What lies beside it does not darken it.
    Tile plain = make_tile({"    ", " ## ", "    "});
    EXPECT_EQ(art(softened(plain)), art(plain));
}

// Of pictures that are one pixel high and named by their widths: which are kept, the current one in brackets.
std::string shown(const Copy_Buffer& copies) {
    std::string text;
    for (std::size_t i = 0; i < copies.copies().size(); ++i) {
        const std::string width = std::to_string(copies.copies()[i].picture->width());
        text += i == copies.current_index() ? "[" + width + "]" : width;
    }
    return text;
}

TEST(Copy_Buffer, keeps_equal_copies_once_and_forgets_those_that_are_removed) {
    struct Row {
        std::size_t chosen, removed;
        const char* left;
    };
    for (const Row& row : {Row{0, 0, "[3]14"},
                           {0, 3, "[2]31"},
                           {1, 0, "[3]14"},
                           {1, 1, "2[1]4"},
                           {3, 1, "21[4]"},
                           {3, 3, "23[1]"},
                           {2, 9, "23[1]4"}}) {
        Copy_Buffer copies;
        for (const int width : {1, 2, 4, 1, 3, 2}) {
            copies.add({Tile(width, 1), {width, 0}});
        }
        ASSERT_EQ(shown(copies), "[2]314");
        copies.choose(row.chosen);
        copies.remove(row.removed);
        EXPECT_EQ(shown(copies), row.left) << row.chosen << ", " << row.removed;
    }
    Copy_Buffer copies;
    copies.add({Tile(5, 1), {}});
    copies.remove(0);
    EXPECT_EQ(copies.current(), nullptr);
    copies.add({Tile(5, 1), {1, 2}});
    copies.add({Tile(5, 1), {3, 4}});
    EXPECT_EQ(copies.current()->position, (Tile_Point{3, 4}));
}

TEST(Copy_Buffer, clones_in_four_places) {
    const Floating_Paste copy{make_tile({"ab d", "efgh", "ijkl"}), {-2, 9}};
    struct Row {
        Clone_Style style;
        Size tile;
        Tile_Point position;
    };
    for (const Row& row :
         {Row{Clone_Style::original_location, {2, 2}, {-2, 9}}, Row{Clone_Style::centred, {9, 9}, {2, 3}},
          Row{Clone_Style::centred, {4, 8}, {0, 2}}, Row{Clone_Style::centred, {1, 2}, {-1, 0}},
          Row{Clone_Style::top_left, {9, 9}, {0, 0}}}) {
        const Floating_Paste clone = cloned(copy, row.style, row.tile);
        EXPECT_EQ(clone.position, row.position) << row.tile.width;
        EXPECT_EQ(art(clone.picture), art(copy.picture));
    }
    const Floating_Paste resized = cloned(copy, Clone_Style::resized, {9, 2});
    EXPECT_EQ(resized.picture->size(), (Size{9, 2}));
    EXPECT_EQ(resized.position, Tile_Point{});
    EXPECT_EQ(resized.picture->alpha_at(5, 0), 0);
    EXPECT_EQ(resized.picture->alpha_at(5, 1), 255);
}

TEST(Copy_Buffer, what_lies_beside_a_tile_comes_into_its_middle) {
    const Tile picture(4, 3);
    for (const Tile_Point seen : {Tile_Point{-3, 0}, {8, 0}, {0, -2}, {0, 8}}) {
        EXPECT_EQ(in_view({picture, seen}, {9, 9}).position, seen);
    }
    for (const Tile_Point beside : {Tile_Point{-4, 0}, {9, 0}, {0, -3}, {0, 9}}) {
        EXPECT_EQ(in_view({picture, beside}, {9, 9}).position, (Tile_Point{2, 3}));
    }
}

// What floats is turned as what is selected, but moved by a step where that is scrolled.
TEST(Selection_Transforms, take_what_is_selected_where_their_names_say) {
    const std::vector<std::pair<Command, Art>> rows{
        {Command::rotate, {"gda", "heb", "ifc"}},      {Command::rotate_back, {"cfi", "beh", "adg"}},
        {Command::mirror, {"cba", "fed", "ihg"}},      {Command::flip, {"ghi", "def", "abc"}},
        {Command::scroll_left, {"bca", "efd", "hig"}}, {Command::scroll_right, {"cab", "fde", "igh"}},
        {Command::scroll_up, {"def", "ghi", "abc"}},   {Command::scroll_down, {"ghi", "abc", "def"}},
    };
    for (const auto& [command, after] : rows) {
        SCOPED_TRACE(menu_text(command));
        Tile tile = make_tile({"xabc", "ydef", "zghi"});
        Selection selection = selected({".###", ".###", ".###"});
        EXPECT_EQ(transform_selected(tile, selection, command), Outcome::done);
        EXPECT_EQ(art(tile), (Art{"x" + after[0], "y" + after[1], "z" + after[2]}));
        Work_Area work;
        work.resize({4, 4});
        work.float_paste({make_tile({"abc", "def", "ghi"}), {}});
        EXPECT_EQ(work.transform_paste(command), Outcome::done);
        const Tile_Point step = find_transform(command)->step;
        EXPECT_EQ(art(work.paste()->picture), step == Tile_Point{} ? after : Art({"abc", "def", "ghi"}));
        EXPECT_EQ(work.paste()->position, step);
    }
}

TEST(Selection_Transforms, soften_what_is_selected_and_nothing_else) {
    const Tile before = make_tile({"abcd", "efgh"});
    Tile soft(before);
    soft.anti_alias();
    Tile tile(before);
    Selection selection = selected({".##.", "#..."});
    EXPECT_EQ(transform_selected(tile, selection, Command::anti_alias), Outcome::done);
    for (int i = 0; i < tile.pixel_count(); ++i) {
        const bool is_soft = selection.contains({i % 4, i / 4});
        EXPECT_EQ(tile.get_pixel_at(i), (is_soft ? soft : before).get_pixel_at(i)) << i;
    }
}

TEST(Selection_Transforms, lose_no_pixel_and_carry_the_selection_along) {
    Random random(11);
    for (int run = 0; run < 60; ++run) {
        const Size size{1 + random.below(9), 1 + random.below(9)};
        const Selection before = random.selection(size);
        const Tile original = random.tile(size);
        for (const Command command :
             {Command::mirror, Command::flip, Command::rotate, Command::rotate_back, Command::scroll_left,
              Command::scroll_right, Command::scroll_up, Command::scroll_down}) {
            SCOPED_TRACE(menu_text(command));
            Tile tile(original);
            Selection selection = before;
            const bool is_refused = transform_selected(tile, selection, command) == Outcome::refused;
            EXPECT_EQ(sorted(picture_of(tile)), sorted(picture_of(original)));
            EXPECT_EQ(selection.count(), before.count());
            EXPECT_EQ(selection.bounds(), before.bounds());
            for (int i = 0; i < tile.pixel_count(); ++i) {
                const bool is_beside = !before.bounds().contains({i % size.width, i / size.width});
                EXPECT_TRUE(!(is_refused || is_beside) || tile.get_pixel_at(i) == original.get_pixel_at(i));
            }
        }
    }
}

// However large it is, and however many steps of the history keep it.
TEST(Work_Area, moves_and_keeps_what_floats_without_a_copy) {
    Work_Area work;
    work.resize({4, 4});
    work.float_paste({make_tile({"ab", "cd"}), {1, 1}});
    const Tile& picture = work.paste()->picture;
    work.move_paste_to({2, 0});
    const Work_State state = work.state();
    work.drop_paste();
    work.restore(state);
    const Tile& restored = work.paste()->picture;
    EXPECT_EQ(&restored, &picture);
}

TEST(Work_Area, turns_what_floats_about_its_middle_and_back) {
    Random random(13);
    for (int run = 0; run < 20; ++run) {
        Work_Area work;
        work.resize({16, 16});
        const Size size{1 + random.below(6), 1 + random.below(6)};
        work.float_paste({random.tile(size), {random.below(20) - 4, random.below(20) - 4}});
        const Work_State before = work.state();
        for (const Command command : {Command::mirror, Command::flip}) {
            EXPECT_EQ(work.transform_paste(command), Outcome::done);
            EXPECT_EQ(work.transform_paste(command), Outcome::done);
            EXPECT_TRUE(work == before);
        }
        for (const auto& [there, back] : {std::pair{Command::rotate, Command::rotate_back},
                                          std::pair{Command::rotate_back, Command::rotate}}) {
            work.transform_paste(there);
            work.transform_paste(back);
            EXPECT_TRUE(work == before) << size.width << " x " << size.height;
            for (int i = 0; i < 4; ++i) {
                work.transform_paste(there);
            }
            EXPECT_TRUE(work == before) << size.width << " x " << size.height;
        }
        EXPECT_EQ(work.transform_paste(Command::fill), Outcome::unknown);
    }
}

} // namespace
} // namespace quadrelle::testing
