#include "app/editor.h"

#include "app/command_handlers.h"
#include "app/editor_parts.h"
#include "app/held_keys.h"
#include "app/hover.h"
#include "app/key_press.h"
#include "app/mouse_press.h"
#include "app/recovery.h"
#include "base/data_directory.h"
#include "base/debug_monitor.h"
#include "base/platform_files.h"
#include "color/palette_list.h"
#include "commands/command_table.h"
#include "panes/tool_color_panel.h"
#include "panes/toolbox.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "tools/options.h"
#include "ui/dialogs.h"
#include "ui/held_button.h"
#include "ui/modal_dialog.h"

#include <optional>
#include <string>

namespace quadrelle {

std::unique_ptr<Editor> editor;

namespace {

constexpr Size first_tile_size{24, 24};

// Not only at the end, which may come suddenly.
void keep_brush_pad(Editor_Parts& parts) {
    if (!toolbox->keep_brush_pad()) {
        parts.panes.hint_lines().report_lastingly(
            {"Brush pad", data_directory().path("brushpad.dat") +
                              " cannot be written: the brushes last until the program ends. " +
                              last_file_fault() + "."});
    }
}

} // namespace

Editor::Editor() : parts_(std::make_unique<Editor_Parts>([this](Present present) { redraw(present); })) {
    set_backdrop([this] { redraw(Present::no); });
}

Editor::~Editor() {
    set_backdrop({});
}

Documents& Editor::documents() {
    return parts_->documents;
}

Canvas_View& Editor::canvas() {
    return parts_->canvas;
}

const Copy_Buffer& Editor::copies() const {
    return parts_->desk.copies();
}

const Window_Panes& Editor::panes() const {
    return parts_->panes;
}

void Editor::run() {
    if (!show_first_frame()) {
        return;
    }
    offer_recovery();
    while (!parts_->is_quit_requested) {
        handle_one_event();
        draw_next_frame([this] { redraw(Present::yes); });
    }
}

bool Editor::show_first_frame() {
    if (!parts_->documents.new_document(first_tile_size)) {
        return false;
    }
    parts_->panes.size_preview();
    tool_colors->reset();
    if (const int number = data_directory().program_number(); number > 1) {
        const bool is_second = number == 2;
        parts_->panes.hint_lines().report_lastingly(
            {is_second ? "A second Quadrelle" : "One more Quadrelle",
             std::string(is_second ? "Another one runs" : "Others run") +
                 " in this folder. This one keeps a brush pad and unsaved work of its own."});
    }
    if (const std::string note = palette_list->take_note(); !note.empty()) {
        trace(note);
        parts_->panes.hint_lines().report_lastingly({"Palettes", note});
    }
    redraw(Present::yes);
    return true;
}

void Editor::offer_recovery() {
    const bool tells_error = tell_last_error();
    if (recover_journals(*parts_) || tells_error) {
        redraw(Present::yes);
    }
}

void Editor::redraw(Present present) {
    // The canvas draws nothing outside its viewport, so the frame around it can be there first.
    screen->clear();
    parts_->surroundings.show(parts_->documents.current(), parts_->canvas);
    parts_->canvas.draw(toolbox->state(), canvas_settings(*options));
    parts_->panes.draw(parts_->pointer);
    if (present == Present::yes) {
        screen->present();
    }
}

void Editor::handle_one_event() {
    handle(wait_event(main_loop));
    while (const std::optional<std::string> file = take_dropped_file()) {
        open_file(*file);
    }
    // Also when the release came while a dialog or a stroke was running.
    if (take_button_release()) {
        parts_->panes.release();
    }
    if (take_pointer_loss()) {
        parts_->pointer = pointer_nowhere;
    }
    follow_held_keys(*parts_);
    show_hover(parts_->canvas, parts_->pointer);
    show_pixel_under(parts_->canvas, parts_->pointer);
    show_shape(parts_->canvas);
    keep_journal();
    keep_brush_pad(*parts_);
}

void Editor::keep_journal() {
    parts_->journal.follow();
    const bool has_failed = parts_->journal.has_failed();
    if (has_failed && !journal_has_failed_) {
        parts_->panes.hint_lines().report_lastingly(
            {"Not protected",
             "The journal in the folder data can't be written: what is not saved would be lost "
             "if the program were ended in the midst of it."});
    }
    journal_has_failed_ = has_failed;
}

void Editor::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::quit: static_cast<void>(perform(Command::quit)); break;
    case Input_Kind::key_press:
        execute_if_any(press_key(*parts_, event), event.is_repeat ? Held::yes : Held::no);
        break;
    case Input_Kind::pointer_motion:
        parts_->pointer = {event.pointer.x, event.pointer.y, parts_->pointer.button};
        break;
    case Input_Kind::button_press:
        parts_->pointer = event.pointer;
        if (parts_->has_come_by_click && event.clicks > 2) {
            break;
        }
        parts_->has_come_by_click = false;
        parts_->clicks = event.clicks;
        parts_->panes.hint_lines().end_report();
        press(press_mouse(*parts_));
        break;
    case Input_Kind::pointer_left: parts_->pointer = pointer_nowhere; break;
    case Input_Kind::wheel:
        if (event.moved.y != 0) {
            parts_->canvas.zoom(event.moved.y > 0 ? Zoom_Step::in : Zoom_Step::out);
        }
        break;
    default: break;
    }
}

void Editor::open_file(const std::string& path) {
    parts_->file_to_load = path;
    static_cast<void>(perform(Command::load));
}

void Editor::press(Command command) {
    execute_if_any(command);
    const std::optional<Rectangle> button = parts_->panes.held_button();
    if (command == Command::none || !button) {
        return;
    }
    Point pointer = parts_->pointer.point();
    repeat_while_held(
        {*button, [this] { redraw(Present::yes); }, [this, command] { execute(command, Held::yes); }},
        pointer);
    parts_->pointer = {static_cast<float>(pointer.x), static_cast<float>(pointer.y), parts_->pointer.button};
}

void Editor::execute_if_any(Command command, Held held) {
    if (command != Command::none) {
        execute(command, held);
    }
}

// What one held key or button does again and again is one step, or it would push all others out of the
// history.
void Editor::execute(Command command, Held held) {
    if (!row_of(command).has(Command_Trait::step)) {
        static_cast<void>(perform(command));
        return;
    }
    parts_->recorder.step([&] { return perform(command); },
                          held == Held::yes ? Merge::with_same_kind : Merge::no);
}

Command Editor::perform(Command command) {
    hide_hover(parts_->canvas);
    parts_->panes.hint_lines().end_report();
    if (row_of(command).has(Command_Trait::tileset_level)) {
        parts_->undo_seam_shifts();
    }
    const Outcome outcome = carry_out(*parts_, command);
    trace(std::string(row_of(command).name) + (outcome == Outcome::done ? "" : ": nothing done"));
    if (outcome == Outcome::unknown) {
        dialogs->message("Note", "Unhandled command " + std::string(row_of(command).name));
    }
    if (outcome == Outcome::done) {
        parts_->follow_up(command);
    }
    show_hover(parts_->canvas, parts_->pointer);
    return outcome == Outcome::done ? command : Command::none;
}

} // namespace quadrelle
