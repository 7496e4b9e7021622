#include "tileset/history_file.h"

#include "base/fingerprint.h"
#include "tests/support/tiles.h"
#include "tileset/history_code.h"
#include "tileset/tileset.h"

namespace quadrelle::testing {
namespace {

using Bytes = std::vector<std::uint8_t>;

const File_Stamp saved{{500, 7}, 0x123456789abcdef0U};

Tileset two_tiles() {
    Tileset tileset({4, 3});
    tileset.add_tile();
    tileset.add_tile();
    return tileset;
}

// Three states: of the second tile, with a selection, and with a shaped paste.
Undo_History some_history(Tileset& tileset) {
    Undo_History history;
    history.reset(tileset);
    Work_State work;
    work.selection = std::make_shared<Selection>(selected_rectangle({4, 3}, {1, 1}, {2, 2}));
    tileset.current_tile()->set_pixel(1, 2, red);
    history.add(undo_entry_of(tileset, Command::line, {Tool::pen, true}, work));
    work.paste = std::make_shared<Floating_Paste>(
        Floating_Paste{random_tile({6, 2}), {-5, 3}, Paste_Shape{random_tile({3, 1}), {2, 2}, 90}});
    work.paste_source = Paste_Source::tile;
    work.seam_shift = {2, 0};
    tileset.select(0);
    history.add(undo_entry_of(tileset, Command::paste, {Tool::scroll, false}, work));
    static_cast<void>(history.undo());
    return history;
}

void append_checksum(Bytes& bytes) {
    History_Writer sum;
    sum.word(fingerprint_of(bytes));
    bytes.insert(bytes.end(), sum.bytes().begin(), sum.bytes().end());
}

} // namespace

TEST(History_File, gives_every_state_back_to_the_same_file_only) {
    Tileset tileset = two_tiles();
    const Undo_History history = some_history(tileset);
    const Bytes bytes = encode_history(history, saved);
    const std::optional<Kept_History> kept = decode_history(bytes, saved, tileset);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->position, 1);
    ASSERT_EQ(kept->entries.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        const Undo_Entry& one = kept->entries[i];
        const Undo_Entry& other = history.entries()[i];
        EXPECT_TRUE(one.snapshot->tile.same_pixels(other.snapshot->tile));
        EXPECT_EQ(one.kind, other.kind);
        EXPECT_EQ(one.tile_index, other.tile_index);
        EXPECT_EQ(one.tool.tool, other.tool.tool);
        EXPECT_EQ(one.tool.is_erasing, other.tool.is_erasing);
        EXPECT_EQ(one.work.paste_source, other.work.paste_source);
        EXPECT_EQ(one.work.seam_shift, other.work.seam_shift);
        EXPECT_TRUE(one.work.selection ? *one.work.selection == *other.work.selection : i == 0);
        EXPECT_TRUE(one.work.paste ? *one.work.paste == *other.work.paste : i < 2);
    }
    EXPECT_TRUE(kept->entries[2].work.paste->shape->taken->same_pixels(random_tile({3, 1})));
    EXPECT_FALSE(decode_history(bytes, {{501, 7}, saved.fingerprint}, tileset));
    EXPECT_FALSE(decode_history(bytes, {saved.state, 1}, tileset));
    EXPECT_FALSE(decode_history(bytes, saved, Tileset({4, 3})));
}

// Also where somebody has made the checksum right.
TEST(History_File, damaged_bytes_are_refused_and_harmful_ones_do_no_harm) {
    Tileset tileset = two_tiles();
    const Bytes bytes = encode_history(some_history(tileset), saved);
    const Bytes content(bytes.begin(), bytes.end() - 8);
    for (std::size_t length = 0; length < content.size(); ++length) {
        Bytes cut(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(decode_history(cut, saved, tileset));
        append_checksum(cut);
        EXPECT_FALSE(decode_history(cut, saved, tileset)) << length;
    }
    for (std::size_t bit = 0; bit < content.size() * 8; ++bit) {
        Bytes other = content;
        other[bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
        append_checksum(other);
        const std::optional<Kept_History> kept = decode_history(other, saved, tileset);
        EXPECT_TRUE(!kept || (kept->entries.size() <= 18 && kept->entries.back().snapshot != nullptr));
        std::copy(bytes.end() - 8, bytes.end(), other.end() - 8);
        EXPECT_FALSE(decode_history(other, saved, tileset)) << bit;
    }
}

TEST(History_Code, pictures_take_no_more_memory_than_they_may) {
    History_Writer writer;
    writer.number(8192 * 8192);
    writer.number(0);
    History_Reader reader(writer.bytes());
    EXPECT_FALSE(reader.pixels({8192, 8192}, nullptr));
    EXPECT_TRUE(reader.has_failed());
}

} // namespace quadrelle::testing
