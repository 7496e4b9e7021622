#include "app/window_panes.h"
#include "base/debug_monitor.h"
#include "commands/command_table.h"
#include "screen/screen.h"
#include "screen/text_input.h"
#include "tests/whole/program_test.h"
#include "views/document_statistics.h"
#include "views/help_lists.h"

namespace quadrelle::testing {
namespace {

using Lines = std::vector<std::string>;

bool lies_in(const Rectangle& inner, const Rectangle& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.right() <= outer.right() &&
           inner.bottom() <= outer.bottom();
}

// Title, margins and button of a plain dialog.
bool message_fits(std::string_view text) {
    return screen->text_width(Font::regular, text) + 14 <= screen->size().width &&
           screen->text_height(Font::regular, text) + 24 + 7 + 7 + 27 + 7 <= screen->size().height;
}

class Help_Test : public Program_Test {
protected:
    static Lines hint_at(Point point, Script& script) {
        script.motion(point);
        editor->handle_one_event();
        editor->redraw(Present::yes);
        return editor->panes().hint_lines().lines();
    }
    void expect_lists_to_fit(Dialog_Container dialog) {
        const Rectangle frame = dialog.frame().area();
        EXPECT_TRUE(lies_in(frame, {0, 0, screen->size().width, screen->size().height}));
        for (const Dialog_Row& row : dialog.rows().rows()) {
            for (const auto& item : row.items()) {
                EXPECT_TRUE(lies_in(item->area, frame.inset(2)));
            }
        }
        // Each text ends before its box does.
        script().check([&] { EXPECT_FALSE(has_picture({frame.right() - 4, frame.y + 30, 2, 80})); });
        script().key(key::escape);
        dialog.run();
    }
};

TEST_F(Help_Test, every_text_fits_into_the_window) {
    expect_lists_to_fit(make_keyboard_dialog());
    expect_lists_to_fit(make_mouse_dialog());
    for (const Command_Row& row : command_table) {
        EXPECT_TRUE(message_fits(help_of(row.id).text)) << row.name;
    }
    for (const Place_Row& row : place_table) {
        EXPECT_TRUE(message_fits(help_of(row.id).text)) << row.title;
    }
}

TEST_F(Help_Test, debug_monitor_scrolls_and_copies_the_whole_log) {
    for (int i = 0; i < 100; ++i) {
        trace("line " + std::to_string(i));
    }
    std::vector<Picture> pictures;
    const auto see = [&] { pictures.push_back(window_picture()); };
    script().check(see).key(key::home).check(see).wheel(-1).key(key::up).key(key::up).key(key::up).check(see);
    script().key(key::end).check(see).key('c', Modifier::control).key(key::escape);
    execute(Command::debug_monitor);
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_EQ(pictures[1], pictures[2]);
    EXPECT_EQ(pictures[0], pictures[3]);
    EXPECT_TRUE(clipboard_text().starts_with("line 0\nline 1\n"));
    EXPECT_TRUE(clipboard_text().ends_with("line 99\n"));
}

TEST_F(Help_Test, the_test_of_the_installation_tells_what_works_and_what_does_not) {
    script().key(key::escape);
    execute(Command::test);
    const auto last_line = [] { return *(message_log->lines().end() - 2); };
    EXPECT_EQ(last_line(), "Everything works.");
    std::filesystem::remove_all(folder().native_path() / "data");
    script().key(key::escape);
    execute(Command::test);
    EXPECT_EQ(last_line(), "1 of 7 did not work.");
    EXPECT_TRUE((message_log->lines().end() - 5)->starts_with("  FAULT  Data folder: "));
}

TEST_F(Help_Test, statistics_count_tiles_bytes_and_undo) {
    for (int i = 0; i < 4; ++i) {
        execute(Command::mirror);
    }
    document().tileset().add_tile();
    document().tileset().add_tile();
    expect_message("Statistics", "Tile memory\r Tiles: 3 x 2304 = 6912 bytes\r Size: 24 x 24 pixels\r"
                                 " File size: 6923 bytes\r\r Undo buffer: 22 Kb\r\rFilename:\runtitled0.qdl")
        .key(key::enter);
    execute(Command::statistics);
    load_empty_set({24, 24});
    EXPECT_TRUE(statistics_text(document())
                    .starts_with("Tile memory\r Tiles: 0 x 2304 = 0 bytes\r Size: 24 x 24 pixels\r"
                                 " File size: 11 bytes\r\r Undo buffer: 0 Kb\r\rFilename:\r"));
}

struct Hint_Case {
    Point point;
    std::string title;
    std::string help; // the start of what Context info says there
};

TEST_F(Help_Test, hints_and_context_info_tell_what_is_under_the_pointer) {
    const std::string pen = std::string(description(Command::pen));
    execute(Command::mirror);
    const std::vector<Hint_Case> cases{
        {{796, 44}, "Pen (p)", pen},
        {{796, 68}, "Lightness pen (L)", "Darken or lighten"},
        {{796, 528}, "Horizontal seam tool", "Offset the tile"},
        {{900, 44}, "Pen (p)", pen},
        {{900, 380}, "Stamp brush (b)", "Draw with brush"},
        {{900, 198}, "Pen (p)", pen},
        {{100, 100}, "Preview", "The current tile"},
        {{100, 290}, "Magnification", "How large"},
        {{60, 320}, "Tileset navigation", "Steps to"},
        {{185, 348}, "Next tile strip (>)", "Scroll to"},
        {{100, 400}, "History", "The newest steps"},
        {{100, 500}, "Palette", "Left or right"},
        {{100, 612}, "Selected", "The color of"},
        {{1100, 60}, "Left button color", "What the left"},
        {{1100, 130}, "Right button color", "What the right"},
        {{50, 12}, "Menus", "A click opens"},
        {{290, 42}, "Open tilesets", "A click goes"},
        {{700, 20}, "Pen (p)", pen},
        {{270, 70}, "Pen (p)", pen},
    };
    for (const Hint_Case& test : cases) {
        SCOPED_TRACE(test.title);
        const Lines lines = hint_at(test.point, script());
        EXPECT_EQ(lines.at(0), test.title);
        EXPECT_EQ(lines.at(1).substr(0, 8), test.help.substr(0, 8));
        std::string asked;
        script().check_loop([&](std::string_view loop) { asked = loop; }).key(key::escape);
        execute(Command::context_info);
        EXPECT_EQ(asked, "dialog \"" + test.title + "\"");
    }
    // An open menu's row, also over the canvas.
    script().click({20, 12}).motion({30, 88}).check(
        [] { EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Load"); });
    script().motion({205, 12}).motion({270, 70}).check(
        [] { EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Mouse commands"); });
    // Where the menu was clicked is forgotten, so that nothing below it is under the pointer.
    script().press({270, 70}).key(key::escape).check([] {
        EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Pen (p)");
    });
    script().motion(cases.at(1).point).key(key::f1);
    expect_message("Lightness pen (L)", std::string(description(Command::lightness_pen))).key(key::escape);
    script().motion(cell(3, 4)).key(key::f1);
    expect_message("Pen (p)", pen).key(key::escape);
    play();
}

TEST_F(Help_Test, hint_tells_what_can_be_done_first_until_something_is_done) {
    const Point nothing{270, 70};
    const auto title = [&] { return hint_at(nothing, script()).at(0); };
    EXPECT_EQ(title(), "A new set of tiles: what next?");
    EXPECT_EQ(hint_at({796, 44}, script()).at(0), "Pen (p)");
    // What announces a list is left out together with it.
    EXPECT_EQ(hint_at({796, 68}, script()).at(1), "Darken or lighten pixels.");
    execute(Command::mirror);
    EXPECT_EQ(title(), "Pen (p)");
}

TEST_F(Help_Test, hints_over_the_canvas_tell_pixel_and_colour) {
    EXPECT_EQ(hint_at(cell(3, 4), script()),
              (Lines{"Pixel 3, 4", "Color: 0, 0, 0, 255   #000000", "Name: Black"}));
    document().tileset().current_tile()->set_pixel(23, 0, {196, 2, 52, 254}); // red, were it opaque
    EXPECT_EQ(hint_at(cell(23, 0), script()),
              (Lines{"Pixel 23, 0", "Color: 196, 2, 52, 254   #c40234fe", "Name: ---"}));
    // Also while drawing.
    script().press(cell(5, 5)).motion(cell(6, 5)).check([] {
        EXPECT_EQ(editor->panes().hint_lines().lines().at(0), "Pixel 6, 5");
        EXPECT_EQ(editor->panes().hint_lines().lines().at(1), "Color: 255, 255, 255, 255   #ffffff");
    });
    play(script().release(cell(6, 5)));
    load_empty_set({24, 24});
    EXPECT_EQ(hint_at(cell(3, 4), script()).at(0), "No tile");
}

} // namespace
} // namespace quadrelle::testing
