#include "base/platform_files.h"
#include "color/translucency.h"
#include "map/edited_map.h"
#include "map/map_painter.h"
#include "map/map_strokes.h"
#include "map/map_surroundings.h"
#include "pixels/turn_and_mirror.h"
#include "tests/support/tiles.h"

#include <map>
#include <utility>

namespace quadrelle::testing {
namespace {

// A letter for each tile, '.' for an empty cell.
Tile_Map make_map(const Art& rows) {
    Tile_Map map({static_cast<int>(rows.front().size()), static_cast<int>(rows.size())});
    for (int y = 0; y < map.size().height; ++y) {
        for (int x = 0; x < map.size().width; ++x) {
            const char mark = rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x));
            map.set({x, y}, mark == '.' ? Map_Cell() : Map_Cell(mark - 'a'));
        }
    }
    return map;
}

Art art(const Tile_Map& map) {
    Art rows;
    for (int y = 0; y < map.size().height; ++y) {
        rows.emplace_back();
        for (const Map_Cell cell : map.row(y)) {
            rows.back() += cell.is_empty() ? '.' : static_cast<char>('a' + cell.tile());
        }
    }
    return rows;
}

Map_Stamp stamp_from(const Art& rows) {
    const Tile_Map map = make_map(rows);
    return stamp_of(map, map.area());
}

struct Stroke_Row {
    const char* name;
    Art before;
    Art stamp;
    Stamp_Use use;
    std::function<void(Edited_Map&, const Map_Pattern&)> place;
    Art after;
};

TEST(Map_Strokes, place_what_the_pattern_has_there) {
    using enum Stamp_Use;
    const std::vector<Stroke_Row> rows{
        {"a line has no gaps",
         {"....", "....", "...."},
         {"a"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_at(map, pattern, {3, 0});
             place_line(map, pattern, {3, 0}, {0, 2});
         },
         {"...a", ".aa.", "a..."}},
        {"a stamp leaves what lies below its holes",
         {"bbb", "bbb"},
         {"c.", ".d"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_at(map, pattern, {0, 0});
         },
         {"cbb", "bdb"}},
        {"a stamp goes on as it began",
         {"......", "......"},
         {"ab", "cd"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_at(map, pattern, {0, 0});
             place_line(map, pattern, {0, 0}, {3, 0});
         },
         {"ababa.", "cdcdc."}},
        {"a rectangle is filled, from any corner, and what is outside is left out",
         {"...", "..."},
         {"ab"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_rectangle(map, pattern, {5, 5}, {1, -3});
         },
         {".ba", ".ba"}},
        {"a fill stays between other tiles",
         {"..b.", ".bb.", "bb.."},
         {"a"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_region(map, pattern, {3, 0});
         },
         {"..ba", ".bba", "bbaa"}},
        {"a fill goes around corners",
         {"a.aaa", "a.a.a", "aaa.a"},
         {"c"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_region(map, pattern, {0, 0});
         },
         {"c.ccc", "c.c.c", "ccc.c"}},
        {"a fill from outside does nothing",
         {".."},
         {"a"},
         whole,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_region(map, pattern, {2, 0});
         },
         {".."}},
        {"erasing empties, whatever the stamp",
         {"abc"},
         {"ab"},
         erase,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_at(map, pattern, {0, 0});
             place_line(map, pattern, {0, 0}, {1, 0});
         },
         {"..c"}},
        {"holes do not come at random",
         {"...."},
         {".c."},
         at_random,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_rectangle(map, pattern, {0, 0}, {3, 0});
         },
         {"cccc"}},
        {"a stamp of holes places nothing",
         {"ab"},
         {".."},
         at_random,
         [](Edited_Map& map, const Map_Pattern& pattern) {
             place_region(map, pattern, {0, 0});
         },
         {"ab"}},
    };
    for (const Stroke_Row& row : rows) {
        SCOPED_TRACE(row.name);
        Edited_Map map(make_map(row.before));
        // The ids are those of a map that was made with the letters in their order.
        for (int i = 0; i < 5; ++i) {
            static_cast<void>(map.ids().id_of(i));
        }
        Map_Stamp stamp = stamp_from(row.stamp);
        for (Stamp_Cell& cell : stamp.cells) {
            cell.cell =
                cell.cell.is_empty() ? cell.cell : cell.cell.with_tile(map.ids().id_of(cell.cell.tile()));
        }
        map.begin();
        row.place(map, Map_Pattern(stamp, row.use, {0, 0}, 1));
        EXPECT_EQ(art(map.indexed_map()), row.after);
        map.give_up();
        EXPECT_EQ(art(map.indexed_map()), row.before);
    }
}

