#include "app/command_table.h"
#include "app/editor.h"
#include "app/options.h"
#include "app/screen.h"
#include "tools/tool_colors.h"
#include "tools/toolbox.h"
#include "ui/debug_monitor.h"
#include "ui/dialogs.h"
#include "views/about.h"
#include "views/new_tileset_dialog.h"

#include <algorithm>
#include <array>
#include <string>

namespace quadrelle {

namespace {

// Saving is not a command of the whole set, but writes its tiles; the history holds tiles as they really are.
bool needs_tiles_in_place(Command command) {
    switch (command) {
    case Command::save:
    case Command::save_as:
    case Command::undo:
    case Command::redo: return true;
    default: return row_of(command).is_tileset_level;
    }
}

} // namespace

struct Editor::Handler {
    Command first;
    Command last;
    Command (Editor::*handle)(Command command);
};

// Commands that are not in this table go to the document.
Command Editor::dispatch(Command command) {
    // clang-format off
    static constexpr std::array handlers = std::to_array<Handler>({
        {Command::pen,                 Command::circle,              &Editor::select_tool},
        {Command::smudge_brush,        Command::smudge_brush,        &Editor::select_tool},
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
        {Command::save_as,             Command::save,                &Editor::save},
        {Command::quit,                Command::quit,                &Editor::quit},
        {Command::center_tile_on_view, Command::center_tile_on_view, &Editor::centre},
        {Command::zoom_tile_up,        Command::zoom_tile_down,      &Editor::zoom},
        {Command::options,             Command::options,             &Editor::edit_options},
        {Command::context_info,        Command::context_info,        &Editor::show_help},
        {Command::about,               Command::about,               &Editor::show_about},
        {Command::debug_monitor,       Command::debug_monitor,       &Editor::show_debug_monitor},
        {Command::undo,                Command::undo,                &Editor::undo},
        {Command::redo,                Command::redo,                &Editor::redo},
        {Command::view_undo_history,   Command::view_undo_history,   &Editor::show_undo_history},
        {Command::skip_command,        Command::skip_command,        &Editor::do_nothing},
        {Command::test,                Command::test,                &Editor::run_test},
    });
    // clang-format on
    const auto handler = std::ranges::find_if(
        handlers, [command](const Handler& row) { return row.first <= command && command <= row.last; });
    if (handler != handlers.end()) {
        return (this->*handler->handle)(command);
    }
    const Command result = documents_.current().handle_command(command);
    if (result == Command::none) {
        dialogs->message("Note", "Unhandled command " + std::string(row_of(command).name));
    }
    return result;
}

Command Editor::perform(Command command) {
    if (needs_tiles_in_place(command)) {
        canvas_.undo_seam_shifts();
    }
    const Command result = dispatch(command);
    follow_up(result);
    return result;
}

void Editor::follow_up(Command done) {
    if (done == Command::none) {
        return;
    }
    const Command_Category category = row_of(done).category;
    if (category == Command_Category::pixels) {
        canvas_.transform_history(done);
    }
    if (category == Command_Category::structure || category == Command_Category::tile_switch) {
        take_current_tile();
    }
    if (category == Command_Category::structure) {
        documents_.mark_changed();
    }
}

void Editor::execute(Command command) {
    const Command done = perform(command);
    if (is_recorded(done)) {
        record(done);
        documents_.mark_changed();
    }
}

Command Editor::do_nothing(Command command) {
    return command;
}

// The icons of the plain shapes take the filled type back.
Command Editor::select_tool(Command command) {
    const Tool_Option type =
        command == Command::circle ? Tool_Option::ellipse_type : Tool_Option::rectangle_type;
    const bool has_type = command == Command::circle || command == Command::rectangle;
    if (has_type && toolbox->value(type) == static_cast<int>(Shape_Type::filled)) {
        toolbox->options().set_value(type, static_cast<int>(Shape_Type::outline));
    }
    if (tool_of(command) != toolbox->current_tool()) {
        toolbox->select(command);
    }
    return command;
}

Command Editor::select_filled_shape(Command command) {
    const bool is_circle = command == Command::filled_circle;
    select_tool(is_circle ? Command::circle : Command::rectangle);
    toolbox->options().set_value(is_circle ? Tool_Option::ellipse_type : Tool_Option::rectangle_type,
                                 static_cast<int>(Shape_Type::filled));
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
    } else if (!documents_.new_document(choice->size)) {
        return Command::skip_command;
    }
    size_preview();
    return command;
}

Command Editor::load(Command command) {
    if (!documents_.load_document()) {
        return Command::skip_command;
    }
    record(Command::change_tile);
    return command;
}

Command Editor::save(Command command) {
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

// Of the tool in use.
Command Editor::show_help(Command command) {
    const Command tool = toolbox->current_command();
    dialogs->message(menu_text(tool), description(tool));
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
