#include "map/map_file.h"
#include "base/checksum.h"
#include "map/map_code.h"
#include "map/tmx.h"
#include "tests/support/files.h"
#include "tests/support/tiles.h"
#include "tileset/document_file.h"
#include "tileset/tileset_file.h"

#include <set>

namespace quadrelle::testing {
namespace {

Tile_Map random_map(Size size, int tiles, unsigned seed) {
    std::mt19937 random(seed);
    Tile_Map map(size);
    for (Map_Cell& cell : map.cells()) {
        const int tile = static_cast<int>(random() % static_cast<unsigned>(tiles + 1));
        const unsigned bits = random() % 8;
        cell = tile == tiles ? Map_Cell() : Map_Cell(tile, {bits % 2 == 1, bits / 2 % 2 == 1, bits > 3});
    }
    return map;
}

// A set whose tiles look like these letters.
Tile_Sums sums(std::string_view letters) {
    return {letters.begin(), letters.end()};
}

void append_checksum(Bytes& bytes) {
    const std::uint32_t sum = checksum(bytes);
    for (const unsigned shift : {0U, 8U, 16U, 24U}) {
        bytes.push_back(static_cast<std::uint8_t>(sum >> shift));
    }
}

TEST(Map_File, gives_every_map_back) {
    for (const auto& [size, tiles] : {std::pair(Size{1, 1}, 1), std::pair(Size{7, 3}, 1),
                                      std::pair(Size{60, 40}, 30), std::pair(Size{1000, 1000}, 70000)}) {
        const Tile_Map map = random_map(size, tiles, 1);
        const auto decoded = decode_map(encode_map(map, sums("abc")));
        EXPECT_EQ(decoded->map, map);
        EXPECT_EQ(decoded->tiles, sums("abc"));
    }
    EXPECT_LT(encode_map(Tile_Map({1000, 1000}), {}).size(), 100U);
}

// Without the count of tiles, and with the first version's number.
TEST(Map_File, of_the_first_version_is_read) {
    const Tile_Map map = random_map({5, 4}, 3, 1);
    Bytes bytes = encode_map(map, {});
    bytes[8] = 1;
    bytes.erase(bytes.begin() + 20, bytes.begin() + 24);
    bytes.resize(bytes.size() - 4);
    append_checksum(bytes);
    const auto decoded = decode_map(bytes);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->map, map);
    EXPECT_FALSE(decoded->tiles);
}

TEST(Map_File, what_is_broken_is_no_map) {
    const Bytes whole = encode_map(random_map({5, 4}, 300, 2), sums("ab"));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(decode_map(std::span(whole).first(length))) << length;
    }
    for (std::size_t i = 0; i < whole.size(); ++i) {
        Bytes bytes = whole;
        bytes[i] ^= 0x10U;
        EXPECT_FALSE(decode_map(bytes)) << i;
    }
}

// Bytes at random in a whole file: no memory is taken for what they only announce.
TEST(Map_File, any_bytes_are_read_without_harm) {
    std::mt19937 random(7);
    const Bytes whole = encode_map(random_map({9, 9}, 300, 2), sums("abc"));
    for (int i = 0; i < 3000; ++i) {
        Bytes bytes = whole;
        bytes.resize(bytes.size() - 4);
        for (int change = 0; change < 3; ++change) {
            bytes[8 + random() % (bytes.size() - 8)] = static_cast<std::uint8_t>(random());
        }
        append_checksum(bytes);
        if (auto decoded = decode_map(bytes)) {
            const Fitted_Map map = fitted(*std::move(decoded), sums("abc"));
            EXPECT_TRUE(!map.map ||
                        std::ranges::all_of(map.map->cells(), [](Map_Cell cell) { return cell.tile() < 3; }));
        }
    }
}

TEST(Map_File, has_another_name_for_each_set) {
    for (const auto& [set, map] :
         {std::pair("a/level.qdl", "a/level.map"), std::pair("level.QDL", "level.MAP"),
          std::pair("level.bak", "level.bak.qdlmap"), std::pair("level", "level.qdlmap"),
          std::pair("level.map", "level.map.qdlmap"), std::pair("a.qdl/level", "a.qdl/level.qdlmap")}) {
        EXPECT_EQ(map_path(set), map);
    }
}

struct Fit_Row {
    std::string_view before; // the tiles
    std::string_view now;
    std::string_view shown; // a place for each tile of before; '-' is empty, nothing that it does not fit
};