Map_Cell cell_of(const Map_Pattern& pattern, Map_Point point) {
    Map_Cell cell;
    pattern.place(point, {&cell, 1});
    return cell;
}

TEST(Map_Pattern, at_random_keeps_to_the_weights_and_to_the_seed) {
    Map_Stamp stamp = stamp_from({"abc"});
    stamp.cells[1].weight = 7;
    const Map_Pattern pattern(stamp, Stamp_Use::at_random, {0, 0}, 5);
    const Map_Pattern elsewhere(stamp, Stamp_Use::at_random, {9, 9}, 5);
    std::map<int, int> counts;
    for (int i = 0; i < 9000; ++i) {
        const Map_Point point{i % 90, i / 90};
        const Map_Cell cell = cell_of(pattern, point);
        EXPECT_EQ(cell, cell_of(elsewhere, point));
        ++counts[cell.tile()];
    }
    EXPECT_NEAR(counts[0], 1000, 150);
    EXPECT_NEAR(counts[1], 7000, 300);
    EXPECT_NEAR(counts[2], 1000, 150);
}

// What is drawn of a turned stamp is what was drawn of it, turned.
TEST(Map_Stamp, each_of_the_eight_orientations_shows_the_picture_as_a_whole_turned_and_mirrored) {
    const Tile one = random_tile({3, 3}, 1);
    const Tile other = random_tile({3, 3}, 2);
    const std::array<const Tile*, 2> tiles{&one, &other};
    const auto drawn_stamp = [&](const Map_Stamp& stamp) {
        Tile_Map map(stamp.size);
        for (int y = 0; y < stamp.size.height; ++y) {
            for (int x = 0; x < stamp.size.width; ++x) {
                map.set({x, y}, stamp.at(x, y).cell);
            }
        }
        return map_picture(map, tiles, {3, 3});
    };
    const std::array<std::pair<Stamp_Change, const Placement*>, 4> changes{
        {{Stamp_Change::mirror, &mirrored},
         {Stamp_Change::flip, &flipped},
         {Stamp_Change::turn_right, &turned_right},
         {Stamp_Change::turn_left, &turned_left}}};
    std::mt19937 random(4);
    Map_Stamp stamp = stamp_from({"ab.", "bba"});
    for (int i = 0; i < 100; ++i) {
        const auto& [change, placement] = changes.at(random() % changes.size());
        const Map_Stamp next = changed(stamp, change);
        ASSERT_TRUE(drawn_stamp(next).same_pixels(placed(drawn_stamp(stamp), *placement))) << "step " << i;
        stamp = next;
    }
}

// Gestures, new sizes and changes of the set at random: undo and redo lead through the same maps, and the map
// shows the same pictures whatever becomes of the tiles of the set.
TEST(Edited_Map, undo_and_redo_lead_through_the_same_maps) {
    std::mt19937 random(9);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    Edited_Map map(Tile_Map({7, 5}));
    std::vector<Tile_Map> states{map.map()};
    while (states.size() < 250) {
        bool is_done = false;
        if (below(8) == 0) {
            const Map_Sides sides{below(5) - 2, below(5) - 2, below(5) - 2, below(5) - 2};
            is_done = is_map_size(resized(map.map().size(), sides)) && map.resize(sides);
        } else {
            map.begin();
            for (int i = below(6); i >= 0; --i) {
                map.set({below(9) - 1, below(9) - 1},
                        below(4) == 0 ? Map_Cell() : Map_Cell(map.ids().id_of(below(300))));
            }
            is_done = map.commit();
        }
        EXPECT_EQ(is_done, map.map() != states.back());
        if (is_done) {
            states.push_back(map.map());
        }
    }
    for (std::size_t i = states.size() - 1; i > 0; --i) {
        ASSERT_TRUE(map.undo());
        ASSERT_EQ(map.map(), states[i - 1]);
    }
    EXPECT_FALSE(map.undo());
    for (std::size_t i = 1; i < states.size(); ++i) {
        ASSERT_TRUE(map.redo());
        ASSERT_EQ(map.map(), states[i]);
    }
    EXPECT_FALSE(map.redo());
    // A step that is taken back has never been: what could be redone before it still can be.
    ASSERT_TRUE(map.undo());
    ASSERT_TRUE(map.undo());
    map.begin();
    map.set({0, 0}, Map_Cell(map.ids().id_of(500)));
    ASSERT_TRUE(map.commit());
    EXPECT_TRUE(map.take_back());
    EXPECT_EQ(map.map(), states[states.size() - 3]);
    for (const std::size_t i : {2U, 1U}) {
        EXPECT_TRUE(map.redo());
        EXPECT_EQ(map.map(), states[states.size() - i]);
    }
    EXPECT_FALSE(map.redo());
}

