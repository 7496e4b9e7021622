#include "app/editor.h"

#include "canvas/stroke_loop.h"
#include "commands/command_table.h"
#include "panes/tool_colors.h"
#include "panes/toolbox.h"
#include "screen/cursor.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "ui/dialogs.h"
#include "ui/options.h"

namespace quadrelle {

std::unique_ptr<Editor> editor;

namespace {

constexpr Size first_tile_size{24, 24};

constexpr Rectangle preview_area{31, 32, 202, 202};
constexpr Rectangle magnification_area{31, 259, 202, 26};
constexpr Point palette_position{31, 427};
constexpr Point navigation_position{31, 310};
constexpr Point history_position{31, 368};
constexpr int icon_bar_top = 32;

constexpr Pointer_State nowhere{-1, -1, Mouse_Button::none};

Point below(const Element& element) {
    return {element.area.x, element.area.bottom() + element_gap};
}

// Columns or rows of the preview that fit into its 192 pixels.
int fitting_repeat(int tile_extent, int repeat) {
    if (tile_extent <= 0) {
        return 0;
    }
    return tile_extent * repeat > 191 ? 192 / tile_extent : repeat;
}

} // namespace

Editor::Editor()
    : canvas_(options->value(Option::editor_pixel_size)), documents_([this] { take_current_tile(); }),
      preview_(preview_area), magnification_(magnification_area, "Magnification", "x"),
      palette_(palette_position, *palette_store), selected_color_(below(palette_), palette_),
      history_pane_(history_position), navigation_(navigation_position),
      menu_bar_(std::make_unique<Menu_Bar>([this] { redraw(Present::no); })), icon_bar_(icon_bar_top) {
    dialogs->set_backdrop([this] { redraw(Present::no); });
}

Editor::~Editor() {
    dialogs->set_backdrop({});
}

void Editor::run() {
    if (!show_first_frame()) {
        return;
    }
    while (!quit_requested_) {
        handle_one_event();
        redraw(Present::yes);
    }
}

bool Editor::show_first_frame() {
    if (!documents_.new_document(first_tile_size)) {
        return false;
    }
    size_preview();
    tool_colors->reset();
    redraw(Present::yes);
    return true;
}

void Editor::handle_one_event() {
    handle(wait_event("main"));
    // Also when the release came while a dialog or a stroke was running.
    if (take_key_release()) {
        control_held_ = false;
    }
    if (take_button_release()) {
        navigation_.release();
    }
    show_pointer();
    show_what_is_under_the_pointer();
}

void Editor::size_preview() {
    const Size tile = documents_.current().tileset().tile_size();
    preview_.set_repeat(fitting_repeat(tile.width, options->value(Option::repeat_x_tiles)),
                        fitting_repeat(tile.height, options->value(Option::repeat_y_tiles)));
}

void Editor::take_current_tile() {
    Tileset& tileset = documents_.current().tileset();
    canvas_.set_tile(tileset.current_tile());
    preview_.set_tile(tileset.current_tile());
    // Without a tile there is nothing to centre yet.
    if (tileset.has_tiles() && tileset.tile_size() != shown_tile_size_) {
        shown_tile_size_ = tileset.tile_size();
        canvas_.centre();
        size_preview();
    }
}

void Editor::redraw(Present present) {
    // The canvas draws nothing outside its viewport, so the frame around it can be there first.
    screen->clear();
    canvas_.draw();
    menu_bar_->draw(pointer_);
    icon_bar_.draw([this](Command icon) { return is_lit(icon); });
    preview_.draw();
    magnification_.set_value(canvas_.pixel_size());
    magnification_.draw();
    palette_.draw();
    selected_color_.draw();
    history_pane_.draw(documents_.current().history());
    navigation_.draw(documents_.current().strip());
    strip_picture_.draw(documents_.current().strip());
    documents_.draw_tabs();
    toolbox->draw(pointer_.point());
    if (toolbox->is_in_selection_group()) {
        copy_panes_.place(toolbox->beside_entry());
        copy_panes_.draw(copy_buffer_);
    }
    hint_lines_.set_hint(hint_of(pointed()));
    hint_lines_.draw();
    if (present == Present::yes) {
        screen->present();
    }
}

void Editor::handle(const SDL_Event& event) {
    switch (event.type) {
    case SDL_EVENT_QUIT: static_cast<void>(perform(Command::quit)); break;
    case SDL_EVENT_KEY_DOWN: handle_key(event.key); break;
    case SDL_EVENT_MOUSE_MOTION: handle_motion(event.motion); break;
    case SDL_EVENT_MOUSE_BUTTON_DOWN: handle_press(event.button); break;
    case SDL_EVENT_WINDOW_MOUSE_LEAVE: pointer_ = nowhere; break;
    case SDL_EVENT_MOUSE_WHEEL:
        if (event.wheel.y != 0) {
            canvas_.zoom(event.wheel.y > 0 ? Zoom_Step::in : Zoom_Step::out);
        }
        break;
    default: break;
    }
}

void Editor::handle_key(const SDL_KeyboardEvent& event) {
    const Key_Chord chord = key_chord_of(event);
    control_held_ = control_held_ || chord.modifier == Modifier::control;
    if (nudge_paste(chord)) {
        return;
    }
    const Command command = find_command(chord);
    if (command != Command::none) {
        execute(command);
    }
}

void Editor::handle_motion(const SDL_MouseMotionEvent& event) {
    pointer_ = {event.x, event.y, pointer_.button};
}

void Editor::handle_press(const SDL_MouseButtonEvent& event) {
    pointer_ = pointer_of(event);
    if (control_held_ && pointer_.button == Mouse_Button::right) {
        canvas_.pan([this] { redraw(Present::yes); });
        control_held_ = false;
    } else if (pointer_.button != Mouse_Button::none) {
        route_click();
    }
}

void Editor::route_click() {
    if (canvas_viewport.contains(pointer_.point())) {
        draw_on_canvas();
        return;
    }
    if (toolbox->click(pointer_, [this] { redraw(Present::yes); })) {
        return;
    }
    const Command icon = icon_bar_.command_at(pointer_.point());
    if (icon != Command::none) {
        if (pointer_.button == Mouse_Button::left) {
            execute(icon);
        }
        return;
    }
    const Command tool = toolbox->command_at(pointer_.point());
    if (tool != Command::none) {
        execute(tool);
        return;
    }
    if (click_pane() || click_strip()) {
        return;
    }
    const Command command = menu_bar_->click(pointer_);
    if (command != Command::none) {
        // Nothing under the closed menu reacts to where it was clicked.
        pointer_ = nowhere;
        execute(command);
    }
}

bool Editor::click_pane() {
    if (selected_color_.set_button().contains(pointer_.point())) {
        palette_.store(tool_colors->current_color());
        return true;
    }
    if (const std::optional<Color> color = palette_.click(pointer_.point())) {
        if (is_shift_held()) {
            palette_.store(tool_colors->color(pointer_.button));
        } else {
            tool_colors->set_color(pointer_.button, *color);
        }
        return true;
    }
    return click_copies() || documents_.click_tab(pointer_.point());
}

bool Editor::click_copies() {
    if (!toolbox->is_in_selection_group()) {
        return false;
    }
    if (const std::optional<std::size_t> copy = copy_panes_.copy_at(pointer_.point())) {
        copy_buffer_.choose(*copy);
        return true;
    }
    const Command command = copy_panes_.command_at(pointer_.point());
    if (command != Command::none && pointer_.button == Mouse_Button::left) {
        execute(command);
    }
    return command != Command::none;
}

// Takes the tile, or carries out the command, that was hit with the left button.
bool Editor::click_strip() {
    if (pointer_.button != Mouse_Button::left) {
        return false;
    }
    Tileset_Document& document = documents_.current();
    const int tile = document.strip().tile_at(pointer_.point());
    if (tile >= 0 && tile != document.tileset().current_index()) {
        document.tileset().select(tile);
        execute(Command::change_tile);
        size_preview();
        return true;
    }
    const Command command = navigation_.click(pointer_.point());
    if (command != Command::none) {
        execute(command);
    }
    return command != Command::none;
}

void Editor::draw_on_canvas() {
    if (canvas_.tile() == nullptr) {
        return;
    }
    const bool returns =
        toolbox->current_tool() == Tool::dropper && toolbox->value(Tool_Option::dropper_return) == 1;
    std::optional<Undo_Entry> floor = missing_floor();
    const Tile_Point pressed = canvas_.tile_point(pointer_.point());
    const Stroke_Outcome outcome =
        apply_tool(canvas_, toolbox->canvas_action(), pointer_, [this] { redraw(Present::yes); });
    const Command kind = row_of(toolbox->current_tool()).command;
    const bool floats = float_wand_area(pressed);
    if (floats || outcome == Stroke_Outcome::something_changed) {
        record(floats ? Command::paste : kind, std::move(floor));
        documents_.mark_changed();
    }
    if (returns && outcome == Stroke_Outcome::color_picked) {
        select_tool(toolbox->previous_command());
    }
}

// The brush shows at the pointer, and the cursor where the brush does not.
void Editor::show_pointer() {
    const bool is_over_tile = canvas_viewport.contains(pointer_.point()) && canvas_.tile() != nullptr;
    canvas_.set_hover(is_over_tile ? std::optional(Hover{pointer_.point()}) : std::nullopt);
    const bool is_replaced = is_over_tile && options->value(Option::hide_or_show_cursor) > 0 &&
                             (toolbox->shows_brush_outline() || toolbox->shows_brush_preview());
    set_cursor(is_replaced ? Cursor::hidden : Cursor::shown);
}

// While a command runs, which may show a dialog over the canvas.
void Editor::hide_brush() {
    canvas_.set_hover(std::nullopt);
    set_cursor(Cursor::shown);
}

void Editor::show_what_is_under_the_pointer() {
    if (!canvas_viewport.contains(pointer_.point()) || canvas_.tile() == nullptr) {
        return;
    }
    const Tile_Point pixel = canvas_.tile_point(pointer_.point());
    toolbox->options().set_location({pixel.x, pixel.y});
    if (!canvas_.tile()->is_outside(pixel.x, pixel.y)) {
        toolbox->options().set_dropper_color(canvas_.tile()->get_pixel(pixel.x, pixel.y));
    }
}

// Rectangle and circle have an icon for each of two types.
bool Editor::is_lit(Command icon) const {
    const Command current = toolbox->current_command();
    const bool is_filled = toolbox->shape_type() == Shape_Type::filled;
    switch (icon) {
    case Command::rectangle:
    case Command::circle: return current == icon && !is_filled;
    case Command::filled_rectangle: return current == Command::rectangle && is_filled;
    case Command::filled_circle: return current == Command::circle && is_filled;
    case Command::horizontal_seam_tool: return canvas_.horizontal_seam_shift() >= 0;
    case Command::vertical_seam_tool: return canvas_.vertical_seam_shift() >= 0;
    default: return current == icon;
    }
}

} // namespace quadrelle
