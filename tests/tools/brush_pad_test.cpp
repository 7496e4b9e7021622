#include "tools/brush_pad.h"

#include "base/data_stream.h"
#include "tests/support/tiles.h"

#include <utility>

namespace quadrelle::testing {
namespace {

constexpr Size board = Brush_Pad::board_size;

Tile square(int width, int height, Color color) {
    Tile tile(width, height);
    tile.fill(color);
    return tile;
}

bool lay(Brush_Pad& pad, const Tile& picture, const Tile& mask) {
    return pad.make_temporary(picture, mask) && pad.move_to_pad();
}

bool lay(Brush_Pad& pad, Size size, Color color = Color(1, 2, 3)) {
    return lay(pad, square(size.width, size.height, color), square(size.width, size.height, art_color('#')));
}

// '#' the brush, 'o' the ring around it.
Art outline_art(const Pad_Brush& brush) {
    Art rows;
    for (int y = 0; y < brush.outline.height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < brush.outline.width(); ++x) {
            const bool is_brush = brush.outline.is_white_at(x, y);
            rows.back() += brush.outline.is_empty_at(x, y) ? '.' : is_brush ? '#' : 'o';
        }
    }
    return rows;
}

std::string record_of(const Brush_Pad& pad) {
    Data_Stream record;
    pad.save(record);
    return record.text();
}

Brush_Pad& read_into(Brush_Pad& pad, const std::string& text) {
    Data_Stream record(text + ':');
    pad.load(record);
    return pad;
}

Tile_Point place_of_last(const Brush_Pad& pad) {
    return pad.brushes().back()->position;
}

// Every brush covers what its outline says, and nothing else is covered.
void expect_board_matches_brushes(const Brush_Pad& pad) {
    std::vector<int> cells(static_cast<std::size_t>(board.width * board.height));
    for (const auto& brush : pad.brushes()) {
        for (int y = 0; y < brush->outline.height(); ++y) {
            for (int x = 0; x < brush->outline.width(); ++x) {
                if (!brush->outline.is_empty_at(x, y)) {
                    const int cell = brush->position.x + x + (brush->position.y + y) * board.width;
                    EXPECT_EQ(std::exchange(cells.at(static_cast<std::size_t>(cell)), brush->id), 0);
                }
            }
        }
    }
    for (int i = 0; i < board.width * board.height; ++i) {
        ASSERT_EQ(pad.identifier_at({i % board.width, i / board.width}), cells[static_cast<std::size_t>(i)]);
    }
}

} // namespace

TEST(Brush_Pad, outline_is_a_ring_around_what_is_set) {
    const auto outline = [](const Art& mask) {
        return outline_art(Pad_Brush(make_tile(mask), make_tile(mask)));
    };
    EXPECT_EQ(outline({"#"}), (Art{"ooo", "o#o", "ooo"}));
    EXPECT_EQ(outline({" # ", "###", " # "}), (Art{".ooo.", "oo#oo", "o###o", "oo#oo", ".ooo."}));
    EXPECT_EQ(outline({"#   ", "    ", "    ", "   #"}),
              (Art{"ooo...", "o#o...", "ooo...", "...ooo", "...o#o", "...ooo"}));
    EXPECT_EQ(outline({"###", "# #", "###"}), (Art{"ooooo", "o###o", "o#o#o", "o###o", "ooooo"}));
    EXPECT_EQ(outline({"  ", "# "}), (Art{"....", "ooo.", "o#o.", "ooo."}));
}

TEST(Brush_Pad, temporary_brush_is_current_and_takes_no_room) {
    Brush_Pad pad;
    EXPECT_FALSE(pad.has_current());
    EXPECT_FALSE(pad.move_to_pad());
    EXPECT_FALSE(pad.delete_current());
    EXPECT_FALSE(pad.make_temporary(make_tile({"ab"}), make_tile({"  "})));
    EXPECT_FALSE(pad.make_temporary(make_tile({"ab"}), make_tile({"#"})));
    EXPECT_FALSE(pad.make_temporary(Tile(0, 0), Tile(0, 0)));
    EXPECT_FALSE(pad.has_current());
    ASSERT_TRUE(pad.make_temporary(make_tile({"ab"}), make_tile({" #"})));
    EXPECT_EQ(pad.current_brush().pixel(0, 0), std::nullopt);
    EXPECT_EQ(pad.current_brush().pixel(1, 0), art_color('b'));
    EXPECT_EQ(pad.current_brush().owner(), Brush_Owner::stamp_brush);
    EXPECT_TRUE(pad.delete_current());
    EXPECT_FALSE(pad.has_current());
    EXPECT_FALSE(pad.changed());
    EXPECT_FALSE(pad.move_to_pad());
}

// A ring may lie in the corner that another brush's outline leaves free, but not on its cells.
TEST(Brush_Pad, places_are_the_first_that_fit_row_by_row) {
    Brush_Pad pad;
    const Tile ell = make_tile({"#   ", "#   ", "####"});
    ASSERT_TRUE(lay(pad, ell, ell));
    EXPECT_EQ(place_of_last(pad), (Tile_Point{0, 0}));
    ASSERT_TRUE(lay(pad, {3, 3}));
    EXPECT_EQ(place_of_last(pad), (Tile_Point{6, 0})) << "its five columns do not fit beside the stroke";
    ASSERT_TRUE(lay(pad, {1, 1}));
    EXPECT_EQ(place_of_last(pad), (Tile_Point{11, 0}));
    const Tile corner = make_tile({"  ", "# "});
    ASSERT_TRUE(lay(pad, corner, corner));
    EXPECT_EQ(place_of_last(pad), (Tile_Point{14, 0})) << "the corner's empty first row has no cells";
    ASSERT_TRUE(lay(pad, {60, 1}));
    EXPECT_EQ(place_of_last(pad), (Tile_Point{0, 5}));
    expect_board_matches_brushes(pad);
    EXPECT_TRUE(pad.click({0, 2}));
    EXPECT_EQ(pad.current()->id, 1);
    EXPECT_FALSE(pad.click({4, 0})) << "a free cell between the strokes";
    EXPECT_EQ(pad.current()->id, 1);
    // What is moved becomes current, also when another one was chosen meanwhile.
    ASSERT_TRUE(pad.make_temporary(corner, corner));
    ASSERT_TRUE(pad.click({0, 2}));
    ASSERT_TRUE(pad.move_to_pad());
    EXPECT_EQ(pad.current()->id, 6);
}