TEST(Edited_Map, shows_the_same_pictures_while_tiles_come_and_go) {
    std::mt19937 random(3);
    const auto below = [&](std::size_t end) { return static_cast<int>(random() % end); };
    std::vector<char> set{'a', 'b', 'c', 'd'};
    char next = 'e';
    Edited_Map map(make_map({"abcd", "dcba", "aabb"}));
    const auto shown = [&] {
        std::string letters;
        const Tile_Map indexed = map.indexed_map();
        for (const Map_Cell cell : indexed.cells()) {
            letters += cell.is_empty() ? '.' : set.at(static_cast<std::size_t>(cell.tile()));
        }
        return letters;
    };
    for (int i = 0; i < 300; ++i) {
        std::string before = shown();
        const int index = below(set.size());
        const auto place = set.begin() + index;
        if (const int kind = below(4); kind == 0 && set.size() > 2) {
            const char gone = *place;
            const auto count = std::ranges::count(before, gone);
            std::ranges::replace(before, gone, '.');
            set.erase(place);
            EXPECT_EQ(map.uses_of(index), count);
            EXPECT_EQ(map.tile_deleted(index), count);
        } else if (kind == 1 && next <= 'z') {
            set.insert(place, next++);
            map.tile_inserted(index);
        } else if (kind == 2) {
            const int other = below(set.size());
            std::swap(set[static_cast<std::size_t>(index)], set[static_cast<std::size_t>(other)]);
            map.tiles_swapped(index, other);
        } else {
            map.begin();
            map.set({below(4), below(3)}, Map_Cell(map.ids().id_of(index)));
            map.commit();
            before = shown();
        }
        ASSERT_EQ(shown(), before) << "step " << i;
    }
    // A step back brings no tile back that is gone.
    while (map.undo()) {
        EXPECT_EQ(shown().find('?'), std::string::npos);
    }
}

// Of as many steps as anybody takes back there is room, however large each is.
TEST(Map_History, keeps_large_steps_in_few_bytes) {
    Edited_Map map(Tile_Map({1000, 1000}));
    const Map_Stamp stamp = stamp_from({"ab", "cd"});
    for (int step = 0; step < 4; ++step) {
        map.begin();
        place_rectangle(map, Map_Pattern(stamp, Stamp_Use::whole, {step, 0}, 1), {0, 0}, {999, 999});
        ASSERT_TRUE(map.commit());
        ASSERT_TRUE(map.resize({-1, 0, 0, 0}));
        ASSERT_TRUE(map.resize({1, 0, 0, 0}));
    }
    EXPECT_LT(map.history().bytes(), 4 * Map_History::most_bytes / 200);
}

// They go to the disk, and are forgotten where it takes none.
TEST(Map_History, the_oldest_steps_do_not_take_all_memory) {
    for (const bool is_disk_full : {false, true}) {
        set_file_fault_hook(is_disk_full ? [] { return true; } : File_Fault_Hook{});
        std::vector<Tile_Map> maps;
        Edited_Map map(Tile_Map({1000, 1000}));
        std::mt19937 random(2);
        for (int step = 0; step < 8; ++step) {
            maps.push_back(map.map());
            map.begin();
            for (Map_Cell& cell : map.row_to_change({0, 0}, 1'000'000)) {
                const auto number = static_cast<std::uint32_t>(random());
                cell = Map_Cell(map.ids().id_of(static_cast<int>(number % 4000)),
                                {number > 1U << 31U, number % 2 == 0, number % 3 == 0});
            }
            ASSERT_TRUE(map.commit());
            ASSERT_LE(map.history().bytes(), Map_History::most_bytes);
        }
        int steps = 0;
        for (; map.undo(); ++steps, maps.pop_back()) {
            ASSERT_EQ(map.map(), maps.back());
            ASSERT_LE(map.history().bytes(), Map_History::most_bytes);
        }
        EXPECT_EQ(maps.empty(), !is_disk_full);
        EXPECT_GT(steps, 0);
        set_file_fault_hook(nullptr);
    }
}

