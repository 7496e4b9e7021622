#include "color/palette_store.h"

#include "tests/support/files.h"

namespace quadrelle::testing {
namespace {

class Palette_File : public ::testing::Test {
protected:
    void put_record(const std::string& text) const { store_text(path, record_bytes(text)); }

    Temporary_Folder folder;
    std::string path = folder.path("palette.dat");
};

// What callers rely on, whatever the file held.
void expect_usable(const Palette_Store& store, const std::string& what) {
    EXPECT_GE(store.size(), 1) << what;
    EXPECT_LE(store.size(), 256) << what;
    for (int i = 0; i < store.size(); ++i) {
        EXPECT_GE(store.count(i), 0) << what;
        EXPECT_LE(store.count(i), 1024) << what;
        EXPECT_EQ(store.color(i, store.count(i) - 1).a, 255) << what;
    }
}

void expect_built_in(const Palette_Store& store) {
    ASSERT_EQ(store.size(), 3);
    EXPECT_EQ(store.name(0), "Default");
    EXPECT_EQ(store.name(1), "EGA");
    EXPECT_EQ(store.name(2), "MSX");
}

} // namespace

TEST_F(Palette_File, built_in_palettes_without_a_file_and_no_file_without_a_change) {
    {
        const Palette_Store store(path);
        expect_built_in(store);
        EXPECT_EQ(store.count(0), 32);
        EXPECT_EQ(store.color(0, 0), Color(255, 255, 255));
        EXPECT_EQ(store.color(0, 31), Color(0xae, 0x00, 0x99));
        EXPECT_EQ(store.color(1, 6), Color(0xaa, 0x55, 0x00));
        EXPECT_EQ(store.color(1, 31), Color(0, 0, 0));
        EXPECT_EQ(store.color(2, 1), Color(1, 1, 1));
        EXPECT_EQ(store.color(2, 15), Color(255, 255, 255));
        EXPECT_EQ(store.color(2, 16), Color(0, 0, 0));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Palette_File, a_loaded_palette_is_black_and_stays_unwritten) {
    put_record("2,4,Four,2,Two");
    const std::string before = stored_text(path);
    {
        const Palette_Store store(path);
        ASSERT_EQ(store.size(), 2);
        EXPECT_EQ(store.count(0), 4);
        EXPECT_EQ(store.name(0), "Four");
        EXPECT_EQ(store.color(0, 3), Color(0, 0, 0));
        EXPECT_EQ(store.count(1), 2);
        EXPECT_EQ(store.name(1), "Two");
    }
    EXPECT_EQ(stored_text(path), before);
}

TEST_F(Palette_File, a_change_is_written_with_entries_before_the_name) {
    put_record("2,2,Pair,1,");
    {
        Palette_Store store(path);
        store.set_color(0, 1, {1, 2, 3, 4});
        EXPECT_EQ(store.color(0, 1), Color(1, 2, 3, 4));
        EXPECT_TRUE(store.changed());
    }
    EXPECT_EQ(stored_text(path), record_bytes("2,2,0,0,0,255,1,2,3,4Pair,,1,0,0,0,255Rolololo,"));
}

// The reader takes the first numbers of the entries for names and counts, deliberately.
TEST_F(Palette_File, a_written_file_is_misread) {
    {
        Palette_Store store(path);
        store.set_color(0, 0, {9, 40, 7});
    }
    const Palette_Store store(path);
    ASSERT_EQ(store.size(), 3);
    EXPECT_EQ(store.count(0), 32);
    EXPECT_EQ(store.name(0), "9");
    EXPECT_EQ(store.count(1), 40);
    EXPECT_EQ(store.name(1), "7");
    EXPECT_EQ(store.count(2), 255);
    EXPECT_EQ(store.name(2), "0");
    EXPECT_EQ(store.color(0, 0), Color(0, 0, 0));
}

TEST_F(Palette_File, a_file_without_palettes_leaves_the_built_in_ones) {
    for (const char* text : {"", "0", "-1", "x,32,Name", "-2147483649,1,a", "5", "5,"}) {
        put_record(text);
        expect_built_in(Palette_Store(path));
    }
    store_text(path, std::string(4, '\0'));
    expect_built_in(Palette_Store(path));
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    expect_built_in(Palette_Store(path));
}

TEST_F(Palette_File, flipped_bits_load_or_are_fatal) {
    put_record("3,4,Four,2,Two,12,Dozen");
    const std::string whole = stored_text(path);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string flipped = whole;
            flipped[i] = static_cast<char>(static_cast<unsigned char>(flipped[i]) ^ 1U << bit);
            store_text(path, flipped);
            const bool is_longer = i < 4 && flipped[i] != whole[i] && (i > 0 || (whole[0] >> bit & 1) == 0);
            if (is_longer) {
                EXPECT_FATAL(const Palette_Store store(path), "Unable to load block from  " + path);
            } else {
                expect_usable(Palette_Store(path), flipped);
            }
        }
    }
}

} // namespace quadrelle::testing
