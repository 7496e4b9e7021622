#include "tileset/tileset_file.h"

#include "base/platform_files.h"
#include "tests/support/files.h"
#include "tests/support/tiles.h"

#include <csignal>
#include <filesystem>
#include <fstream>

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quadrelle::testing {
namespace {

// Two tiles of 2 x 1 pixels.
const Bytes small_file = {'Q', 'D', 'L', '\n', 0, 2,   1, 2, 0, 0,  0,  255, 3, 2,
                          1,   0,   6,   5,    4, 128, 9, 8, 7, 64, 12, 11,  10};

Tileset small_tileset() {
    Tileset tileset({2, 1});
    const std::array<Color, 4> colors = {{{1, 2, 3, 255}, {4, 5, 6, 0}, {7, 8, 9, 128}, {10, 11, 12, 64}}};
    for (std::size_t i = 0; i < colors.size(); i += 2) {
        tileset.add_tile();
        tileset.current_tile()->set_pixel_at(0, colors.at(i));
        tileset.current_tile()->set_pixel_at(1, colors.at(i + 1));
    }
    return tileset;
}

Bytes header(int width, int height, std::uint32_t count) {
    Bytes bytes = {
        'Q', 'D', 'L', '\n', 0, static_cast<std::uint8_t>(width), static_cast<std::uint8_t>(height)};
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(count >> shift));
    }
    return bytes;
}

Tileset random_tileset(Size size, int count) {
    Tileset tileset(size);
    while (tileset.count() < count) {
        tileset.append_loaded(
            std::make_unique<Tile>(random_tile(size, static_cast<unsigned>(tileset.count()))));
    }
    return tileset;
}

// It is written in two blocks.
Tileset large_tileset() {
    return random_tileset({255, 255}, 5);
}

} // namespace

TEST(Tileset_File, has_exactly_these_bytes) {
    const Temporary_Folder folder;
    const std::string path = folder.path("tiles.qdl");
    EXPECT_EQ(save_tileset(small_tileset(), path), 27);
    EXPECT_EQ(stored(path), small_file);
    const Loaded_Tileset loaded = load_tileset(path);
    ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
    EXPECT_EQ(loaded.tileset->tile_at(1).get_pixel(1, 0), (Color{10, 11, 12, 64}));
}

TEST(Tileset_File, comes_back_pixel_for_pixel) {
    const Temporary_Folder folder;
    const std::string path = folder.path("плитки ✎.qdl");
    for (const Size size : {Size{24, 24}, {6, 64}, {1, 1}, {255, 255}}) {
        const Tileset tileset = random_tileset(size, 3);
        ASSERT_EQ(save_tileset(tileset, path), 11 + 3 * size.width * size.height * 4);
        const Loaded_Tileset loaded = load_tileset(path);
        ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
        ASSERT_EQ(loaded.tileset->count(), 3);
        EXPECT_EQ(loaded.tileset->current_index(), 0);
        EXPECT_EQ(loaded.tileset->tile_size(), size);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(picture_of(loaded.tileset->tile_at(i)), picture_of(tileset.tile_at(i)));
        }
    }
    EXPECT_EQ(folder.entry_count(), 1);
}

TEST(Tileset_File, loads_more_tiles_than_can_be_added) {
    const Temporary_Folder folder;
    Bytes bytes = header(1, 1, 300);
    bytes.resize(bytes.size() + 300 * 4, 9);
    store(folder.path("many.qdl"), bytes);
    const Loaded_Tileset loaded = load_tileset(folder.path("many.qdl"));
    ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
    EXPECT_EQ(loaded.tileset->count(), 300);
    EXPECT_FALSE(loaded.tileset->add_tile() || loaded.tileset->insert_tile());
    EXPECT_EQ(save_tileset(*loaded.tileset, folder.path("again.qdl")), 11 + 300 * 4);
    EXPECT_EQ(stored(folder.path("again.qdl")), bytes);
}