// Seen from a tile as it is drawn, whichever way it lies in the map.
TEST(Map_Surroundings, are_those_of_the_picture_in_the_directions_of_the_tile) {
    const Tile one = random_tile({3, 3}, 1);
    const Tile other = random_tile({3, 3}, 2);
    const std::array<const Tile*, 2> tiles{&one, &other};
    Tile_Map cells({3, 3});
    for (std::size_t i = 0; i < cells.cells().size(); ++i) {
        cells.cells()[i] =
            i == 5 ? Map_Cell() : Map_Cell(static_cast<int>(i % 2), {i % 3 == 0, i > 4, i % 2 == 0});
    }
    const auto around = [&](const Tile_Map& map, Tile_Point pixel) {
        return pixel_around(Edited_Map(map), tiles, {3, 3}, {1, 1}, pixel);
    };
    cells.set({1, 1}, Map_Cell(0));
    const Tile whole = map_picture(cells, tiles, {3, 3});
    Tile_Map turned_map = cells;
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) {
            turned_map.set({2 - y, x},
                           cells.at({x, y}).with(cells.at({x, y}).orientation().then_turned_right()));
        }
    }
    for (int y = -3; y < 6; ++y) {
        for (int x = -3; x < 6; ++x) {
            const Color expected = whole.get_pixel(x + 3, y + 3);
            ASSERT_EQ(around(cells, {x, y}), expected) << x << ", " << y;
            ASSERT_EQ(around(turned_map, {x, y}), expected) << x << ", " << y;
        }
    }
    EXPECT_EQ(around(cells, {-4, 0}), clear);
}

// Each pixel of the view is that of the map at its place, at every scale and wherever it is seen from.
TEST(Map_Painter, shows_each_pixel_at_its_place_and_the_same_in_parts) {
    constexpr Size view{70, 50};
    const Tile one = random_tile({5, 4}, 1);
    const Tile other = random_tile({5, 4}, 2);
    const std::array<const Tile*, 2> tiles{&one, &other};
    Tile_Map map({6, 7});
    for (std::size_t i = 0; i < map.cells().size(); ++i) {
        map.cells()[i] =
            i % 3 == 0 ? Map_Cell() : Map_Cell(static_cast<int>(i % 2), {false, i % 5 == 0, i % 4 == 0});
    }
    const Tile whole = map_picture(map, tiles, {5, 4});
    std::mt19937 random(6);
    for (int i = 0; i < 60; ++i) {
        Map_Picture picture{.camera = Map_Camera(view, {5, 4}), .tiles = tiles, .grid = Map_Grid::hidden};
        picture.camera.centre(map.size());
        picture.camera.zoom(static_cast<int>(random() % 11) - 4, {static_cast<int>(random() % 70), 25});
        picture.camera.move({static_cast<int>(random() % 40) - 20, static_cast<int>(random() % 40) - 20});
        picture.camera.keep_in_view(map.size());
        picture.area = picture.camera.seen_cells(map.size());
        for (int y = picture.area.y; y < picture.area.bottom(); ++y) {
            for (int x = picture.area.x; x < picture.area.right(); ++x) {
                picture.cells.push_back(map.at({x, y}));
            }
        }
        Tile shown(view.width, view.height);
        shown.change_pixels([&](std::span<Color> pixels) {
            const Pixel_Rows rows{pixels.data(), view.width * 4, view};
            Map_Painter painter;
            painter.paint(picture, {0, 0, 70, 20}, rows.part({0, 0, 70, 20}));
            painter.paint(picture, {0, 20, 33, 30}, rows.part({0, 20, 33, 30}));
            painter.paint(picture, {33, 20, 37, 30}, rows.part({33, 20, 37, 30}));
        });
        for (int y = 0; y < view.height; ++y) {
            for (int x = 0; x < view.width; ++x) {
                const Point pixel = picture.camera.pixel_at({x, y});
                const bool is_outside = whole.is_outside(pixel.x, pixel.y);
                const Color below =
                    is_outside ? standard_color(Standard_Color::dark_frame) : checkerboard_color(x, y);
                const Color above = is_outside ? clear : whole.get_pixel(pixel.x, pixel.y);
                ASSERT_EQ(shown.get_pixel(x, y), blended_over(above, below))
                    << x << ", " << y << ", turn " << i;
            }
        }
    }
}

} // namespace
} // namespace quadrelle::testing
