// The palettes in the whole program, and what their menu does.

#include "app/palette_menu.h"
#include "app/start_up.h"
#include "color/palette_list.h"
#include "pixels/picture_formats.h"
#include "screen/text_input.h"
#include "tests/whole/program_test.h"

#include <algorithm>

namespace quadrelle::testing {
namespace {

constexpr Point menu_button{200, 437};
constexpr Point name{60, 460};
constexpr Point store_button{110, 619};
constexpr Color own{1, 2, 3, 4};

// Of a palette of 32 colours or less.
constexpr Point entry(int index) {
    return {36 + index % 8 * 24 + 12, 472 + index / 8 * 20 + 10};
}

Point row(std::size_t index, std::size_t count) {
    const int height = 19 * static_cast<int>(count) + 6;
    return {260, std::min(429, 580 - height) + 3 + 19 * static_cast<int>(index) + 9};
}

class Palette_Test : public Program_Test {
protected:
    Script& choose(std::string_view text) {
        const auto entries = palette_menu::entries();
        const auto found = std::ranges::find(entries, text, &palette_menu::Menu_Entry::text);
        EXPECT_NE(found, entries.end()) << text;
        return script()
            .click(menu_button)
            .click(row(static_cast<std::size_t>(found - entries.begin()), entries.size()));
    }
    Script& choose_name(int index) { return script().click(name).click({260, 427 + 3 + 19 * index + 9}); }
    // Of those that are kept, in their order.
    static std::vector<std::string> names() {
        std::vector<std::string> names;
        for (int i = 3; i < palette_list->size(); ++i) {
            names.push_back(palette_list->palette(i).name);
        }
        return names;
    }
    static std::vector<Color> colors(int index) { return palette_list->palette(index).colors; }
    [[nodiscard]] std::string file(const std::string& palette) {
        return folder().data_path("palettes/" + palette + ".gpl");
    }
    // The first of the hint lines' text.
    static std::string told() { return editor->panes().hint_lines().lines().at(1); }
};

TEST_F(Palette_Test, palettes_are_made_named_changed_and_deleted) {
    tools().colors.set(Mouse_Button::left, own);
    choose("New palette").text("Sea").key(key::enter);
    play();
    EXPECT_EQ(names(), std::vector<std::string>{"Sea"});
    tools().colors.set(Mouse_Button::left, red);
    play(choose("Insert lit color"));
    play(choose("Insert lit color"));
    EXPECT_EQ(colors(3), (std::vector<Color>{own, red, red}));
    play(choose("Undo in palette"));
    play(choose("Redo in palette"));
    play(choose("Remove entry"));
    EXPECT_EQ(colors(3), (std::vector<Color>{own, red}));
    play(choose("Duplicate"));
    choose("Rename").text("Sun").key(key::enter);
    play();
    EXPECT_EQ(names(), (std::vector<std::string>{"Sea", "Sun"}));
    choose("Delete palette");
    expect_question("Delete palette", "Delete \"Sun\" with its file?\rThis can't be undone.").key(key::enter);
    play();
    EXPECT_EQ(names(), std::vector<std::string>{"Sea"});
    // One of the store stays, whatever is chosen.
    play(choose_name(0));
    play(choose("Delete palette").key(key::escape));
    EXPECT_EQ(palette_list->size(), 4);
}

TEST_F(Palette_Test, an_entry_is_dragged_to_its_place) {
    const std::vector<Color> before = colors(0);
    play(script().drag({entry(1), entry(9), entry(2)}));
    std::vector<Color> moved = before;
    std::swap(moved[1], moved[2]);
    EXPECT_EQ(names(), std::vector<std::string>{"Default 2"});
    EXPECT_EQ(colors(3), moved);
    // Beside the palette it stays, and so does one that only was chosen.
    play(script()
             .drag({entry(1), {400, 100}})
             .click(entry(5))
             .drag({entry(6), entry(7)}, Mouse_Button::right));
    EXPECT_EQ(colors(3), moved);
    play(script().drag({entry(31), entry(0)}));
    EXPECT_EQ(colors(3).front(), before.back());
}

TEST_F(Palette_Test, entries_of_the_colours_in_use_are_marked) {
    constexpr Point corner{-12, -10};
    const auto is_marked = [&](int index, int from_left) {
        return pixel_at({entry(index).x + corner.x + from_left, entry(index).y + corner.y}) == white;
    };
    play(script().click(entry(20)));
    tools().colors.set(Mouse_Button::left, colors(0).at(9));
    tools().colors.set(Mouse_Button::right, colors(0).at(9));
    play(script().motion({1, 1}));
    for (const int index : {8, 9, 10, 20}) {
        EXPECT_EQ(is_marked(index, 0), index == 9);
        EXPECT_EQ(is_marked(index, 23), index == 9);
    }
    tools().colors.set(Mouse_Button::left, own);
    play(script().motion({1, 2}));
    EXPECT_FALSE(is_marked(9, 0));
    EXPECT_TRUE(is_marked(9, 23));
}

TEST_F(Palette_Test, palettes_come_from_tiles_files_and_the_clipboard_and_go_there) {
    Tile& tile = *document().tileset().current_tile();
    tile.set_pixel(3, 3, own);
    play(choose("Colors of the tile"));
    EXPECT_EQ(colors(3), (std::vector<Color>{black, own}));
    make_set({1, 1}, 300, [](int index, Point) { return Color(index % 255, index / 255, 9); });
    play(choose("Colors of the set"));
    EXPECT_EQ(names(), (std::vector<std::string>{"Tile", "Tileset"}));
    EXPECT_EQ(colors(4).size(), 256U);
    EXPECT_EQ(told(), "\"Tileset\" has 256 colors. 44 more had no room.");
    play(choose_name(3));
    play(choose("Copy as text"));
    EXPECT_EQ(clipboard_text(), "000000\n01020304\n");
    play(choose("Paste colors"));
    EXPECT_EQ(colors(3), (std::vector<Color>{black, own}));
    EXPECT_EQ(names().front(), "Clipboard");
    set_clipboard_text("no colors");
    choose("Paste colors");
    expect_message("Note", "This is no palette. Line 1 is no color: \"no\"").key(key::enter);
    play();
    for (const std::string extension : {"gpl", "hex", "png"}) {
        answer_files(File_Answer_State::chosen, folder().path("out." + extension));
        play(choose("Export as ." + extension));
        EXPECT_EQ(told(), "Saved in " + folder().path("out." + extension));
    }
    EXPECT_EQ(stored_text(folder().path("out.hex")), "000000\n01020304\n");
    const Tile picture = *decode_png(stored(folder().path("out.png"))).picture;
    EXPECT_EQ(std::vector<Color>(picture.pixels().begin(), picture.pixels().end()), colors(3));
    for (const char* const extension : {"gpl", "png"}) {
        answer_files(File_Answer_State::chosen, folder().path("out." + std::string(extension)));
        play(choose("Import file"));
        EXPECT_EQ(editor->panes().palette().palette().colors, colors(3));
    }
    EXPECT_EQ(names(), (std::vector<std::string>{"Clipboard", "Clipboard 2", "out", "Tile", "Tileset"}));
    store_text(folder().path("out.png"), "\x89PNG");
    choose("Import file");
    expect_message("Note", text_of(Picture_Fault::broken)).key(key::enter);
    play();
}

TEST_F(Palette_Test, palettes_are_as_they_were_left) {
    store_text(folder().data_path("palette.dat"), "");
    play(choose_name(2).click(entry(4)));
    tools().colors.set(Mouse_Button::left, own);
    play(script().click(store_button));
    EXPECT_EQ(names(), std::vector<std::string>{"MSX 2"});
    const std::vector<Color> left = colors(3);
    EXPECT_EQ(left.at(4), own);
    shut_down_application();
    EXPECT_EQ(stored_text(folder().data_path("palette.dat")), "");
    std::filesystem::remove(native(folder().data_path("palette.dat")));
    const std::string broken = "GIMP Palette\n0 0\n";
    store_text(file("MSX 3"), broken);
    start_application();
    ASSERT_TRUE(editor->show_first_frame());
    EXPECT_EQ(names(), std::vector<std::string>{"MSX 2"});
    EXPECT_EQ(colors(3), left);
    EXPECT_EQ(editor->panes().palette().palette().name, "MSX 2");
    EXPECT_EQ(told(), "MSX 3.gpl was left alone. Line 2 is no color: \"0 0\"");
    play(choose_name(2).click(store_button));
    EXPECT_EQ(names(), (std::vector<std::string>{"MSX 2", "MSX 3"}));
    EXPECT_EQ(stored_text(file("MSX 3")), broken);
}

} // namespace
} // namespace quadrelle::testing
