#include "app/window_panes.h"
#include "color/standard_colors.h"
#include "color/translucency.h"
#include "commands/menu_table.h"
#include "map/map_file.h"
#include "map/map_strokes.h"
#include "screen/screen.h"
#include "tests/whole/program_test.h"
#include "tileset/document_file.h"
#include "views/map_actions.h"
#include "views/map_layout.h"

#include <SDL3/SDL_keyboard.h>

namespace quadrelle::testing {
namespace {

constexpr Size tile_size{24, 24};

// The middle of a place of a map of 60 x 40, which lies in real size in the middle of the view.
Point at(int column, int row) {
    constexpr Rectangle view = map_layout::view;
    return {view.x + (view.width - 60 * 24) / 2 + 24 * column + 12,
            view.y + (view.height - 40 * 24) / 2 + 24 * row + 12};
}

Point in_list(int tile) {
    return {map_layout::list.x + tile % 6 * 32 + 16, map_layout::list.y + tile / 6 * 32 + 16};
}

class Map_Editor_Test : public Program_Test {
protected:
    static Edited_Map& map() { return *document().map(); }
    static std::vector<int> uses(int tiles) {
        std::vector<int> result;
        for (int tile = 0; tile < tiles; ++tile) {
            result.push_back(map().uses_of(tile));
        }
        return result;
    }
    static int tile_at(int column, int row) { return map().indexed(map().map().at({column, row})).tile(); }

    void make_tiles(int count) {
        make_set(tile_size, count, [](int tile, Point) { return Color(40 * tile, 100, 200); });
        document().history().reset(document().tileset());
    }

    static Point middle_of(Map_Action action) {
        const Rectangle area = Map_Buttons().area_of(action);
        return {area.x + area.width / 2, area.y + area.height / 2};
    }

    // What the script does in the map editor, which it then closes.
    void edit_map() {
        script().key(key::escape);
        execute(Command::map_editor);
    }

