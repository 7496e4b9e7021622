#include "base/platform_files.h"

#include "base/atomic_file.h"
#include "base/block_file.h"
#include "base/data_directory.h"
#include "tests/support/files.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quadrelle::testing {

TEST(Files, names_outside_ascii_name_the_same_file_everywhere) {
    const Temporary_Folder folder;
    for (const std::string name : {"плитки.qdl", "磁貼 ✎.qdl", "ünï cödé", "🎨"}) {
        const std::string path = folder.path(name);
        File_Handle file = open_file(path, File_Mode::create);
        ASSERT_TRUE(file) << name;
        EXPECT_TRUE(write_bytes(file.get(), Bytes{1, 2}));
        EXPECT_TRUE(close_file(std::move(file)));
        EXPECT_EQ(stored(path), (Bytes{1, 2})) << name;
        EXPECT_TRUE(replace_file(path, path + "2"));
        EXPECT_TRUE(remove_file(path + "2"));
    }
    EXPECT_EQ(folder.entry_count(), 0);
}

TEST(Files, an_atomic_file_appears_only_when_committed) {
    const Temporary_Folder folder;
    const std::string path = folder.path("file");
    store(path, {1});
    {
        Atomic_File abandoned(path);
        EXPECT_TRUE(abandoned.write(Bytes{2, 3}));
    }
    EXPECT_EQ(stored(path), (Bytes{1}));
    Atomic_File file(path);
    EXPECT_TRUE(file.write(Bytes{2}) && file.write(Bytes{3}));
    EXPECT_EQ(stored(path), (Bytes{1}));
    EXPECT_TRUE(file.commit());
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(stored(path), (Bytes{2, 3}));
    EXPECT_EQ(folder.entry_count(), 1);
}

TEST(Files, an_atomic_file_that_missed_a_block_is_never_committed) {
    const Temporary_Folder folder;
    const std::string path = folder.path("file");
    Atomic_File file(path);
    const Fault fault(0);
    EXPECT_FALSE(file.write(Bytes{1, 2, 3}));
    EXPECT_FALSE(file.write(Bytes{4}));
    EXPECT_FALSE(file.commit());
    EXPECT_FALSE(std::filesystem::exists(path));
}

// Process 1 runs wherever there are processes; one with a number that large does not.
TEST(Files, what_killed_programs_left_behind_goes_with_the_next_save) {
    const Temporary_Folder folder;
    const std::string ours = ".quadrelle-" + std::to_string(process_number()) + "-7.tmp";
    const std::vector<std::string> stays{".quadrelle-1-0.tmp", ours, ".quadrelle-.tmp",
                                         ".quadrelle-2000000001-0", "a.tmp"};
    for (const std::string& name : stays) {
        store(folder.path(name), {1});
    }
    store(folder.path(".quadrelle-2000000001-0.tmp"), {1});
    store(folder.path(".quadrelle-3415708378.tmp"), {1});
    EXPECT_EQ(write_file(folder.path("file"), Bytes{1}), 1);
    EXPECT_EQ(folder.entry_count(), static_cast<int>(stays.size()) + 1);
    for (const std::string& name : stays) {
        EXPECT_TRUE(std::filesystem::exists(folder.native_path() / name)) << name;
    }
}

TEST(Data_Directory, steps_in_and_out) {
    const Program_Folder folder;
    store(folder.path("data/palette.dat"), {1});
    Data_Directory directory;
    EXPECT_EQ(stored(directory.path("palette.dat")), (Bytes{1}));
    EXPECT_FALSE(directory.enter(Data_Directory::outside));
    ASSERT_TRUE(directory.enter(Data_Directory::inside));
    EXPECT_FALSE(directory.enter(Data_Directory::inside));
    EXPECT_EQ(stored("palette.dat"), (Bytes{1}));
    EXPECT_EQ(stored(directory.path("palette.dat")), (Bytes{1}));
    directory.leave();
    directory.leave();
    EXPECT_EQ(directory.index(), Data_Directory::outside);
    EXPECT_EQ(stored("data/palette.dat"), (Bytes{1}));
}

TEST(Data_Directory, tells_when_there_is_none) {
    const Program_Folder folder;
    std::filesystem::remove_all(folder.native_path() / "data");
    Data_Directory directory;
    EXPECT_FALSE(directory.enter(Data_Directory::inside));
    EXPECT_EQ(directory.index(), Data_Directory::inside);
}

#ifndef _WIN32

TEST(Files, pipes_and_devices_are_refused_without_waiting) {
    const Temporary_Folder folder;
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/zero"), std::string("/dev/tty")}) {
        EXPECT_FALSE(open_file(path, File_Mode::read)) << path;
        EXPECT_FALSE(open_file(path, File_Mode::write)) << path;
        EXPECT_FALSE(can_replace(path)) << path;
        EXPECT_FALSE(Atomic_File(path).is_open()) << path;
    }
    EXPECT_EQ(folder.entry_count(), 1);
}

TEST(Files, links_are_followed_to_their_end) {
    const Temporary_Folder folder;
    std::filesystem::create_directory(folder.native_path() / "deep");
    const auto link = [&](const char* to, const char* name) {
        ASSERT_EQ(symlink(to, folder.path(name).c_str()), 0);
    };
    link("deep/second", "first");
    link("../not yet there", "deep/second");
    link(folder.path("first").c_str(), "absolute");
    link("round", "round");
    EXPECT_EQ(std::filesystem::weakly_canonical(resolve_links(folder.path("absolute"))),
              std::filesystem::weakly_canonical(folder.path("not yet there")));
    EXPECT_EQ(resolve_links(folder.path("deep")), folder.path("deep"));
    EXPECT_FALSE(Atomic_File(folder.path("round")).is_open());
}

#endif

} // namespace quadrelle::testing
