#include "base/folder_listing.h"

#include "base/file_names.h"
#include "tests/support/files.h"

#include <fstream>

namespace quadrelle::testing {
namespace {

using Rows = std::vector<Listed_Row>;

Listed_Row folder(const std::string& name) {
    return {Listed_Kind::folder, name};
}
Listed_Row file(const std::string& name) {
    return {Listed_Kind::file, name};
}
const Listed_Row up{Listed_Kind::parent, ".."};

TEST(File_Names, lead_from_folder_to_folder) {
    EXPECT_EQ(parent_folder("/a/b"), "/a");
    EXPECT_EQ(parent_folder("/a//b//"), "/a");
    EXPECT_EQ(parent_folder("/a"), "/");
    EXPECT_EQ(parent_folder("/"), "");
    EXPECT_EQ(joined_path("/", "a"), "/a");

    for (const auto& [typed, expected] :
         std::vector<std::pair<std::string, std::string>>{{"x", "/a/b/x"},
                                                          {"..", "/a"},
                                                          {"../../../..", "/"},
                                                          {"/", "/"},
                                                          {"/c//d/", "/c/d"},
                                                          {"./x/../y z", "/a/b/y z"},
                                                          {"/../x", "/x"},
                                                          {"...", "/a/b/..."},
                                                          {"\xff/ü", "/a/b/\xff/ü"},
                                                          {"../b/./.", "/a/b"},
                                                          {"x\\y", "/a/b/x\\y"},
                                                          {"", "/a/b"},
                                                          {"../.hidden", "/a/.hidden"}}) {
        EXPECT_EQ(resolved_path("/a/b", typed), expected) << typed;
    }
}

TEST(File_Names, tell_files_apart_by_their_folders) {
    const std::vector<std::string> paths{"untitled0.qdl", "/a/b/one.qdl", "/a/c/one.qdl",      "/x/two.qdl",
                                         "/y/b/one.qdl",  "/x/two.qdl",   "C:/tiles/three.qdl"};
    EXPECT_EQ(short_names(paths),
              (std::vector<std::string>{"untitled0.qdl", "a/b/one.qdl", "c/one.qdl", "two.qdl", "y/b/one.qdl",
                                        "two.qdl", "three.qdl"}));
}

TEST(File_Names, are_listed_by_letters_and_numbers) {
    const std::vector<std::string> listed{
        "1.qdl",     "02.qdl",      "2.qdl",        "2a.qdl",    "10.qdl",    "tile.qdl",
        "tile0.qdl", "tile1-9.qdl", "tile1-10.qdl", "Tile2.qdl", "tile2.qdl", "tile12345678901234567890.qdl",
        "tiles"};
    for (std::size_t i = 0; i < listed.size(); ++i) {
        for (std::size_t j = 0; j < listed.size(); ++j) {
            EXPECT_EQ(is_listed_before(listed[i], listed[j]), i < j) << listed[i] << " " << listed[j];
        }
    }
}

TEST(Folder_Listing, shows_folders_first_and_files_of_its_kind) {
    const Temporary_Folder temporary;
    const std::string bad = "bad\xff\xfe.qdl";
    std::string longest = "x.qdl";
    longest.insert(0, 250, 'x');
    for (const std::string name : {"b.qdl", "A.QDL", "a.qdl", "c.bmp", "qdl", ".hidden.qdl", "Z.qdl"}) {
        store(temporary.path(name), {});
    }
    store(temporary.path(longest), {});
    std::ofstream(temporary.native_path() / bad);
    for (const char* const name : {"zoo", "Art", ".git", "tiles.qdl"}) {
        std::filesystem::create_directory(temporary.native_path() / name);
    }
    std::filesystem::create_directory_symlink("zoo", temporary.native_path() / "link");
    std::filesystem::create_symlink("nowhere", temporary.native_path() / "broken.qdl");

    const std::string path = temporary.path("zoo/..");
    Folder_Listing tilesets("qdl");
    ASSERT_TRUE(tilesets.open(path));
    EXPECT_EQ(tilesets.rows(),
              (Rows{up, folder("Art"), folder("link"), folder("tiles.qdl"), folder("zoo"), file("A.QDL"),
                    file("a.qdl"), file("b.qdl"), file(bad), file(longest), file("Z.qdl")}));
    EXPECT_EQ(tilesets.find("zoo"), 4);
    EXPECT_EQ(tilesets.find("c.bmp"), std::nullopt);
    EXPECT_EQ(tilesets.path_of(8), path + "/" + bad);

    Folder_Listing all("*");
    ASSERT_TRUE(all.open(path));
    EXPECT_EQ(all.rows().size(), tilesets.rows().size() + 2);
}

TEST(Folder_Listing, survives_folders_that_cannot_be_read) {
    const Temporary_Folder temporary;
    std::filesystem::create_directories(temporary.native_path() / "one" / "two");
    store(temporary.path("file.qdl"), {});
    Folder_Listing listing("qdl");
    ASSERT_TRUE(listing.open(temporary.path("one")));
    const Rows before = listing.rows();
    for (const std::string& name : {std::string("nothing"), std::string("file.qdl"), std::string(255, 'n')}) {
        EXPECT_FALSE(listing.open(temporary.path(name)));
        EXPECT_EQ(listing.folder(), temporary.path("one"));
        EXPECT_EQ(listing.rows(), before);
    }
    std::filesystem::remove_all(temporary.native_path() / "one");
    ASSERT_TRUE(listing.open_nearest(temporary.path("one/two")));
    EXPECT_EQ(listing.folder(), temporary.native_path());
    EXPECT_EQ(listing.rows(), (Rows{up, file("file.qdl")}));
    ASSERT_TRUE(listing.open("/"));
    EXPECT_FALSE(listing.find("..")) << "there is nothing above the root";
}

} // namespace
} // namespace quadrelle::testing
