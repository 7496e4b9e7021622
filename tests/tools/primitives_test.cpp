// What holds for everything that draws.

#include "tests/support/drawn.h"
#include "tools/flood_fill.h"
#include "tools/pens.h"
#include "tools/shapes.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quadrelle {

using testing::art;
using testing::art_color;
using testing::make_tile;

namespace {

struct Drag {
    Tile_Point from;
    Tile_Point to;
};

struct Primitive {
    std::string name;
    std::function<void(Drawing_Target&, Drag)> draw;
};

// Partly transparent, and none of it in a colour that the primitives paint.
Tile scene() {
    return make_tile({"aaaa #.", "bb  .dd", "#  ab..", ".aabbcc", "cc  ##a"});
}

Tile selection() {
    return make_tile({"#######", "##   ##", "# # # #", "##   ##", " ##### "});
}

void add_shapes(std::vector<Primitive>& list) {
    for (int i = 0; i < static_cast<int>(Canvas_Action::stamp_brush); ++i) {
        const auto action = static_cast<Canvas_Action>(i);
        list.push_back({"shape " + std::to_string(i), [action](Drawing_Target& target, Drag drag) {
                            draw_shape(target, action, drag.from, drag.to, {{1, 2, 3, 4}, {5, 6, 7, 8}});
                        }});
    }
}

void add_pens(std::vector<Primitive>& list, const Brush& brush, const Ink& ink) {
    for (const Pen_Mode mode : {Pen_Mode::brush, Pen_Mode::pattern, Pen_Mode::offset}) {
        const std::string name = "operation " + std::to_string(static_cast<int>(ink.operation)) +
                                 " of a brush " + std::to_string(brush.size().width) + " wide in mode " +
                                 std::to_string(static_cast<int>(mode));
        list.push_back(
            {name, [&brush, ink, mode](Drawing_Target& target, Drag drag) {
                 draw_segment(target, {brush, mode, ink}, drag.from, drag.to, Segment_Start::included);
             }});
    }
}

void add_inks(std::vector<Primitive>& list, const Brush& brush, const Tile& history) {
    const Color rose{200, 50, 100, 77};
    for (const Lightness_Mode mode : {Lightness_Mode::linear, Lightness_Mode::perception}) {
        add_pens(list, brush, {Pixel_Operation::lighten, {}, mode, {}, nullptr});
        add_pens(list, brush, {Pixel_Operation::darken, {}, mode, {}, nullptr});
    }
    for (const Colorize_Type type : {Colorize_Type::linear, Colorize_Type::luma}) {
        add_pens(list, brush, {Pixel_Operation::colorize, rose, {}, type, nullptr});
    }
    add_pens(list, brush, {Pixel_Operation::paint, rose, {}, {}, nullptr});
    add_pens(list, brush, {Pixel_Operation::history, {}, {}, {}, &history});
}

void add_others(std::vector<Primitive>& list, const Brush& brush) {
    list.push_back({"smudge", [&brush](Drawing_Target& target, Drag drag) {
                        smudge_segment(target, brush, drag.from, drag.to);
                    }});
    list.push_back({"fill", [](Drawing_Target& target, Drag drag) {
                        flood_fill(target, drag.to, {1, 2, 3, 4}, Flood_Bounds::whole_tile);
                    }});
    list.push_back({"fill with brush", [&brush](Drawing_Target& target, Drag drag) {
                        flood_fill_with_brush(target, drag.from, brush);
                    }});
}

class Primitives : public ::testing::Test {
protected:
    Primitives() {
        for (const Brush& brush : brushes_) {
            add_inks(list_, brush, history_);
            add_others(list_, brush);
        }
        add_shapes(list_);
    }

    const Tile history_ = make_tile({"cdcdcdc", "abababa", "#######", "       ", "......."});
    const std::vector<Brush> brushes_{
        built_in_brush(Brush_Shape::square, 0, {9, 9, 9, 9}), built_in_brush(Brush_Shape::ring, 5, {8, 8, 8}),
        stamp_brush(make_tile({"xy", "zx", "yz"}), make_tile({"##", "# ", "##"}))};
    const std::vector<Drag> drags_{{{0, 0}, {6, 4}},         {{6, 4}, {0, 0}},    {{3, 2}, {3, 2}},
                                   {{-3, 4}, {9, 1}},        {{2, -20}, {3, 20}}, {{-5, -5}, {-5, -5}},
                                   {{5, 0}, {-20000, 20000}}};
    std::vector<Primitive> list_;
};

} // namespace

TEST_F(Primitives, stay_inside_the_selection_and_are_the_same_twice) {
    const Tile before = scene();
    const Tile mask = selection();
    for (const Primitive& primitive : list_) {
        bool has_drawn = false;
        for (const Drag drag : drags_) {
            Tile first(before);
            Tile second(before);
            Drawing_Target first_target(first, mask);
            Drawing_Target second_target(second, mask);
            primitive.draw(first_target, drag);
            primitive.draw(second_target, drag);
            ASSERT_TRUE(std::ranges::equal(first.pixels(), second.pixels())) << primitive.name;
            has_drawn |= !std::ranges::equal(first.pixels(), before.pixels());
            for (int i = 0; i < first.pixel_count(); ++i) {
                if (!mask.is_white_at(i % mask.width(), i / mask.width())) {
                    ASSERT_EQ(first.get_pixel_at(i), before.get_pixel_at(i)) << primitive.name << " at " << i;
                }
            }
        }
        EXPECT_TRUE(has_drawn) << primitive.name;
    }
}

TEST_F(Primitives, draw_the_same_whether_nothing_limits_them_or_all_is_selected) {
    const Tile before = scene();
    Tile all(before.width(), before.height());
    all.fill({255, 255, 255});
    for (const Primitive& primitive : list_) {
        for (const Drag drag : drags_) {
            Tile free(before);
            Tile selected(before);
            Drawing_Target free_target(free);
            Drawing_Target selected_target(selected, all);
            primitive.draw(free_target, drag);
            primitive.draw(selected_target, drag);
            ASSERT_TRUE(std::ranges::equal(free.pixels(), selected.pixels())) << primitive.name;
        }
    }
}

TEST_F(Primitives, do_nothing_on_a_tile_without_pixels) {
    Tile nothing(0, 0);
    Drawing_Target target(nothing);
    for (const Primitive& primitive : list_) {
        for (const Drag drag : drags_) {
            primitive.draw(target, drag);
        }
    }
    EXPECT_EQ(nothing.pixel_count(), 0);
}

TEST_F(Primitives, are_quick_when_the_pointer_is_far_away) {
    for (const Primitive& primitive : list_) {
        Tile tile(255, 255);
        Drawing_Target target(tile);
        const auto start = std::chrono::steady_clock::now();
        primitive.draw(target, {{128, 128}, {20000, -20000}});
        primitive.draw(target, {{-20000, 20000}, {20000, -19000}});
        const auto time = std::chrono::steady_clock::now() - start;
        EXPECT_LT(time, std::chrono::milliseconds(500)) << primitive.name; // 5 at most on an idle machine
    }
}

} // namespace quadrelle