TEST(Map_Fit, each_place_keeps_the_picture_that_it_had) {
    for (const Fit_Row& row : {
             Fit_Row{"abcd", "abcd", "abcd"},
             Fit_Row{"abcd", "xabcd", "abcd"},
             Fit_Row{"abcd", "dcba", "abcd"},
             Fit_Row{"abcd", "abd", "ab-d"},
             Fit_Row{"abcd", "abxd", "abxd"}, // it was changed there
             Fit_Row{"abcd", "axyz", "a---"}, // too much is new for that
             Fit_Row{"aabb", "bbaa", "aabb"},
             Fit_Row{"aaab", "a", "aaa-"},
             Fit_Row{"abcd", "wxyz", ""},
             Fit_Row{"ab", "", ""},
         }) {
        SCOPED_TRACE(std::string(row.before) + " " + std::string(row.now));
        Tile_Map map({static_cast<int>(row.before.size()), 1});
        for (int i = 0; i < map.size().width; ++i) {
            map.set({i, 0}, Map_Cell(i));
        }
        const Fitted_Map fit = fitted({map, sums(row.before)}, sums(row.now));
        EXPECT_EQ(fit.has_other_tiles, row.before != row.now);
        std::string shown;
        for (int i = 0; fit.map && i < map.size().width; ++i) {
            const int tile = fit.map->at({i, 0}).tile();
            shown += tile < 0 ? '-' : row.now[static_cast<std::size_t>(tile)];
        }
        EXPECT_EQ(shown, row.shown);
        EXPECT_EQ(fit.emptied, std::ranges::count(row.shown, '-'));
    }
    EXPECT_EQ(fitted({Tile_Map({1, 1}), std::nullopt}, sums("ab")).map, Tile_Map({1, 1}));
}

// Bytes at random behind a right head: nothing outside of them is read, whatever they say.
TEST(Map_Code, any_bytes_are_read_without_harm) {
    std::mt19937 random(5);
    for (int i = 0; i < 3000; ++i) {
        Bytes bytes(random() % 40);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random() % 3 == 0 ? random() : random() % 4);
        }
        std::vector<Map_Cell> cells(random() % 50);
        Map_Code_Reader reader(bytes);
        reader.cells(cells);
        EXPECT_TRUE(reader.has_failed() || reader.is_at_end() || reader.number() < 0xffffffffU);
    }
}

class Map_Beside_Set : public ::testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<Tileset_Document> made_document() const {
        Tileset tileset({3, 2});
        tileset.add_tile();
        tileset.add_tile();
        auto document = std::make_unique<Tileset_Document>("untitled", std::move(tileset));
        document->set_file(path);
        document->set_map(map);
        return document;
    }

    Temporary_Folder folder;
    // A tile of which an edge is lit is no longer that of before.
    static void light(Tileset_Document& document, int tile) {
        document.tileset().tile_at(tile).set_pixel(0, 0, {255, 255, 255});
    }

    std::string path = folder.path("level.qdl");
    std::string map_file = folder.path("level.map");
    Tile_Map map = random_map({6, 5}, 2, 3);
};

TEST_F(Map_Beside_Set, is_saved_and_loaded_with_it) {
    EXPECT_EQ(save_document(*made_document()), Save_Outcome::saved);
    EXPECT_EQ(folder.entry_count(), 2);
    const auto loaded = load_document(path).document;
    EXPECT_EQ(loaded->map()->indexed_map(), map);
    EXPECT_FALSE(replaces_strange_map(*loaded, path));
    EXPECT_TRUE(replaces_strange_map(*made_document(), path));
}

TEST_F(Map_Beside_Set, never_hinders_loading_and_is_not_lost_where_it_cannot_be_read) {
    ASSERT_EQ(save_document(*made_document()), Save_Outcome::saved);
    const Bytes whole = stored(map_file);
    for (const Bytes& bytes : {Bytes{}, Bytes{'x'}, Bytes(whole.begin(), whole.end() - 1)}) {
        store(map_file, bytes);
        const Loaded_Document found = load_document(path);
        const auto& loaded = found.document;
        ASSERT_NE(loaded, nullptr);
        EXPECT_EQ(found.map, Found_Map::unreadable);
        EXPECT_EQ(loaded->map(), nullptr);
        EXPECT_TRUE(has_unreadable_map(*loaded));
        EXPECT_EQ(save_document(*loaded), Save_Outcome::saved);
        EXPECT_EQ(stored(map_file), bytes);
        loaded->set_map(map);
        EXPECT_TRUE(replaces_strange_map(*loaded, path));
    }
    std::filesystem::remove(native(map_file));
    const auto loaded = load_document(path).document;
    EXPECT_EQ(loaded->map(), nullptr);
    EXPECT_FALSE(has_unreadable_map(*loaded));
}

