#pragma once

// Where each picture of the interface lies on the sheet "pool.bmp". Knows nothing of files or of drawing.

#include "base/table.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace quadrelle {

constexpr int sheet_width = 512;
constexpr int sheet_height = 512;

enum class Sprite : int {
    logo,
    rewind_depressed,
    seam_arrow_down,
    seam_arrow_up,
    seam_arrow_left,
    seam_arrow_right,
    mouse_arrow,
    radiobutton_uncheck,
    radiobutton_check,
    button_more,
    button_less,
    color_handle_r,
    color_handle_g,
    color_handle_b,
    color_handle_s,
    color_handle_v,
    color_handle_r_l,
    color_handle_g_l,
    color_handle_b_l,
    color_handle_s_l,
    color_handle_v_l,
    color_handle_bar,
    rewind_pressed,
    first_marker,
    second_marker,
    first_big_marker,
    second_big_marker,
    icon_pen,
    icon_pen_selected,
    icon_dropper,
    icon_dropper_selected,
    icon_lighten_darken,
    icon_lighten_darken_selected,
    icon_flood_fill,
    icon_flood_fill_selected,
    icon_line,
    icon_line_selected,
    icon_rectangle,
    icon_rectangle_selected,
    icon_circle,
    icon_circle_selected,
    icon_colorize,
    icon_colorize_selected,
    icon_smudge,
    icon_smudge_selected,
    icon_mover,
    icon_mover_selected,
    icon_rectangle_selector,
    icon_rectangle_selector_selected,
    icon_pen_selector,
    icon_pen_selector_selected,
    icon_magic_wand,
    icon_magic_wand_selected,
    icon_clone_brush,
    icon_clone_brush_selected,
    icon_horizontal_seam,
    icon_horizontal_seam_selected,
    icon_vertical_seam,
    icon_vertical_seam_selected,
    icon_filled_rectangle,
    icon_filled_rectangle_selected,
    icon_filled_circle,
    icon_filled_circle_selected,
    icon_circle_selector,
    icon_circle_selector_selected,
    icon_sel_actions,
    icon_sel_actions_selected,
    icon_rotate,
    icon_rotate_selected,
    background_aligner,
    strip_prev_depressed,
    strip_prev_pressed,
    prev_tile_depressed,
    prev_tile_pressed,
    current_tile_id,
    next_tile_depressed,
    next_tile_pressed,
    strip_next_depressed,
    strip_next_pressed,
    strip_forward_depressed,
    strip_forward_pressed,
    rewind_grey,
    strip_prev_grey,
    prev_tile_grey,
    next_tile_grey,
    strip_next_grey,
    forward_grey,
    horiz_selector_one,
    verti_selector_one,
    horiz_selector_two,
    verti_selector_two,
    horiz_active_select_one,
    verti_active_select_one,
    horiz_active_select_two,
    verti_active_select_two,
    horiz_paste_one,
    verti_paste_one,
    horiz_paste_two,
    verti_paste_two,
    horiz_seam_one,
    verti_seam_one,
    horiz_seam_two,
    verti_seam_two,
    crosshairs,
    handlebutton_r,
    handlebutton_g,
    handlebutton_b,
    handlebutton_a,
    handlebutton_s,
    handlebutton_l,
    verti_icon_separator,
    pane_header_start,
    pane_header_end,
    passive_pane_header_start,
    passive_pane_header_end,
    button_middle,
    tile_indicator,
    history_list,
    count
};

// Pixels of the sheet, origin at its top left corner.
struct Sprite_Row {
    Sprite id;
    std::string_view name;
    int x;
    int y;
    int width;
    int height;
};

constexpr std::size_t sprite_count = 118;

