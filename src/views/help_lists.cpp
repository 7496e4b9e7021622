#include "views/help_lists.h"

#include "commands/command_table.h"
#include "commands/key_table.h"

#include <array>
#include <string_view>

namespace quadrelle {

namespace {

constexpr int keyboard_columns = 4;
constexpr std::string_view key_legend =
    "^ stands for Ctrl, ~ for Alt, a capital letter for Shift and the letter.\r"
    "< and > are the key \\ without and with Shift; the first *, + and - are those of the keypad.";

struct Mouse_Row {
    std::string_view what;
    std::string_view does;
};

// clang-format off
constexpr std::array mouse_rows = std::to_array<Mouse_Row>({
    {"Left or right button on the canvas",   "uses the tool with the color of that button"},
    {"Right button with the pens",           "can also bring history back or pick a color: see the tool's options"},
    {"Lightness pen, left and right button", "one lightens, the other darkens"},
    {"Shift with a pen or a brush",          "joins the stroke to the last one on the tile by a straight line"},
    {"Shift with shapes and selectors",      "keeps to squares, circles and steps of 45 degrees"},
    {"Ctrl with shapes and selectors",       "draws from the middle"},
    {"Escape while the button is held",      "takes the stroke back"},
    {"Alt on the canvas",                    "picks a color, whatever the tool"},
    {"Ctrl and drag in a selection",         "moves a copy of it, with a selector or Selection"},
    {"Alt and drag in a selection",          "moves its outline alone, with a selector"},
    {"Ctrl and drag with the right button",  "moves the tile in the view"},
    {"Handles around what floats",           "at the corners: scale it; above it: turn it, with Shift to multiples of 15 degrees"},
    {"Wheel",                                "zooms in and out, in View in real size with Shift"},
    {"Click on an icon, in the list of tools", "chooses the tool, or does what the icon stands for"},
    {"Click in the options of a tool",       "chooses shapes and sizes, steps through choices, turns marks on and off"},
    {"Click on a brush of the Brush pad",    "makes it the one that the stamp brush paints with"},
    {"Click on the brush under Selected",    "brings the stamp back, after a size took the built-in brush"},
    {"Dropper, palette, Variations",         "the left or right button takes the color for that button"},
    {"Shift and click on the palette",       "stores the lit color there; a right click stores the other one"},
    {"Drag in the palette",                  "moves the color to another place"},
    {"Menu, name, arrows of the palette",    "open all that can be done with palettes, list them, step through them"},
    {"Double click on a color",              "edits it: a button's, one of the palette, or the one under Selected"},
    {"Drag in HSV Selector",                 "picks a hue from the bar, or a color from the square for that button"},
    {"Drag or click in Handles",             "changes the lit color"},
    {"Click on a button's color",            "makes it the lit one, that handles and variations work on"},
    {"Click on a tile below, in View tile array", "goes to that tile"},
    {"Buttons of Tileset navigation",        "page through the tiles along the bottom, or go to the tile before or after"},
    {"Left, middle button in Arrange/Select", "chooses the primary, the secondary tile"},
    {"Left, right button in Map editor",     "places tiles; picks one, or several by a drag; a double click goes to the tile"},
    {"Click on a tab",                       "goes to that tileset; arrows beside the tabs lead to hidden ones"},
    {"Click in Previous copies",             "makes a copy the one that is pasted; a double click pastes it, a right click removes it"},
    {"Click on a menu",                      "opens it; a click elsewhere, or any key, closes it"},
    {"Click on a number in a dialog",        "lets you type it; the arrows beside it and the wheel change it by one"},
    {"Arrows of numbers, handles, navigation", "go on while they are held"},
    {"Hold a button on a slot of Versions",  "shows that version in large"},
    {"Drop a file on the window",            "loads a set, makes a set of a PNG or bitmap, keeps a palette"},
    {"Wheel, click in a picture to cut",     "zoom; bring that place into the middle"},
    {"Drag or wheel in Export as .bmp",      "shows the rest of a picture that is larger than the view"},
});
// clang-format on

Dialog_Container make_list_dialog(std::string_view title, std::vector<Text_Pair> pairs, int columns,
                                  std::string_view legend) {
    Dialog_Container dialog(title);
    Dialog_Row list;
    list.add<Pair_List>(std::move(pairs), columns);
    dialog.add_row(std::move(list)).items().front()->area.height += dialog_margin;
    if (!legend.empty()) {
        dialog.add_text_row(legend).items().front()->area.height += dialog_margin;
    }
    dialog.finish_ok();
    return dialog;
}

} // namespace

std::vector<Text_Pair> all_keys() {
    std::vector<Text_Pair> pairs;
    for (const Command_Row& row : command_table) {
        if (row.key != key::none) {
            pairs.push_back({std::string(row.key_label), std::string(row.name)});
        }
    }
    for (const Key_Row& row : key_table) {
        pairs.push_back({std::string(row.label), std::string(name_of(row))});
    }
    pairs.push_back({"Arrows", "Move what floats"});
    pairs.push_back({"Shift+Arrows", "Move it by eight"});
    return pairs;
}

Dialog_Container make_keyboard_dialog() {
    return make_list_dialog("Keyboard commands", all_keys(), keyboard_columns, key_legend);
}

Dialog_Container make_mouse_dialog() {
    std::vector<Text_Pair> pairs;
    pairs.reserve(mouse_rows.size());
    for (const Mouse_Row& row : mouse_rows) {
        pairs.push_back({std::string(row.what), std::string(row.does)});
    }
    return make_list_dialog("Mouse commands", std::move(pairs), 1, "");
}

} // namespace quadrelle
