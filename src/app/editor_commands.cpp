#include "app/editor.h"
#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "screen/screen.h"
#include "ui/debug_monitor.h"
#include "ui/dialogs.h"
#include "ui/options.h"
#include "views/about.h"
#include "views/new_tileset_dialog.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

namespace quadrelle {

namespace {

// Saving is not a command of the whole set, but writes its tiles.
bool ends_seam_shifts(Command command) {
    return command == Command::save || command == Command::save_as || row_of(command).is_tileset_level;
}

Tool_Option shape_type_option(Command command) {
    const bool is_circle = command == Command::circle || command == Command::filled_circle;
    return is_circle ? Tool_Option::ellipse_type : Tool_Option::rectangle_type;
}

// Without a tile these would do nothing at all.
bool needs_tile(Command command) {
    switch (command) {
    case Command::save_history_buffer:
    case Command::rotate:
    case Command::rotate_back:
    case Command::mirror:
    case Command::flip:
    case Command::anti_alias:
    case Command::horizontal_seam_tool:
    case Command::vertical_seam_tool:
    case Command::delete_tile:
    case Command::versions: return true;
    default: return Command::scroll_left <= command && command <= Command::scroll_down;
    }
}

// Where the user may want nothing to be selected afterwards.
bool leaves_selection(Command command) {
    switch (command) {
    case Command::next_tile:
    case Command::previous_tile:
    case Command::change_tile:
    case Command::add_new_tile:
    case Command::delete_tile: return true;
    default: return false;
    }
}

// Turned about the middle of the shifted tile, it could not be shifted back; what is selected or floats can.
bool turns_tile(Command command) {
    switch (command) {
    case Command::rotate:
    case Command::rotate_back:
    case Command::mirror:
    case Command::flip: return true;
    default: return false;
    }
}

} // namespace

struct Editor::Handler {
    Command first;
    Command last;
    Command (Editor::*handle)(Command command);
};

// Commands that are not in this table go to the document.
struct Editor::Handlers {
    // clang-format off
    static constexpr std::array table = std::to_array<Handler>({
        {Command::pen,                 Command::line,                &Editor::select_tool},
        {Command::rectangle,           Command::circle,              &Editor::select_plain_shape},
        {Command::stamp_brush,         Command::smudge_brush,        &Editor::select_tool},
        {Command::rectangle_selector,  Command::wand_selector,       &Editor::select_tool},
        {Command::work_selection,      Command::work_selection,      &Editor::select_tool},
        {Command::scroll,              Command::free_rotate,         &Editor::select_tool},
        {Command::deselect,            Command::clear,               &Editor::change_selection},
        {Command::copy,                Command::copy,                &Editor::copy},
        {Command::cut,                 Command::cut,                 &Editor::cut},
        {Command::paste,               Command::paste,               &Editor::paste},
        {Command::clone,               Command::clone,               &Editor::clone},
        {Command::plot_paste,          Command::plot_paste,          &Editor::plot},
        {Command::use_as_brush,        Command::use_as_brush,        &Editor::use_as_brush},
        {Command::delete_brush,        Command::delete_brush,        &Editor::delete_brush},
        {Command::move_to_pad,         Command::move_to_pad,         &Editor::move_brush_to_pad},
        {Command::save_history_buffer, Command::save_history_buffer, &Editor::save_history},
        {Command::filled_rectangle,    Command::filled_circle,       &Editor::select_filled_shape},
        {Command::swap_tool_colors,    Command::swap_tool_colors,    &Editor::swap_tool_colors},
        {Command::select_brush_size_1, Command::select_brush_size_6, &Editor::select_brush_size},
        {Command::color_left,          Command::color_up,            &Editor::move_palette_selection},
        {Command::horizontal_seam_tool, Command::vertical_seam_tool, &Editor::shift_to_seam},
        {Command::change_tile,         Command::change_tile,         &Editor::do_nothing},
        {Command::close,               Command::close,               &Editor::close},
        {Command::new_tileset,         Command::new_tileset,         &Editor::make_new},
        {Command::load,                Command::load,                &Editor::load},
        {Command::import_from_bmp,     Command::import_from_bmp,     &Editor::do_nothing},
        {Command::export_bitmap,       Command::export_bitmap,       &Editor::export_picture},
        {Command::save_as,             Command::save,                &Editor::save},
        {Command::quit,                Command::quit,                &Editor::quit},
        {Command::view_in_real_size,   Command::view_in_real_size,   &Editor::view_in_real_size},
        {Command::arrange_select,      Command::arrange_select,      &Editor::arrange},
        {Command::view_tile_array,     Command::view_tile_array,     &Editor::view_tile_array},
        {Command::center_tile_on_view, Command::center_tile_on_view, &Editor::centre},
        {Command::adjust_hsv,          Command::adjust_hsv,          &Editor::adjust_hsv},
        {Command::zoom_tile_up,        Command::zoom_tile_down,      &Editor::zoom},
        {Command::versions,            Command::versions,            &Editor::show_versions},
        {Command::color_editor,        Command::color_editor,        &Editor::edit_tool_color},
        {Command::options,             Command::options,             &Editor::edit_options},
        {Command::statistics,          Command::statistics,          &Editor::show_statistics},
        {Command::context_info,        Command::context_info,        &Editor::show_help},
        {Command::about,               Command::about,               &Editor::show_about},
        {Command::keyboard_commands,   Command::keyboard_commands,   &Editor::show_keyboard_commands},
        {Command::mouse_commands,      Command::mouse_commands,      &Editor::show_mouse_commands},
        {Command::debug_monitor,       Command::debug_monitor,       &Editor::show_debug_monitor},
        {Command::undo,                Command::undo,                &Editor::undo},
        {Command::redo,                Command::redo,                &Editor::redo},
        {Command::view_undo_history,   Command::view_undo_history,   &Editor::show_undo_history},
        {Command::skip_command,        Command::skip_command,        &Editor::do_nothing},
        {Command::test,                Command::test,                &Editor::run_test},
    });
    // clang-format on
};

Command Editor::dispatch(Command command) {
    if (needs_tile(command) && !documents_.current().tileset().has_tiles()) {
        dialogs->message("Note", "This set has no tile. Tileset, Add new tile makes one.");
        return Command::skip_command;
    }
    const auto handler = std::ranges::find_if(Handlers::table, [command](const Handler& row) {
        return row.first <= command && command <= row.last;
    });
    if (handler != Handlers::table.end()) {
        return (this->*handler->handle)(command);
    }
    Command result = Command::none;
    const auto handle = [&] {
        result = transform_work_area(command);
        if (result == Command::none) {
            result = documents_.current().handle_command(command);
        }
    };
    if (turns_tile(command) && !canvas_.work_area().has_selection() && !canvas_.shows_paste()) {
        canvas_.with_tile_in_place(handle);
    } else {
        handle();
    }
    if (result == Command::none) {
        dialogs->message("Note", "Unhandled command " + std::string(row_of(command).name));
    }
    return result;
}

Command Editor::perform(Command command) {
    hide_brush();
    if (ends_seam_shifts(command)) {
        canvas_.undo_seam_shifts();
    }
    const Command result = dispatch(command);
    follow_up(result);
    show_pointer();
    return result;
}

void Editor::follow_up(Command done) {
    if (done == Command::none) {
        return;
    }
    const Command_Category category = row_of(done).category;
    if (leaves_selection(done) && options->value(Option::clear_selection) == 1) {
        canvas_.work_area().deselect();
    }
    if (category == Command_Category::structure || category == Command_Category::tile_switch) {
        take_current_tile();
        documents_.current().strip().show_current();
    }
    if (category == Command_Category::structure) {
        documents_.mark_changed();
    }
}

void Editor::execute(Command command) {
    std::optional<Undo_Entry> floor = missing_floor();
    const Command done = perform(command);
    if (is_recorded(done)) {
        record(done, std::move(floor));
        documents_.mark_changed();
    }
}

Command Editor::do_nothing(Command command) {
    return command;
}

Command Editor::select_tool(Command command) {
    const Tool tool = tool_of(command);
    if (tool == toolbox->current_tool()) {
        return command;
    }
    if (tool != Tool::selection) {
        plot_paste_to_leave();
    }
    toolbox->select(command);
    return command;
}

// Takes the filled type back, but not the one with an outline too.
Command Editor::select_plain_shape(Command command) {
    const Tool_Option type = shape_type_option(command);
    if (toolbox->value(type) == static_cast<int>(Shape_Type::filled)) {
        toolbox->options().set_value(type, static_cast<int>(Shape_Type::outline));
    }
    return select_tool(command);
}

Command Editor::select_filled_shape(Command command) {
    toolbox->options().set_value(shape_type_option(command), static_cast<int>(Shape_Type::filled));
    select_tool(command == Command::filled_circle ? Command::circle : Command::rectangle);
    return command;
}

Command Editor::save_history(Command command) {
    canvas_.save_history();
    return command;
}

Command Editor::swap_tool_colors(Command command) {
    tool_colors->swap();
    return command;
}

Command Editor::select_brush_size(Command command) {
    toolbox->select_brush_size(index_of(command) - index_of(Command::select_brush_size_1));
    return command;
}

Command Editor::move_palette_selection(Command command) {
    // In the order of the commands: left, right, down, up.
    static constexpr std::array<Point, 4> steps{{{-1, 0}, {1, 0}, {0, 1}, {0, -1}}};
    if (row_of(toolbox->current_tool()).uses_tool_colors) {
        const Point step =
            steps.at(static_cast<std::size_t>(index_of(command) - index_of(Command::color_left)));
        tool_colors->set_color(Mouse_Button::left, palette_.move_selection(step.x, step.y));
    }
    return command;
}

Command Editor::zoom(Command command) {
    const bool has_zoomed = canvas_.zoom(command == Command::zoom_tile_up ? Zoom_Step::in : Zoom_Step::out);
    return has_zoomed ? command : Command::skip_command;
}

Command Editor::shift_to_seam(Command command) {
    const Seam seam = command == Command::horizontal_seam_tool ? Seam::horizontal : Seam::vertical;
    return canvas_.toggle_seam_shift(seam) ? command : Command::skip_command;
}

Command Editor::centre(Command command) {
    canvas_.centre();
    return command;
}

Command Editor::close(Command command) {
    if (!documents_.close_document()) {
        return Command::skip_command;
    }
    canvas_.work_area().deselect();
    size_preview();
    return command;
}

Command Editor::make_new(Command command) {
    const auto choice = new_tileset_dialog->run();
    if (!choice) {
        return Command::skip_command;
    }
    if (choice->keep_and_resize) {
        documents_.resize_current(choice->size);
        documents_.mark_changed();
    } else if (documents_.new_document(choice->size)) {
        // What was selected in another set means nothing here.
        canvas_.work_area().deselect();
    } else {
        return Command::skip_command;
    }
    size_preview();
    return command;
}

Command Editor::load(Command command) {
    if (!documents_.load_document()) {
        return Command::skip_command;
    }
    record(Command::change_tile, std::nullopt);
    return command;
}

Command Editor::save(Command command) {
    plot_paste_to_leave();
    const Save_As save_as = command == Command::save_as ? Save_As::yes : Save_As::no;
    return documents_.save_document(save_as) ? command : Command::skip_command;
}

Command Editor::quit(Command command) {
    quit_requested_ = new_tileset_dialog->confirm_quit(documents_.has_unsaved());
    return command;
}

Command Editor::edit_options(Command command) {
    if (options->edit()) {
        size_preview();
    }
    return command;
}

Command Editor::show_about(Command command) {
    quadrelle::show_about();
    return command;
}

Command Editor::show_debug_monitor(Command command) {
    debug_monitor->show();
    return command;
}

// What a developer wants to see first when something looks wrong on another machine.
Command Editor::run_test(Command command) {
    debug_monitor->write("Renderer: " + screen->renderer_name());
    debug_monitor->show();
    return command;
}

} // namespace quadrelle
