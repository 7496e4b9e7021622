// The journal: what was handed over comes back, whatever was cut off, damaged, or could not be written.

#include "base/platform_files.h"
#include "tests/support/files.h"
#include "tests/support/tiles.h"
#include "tileset/journal_file.h"
#include "tileset/journal_writer.h"
#include "tileset/recovered_document.h"
#include "tileset/tileset_file.h"

#include <random>
#include <utility>

namespace quadrelle::testing {
namespace {

using Picture = std::shared_ptr<const Tile>;

// A set as the program has it, with what the journal was told of it.
struct Kept_Set {
    explicit Kept_Set(Set_Number set_number, Size size) : number(set_number), tile_size(size) {}

    Set_Number number;
    Size tile_size;
    std::vector<Picture> tiles;
    std::vector<std::uint64_t> told;
};

class Journal : public ::testing::Test {
protected:
    Picture new_picture(Size size) { return std::make_shared<const Tile>(random_tile(size, random_)); }
    [[nodiscard]] int any(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    // As the keeper does: the pixels of what the journal does not know.
    static Handed_Set handed(Kept_Set& set) {
        Handed_Set result;
        result.number = set.number;
        result.name = "set" + std::to_string(set.number);
        result.tile_size = set.tile_size;
        for (const Picture& tile : set.tiles) {
            result.versions.push_back(tile->version());
            if (std::ranges::find(set.told, tile->version()) == set.told.end()) {
                result.tiles.push_back({static_cast<int>(result.versions.size()) - 1, tile});
            }
        }
        set.told = result.versions;
        return result;
    }
    static Handed_Set over(Set_Number number) {
        Handed_Set result;
        result.number = number;
        result.is_over = true;
        return result;
    }
    void draw_on(Picture& tile) {
        auto drawn = std::make_shared<Tile>(*tile);
        drawn->set_pixel(any(tile->width()), any(tile->height()), Color(any(256), 7, 9, any(256)));
        tile = drawn;
    }
    void change(Kept_Set& set) {
        const auto place = set.tiles.begin() + any(static_cast<int>(set.tiles.size()));
        switch (any(8)) {
        case 0: set.tiles.insert(place, new_picture(set.tile_size)); break;
        case 1: std::swap(*place, set.tiles.back()); break;
        case 2:
            if (set.tiles.size() > 1) {
                set.tiles.erase(place);
            }
            break;
        case 3: // a new one before the one that was drawn on
            draw_on(*place);
            set.tiles.insert(place, new_picture(set.tile_size));
            break;
        case 4:
            if (any(10) == 0) {
                set.tile_size = {1 + any(60), 1 + any(60)};
                std::ranges::generate(set.tiles, [&] { return new_picture(set.tile_size); });
            }
            break;
        default: draw_on(*place);
        }
    }
    static void expect_same(const Journal_Set& read, const Kept_Set& kept) {
        EXPECT_EQ(read.name, "set" + std::to_string(kept.number));
        ASSERT_EQ(read.tiles.size(), kept.tiles.size());
        for (std::size_t i = 0; i < kept.tiles.size(); ++i) {
            ASSERT_TRUE(read.tiles[i].picture && read.tiles[i].picture->same_pixels(*kept.tiles[i])) << i;
        }
    }
    [[nodiscard]] Read_Journal read() const { return read_journal(stored(file_.path())); }

    [[nodiscard]] std::string path() const { return folder_.path("journal"); }
    Journal_File& file() { return file_; }
    void write(const Handed_Set& set) { EXPECT_TRUE(file_.write({set})); }

private:
    std::mt19937 random_{15};
    Temporary_Folder folder_;
    Journal_File file_{folder_.path("journal")};
};

TEST_F(Journal, has_all_sets_as_they_are_and_stays_short) {
    std::map<Set_Number, Kept_Set> sets;
    for (int step = 0; step < 400; ++step) {
        const auto number = static_cast<Set_Number>(1 + any(3));
        auto [found, is_new] = sets.try_emplace(number, number, Size{64, 64});
        if (is_new) {
            found->second.tiles.push_back(new_picture({64, 64}));
        } else if (any(100) == 0) {
            sets.erase(found);
            write(over(number));
            continue;
        } else {
            change(found->second);
        }
        write(handed(found->second));
        if (step % 20 == 0 || step > 395) {
            const Read_Journal now = read();
            EXPECT_FALSE(now.is_damaged);
            ASSERT_EQ(now.sets.size(), sets.size());
            for (const auto& [kept_number, kept] : sets) {
                expect_same(now.sets.at(kept_number), kept);
            }
        }
    }
    EXPECT_LT(stored(file().path()).size(), 3U << 20U);
    for (const auto& [number, kept] : sets) {
        write(over(number));
    }
    EXPECT_FALSE(std::filesystem::exists(native(path())));
}

TEST_F(Journal, is_as_long_as_what_was_drawn) {
    Kept_Set set(1, {64, 64});
    std::ranges::generate_n(std::back_inserter(set.tiles), 5, [&] { return new_picture({64, 64}); });
    write(handed(set));
    draw_on(set.tiles[3]);
    write(handed(set));
    const std::size_t before = stored(file().path()).size();
    draw_on(set.tiles[3]);
    write(handed(set));
    EXPECT_LT(stored(file().path()).size(), before + 150);
    expect_same(read().sets.at(1), set);
}

// Each state of a small set after another, and how long the journal was then.
struct Written_State {
    std::vector<Picture> tiles;
    std::size_t size = 0;
};

TEST_F(Journal, is_as_it_was_before_what_was_cut_off) {
    Kept_Set set(1, {3, 2});
    set.tiles.push_back(new_picture(set.tile_size));
    std::vector<Written_State> states{{{}, journal_head().size()}};
    for (int i = 0; i < 8; ++i) {
        change(set);
        write(handed(set));
        states.push_back({set.tiles, stored(file().path()).size()});
    }
    const Bytes whole = stored(file().path());
    const Written_State* state = states.data();
    for (std::size_t size = journal_head().size(); size <= whole.size(); ++size) {
        state += state + 1 < states.data() + states.size() && size >= state[1].size ? 1 : 0;
        for (const std::size_t zeros : {0, 100}) {
            Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
            cut.resize(size + zeros);
            const Read_Journal now = read_journal(cut);
            EXPECT_TRUE(!now.is_damaged || (zeros > 0 && size > state->size)) << size;
            ASSERT_EQ(now.sets.size(), state->tiles.empty() ? 0U : 1U) << size;
            if (!now.sets.empty()) {
                Kept_Set kept(1, set.tile_size);
                kept.tiles = state->tiles;
                expect_same(now.sets.at(1), kept);
            }
        }
    }
}

TEST_F(Journal, gives_what_is_whole_whichever_byte_is_wrong) {
    Kept_Set broken(1, {2, 2});
    broken.tiles.push_back(new_picture(broken.tile_size));
    write(handed(broken));
    const std::size_t end_of_first = stored(file().path()).size();
    Kept_Set whole(2, {2, 2});
    whole.tiles.push_back(new_picture(whole.tile_size));
    write(handed(whole));
    draw_on(whole.tiles[0]);
    write(handed(whole));
    Bytes bytes = stored(file().path());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (int bit = 0; bit < 8; ++bit) {
            bytes[i] ^= static_cast<std::uint8_t>(1 << bit);
            const Read_Journal now = read_journal(bytes);
            if (i < end_of_first) {
                EXPECT_TRUE(now.is_damaged) << i;
                ASSERT_TRUE(now.sets.contains(2)) << i;
                expect_same(now.sets.at(2), whole);
                EXPECT_EQ(now.sets.size(), i < journal_head().size() ? 2U : 1U) << i;
            }
            bytes[i] ^= static_cast<std::uint8_t>(1 << bit);
        }
    }
}

// Two operations fail, the second one perhaps while what came of the first is mended.
TEST_F(Journal, brings_what_failed_to_the_disk_with_the_next_stroke) {
    constexpr int count = 1 + 2 + 3 * 2; // the folder, the beginning, each stroke
    for (int fault = 0; fault < count * 7; ++fault) {
        SCOPED_TRACE(fault);
        const Temporary_Folder folder;
        Journal_File file(folder.path("journal"));
        Kept_Set set(1, {3, 3});
        set.tiles.push_back(new_picture(set.tile_size));
        int failures = 0;
        {
            const int first = fault % count;
            const Fault both(first, Fault::Kind::failure, first + fault / count);
            for (int stroke = 0; stroke < 3; ++stroke) {
                failures += file.write({handed(set)}) ? 0 : 1;
                draw_on(set.tiles[0]);
            }
            EXPECT_TRUE(Fault::is_reached());
        }
        EXPECT_TRUE(failures == 1 || failures == 2);
        EXPECT_LE(folder_names(folder.path("journal")).size(), 2U) << "the journal and its lock";
        EXPECT_TRUE(file.write({handed(set)}));
        const Read_Journal now = read_journal(stored(file.path()));
        EXPECT_FALSE(now.is_damaged);
        expect_same(now.sets.at(1), set);
        EXPECT_TRUE(file.write({over(1)}));
        EXPECT_EQ(folder.entry_count(), 0);
    }
}

TEST_F(Journal, takes_tiles_that_it_only_names_from_the_file) {
    Tileset tileset({2, 1});
    for (int i = 0; i < 3; ++i) {
        tileset.add_tile();
        tileset.current_tile()->fill(Color(i, 50, 60));
    }
    Temporary_Folder folder;
    const std::string name = folder.path("set.qdl");
    ASSERT_GT(save_tileset(tileset, name), 0);
    Handed_Set set;
    set.number = 4;
    set.name = name;
    set.is_named = true;
    set.tile_size = {2, 1};
    set.versions = {7, 8, 9};
    set.indices_in_file = {2, 0, 1};
    const Picture drawn = new_picture({2, 1});
    set.tiles = {{1, drawn}};
    Tile_Map map({2, 1});
    map.set({1, 0}, Map_Cell(5));
    set.has_map = true;
    set.map = Handed_Map{map, {0, 0, 0, 0, 0, 2}};
    write(set);
    const std::unique_ptr<Tileset_Document> document = recovered_document(read().sets.at(4));
    EXPECT_TRUE(document->is_named() && document->is_modified());
    EXPECT_TRUE(document->tileset().tile_at(0).same_pixels(tileset.tile_at(2)));
    EXPECT_TRUE(document->tileset().tile_at(1).same_pixels(*drawn));
    EXPECT_TRUE(document->tileset().tile_at(2).same_pixels(tileset.tile_at(1)));
    ASSERT_NE(document->map(), nullptr);
    EXPECT_EQ(document->map()->indexed_map().at({1, 0}).tile(), 2);
}

// While another program could be writing it, nobody recovers it.
TEST_F(Journal, is_locked_as_long_as_its_program_runs) {
    {
        Kept_Set set(1, {1, 1});
        set.tiles.push_back(new_picture(set.tile_size));
        Journal_Writer writer(path());
        writer.add(handed(set));
        writer.drain();
        EXPECT_FALSE(writer.has_failed());
        const std::vector<std::string> names = folder_names(path());
        ASSERT_EQ(names.size(), 2U);
        const std::string& journal = names[0].ends_with(journal_ending) ? names[0] : names[1];
        EXPECT_TRUE(File_Lock(journal_lock_path(path() + "/" + journal)).is_held_elsewhere());
        expect_same(read_journal(stored(path() + "/" + journal)).sets.at(1), set);
    }
    EXPECT_FALSE(std::filesystem::exists(native(path())));
}

} // namespace
} // namespace quadrelle::testing
