#include "app/command_handlers.h"

#include "app/brush_commands.h"
#include "app/edit_commands.h"
#include "app/editor_parts.h"
#include "app/file_commands.h"
#include "app/help_commands.h"
#include "app/map_commands.h"
#include "app/tile_commands.h"
#include "app/tileset_commands.h"
#include "app/tool_commands.h"
#include "app/view_commands.h"
#include "base/table.h"
#include "commands/command_table.h"
#include "ui/dialogs.h"

#include <array>

namespace quadrelle {

namespace {

// A function of its own for the command, or one for several, which is told the command.
class Handler {
public:
    using Of_One = Outcome (*)(Editor_Parts& editor);
    using Of_Several = Outcome (*)(Editor_Parts& editor, Command command);

    constexpr Handler(Of_One function) : of_one_(function) {}
    constexpr Handler(Of_Several function) : of_several_(function) {}

    Outcome operator()(Editor_Parts& editor, Command command) const {
        return of_one_ != nullptr ? of_one_(editor) : of_several_(editor, command);
    }

private:
    Of_One of_one_ = nullptr;
    Of_Several of_several_ = nullptr;
};

struct Handler_Row {
    Command id;
    Handler handle;
};

// One that always gets the same argument.
template <auto function, auto argument>
Outcome with(Editor_Parts& editor) {
    return function(editor, argument);
}

Outcome nothing(Editor_Parts& /*editor*/) {
    return Outcome::done;
}

// clang-format off
constexpr std::array<Handler_Row, command_count> handlers{{
    {Command::pen,                   tool_commands::select},
    {Command::dropper,               tool_commands::select},
    {Command::lightness_pen,         tool_commands::select},
    {Command::colorize_pen,          tool_commands::select},
    {Command::flood_fill,            tool_commands::select},
    {Command::line,                  tool_commands::select},
    {Command::rectangle,             tool_commands::select},
    {Command::circle,                tool_commands::select},
    {Command::stamp_brush,           tool_commands::select},
    {Command::smudge_brush,          tool_commands::select},
    {Command::save_history_buffer,   tile_commands::save_history_buffer},
    {Command::swap_tool_colors,      tool_commands::swap_colors},
    {Command::select_brush_size_1,   with<brush_commands::select_size, 0>},
    {Command::select_brush_size_2,   with<brush_commands::select_size, 1>},
    {Command::select_brush_size_3,   with<brush_commands::select_size, 2>},
    {Command::select_brush_size_4,   with<brush_commands::select_size, 3>},
    {Command::select_brush_size_5,   with<brush_commands::select_size, 4>},
    {Command::select_brush_size_6,   with<brush_commands::select_size, 5>},
    {Command::color_left,            with<tool_commands::step_in_palette, Point{-1, 0}>},
    {Command::color_right,           with<tool_commands::step_in_palette, Point{1, 0}>},
    {Command::color_down,            with<tool_commands::step_in_palette, Point{0, 1}>},
    {Command::color_up,              with<tool_commands::step_in_palette, Point{0, -1}>},
    {Command::rectangle_selector,    tool_commands::select},
    {Command::circle_selector,       tool_commands::select},
    {Command::brush_selector,        tool_commands::select},
    {Command::wand_selector,         tool_commands::select},
    {Command::deselect,              edit_commands::deselect},
    {Command::invert_selection,      edit_commands::invert_selection},
    {Command::fill,                  edit_commands::fill},
    {Command::clear,                 edit_commands::clear},
    {Command::work_selection,        tool_commands::select},
    {Command::scroll_left,           tile_commands::transform},
    {Command::scroll_right,          tile_commands::transform},
    {Command::scroll_up,             tile_commands::transform},
    {Command::scroll_down,           tile_commands::transform},
    {Command::rotate,                tile_commands::turn},
    {Command::rotate_back,           tile_commands::turn},
    {Command::mirror,                tile_commands::turn},
    {Command::flip,                  tile_commands::turn},
    {Command::horizontal_seam_tool,  with<tile_commands::shift_to_seam, Seam::horizontal>},
    {Command::vertical_seam_tool,    with<tile_commands::shift_to_seam, Seam::vertical>},
    {Command::scroll,                tool_commands::select},
    {Command::free_rotate,           tool_commands::select},
    {Command::next_tile,             tileset_commands::show_another_tile},
    {Command::previous_tile,         tileset_commands::show_another_tile},
    {Command::next_tile_strip,       tileset_commands::leave_to_document},
    {Command::previous_tile_strip,   tileset_commands::leave_to_document},
    {Command::change_tile,           nothing},
    {Command::rewind_strip,          tileset_commands::leave_to_document},
    {Command::forward_strip,         tileset_commands::leave_to_document},
    {Command::copy,                  edit_commands::copy},
    {Command::use_as_brush,          brush_commands::use_as_brush},
    {Command::cut,                   edit_commands::cut},
    {Command::paste,                 edit_commands::paste},
    {Command::clone,                 edit_commands::clone},
    {Command::delete_brush,          brush_commands::delete_brush},
    {Command::move_to_pad,           brush_commands::move_to_pad},
    {Command::close,                 file_commands::close},
    {Command::new_tileset,           file_commands::make_new},
    {Command::load,                  file_commands::load},
    {Command::import_from_bmp,       nothing},
    {Command::export_bitmap,         file_commands::export_picture},
    {Command::save_as,               file_commands::save_as},
    {Command::save,                  file_commands::save},
    {Command::quit,                  file_commands::quit},
    {Command::view_in_real_size,     view_commands::view_in_real_size},
    {Command::arrange_select,        tileset_commands::arrange_select},
    {Command::add_new_tile,          tileset_commands::show_another_tile},
    {Command::insert_new_tile,       tileset_commands::show_another_tile},
    {Command::delete_tile,           tileset_commands::delete_tile},
    {Command::statistics,            tileset_commands::statistics},
    {Command::view_tile_array,       tileset_commands::view_tile_array},
    {Command::anti_alias,            tile_commands::transform},
    {Command::center_tile_on_view,   view_commands::centre},
    {Command::adjust_hsv,            tile_commands::adjust_hsv},
    {Command::zoom_tile_up,          with<view_commands::zoom, Zoom_Step::in>},
    {Command::zoom_tile_down,        with<view_commands::zoom, Zoom_Step::out>},
    {Command::color_editor,          tool_commands::edit_color},
    {Command::map_editor,            map_commands::edit},
    {Command::versions,              tile_commands::versions},
    {Command::options,               file_commands::edit_options},
    {Command::context_info,          help_commands::context_info},
    {Command::about,                 help_commands::about},
    {Command::keyboard_commands,     help_commands::keyboard_commands},
    {Command::mouse_commands,        help_commands::mouse_commands},
    {Command::view_undo_history,     edit_commands::view_undo_history},
    {Command::debug_monitor,         help_commands::debug_monitor},
    {Command::plot_paste,            edit_commands::plot_paste},
    {Command::undo,                  edit_commands::undo},
    {Command::redo,                  edit_commands::redo},
    {Command::filled_rectangle,      with<tool_commands::select_filled, Tool::rectangle>},
    {Command::filled_circle,         with<tool_commands::select_filled, Tool::ellipse>},
    {Command::skip_command,          nothing},
    {Command::test,                  help_commands::test},
}};
// clang-format on

static_assert(rows_follow_their_ids(handlers));

} // namespace

Outcome carry_out(Editor_Parts& editor, Command command) {
    const bool has_tile = editor.documents.current().tileset().has_tiles();
    if (row_of(command).has(Command_Trait::needs_tile) && !has_tile) {
        dialogs->message("Note", "This set has no tile. Tileset, Add new tile makes one.");
        return Outcome::refused;
    }
    return handlers.at(static_cast<std::size_t>(command)).handle(editor, command);
}

} // namespace quadrelle