// Neither the set nor the map without the other, unless the very last step fails.
TEST_F(Map_Beside_Set, is_as_it_was_where_saving_fails) {
    const auto document = made_document();
    document->set_map(Tile_Map({1, 1}));
    light(*document, 0);
    int failures = 0;
    std::set<Save_Outcome> outcomes;
    for (bool is_reached = true; is_reached; ++failures) {
        ASSERT_EQ(save_document(*made_document()), Save_Outcome::saved);
        const Bytes old_map = stored(map_file);
        const Bytes old_set = stored(path);
        const Fault fault(failures);
        const Save_Outcome outcome = save_document(*document);
        outcomes.insert(outcome);
        is_reached = Fault::is_reached();
        EXPECT_EQ(stored(map_file) == old_map, outcome != Save_Outcome::saved);
        EXPECT_EQ(stored(path) == old_set,
                  outcome == Save_Outcome::failed || outcome == Save_Outcome::map_refused);
        EXPECT_EQ(folder.entry_count(), 2);
    }
    EXPECT_EQ(outcomes.size(), 4U);
    EXPECT_EQ(load_document(path).document->map()->map().size(), (Size{1, 1}));
}

TEST_F(Map_Beside_Set, is_tied_to_the_tiles_that_it_was_laid_out_with) {
    const auto document = made_document();
    light(*document, 1);
    ASSERT_EQ(save_document(*document), Save_Outcome::saved);
    const auto store_set = [&](Tileset_Document& other) {
        ASSERT_GE(save_tileset(other.tileset(), path), 0);
    };
    document->tileset().swap_tiles(0, 1);
    store_set(*document);
    Loaded_Document loaded = load_document(path);
    EXPECT_EQ(loaded.map, Found_Map::other_tiles);
    EXPECT_EQ(loaded.emptied, 0);
    EXPECT_TRUE(loaded.document->is_modified());
    EXPECT_EQ(loaded.document->map()->uses_of(0), std::ranges::count(map.cells(), 1, &Map_Cell::tile));

    document->tileset().select(0);
    document->tileset().delete_current();
    store_set(*document);
    loaded = load_document(path);
    EXPECT_EQ(loaded.emptied, std::ranges::count(map.cells(), 1, &Map_Cell::tile));
    EXPECT_TRUE(replaces_strange_map(*loaded.document, path));

    light(*document, 0);
    document->tileset().tile_at(0).set_pixel(1, 1, {9, 9, 9});
    const auto without_map = made_document();
    without_map->remove_map();
    EXPECT_TRUE(lies_beside_strange_map(*without_map, path));
    store_set(*document);
    loaded = load_document(path);
    EXPECT_EQ(loaded.map, Found_Map::strange);
    EXPECT_EQ(loaded.document->map(), nullptr);
}

TEST_F(Map_Beside_Set, goes_with_the_next_save_when_it_was_taken_away) {
    ASSERT_EQ(save_document(*made_document()), Save_Outcome::saved);
    const auto loaded = load_document(path).document;
    loaded->remove_map();
    EXPECT_EQ(folder.entry_count(), 2);
    EXPECT_EQ(save_document(*loaded), Save_Outcome::saved);
    EXPECT_EQ(folder.entry_count(), 1);
}

TEST(Tmx, gives_every_map_back) {
    const Tmx_Tileset tileset{"a <set>\n\x02& \"more\"", "level.png", {8, 8}, 30, 16};
    EXPECT_NE(tmx_text(Tile_Map({1, 1}), tileset).find("\"a &lt;set&gt;&#10;_&amp; &quot;more&quot;\""),
              std::string::npos);
    const Tile_Map map = random_map({60, 40}, 30, 4);
    const Read_Tmx read = read_tmx(tmx_text(map, tileset), {8, 8}, 30);
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(read.map, map);
}