// Random brushes come and go; the same pad comes out of the file at any time.
TEST(Brush_Pad, keeps_its_board_in_order_and_comes_back_from_its_record) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    Brush_Pad pad;
    for (int step = 0; step < 120; ++step) {
        if (below(4) != 0) {
            Tile picture(1 + below(15), 1 + below(15));
            Tile mask(picture.width(), picture.height());
            picture.map_colours([&](Color) { return Color(below(256), below(256), below(256), below(256)); });
            mask.map_colours([&](Color) { return art_color(below(3) == 0 ? ' ' : '#'); });
            static_cast<void>(lay(pad, picture, mask));
        } else if (pad.click({below(board.width), below(board.height)})) {
            ASSERT_TRUE(pad.delete_current());
        }
    }
    ASSERT_GT(pad.brushes().size(), 20U);
    expect_board_matches_brushes(pad);
    const std::string text = record_of(pad);
    Brush_Pad again;
    read_into(again, text);
    EXPECT_EQ(record_of(again), text);
    EXPECT_FALSE(again.changed());
    EXPECT_FALSE(again.has_current());
    expect_board_matches_brushes(again);
    for (std::size_t i = 0; i < pad.brushes().size(); ++i) {
        const Brush& before = pad.brushes()[i]->brush;
        const Brush& after = again.brushes()[i]->brush;
        ASSERT_EQ(after.size(), before.size());
        for (int y = 0; y < after.size().height; ++y) {
            for (int x = 0; x < after.size().width; ++x) {
                ASSERT_EQ(after.pixel(x, y), before.pixel(x, y));
            }
        }
    }
    // Both go on alike.
    ASSERT_EQ(lay(again, {2, 3}), lay(pad, {2, 3}));
    EXPECT_EQ(record_of(again), record_of(pad));
}

TEST(Brush_Pad, record_is_laid_out_for_other_versions_of_the_program) {
    Brush_Pad pad;
    ASSERT_TRUE(lay(pad, make_tile({"ab"}), make_tile({"# "})));
    const std::string text = record_of(pad);
    const std::size_t board_bytes = 64 * 173 * 4;
    EXPECT_EQ(text.substr(0, 16), std::string("\1\0\0\0\1\0\0\0\1\0\0\0\0\0\0\0", 16));
    EXPECT_EQ(text.substr(board_bytes, 7), ",0,1,0,");
    const std::string pixels = std::string("\xff") + static_cast<char>(255 - 'a') +
                               static_cast<char>(7 * 'a' % 256) + "a\xff" + static_cast<char>(255 - 'b') +
                               static_cast<char>(7 * 'b' % 256) + "b";
    const std::string mask = std::string("\xff\xff\xff\xff\0\0\0\0", 8);
    const std::string brush = ",1,2,1,2,1," + pixels + ",2,1," + mask + ",0,0,4,3,";
    const std::size_t begin = board_bytes + 256 * 2;
    EXPECT_EQ(text.substr(begin, brush.size()), brush);
    EXPECT_EQ(text.substr(begin + brush.size() + 4 * 3 * 4), ",0,0,1");
}

TEST(Brush_Pad, rows_that_make_no_sense_are_left_out) {
    std::string head(64 * 173 * 4, '\0');
    for (int i = 0; i < 256; ++i) {
        head += ",0";
    }
    const std::string pixel = "\xff\xff\xff\xff";
    const auto row = [&](const std::string& tail) {
        return ",1,1,1,1," + pixel + ",1,1," + pixel + ",0,0,3,3," + std::string(36, '\x7f') + tail;
    };
    const auto count = [&](const std::string& number, const std::string& rows) {
        Brush_Pad pad;
        return read_into(pad, head + "," + number + rows).brushes().size();
    };
    const std::string good = row(",5,6,7");
    EXPECT_EQ(count("2", good + good), 2U);
    EXPECT_EQ(count("1", good + good), 1U);
    EXPECT_EQ(count("-1", good), 0U);
    EXPECT_EQ(count("2000000000", good + good), 2U);
    for (const std::string tail : {",-1,0,7", ",0,-1,7", ",64,0,7", ",0,173,7", ",0,0,0", ",0,0,256",
                                   ",0,0,-1", ",2147483647,2147483647,7"}) {
        EXPECT_EQ(count("2", row(tail) + good), 1U) << tail;
    }
    for (const std::string start : {",0,1", ",1,-1", ",256,1", ",65536,65536", ",2,1"}) {
        EXPECT_EQ(count("3", good + start + good.substr(4) + good), 1U) << start;
    }
    for (std::size_t length = 1; length < good.size(); ++length) {
        EXPECT_EQ(count("2", good + good.substr(0, length)), 1U) << length;
    }
    std::string many;
    for (int i = 0; i < 400; ++i) {
        many += good;
    }
    EXPECT_EQ(count("400", many), 255U);
}

} // namespace quadrelle::testing