TEST(Tileset_File, every_truncation_is_fatal) {
    const Temporary_Folder folder;
    const std::string path = folder.path("tiles.qdl");
    for (std::size_t length = 0; length < small_file.size(); ++length) {
        store(path, Bytes(small_file.begin(), small_file.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_FATAL(static_cast<void>(load_tileset(path)), "Unable to load block from  " + path) << length;
    }
}

TEST(Tileset_File, first_tile_is_there_where_the_file_holds_it_whole) {
    const Temporary_Folder folder;
    const std::string path = folder.path("tiles.qdl");
    EXPECT_EQ(load_first_tile(path), nullptr);
    for (std::size_t length = 0; length <= small_file.size(); ++length) {
        store(path, Bytes(small_file.begin(), small_file.begin() + static_cast<std::ptrdiff_t>(length)));
        const std::unique_ptr<Tile> tile = load_first_tile(path);
        ASSERT_EQ(tile != nullptr, length >= 11 + 8) << length;
        EXPECT_TRUE(tile == nullptr || tile->same_pixels(small_tileset().tile_at(0)));
    }
    Bytes other = small_file;
    other[0] = 'q';
    store(path, other);
    EXPECT_EQ(load_first_tile(path), nullptr);
    store(path, header(0, 5, 1));
    EXPECT_EQ(load_first_tile(path), nullptr);
}

// What each header says decides alone; whatever follows the last tile is not looked at.
TEST(Tileset_File, every_flipped_bit_has_its_expected_outcome) {
    const Temporary_Folder folder;
    const std::string path = folder.path("tiles.qdl");
    for (std::size_t bit = 0; bit < small_file.size() * 8; ++bit) {
        SCOPED_TRACE("bit " + std::to_string(bit));
        Bytes bytes = small_file;
        bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ 1U << bit % 8);
        store(path, bytes);
        const std::int64_t count = bytes[7] | bytes[8] << 8 | bytes[9] << 16 | std::int64_t{bytes[10]} << 24;
        const std::int64_t size = 4 * bytes[5] * bytes[6];
        if (bit / 8 < 3) {
            EXPECT_EQ(load_tileset(path).outcome, Load_Outcome::not_a_tileset);
        } else if (count * size > 16) {
            EXPECT_FATAL(static_cast<void>(load_tileset(path)), "Unable to load block from  " + path);
        } else {
            const Loaded_Tileset loaded = load_tileset(path);
            ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
            EXPECT_EQ(loaded.tileset->count(), size == 0 ? 0 : count);
        }
    }
}

TEST(Tileset_File, enormous_counts_take_neither_time_nor_memory) {
    const Temporary_Folder folder;
    const std::string path = folder.path("tiles.qdl");
    Bytes enormous = header(255, 255, 4'000'000'000);
    enormous.resize(enormous.size() + 20);
    store(path, enormous);
    EXPECT_FATAL(static_cast<void>(load_tileset(path)), "Unable to load block from  " + path);
    for (const Size size : {Size{0, 0}, {0, 255}, {255, 0}}) {
        store(path, header(size.width, size.height, 0xffffffff));
        const Loaded_Tileset loaded = load_tileset(path);
        ASSERT_EQ(loaded.outcome, Load_Outcome::loaded);
        EXPECT_FALSE(loaded.tileset->has_tiles());
        EXPECT_TRUE(loaded.tileset->add_tile());
        EXPECT_EQ(save_tileset(*loaded.tileset, path), 11);
    }
}

namespace {

// The folder of the file that is being saved, and how many operations come before it is closed.
std::filesystem::path folder_to_damage;
int operations_before_closing = 0;

// What is written gets another last byte when it is complete.
bool damage_what_is_written() {
    if (operations_before_closing-- == 0) {
        for (const auto& entry : std::filesystem::directory_iterator(folder_to_damage)) {
            if (entry.path().extension() == ".tmp") {
                std::fstream file(entry.path(), std::ios::in | std::ios::out | std::ios::binary);
                file.seekp(-1, std::ios::end).put('?');
            }
        }
    }
    return false;
}

} // namespace

TEST(Tileset_File, what_reached_the_disk_otherwise_leaves_the_old_file) {
    const Old_File old;
    folder_to_damage = old.folder.native_path();
    for (const int operations : {4, 5}) {
        operations_before_closing = operations;
        set_file_fault_hook(damage_what_is_written);
        const std::int64_t saved = save_tileset(large_tileset(), old.path);
        set_file_fault_hook(nullptr);
        EXPECT_EQ(saved == -1, operations == 4);
    }
}

#ifndef _WIN32

namespace {

// Root may write anywhere: what is tested is somebody else.
void become_an_ordinary_user() {
    if (geteuid() == 0) {
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
    }
}

[[noreturn]] void leave_with_outcome(std::int64_t saved) {
    _exit(saved == -1 ? 3 : 0);
}

} // namespace

TEST(Tileset_File, a_kill_at_any_operation_leaves_the_old_file) {
    const Old_File old;
    const Tileset tileset = large_tileset();
    for (int operation = 0; operation < 6; ++operation) {
        const Fault fault(operation, Fault::Kind::kill);
        EXPECT_EXIT(leave_with_outcome(save_tileset(tileset, old.path)), ::testing::KilledBySignal(SIGTERM),
                    "");
        EXPECT_EQ(stored(old.path), old.bytes) << operation;
    }
}

TEST(Tileset_File, a_full_disk_leaves_the_old_file) {
    const Old_File old;
    const Tileset tileset = random_tileset({24, 24}, 4);
    for (const rlim_t room : {0, 10, 11, 4096, 9226}) {
        const auto save_with_little_room = [&] {
            const rlimit limit = {room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
            leave_with_outcome(save_tileset(tileset, old.path));
        };
        EXPECT_EXIT(save_with_little_room(), ::testing::ExitedWithCode(3), "") << room;
        old.expect_untouched();
    }
}

TEST(Tileset_File, write_protection_is_respected) {
    const Old_File old;
    const auto save_as_ordinary_user = [&] {
        become_an_ordinary_user();
        leave_with_outcome(save_tileset(small_tileset(), old.path));
    };
    chmod(old.path.c_str(), 0444);
    chmod(old.folder.path("").c_str(), 0777);
    EXPECT_EXIT(save_as_ordinary_user(), ::testing::ExitedWithCode(3), "") << "the file";
    old.expect_untouched();
    chmod(old.path.c_str(), 0666);
    chmod(old.folder.path("").c_str(), 0555);
    EXPECT_EXIT(save_as_ordinary_user(), ::testing::ExitedWithCode(3), "") << "the folder";
    old.expect_untouched();
    chmod(old.folder.path("").c_str(), 0777);
    EXPECT_EXIT(save_as_ordinary_user(), ::testing::ExitedWithCode(0), "") << "neither";
}

TEST(Tileset_File, saving_keeps_permissions_and_links) {
    const Old_File old;
    const std::string link = old.folder.path("link");
    ASSERT_EQ(symlink("old file", link.c_str()), 0);
    chmod(old.path.c_str(), 0604);
    EXPECT_EQ(save_tileset(small_tileset(), link), 27);
    EXPECT_EQ(stored(old.path), small_file);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    struct stat status = {};
    ASSERT_EQ(stat(old.path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0604U);
    EXPECT_EQ(old.folder.entry_count(), 2);
}

#endif

} // namespace quadrelle::testing
