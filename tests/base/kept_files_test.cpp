#include "base/kept_files.h"

#include "base/platform_files.h"
#include "tests/support/files.h"

namespace quadrelle::testing {

TEST(Kept_Files, have_one_name_for_all_names_of_a_file) {
    const Temporary_Folder folder;
    const Kept_Files kept(folder.path("kept"), "qdl", {3, 100});
    const std::string path = kept.path_for(folder.path("a.b.qdl"));
    EXPECT_EQ(path, kept.path_for(folder.path("other/../a.b.qdl")));
    EXPECT_NE(path, kept.path_for(folder.path("other/a.b.qdl")));
    EXPECT_TRUE(kept.holds(path));
    EXPECT_EQ(kept.original_name(path), "a.b.qdl");
    for (const char* const other :
         {"kept/hero.qdl", "kept/hero-0123456789abcdeX.qdl", "hero-0123456789abcdef.qdl"}) {
        EXPECT_FALSE(kept.holds(folder.path(other))) << other;
    }
#ifndef _WIN32
    std::filesystem::create_symlink("a.b.qdl", native(folder.path("link.qdl")));
    EXPECT_EQ(path, kept.path_for(folder.path("link.qdl")));
#endif
}

TEST(Kept_Files, oldest_go_when_there_are_too_many_or_they_take_too_much) {
    const Temporary_Folder folder;
    const Kept_Files kept(folder.path("kept"), "qdl", {3, 100});
    ASSERT_TRUE(kept.make_folder());
    store(folder.path("kept/hero.qdl"), Bytes(500));
    const auto keep = [&](const std::string& name, std::size_t size, int age) {
        const std::string path = kept.path_for(name);
        store(path, Bytes(size));
        std::filesystem::last_write_time(native(path), std::filesystem::file_time_type::clock::now() -
                                                           std::chrono::hours(age));
        kept.keep_to_limits();
    };
    const auto is_there = [&](const std::string& name) {
        return file_state(kept.path_for(name)).has_value();
    };
    keep("first", 10, 9);
    keep("second", 80, 8);
    keep("third", 10, 7);
    keep("fourth", 10, 6);
    EXPECT_EQ(is_there("first"), false);
    EXPECT_TRUE(is_there("second") && is_there("third") && is_there("fourth"));
    keep("fifth", 60, 5);
    EXPECT_FALSE(is_there("second"));
    keep("sixth", 1000, 4);
    EXPECT_TRUE(is_there("sixth") && !is_there("fifth"));
    EXPECT_TRUE(file_state(folder.path("kept/hero.qdl"))) << "nobody keeps that here";
}

} // namespace quadrelle::testing
