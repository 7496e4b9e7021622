#include "color/palette_list.h"

#include "base/platform_files.h"
#include "tests/support/files.h"

namespace quadrelle::testing {
namespace {

constexpr Color red{255, 0, 0, 40};
constexpr Color blue{0, 0, 255};

class Palette_List_Test : public ::testing::Test {
protected:
    [[nodiscard]] Palette_List read() const { return Palette_List(store_, folder_.path("palettes")); }
    [[nodiscard]] std::string file(const std::string& name) const { return folder_.path("palettes/" + name); }
    // The names of those that are kept.
    [[nodiscard]] static std::vector<std::string> names(const Palette_List& list) {
        std::vector<std::string> names;
        for (int i = 3; i < list.size(); ++i) {
            names.push_back(list.palette(i).name);
        }
        return names;
    }

    Temporary_Folder folder_;
    Palette_Store store_{folder_.path("missing.dat")};
};

TEST_F(Palette_List_Test, what_is_stored_into_a_palette_of_the_store_is_kept_in_a_copy) {
    Palette_List list = read();
    EXPECT_EQ(folder_.entry_count(), 0);
    std::vector<Color> colors = store_.palette(0).colors;
    colors[4] = red;
    EXPECT_EQ(list.change(0, colors), 3);
    EXPECT_EQ(read().palette(3), Palette("Default 2", colors));
    EXPECT_NE(list.palette(0).colors, colors);
    EXPECT_FALSE(store_.changed());
    // Taken back it is what the store has.
    list.undo(3);
    EXPECT_EQ(read().palette(3).colors, store_.palette(0).colors);
    EXPECT_FALSE(list.can_undo(3));
    list.redo(3);
    EXPECT_EQ(read().palette(3).colors, colors);
    EXPECT_FALSE(list.can_redo(3));
    list.undo(3);
    EXPECT_EQ(list.change(3, {blue}), 3);
    EXPECT_FALSE(list.can_redo(3)) << "what was taken back is gone with another change";
    EXPECT_FALSE(list.can_undo(0));
}

TEST_F(Palette_List_Test, palettes_have_names_and_files_of_their_own) {
    Palette_List list = read();
    for (const char* const name : {"b 10", "b 9", "MSX", "a/b: c?", "..", " \n", "b 9"}) {
        list.add({name, {red}});
    }
    const std::vector<std::string> all{"..", "a/b: c?", "b 2", "b 9", "b 10", "MSX 2", "Palette"};
    EXPECT_EQ(names(list), all);
    EXPECT_EQ(names(read()), all);
    EXPECT_EQ(list.take_note(), "");
    list.rename(*list.find("b 9"), "b 10");
    EXPECT_FALSE(list.find("b 9"));
    EXPECT_TRUE(list.find("b 3"));
    EXPECT_EQ(list.palette(list.rename(*list.find("a/b: c?"), "MSX")).name, "MSX 3");
    EXPECT_EQ(list.palette(list.rename(0, "Mine")).name, "Mine");
    list.remove(*list.find("b 10"));
    EXPECT_EQ(names(read()), names(list));
    EXPECT_EQ(names(list).size(), 7U);
}

TEST_F(Palette_List_Test, no_name_makes_a_file_that_some_system_cannot_have) {
    const std::string rest_of_characters(80, '\x80');
    const std::vector<std::pair<std::string, const char*>> names_and_files{
        {rest_of_characters + "\x80", "palette.gpl"},
        {"\xe3" + rest_of_characters, "palette 2.gpl"},
        {"nul", "_nul.gpl"},
        {"Com1.old", "_Com1.old.gpl"},
        {"com", "com.gpl"},
        {"lpt0", "lpt0.gpl"}};
    for (const auto& [name, file_name] : names_and_files) {
        Palette_List list = read();
        list.add({name, {red}});
        EXPECT_FALSE(stored_text(file(file_name)).empty()) << file_name;
        EXPECT_EQ(read().size(), list.size());
    }
}

TEST_F(Palette_List_Test, a_file_that_another_program_changed_stays_as_it_is) {
    Palette_List list = read();
    list.add({"Sea", {red}});
    const std::string other = "GIMP Palette\nName: Sea\n1 2 3\n";
    store_text(file("Sea.gpl"), other);
    EXPECT_EQ(list.palette(list.change(3, {blue})), Palette("Sea 2", {blue}));
    EXPECT_NE(list.take_note(), "");
    EXPECT_EQ(stored_text(file("Sea.gpl")), other);
    EXPECT_EQ(names(read()), (std::vector<std::string>{"Sea", "Sea 2"}));
    list.change(3, {red});
    EXPECT_EQ(list.take_note(), "") << "the new file is its own";
    store_text(file("Sea 2.gpl"), other);
    list.remove(3);
    EXPECT_EQ(stored_text(file("Sea 2.gpl")), other);
    EXPECT_NE(list.take_note(), "");
    list.add({"Gone", {red}});
    std::filesystem::remove(native(file("Gone.gpl")));
    list.remove(*list.find("Gone"));
    EXPECT_FALSE(list.find("Gone"));
    EXPECT_EQ(list.take_note(), "");
}

TEST_F(Palette_List_Test, the_palette_that_is_shown_is_found_again_when_others_are_renamed_or_deleted) {
    Palette_List list = read();
    list.add({"b", {red}});
    list.set_first_shown(list.rename(3, "c"));
    list.add({"a", {red}});
    EXPECT_EQ(read().palette(read().first_shown()).name, "c");
    list.remove(3);
    list.set_first_shown(3);
    EXPECT_EQ(read().first_shown(), 3);
    list.remove(3);
    list.set_first_shown(2);
    EXPECT_EQ(read().first_shown(), 2);
}

TEST_F(Palette_List_Test, what_is_no_palette_is_left_alone_and_told) {
    std::filesystem::create_directory(native(folder_.path("palettes")));
    const std::string broken = "GIMP Palette\n1 2\n";
    store_text(file("Default 2.gpl"), broken);
    store_text(file("notes.txt"), "nothing");
    store_text(file("sea.gpl"), "GIMP Palette\nName: MSX\n1 2 3\n");
    Palette_List list = read();
    EXPECT_EQ(names(list), std::vector<std::string>{"MSX 2"});
    EXPECT_EQ(list.take_note(), "Default 2.gpl was left alone. Line 2 is no color: \"1 2\"");
    EXPECT_EQ(list.palette(list.change(0, {red})).name, "Default 2");
    EXPECT_EQ(stored_text(file("Default 2.gpl")), broken);
    list.change(*list.find("MSX 2"), {blue});
    EXPECT_EQ(stored_text(file("sea.gpl")).substr(0, 24), "GIMP Palette\nName: MSX 2");
    EXPECT_EQ(names(read()), names(list));
}

TEST_F(Palette_List_Test, a_file_that_cannot_be_written_is_told_and_tried_again) {
    Palette_List list = read();
    list.add({"Sea", {red}});
    const std::string old = stored_text(file("Sea.gpl"));
    bool is_reached = true;
    for (int operation = 0; is_reached; ++operation) {
        store_text(file("Sea.gpl"), old);
        Palette_List other = read();
        const Fault fault(operation);
        other.change(3, {blue});
        is_reached = Fault::is_reached();
        const std::string note = other.take_note();
        EXPECT_TRUE(note == "Sea.gpl cannot be written: the palette lasts until the program ends." ||
                    note.empty());
        EXPECT_EQ(other.take_note(), "");
        EXPECT_EQ(stored_text(file("Sea.gpl")) == old, !note.empty()) << operation;
        EXPECT_EQ(folder_names(folder_.path("palettes")).size(), 1U) << operation;
        EXPECT_EQ(other.palette(3).colors, std::vector<Color>{blue});
    }
    store_text(file("Sea.gpl"), old);
    {
        const Fault fault(2);
        list.rename(3, "Lake");
    }
    EXPECT_EQ(list.palette(3).name, "Sea");
    EXPECT_NE(list.take_note(), "");
    list.change(3, {blue, red});
    EXPECT_EQ(read().palette(3), list.palette(3));
    list.rename(3, std::string(5000, 'x'));
    EXPECT_EQ(list.palette(3).name, std::string(100, 'x'));
}

} // namespace
} // namespace quadrelle::testing