    Script& with(SDL_Keymod modifiers) {
        return script().check([modifiers] { SDL_SetModState(modifiers); });
    }
};

TEST_F(Map_Editor_Test, lays_out_a_map_by_mouse_and_keys) {
    make_tiles(8);
    script().key(key::enter).click(in_list(3)).click(at(10, 10)).drag({at(12, 10), at(15, 12)});
    script().click(in_list(5));
    with(SDL_KMOD_SHIFT).drag({at(20, 10), at(22, 13)});
    with(SDL_KMOD_NONE).key('f').click(at(30, 20)).key('p');
    edit_map();
    ASSERT_NE(document().map(), nullptr);
    EXPECT_TRUE(document().is_modified());
    EXPECT_EQ(map().map().size(), (Size{60, 40}));
    EXPECT_EQ(uses(8), (std::vector<int>{0, 0, 0, 5, 0, 2400 - 5, 0, 0}));
    EXPECT_EQ(tile_at(13, 11), 3);

    script().click(at(10, 10), Mouse_Button::right).key('r').click(at(0 + 25, 20));
    script().key('e').drag({at(20, 10), at(22, 10)}).key('e').key('z', Modifier::control);
    script().drag({at(12, 10), at(15, 12)}, Mouse_Button::right).key('x').click(at(40, 20));
    edit_map();
    EXPECT_EQ(map().map().at({25, 20}).orientation(), Orientation().then_turned_right());
    EXPECT_EQ(tile_at(21, 10), 5);
    EXPECT_EQ(tile_at(43, 20), 3);
    EXPECT_EQ(map().map().at({43, 20}).orientation(), Orientation().then_mirrored());

    for (int i = 0; i < 6; ++i) {
        script().key('z', Modifier::control);
    }
    edit_map();
    EXPECT_EQ(uses(8), std::vector<int>(8));
    script().key('r', Modifier::control);
    edit_map();
    EXPECT_EQ(tile_at(10, 10), 3);
    script().press(at(11, 11)).motion(at(20, 11)).key(key::escape).release(at(20, 11));
    edit_map();
    EXPECT_EQ(map().uses_of(3), 1);
}

TEST_F(Map_Editor_Test, tiles_are_chosen_for_a_stamp_and_at_random) {
    make_tiles(8);
    script().key(key::enter).drag({in_list(0), in_list(7)}).click(at(10, 10));
    edit_map();
    EXPECT_EQ(uses(8), (std::vector<int>{1, 1, 0, 0, 0, 0, 1, 1}));
    EXPECT_EQ(tile_at(11, 11), 7);
    script().click(in_list(2));
    with(SDL_KMOD_CTRL).click(in_list(4));
    with(SDL_KMOD_NONE).click(in_list(4), Mouse_Button::right).key('a').key('f').click(at(30, 20));
    edit_map();
    EXPECT_EQ(map().uses_of(2) + map().uses_of(4), 2396);
    EXPECT_GT(map().uses_of(4), map().uses_of(2) * 3 / 2);
}

TEST_F(Map_Editor_Test, a_double_click_goes_to_the_tile_that_was_there) {
    make_tiles(4);
    script().key(key::enter).click(in_list(2)).click(at(10, 10)).click(in_list(1)).click(at(20, 10));
    script().key('z', Modifier::control);
    edit_map();
    script().click(at(10, 10)).second_press(at(10, 10));
    execute(Command::map_editor);
    EXPECT_EQ(document().tileset().current_index(), 2);
    EXPECT_EQ(tile_at(10, 10), 2);
    EXPECT_TRUE(map().history().can_redo());
    // A third click is no stroke, the next one is.
    play(script().second_press(cell(3, 3), 3).release(cell(3, 3)));
    EXPECT_EQ(tile_pixel(3, 3), Color(80, 100, 200));
    play(script().click(cell(3, 3)));
    EXPECT_NE(tile_pixel(3, 3), Color(80, 100, 200));

    // To go there is no change.
    document().clear_modified();
    script().click(in_list(1)).click(at(10, 10)).second_press(at(10, 10));
    execute(Command::map_editor);
    EXPECT_FALSE(document().is_modified());

    // A key between two clicks makes them two presses.
    script().click(at(10, 10)).key('z', Modifier::control).second_press(at(10, 10)).release(at(10, 10));
    edit_map();
    EXPECT_EQ(tile_at(10, 10), 1);
    EXPECT_EQ(document().tileset().current_index(), 2);
}

TEST_F(Map_Editor_Test, tiles_that_were_deleted_last_come_back_with_their_places) {
    make_tiles(70);
    script().key(key::enter);
    edit_map();
    for (int tile = 0; tile < 70; ++tile) {
        static_cast<void>(map().ids().id_of(tile));
    }
    script().click(in_list(5)).click(at(14, 10));
    edit_map();
    for (int tile = 69; tile >= 5; --tile) {
        document().tileset().select(tile);
        execute(Command::delete_tile);
    }
    EXPECT_EQ(tile_at(14, 10), -1);
    script().key('z', Modifier::control);
    edit_map();
    EXPECT_EQ(tile_at(14, 10), 5);
}

TEST_F(Map_Editor_Test, shows_the_same_pictures_whatever_becomes_of_the_tiles) {
    make_tiles(4);
    script()
        .key(key::enter)
        .click(in_list(3))
        .drag({at(10, 10), at(12, 10)})
        .click(in_list(0))
        .click(at(14, 10));
    edit_map();
    execute(Command::delete_tile);
    EXPECT_EQ(tile_at(10, 10), 2);
    EXPECT_EQ(tile_at(14, 10), -1);
    // Undo in the map brings the tile back with its places.
    script().key('z', Modifier::control);
    edit_map();
    EXPECT_EQ(tile_at(14, 10), 3);
    EXPECT_EQ(document().tileset().tile_at(3).get_pixel(0, 0), Color(0, 100, 200));
    script().key('r', Modifier::control);
    edit_map();
    EXPECT_EQ(tile_at(14, 10), -1);
    execute(Command::insert_new_tile);
    EXPECT_EQ(tile_at(11, 10), 3);
    script()
        .press({16 + 5, 16 + 5})
        .press_number({16 + 3 * 32 + 5, 16 + 5}, 2)
        .key(key::tab)
        .key(key::escape);
    execute(Command::arrange_select);
    EXPECT_EQ(tile_at(11, 10), 0);
}

TEST_F(Map_Editor_Test, its_places_are_told_before_a_tile_is_deleted) {
    make_tiles(4);
    script().key(key::enter).click(in_list(2)).drag({at(10, 10), at(14, 10)});
    edit_map();
    const Point third{window_layout::tile_strip.x + 2 * 24 + 5, window_layout::tile_strip.y + 5};
    play(script().motion(third));
    EXPECT_EQ(editor->panes().hint_lines().lines().back(), "The map has tile 2 at 5 places.");
    document().tileset().select(2);
    int menu = 8;
    for (std::size_t i = 0; menu_table.at(i).header != " Tileset "; ++i) {
        menu += screen->text_width(Font::regular, menu_table.at(i).header);
    }
    script().press({menu, 12}).motion({menu, 25 + 5 * 25 + 12}).check([] {
        EXPECT_EQ(editor->panes().hint_lines().lines().back(), "The map has it at 5 places.");
    });
    play(script().key(key::escape));
}

// They show around the tile on the canvas, as they are drawn, and where the user went to.
TEST_F(Map_Editor_Test, neighbours_show_around_the_tile) {
    make_tiles(4);
    const auto right_of_tile = [] {
        const Point point = cell(24 + 3, 5);
        const Picture picture = window_picture();
        return picture.at(static_cast<std::size_t>(point.y * screen->size().width + point.x));
    };
    const Color surround = standard_color(Standard_Color::dark_frame);
    const auto paler = [&](Color color) {
        return blended_over({surround.r, surround.g, surround.b, 90}, color).word();
    };
    script().key(key::enter).click(at(10, 10)).click(at(20, 20)).click(in_list(3)).click(at(11, 10));
    script().click(in_list(2)).click(at(21, 20));
    edit_map();
    EXPECT_EQ(right_of_tile(), paler({120, 100, 200}));
    document().tileset().tile_at(3).fill({1, 2, 3});
    editor->redraw(Present::yes);
    EXPECT_EQ(right_of_tile(), paler({1, 2, 3}));
    document().map_desk().place = Map_Point{20, 20};
    editor->redraw(Present::yes);
    EXPECT_EQ(right_of_tile(), paler({80, 100, 200}));
    play(script().key('g', Modifier::shift));
    EXPECT_EQ(right_of_tile(), surround.word());
}

// What floats is in the tile that the map shows, as it is in an exported one.
TEST_F(Map_Editor_Test, shows_what_floats_over_the_tile) {
    make_tiles(1);
    document().tileset().current_tile()->set_pixel(0, 0, {255, 0, 0});
    execute(Command::copy);
    execute(Command::paste);
    play(script().key(key::right));
    script().key(key::enter);
    edit_map();
    EXPECT_EQ(tile_pixel(1, 0), Color(255, 0, 0));
}

TEST_F(Map_Editor_Test, the_view_follows_wheel_keys_and_drags_and_is_as_it_was_afterwards) {
    make_tiles(2);
    script().key(key::enter).wheel(1, at(30, 20)).key('*').key(key::left).motion(at(30, 20));
    with(SDL_KMOD_CTRL).drag({at(30, 20), at(32, 21)}, Mouse_Button::right);
    with(SDL_KMOD_NONE);
    edit_map();
    const Map_Camera camera = *document().map_desk().camera;
    EXPECT_EQ(camera.scale(), (Map_Scale{2, 1}));
    Map_Camera expected({map_layout::view.width, map_layout::view.height}, tile_size);
    expected.zoom(1, {0, 0});
    expected.centre({60, 40});
    expected.move({48 + 48, 24});
    EXPECT_EQ(camera, expected);
    edit_map();
    EXPECT_EQ(*document().map_desk().camera, expected);
    // Columns that go at the left leave what is seen where it is.
    map().resize({2, 1, 0, 0});
    document().map_desk().place = Map_Point{5, 5};
    script().key('z', Modifier::control);
    edit_map();
    expected.move({2 * 48, 48});
    EXPECT_EQ(*document().map_desk().camera, expected);
    EXPECT_EQ(document().map_desk().place, (Map_Point{3, 4}));
    editor->documents().resize_current({16, 16});
    EXPECT_FALSE(document().map_desk().camera);
    EXPECT_NE(document().map(), nullptr);
}

TEST_F(Map_Editor_Test, is_saved_with_its_set_and_replaces_no_strange_file_unasked) {
    make_tiles(3);
    script().key(key::enter).click(in_list(2)).click(at(10, 10));
    edit_map();
    const std::string path = folder().path("level.qdl");
    store_text(map_path(path), "something else");
    answer_files(File_Answer_State::chosen, path);
    const std::string question =
        "level.map is there already, and is not the map of this set.\rReplace it by the map?";
    expect_question("Save", question).key(key::escape);
    execute(Command::save_as);
    EXPECT_EQ(stored_text(map_path(path)), "something else");
    EXPECT_TRUE(document().is_modified());
    expect_question("Save", question).key(key::enter);
    execute(Command::save_as);
    EXPECT_EQ(load_document(path).document->map()->indexed_map(), map().indexed_map());
    script().click(at(11, 10)).key('s', Modifier::control).key(key::enter);
    edit_map();
    EXPECT_EQ(load_document(path).document->map()->indexed_map(), map().indexed_map());

    // A set without a map is not saved beside that one unasked, nor does the map of other tiles show unseen.
    make_set(tile_size, 1, [](int, Point point) { return Color(point.x, 1, 2); });
    expect_question("Save", "level.map there is the map of another set, and stays as it is.\r"
                            "Save the tiles beside it all the same?")
        .key(key::enter);
    execute(Command::save_as);
    expect_message("Note",
                   "level.map beside the tiles was laid out with others, and is not shown. It stays as "
                   "it is.")
        .key(key::enter);
    execute(Command::load);
    EXPECT_EQ(document().map(), nullptr);
}

TEST_F(Map_Editor_Test, every_button_does_something) {
    make_tiles(2);
    for (const Map_Action_Row& row : map_action_table) {
        // A tile that was placed, another one taken back.
        document().set_map(Tile_Map({60, 40}));
        script().click(at(10, 10)).click(at(12, 10)).key('z', Modifier::control).click(in_list(1));
        edit_map();
        document().map_desk().tool = row.id == Map_Action::pen ? Map_Tool::fill : Map_Tool::pen;
        const Map_Desk before = document().map_desk();
        const std::uint64_t version = map().version();
        bool has_asked = false;
        bool has_stayed = false;
        answer_files(File_Answer_State::cancelled);
        script().set_afterwards([&](std::string_view loop) {
            has_asked = has_asked || loop != "map editor";
            has_stayed = true;
            script().key(key::escape);
        });
        script().press(middle_of(row.id));
        execute(Command::map_editor);
        script().set_afterwards({});
        const Map_Desk& now = document().map_desk();
        EXPECT_TRUE(!has_stayed || has_asked || asked_file() || map().version() != version ||
                    now.tool != before.tool || now.use != before.use || now.stamp != before.stamp ||
                    now.camera != before.camera || now.shows_grid != before.shows_grid ||
                    now.shows_uses != before.shows_uses)
            << row.label;
    }
}

TEST_F(Map_Editor_Test, a_map_is_taken_away_when_the_user_says_so) {
    make_tiles(1);
    script().key(key::enter).click(middle_of(Map_Action::remove)).key(key::escape);
    edit_map();
    EXPECT_NE(document().map(), nullptr);
    script().click(middle_of(Map_Action::remove)).key(key::enter);
    execute(Command::map_editor);
    EXPECT_EQ(document().map(), nullptr);
}

TEST_F(Map_Editor_Test, a_map_goes_out_and_comes_back_in) {
    make_tiles(3);
    script().key(key::enter).click(in_list(2)).key('x').drag({at(10, 10), at(20, 14)});
    const auto export_to = [&](const char* name) {
        script().check([this, name] { answer_files(File_Answer_State::chosen, folder().path(name)); });
        script().key('e', Modifier::control);
    };
    export_to("level.tmx");
    export_to("level.bmp");
    export_to("level.txt");
    expect_message("Note", "The name has to end in .tmx, .png or .bmp.").key(key::enter);
    edit_map();
    EXPECT_FALSE(stored(folder().path("level.png")).empty());
    EXPECT_FALSE(stored(folder().path("level.bmp")).empty());
    const Tile_Map before = map().indexed_map();
    document().set_map(Tile_Map({1, 1}));
    answer_files(File_Answer_State::chosen, folder().path("level.tmx"));
    script().key('o', Modifier::control);
    edit_map();
    EXPECT_EQ(map().indexed_map(), before);
    answer_files(File_Answer_State::chosen, folder().path("level.bmp"));
    script().key('o', Modifier::control);
    expect_message("Note", "This map does not fit.\rIt is no whole map.").key(key::enter);
    edit_map();
}

} // namespace
} // namespace quadrelle::testing