// The horizontal and vertical edge of one kind share their corner pixels on purpose.
// clang-format off
constexpr std::array<Sprite_Row, sprite_count> sprite_table{{
    {Sprite::logo, "logo", 0, 0, 310, 40},
    {Sprite::rewind_depressed, "rewind depressed", 0, 40, 24, 23},
    {Sprite::seam_arrow_down, "seam arrow down", 186, 40, 12, 12},
    {Sprite::seam_arrow_up, "seam arrow up", 198, 40, 12, 12},
    {Sprite::seam_arrow_left, "seam arrow left", 210, 40, 12, 12},
    {Sprite::seam_arrow_right, "seam arrow right", 222, 40, 12, 12},
    {Sprite::mouse_arrow, "mouse arrow", 234, 40, 11, 16},
    {Sprite::radiobutton_uncheck, "radiobutton uncheck", 245, 40, 15, 15},
    {Sprite::radiobutton_check, "radiobutton check", 245, 85, 15, 15},
    {Sprite::button_more, "button more", 245, 55, 15, 15},
    {Sprite::button_less, "button less", 245, 70, 15, 15},
    {Sprite::color_handle_r, "color handle r", 268, 40, 16, 13},
    {Sprite::color_handle_g, "color handle g", 268, 53, 16, 13},
    {Sprite::color_handle_b, "color handle b", 268, 66, 16, 13},
    {Sprite::color_handle_s, "color handle s", 294, 40, 16, 13},
    {Sprite::color_handle_v, "color handle v", 294, 53, 16, 13},
    {Sprite::color_handle_r_l, "color handle r L", 268, 79, 16, 13},
    {Sprite::color_handle_g_l, "color handle g L", 268, 92, 16, 13},
    {Sprite::color_handle_b_l, "color handle b L", 268, 105, 16, 13},
    {Sprite::color_handle_s_l, "color handle s L", 294, 79, 16, 13},
    {Sprite::color_handle_v_l, "color handle v L", 294, 92, 16, 13},
    {Sprite::color_handle_bar, "color handle bar", 284, 40, 10, 130},
    {Sprite::rewind_pressed, "rewind pressed", 0, 63, 24, 23},
    {Sprite::first_marker, "first marker", 186, 52, 24, 24},
    {Sprite::second_marker, "second marker", 210, 52, 24, 24},
    {Sprite::first_big_marker, "first big marker", 186, 76, 32, 32},
    {Sprite::second_big_marker, "second big marker", 186, 108, 32, 32},
    {Sprite::icon_pen, "icon pen", 310, 0, 24, 24},
    {Sprite::icon_pen_selected, "icon pen selected", 334, 0, 24, 24},
    {Sprite::icon_dropper, "icon dropper", 310, 24, 24, 24},
    {Sprite::icon_dropper_selected, "icon dropper selected", 334, 24, 24, 24},
    {Sprite::icon_lighten_darken, "icon lighten darken", 310, 48, 24, 24},
    {Sprite::icon_lighten_darken_selected, "icon lighten darken selected", 334, 48, 24, 24},
    {Sprite::icon_flood_fill, "icon flood fill", 310, 72, 24, 24},
    {Sprite::icon_flood_fill_selected, "icon flood fill selected", 334, 72, 24, 24},
    {Sprite::icon_line, "icon line", 310, 96, 24, 24},
    {Sprite::icon_line_selected, "icon line selected", 334, 96, 24, 24},
    {Sprite::icon_rectangle, "icon rectangle", 310, 120, 24, 24},
    {Sprite::icon_rectangle_selected, "icon rectangle selected", 334, 120, 24, 24},
    {Sprite::icon_circle, "icon circle", 310, 144, 24, 24},
    {Sprite::icon_circle_selected, "icon circle selected", 334, 144, 24, 24},
    {Sprite::icon_colorize, "icon colorize", 358, 0, 24, 24},
    {Sprite::icon_colorize_selected, "icon colorize selected", 382, 0, 24, 24},
    {Sprite::icon_smudge, "icon smudge", 358, 24, 24, 24},
    {Sprite::icon_smudge_selected, "icon smudge selected", 382, 24, 24, 24},
    {Sprite::icon_mover, "icon mover", 358, 48, 24, 24},
    {Sprite::icon_mover_selected, "icon mover selected", 382, 48, 24, 24},
    {Sprite::icon_rectangle_selector, "icon rectangle selector", 358, 72, 24, 24},
    {Sprite::icon_rectangle_selector_selected, "icon rectangle selector selected", 382, 72, 24, 24},
    {Sprite::icon_pen_selector, "icon pen selector", 358, 96, 24, 24},
    {Sprite::icon_pen_selector_selected, "icon pen selector selected", 382, 96, 24, 24},
    {Sprite::icon_magic_wand, "icon magic wand", 358, 120, 24, 24},
    {Sprite::icon_magic_wand_selected, "icon magic wand selected", 382, 120, 24, 24},
    {Sprite::icon_clone_brush, "icon clone brush", 358, 144, 24, 24},
    {Sprite::icon_clone_brush_selected, "icon clone brush selected", 382, 144, 24, 24},
    {Sprite::icon_horizontal_seam, "icon horizontal seam", 406, 24, 24, 24},
    {Sprite::icon_horizontal_seam_selected, "icon horizontal seam selected", 430, 24, 24, 24},
    {Sprite::icon_vertical_seam, "icon vertical seam", 406, 0, 24, 24},
    {Sprite::icon_vertical_seam_selected, "icon vertical seam selected", 430, 0, 24, 24},
    {Sprite::icon_filled_rectangle, "icon filled rectangle", 406, 48, 24, 24},
    {Sprite::icon_filled_rectangle_selected, "icon filled rectangle selected", 430, 48, 24, 24},
    {Sprite::icon_filled_circle, "icon filled circle", 406, 72, 24, 24},
    {Sprite::icon_filled_circle_selected, "icon filled circle selected", 430, 72, 24, 24},
    {Sprite::icon_circle_selector, "icon circle selector", 406, 96, 24, 24},
    {Sprite::icon_circle_selector_selected, "icon circle selector selected", 430, 96, 24, 24},
    {Sprite::icon_sel_actions, "icon sel actions", 406, 120, 24, 24},
    {Sprite::icon_sel_actions_selected, "icon sel actions selected", 430, 120, 24, 24},
    {Sprite::icon_rotate, "icon rotate", 406, 144, 24, 24},
    {Sprite::icon_rotate_selected, "icon rotate selected", 430, 144, 24, 24},
    {Sprite::background_aligner, "background aligner", 454, 0, 8, 8},
    {Sprite::strip_prev_depressed, "strip prev depressed", 24, 40, 24, 23},
    {Sprite::strip_prev_pressed, "strip prev pressed", 24, 63, 24, 23},
    {Sprite::prev_tile_depressed, "prev tile depressed", 48, 40, 24, 23},
    {Sprite::prev_tile_pressed, "prev tile pressed", 48, 63, 24, 23},
    {Sprite::current_tile_id, "current tile id", 72, 40, 42, 23},
    {Sprite::next_tile_depressed, "next tile depressed", 114, 40, 24, 23},
    {Sprite::next_tile_pressed, "next tile pressed", 114, 63, 24, 23},
    {Sprite::strip_next_depressed, "strip next depressed", 138, 40, 24, 23},
    {Sprite::strip_next_pressed, "strip next pressed", 138, 63, 24, 23},
    {Sprite::strip_forward_depressed, "strip forward depressed", 162, 40, 24, 23},
    {Sprite::strip_forward_pressed, "strip forward pressed", 162, 63, 24, 23},
    {Sprite::rewind_grey, "rewind grey", 0, 150, 24, 23},
    {Sprite::strip_prev_grey, "strip prev grey", 24, 150, 24, 23},
    {Sprite::prev_tile_grey, "prev tile grey", 48, 150, 24, 23},
    {Sprite::next_tile_grey, "next tile grey", 114, 150, 24, 23},
    {Sprite::strip_next_grey, "strip next grey", 138, 150, 24, 23},
    {Sprite::forward_grey, "forward grey", 162, 150, 24, 23},
    {Sprite::horiz_selector_one, "horiz selector one", 0, 173, 32, 1},
    {Sprite::verti_selector_one, "verti selector one", 0, 173, 1, 32},
    {Sprite::horiz_selector_two, "horiz selector two", 1, 174, 32, 2},
    {Sprite::verti_selector_two, "verti selector two", 1, 174, 2, 32},
    {Sprite::horiz_active_select_one, "horiz active select one", 72, 173, 32, 1},
    {Sprite::verti_active_select_one, "verti active select one", 72, 173, 1, 32},
    {Sprite::horiz_active_select_two, "horiz active select two", 73, 174, 32, 2},
    {Sprite::verti_active_select_two, "verti active select two", 73, 174, 2, 32},
    {Sprite::horiz_paste_one, "horiz paste one", 64, 86, 32, 1},
    {Sprite::verti_paste_one, "verti paste one", 64, 86, 1, 32},
    {Sprite::horiz_paste_two, "horiz paste two", 65, 87, 32, 2},
    {Sprite::verti_paste_two, "verti paste two", 65, 87, 2, 32},
    {Sprite::horiz_seam_one, "horiz seam one", 140, 173, 32, 2},
    {Sprite::verti_seam_one, "verti seam one", 140, 173, 2, 32},
    {Sprite::horiz_seam_two, "horiz seam two", 142, 175, 32, 4},
    {Sprite::verti_seam_two, "verti seam two", 142, 175, 4, 32},
    {Sprite::crosshairs, "crosshairs", 234, 56, 11, 11},
    {Sprite::handlebutton_r, "handlebutton R", 245, 100, 15, 15},
    {Sprite::handlebutton_g, "handlebutton G", 245, 115, 15, 15},
    {Sprite::handlebutton_b, "handlebutton B", 245, 130, 15, 15},
    {Sprite::handlebutton_a, "handlebutton A", 245, 145, 15, 15},
    {Sprite::handlebutton_s, "handlebutton S", 245, 160, 15, 15},
    {Sprite::handlebutton_l, "handlebutton L", 245, 175, 15, 15},
    {Sprite::verti_icon_separator, "verti icon separator", 310, 168, 24, 7},
    {Sprite::pane_header_start, "pane header start", 462, 0, 5, 21},
    {Sprite::pane_header_end, "pane header end", 467, 0, 22, 21},
    {Sprite::passive_pane_header_start, "pas. pane header start", 462, 21, 5, 21},
    {Sprite::passive_pane_header_end, "pas. pane header end", 467, 21, 22, 21},
    {Sprite::button_middle, "button middle", 245, 190, 15, 15},
    {Sprite::tile_indicator, "tile indicator", 186, 140, 24, 24},
    {Sprite::history_list, "history list", 310, 175, 186, 26},
}};
// clang-format on

constexpr bool sprites_lie_inside_the_sheet() {
    for (const Sprite_Row& row : sprite_table) {
        const bool starts_inside = row.x >= 0 && row.y >= 0 && row.width > 0 && row.height > 0;
        if (!starts_inside || row.x + row.width > sheet_width || row.y + row.height > sheet_height) {
            return false;
        }
    }
    return true;
}

static_assert(sprite_table.size() == static_cast<std::size_t>(Sprite::count));
static_assert(rows_follow_their_ids(sprite_table));
static_assert(sprites_lie_inside_the_sheet());

// The picture of a tool icon that is chosen: the next sprite, beside the plain one on the sheet.
[[nodiscard]] constexpr Sprite lit_twin(Sprite icon) {
    return static_cast<Sprite>(static_cast<int>(icon) + 1);
}

[[nodiscard]] constexpr bool has_lit_twin(Sprite icon) {
    const Sprite_Row& plain = sprite_table.at(static_cast<std::size_t>(icon));
    const Sprite_Row& lit = sprite_table.at(static_cast<std::size_t>(lit_twin(icon)));
    return lit.x == plain.x + plain.width && lit.y == plain.y;
}

} // namespace quadrelle
