#include "tileset/undo_history.h"

#include "tileset/tileset.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace quadrelle {
namespace {

constexpr Color shade(int value) {
    return {static_cast<std::uint8_t>(value), 0, 0};
}

// Edits are shades: each fills the current tile with its own.
class Undo_History_Test : public ::testing::Test {
protected:
    Undo_History_Test() {
        for (int i = 0; i < 3; ++i) {
            tileset.add_tile();
        }
        tileset.select(0);
        history.reset(tileset);
    }

    void edit(int value) {
        tileset.current_tile()->fill(shade(value));
        history.add(undo_entry_of(tileset, Command::pen, Tool::pen));
    }
    static int shade_of(const Undo_Entry* entry) {
        return entry == nullptr ? -1 : entry->snapshot->tile.get_pixel(0, 0).r;
    }

    Tileset tileset{{2, 2}};
    Undo_History history;
};

TEST_F(Undo_History_Test, keeps_eighteen_states_and_walks_them_back_and_forth) {
    for (int value = 1; value <= 20; ++value) {
        edit(value);
    }
    EXPECT_EQ(history.entries().size(), 18U);
    EXPECT_EQ(history.redo(), nullptr);
    EXPECT_EQ(history.position(), 17);
    for (int value = 19; value >= 3; --value) {
        EXPECT_EQ(shade_of(history.undo()), value);
    }
    EXPECT_EQ(history.undo(), nullptr);
    EXPECT_EQ(history.position(), 0);
    for (int value = 4; value <= 20; ++value) {
        EXPECT_EQ(shade_of(history.redo()), value);
    }
    EXPECT_EQ(history.redo(), nullptr);
}

TEST_F(Undo_History_Test, starts_with_the_current_tile_or_with_nothing) {
    tileset.select(1);
    edit(5);
    history.reset(tileset);
    ASSERT_EQ(history.entries().size(), 1U);
    EXPECT_EQ(history.entries().front().kind, static_cast<Command>(4));
    EXPECT_EQ(history.entries().front().tile_index, 1);
    EXPECT_EQ(shade_of(&history.entries().front()), 5);
    history.clear();
    EXPECT_EQ(history.undo(), nullptr);
    EXPECT_EQ(history.redo(), nullptr);
    edit(6);
    EXPECT_EQ(history.position(), 0);
    EXPECT_EQ(history.undo(), nullptr);
    history.reset(Tileset({2, 2}));
    EXPECT_TRUE(history.entries().empty());
}

} // namespace
} // namespace quadrelle
