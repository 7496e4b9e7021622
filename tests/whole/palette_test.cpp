// The palettes in the whole program, and what their menu does.

#include "app/palette_menu.h"
#include "app/start_up.h"
#include "color/palette_craft.h"
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

// Rows without a text part the others.
Point row(std::size_t index) {
    std::vector<int> bottoms{0};
    for (const palette_menu::Menu_Entry& entry : palette_menu::entries()) {
        bottoms.push_back(bottoms.back() + (entry.text.empty() ? 9 : 19));
    }
    return {260, std::min(429, 580 - bottoms.back() - 6) + 3 + bottoms.at(index) + 9};
}

class Palette_Test : public Program_Test {
protected:
    Script& choose(std::string_view text) {
        const auto entries = palette_menu::entries();
        const auto found = std::ranges::find(entries, text, &palette_menu::Menu_Entry::text);
        EXPECT_NE(found, entries.end()) << text;
        return script().click(menu_button).click(row(static_cast<std::size_t>(found - entries.begin())));
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
    store_text(folder().path("out.png"), "\x89PNG\r\n\x1a\nIHDR");
    choose("Import file");
    expect_message("Note", text_of(Picture_Fault::broken)).key(key::enter);
    play();
}

TEST_F(Palette_Test, colours_are_ramped_and_sorted) {
    tools().colors.set(Mouse_Button::left, black);
    tools().colors.set(Mouse_Button::right, {40, 80, 120});
    choose("Ramp, left to right color").key(key::enter);
    play();
    std::vector<Color> expected = colors(0);
    expected.insert(expected.begin() + 2, {{10, 20, 30}, {20, 40, 60}, {30, 60, 90}});
    EXPECT_EQ(colors(3), expected);
    play(choose("Sort by lightness"));
    EXPECT_EQ(colors(3), sorted_by_lightness(expected));
    document().tileset().current_tile()->set_pixel(0, 0, {30, 60, 90});
    play(choose("Sort by use"));
    EXPECT_EQ(colors(3).at(0), black);
    EXPECT_EQ(colors(3).at(1), Color(30, 60, 90));
    EXPECT_EQ(editor->panes().palette().selected_color(), Color(30, 60, 90)); // the last one of the ramp
    play(choose("Sort by hue"));
    EXPECT_EQ(colors(3), sorted_by_hue(colors(3)));
}

TEST_F(Palette_Test, a_colour_is_replaced_where_it_is_wanted) {
    // Three rows of an opened list below its heading.
    const auto where = [](int index) { return Point{260, 427 + 3 + 19 * (1 + index) + 9}; };
    make_set({4, 1}, 3, [](int tile, Point pixel) { return tile < 2 && pixel.x < 2 ? red : white; });
    tools().colors.set(Mouse_Button::left, red);
    tools().colors.set(Mouse_Button::right, own);
    // Nothing is selected: that row takes no click.
    play(choose("Replace left by right color").click(where(0)).key(key::escape));
    EXPECT_EQ(tile_pixel(0, 0), red);
    editor->canvas().work_area().select(selected_rectangle({4, 1}, {1, 0}, {2, 1}), Selection_Change::add);
    play(choose("Replace left by right color").click(where(0)));
    EXPECT_EQ(tile_pixel(0, 0), red);
    EXPECT_EQ(tile_pixel(1, 0), own);
    play(choose("Replace left by right color").click(where(1)));
    EXPECT_EQ(tile_pixel(0, 0), own);
    execute(Command::undo);
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(1, 0), red);
    choose("Replace left by right color").click(where(2));
    expect_question("Replace color",
                    "Change 2 tiles of the set?\rThis can't be undone: the undo history of the set is lost.")
        .key(key::enter);
    play();
    EXPECT_EQ(document().tileset().tile_at(1).get_pixel(1, 0), own);
    EXPECT_EQ(tile_pixel(0, 0), own);
}

TEST_F(Palette_Test, a_tile_takes_only_colours_of_the_palette) {
    make_set({4, 1}, 1, [](int, Point pixel) {
        return pixel.x == 0 ? Color(0xf0, 0x2a, 0x12) : pixel.x == 1 ? clear : white;
    });
    play(choose("Select what is not in it"));
    EXPECT_EQ(told(), "1 pixel of the tile are not in the palette: they are selected.");
    EXPECT_EQ(editor->canvas().work_area().selection().bounds(), (Rectangle{0, 0, 1, 1}));
    play(choose("Only palette colors"));
    EXPECT_EQ(tile_pixel(0, 0), Color(0xea, 0x2c, 0x12));
    EXPECT_EQ(tile_pixel(1, 0), clear);
    execute(Command::undo);
    EXPECT_EQ(tile_pixel(0, 0), Color(0xf0, 0x2a, 0x12));
    execute(Command::redo);
    play(choose("Select what is not in it"));
    EXPECT_EQ(told(), "All pixels of the tile are in the palette.");
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
    play(script().motion({300, 300}).motion({100, 100}));
    EXPECT_EQ(told(), "MSX 3.gpl was left alone. Line 2 is no color: \"0 0\"");
    play(choose_name(2).click(store_button));
    EXPECT_EQ(names(), (std::vector<std::string>{"MSX 2", "MSX 3"}));
    EXPECT_EQ(stored_text(file("MSX 3")), broken);
}

} // namespace
} // namespace quadrelle::testing