// Texts that are nearly maps are read or refused, and nothing outside of them is read.
TEST(Tmx, any_text_is_read_without_harm) {
    std::mt19937 random(8);
    const std::string whole = tmx_text(random_map({6, 5}, 3, 4), {"set", "set.png", {8, 8}, 3, 2});
    for (int i = 0; i < 3000; ++i) {
        std::string text = whole;
        for (int change = 0; change < 4; ++change) {
            const std::size_t place = random() % text.size();
            text[place] = "<>/\"' =,09\0a"[random() % 13];
            text.erase(random() % text.size(), random() % 3);
        }
        if (const Read_Tmx read = read_tmx(text, {8, 8}, 3); read.map) {
            EXPECT_TRUE(
                std::ranges::all_of(read.map->cells(), [](Map_Cell cell) { return cell.tile() < 3; }));
        }
    }
}

struct Tmx_Row {
    std::string part;
    std::string instead;
    std::string fault;
};

TEST(Tmx, says_why_a_map_does_not_fit) {
    Tile_Map map({2, 1});
    map.set({0, 0}, Map_Cell(1, {true, false, false}));
    const std::string text = tmx_text(map, {"set", "set.png", {8, 8}, 2, 2});
    const std::vector<Tmx_Row> rows{
        {"536870914,0", "1,\n 2\n", ""},
        {"width=\"2\"", "width = '2' other=\"a>b\"", ""},
        {"<?xml", "<!-- <map> --><?xml", ""},
        {"firstgid=\"1\"", "firstgid=\"2\"", ""},
        {"<layer", "<objectgroup id=\"3\"><object id=\"1\"/></objectgroup><layer", ""},
        {"536870914,0", "3,0", "It has tiles that this set does not have."},
        {"536870914,0", "1", "It has fewer cells than its size says."},
        {"536870914,0", "1,0,0", "It has more cells than its size says."},
        {"536870914,0", "1,x", "A cell is no number."},
        {"536870914,0", "1,-1", "A cell is no number."},
        {"536870914,0", "99999999999,1", "A cell is no number."},
        {"\"csv\"", "\"base64\"", "Its layer is not written as numbers between commas (CSV)."},
        {"</layer>", "</layer><layer>", "It has several layers."},
        {"<layer", "<tileset firstgid=\"9\"/><layer", "It has tiles of several sets."},
        {"orthogonal", "isometric", "Its cells are not in straight rows and columns."},
        {"infinite=\"0\"", "infinite=\"1\"", "It has no fixed size."},
        {"width=\"2\"", "width=\"1001\"", "Its size is not from 1 x 1 to 1000 x 1000."},
        {"width=\"2\"", "width=\"99999999999\"", "Its size is not from 1 x 1 to 1000 x 1000."},
        {"tilewidth=\"8\"", "tilewidth=\"9\"", "Its tiles are 9 x 8 pixels, those of this set 8 x 8."},
        {"<map", "<nothing", "It is no map."},
        {"</map>", "", "It is no whole map."},
        {"<data", "<other", "It has no layer of tiles."},
    };
    for (const Tmx_Row& row : rows) {
        SCOPED_TRACE(row.part + " becomes " + row.instead);
        std::string changed = text;
        changed.replace(changed.find(row.part), row.part.size(), row.instead);
        const Read_Tmx read = read_tmx(changed, {8, 8}, 2);
        EXPECT_EQ(read.fault, row.fault);
        EXPECT_EQ(read.map.has_value(), row.fault.empty());
        EXPECT_EQ(read.has_more, row.instead.starts_with("<objectgroup"));
    }
    EXPECT_EQ(read_tmx(text, {8, 8}, 2).map, map);
    // What was turned before the tiles became others is as it is drawn.
    map.set({1, 0}, Map_Cell(1, {true, true, false}));
    const Read_Tmx as_drawn = read_tmx(tmx_text(map, {"set", "set.png", {8, 4}, 2, 2}), {8, 4}, 2);
    map.set({0, 0}, Map_Cell(1));
    map.set({1, 0}, Map_Cell(1, {false, true, false}));
    EXPECT_EQ(as_drawn.map, map);
    for (std::size_t length = 0; length < text.size() - 2; ++length) {
        EXPECT_FALSE(read_tmx(text.substr(0, length), {8, 8}, 2).map) << length;
    }
}

} // namespace
} // namespace quadrelle::testing
