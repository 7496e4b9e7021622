#include "tools/tool_state.h"

#include "commands/command_table.h"

namespace quadrelle {

namespace {

// Of the five tools whose command rebuilds the brush. Selecting an area has no brush of its own.
std::optional<Brush_Owner> brush_owner_of(Command command) {
    switch (command) {
    case Command::pen: return Brush_Owner::pen;
    case Command::lightness_pen: return Brush_Owner::lightness_pen;
    case Command::colorize_pen: return Brush_Owner::colorize_pen;
    case Command::smudge_brush: return Brush_Owner::smudge_brush;
    case Command::brush_selector: return Brush_Owner::none;
    default: return std::nullopt;
    }
}

} // namespace

void Tool_State::select(Command new_command) {
    if (command != previous_command) {
        previous_command = command;
    }
    command = new_command;
    if (const std::optional<Brush_Owner> owner = brush_owner_of(command)) {
        chosen_brush.set_owner(*owner);
    } else if (command == Command::stamp_brush && brush_pad.has_current()) {
        take_pad_brush();
    }
    if (tool_of(command) != Tool::none) {
        tool = tool_of(command);
        is_erasing = false;
    }
}

void Tool_State::take(const Stroke_Findings& found) {
    figures = found.figures;
    last_lightness_step = found.lightness_step.value_or(last_lightness_step);
    if (found.picked) {
        colors.set(found.picked->side, found.picked->color);
    }
}

void Tool_State::take_pad_brush() {
    if (brush_pad.has_current()) {
        chosen_brush.set_stamp(brush_pad.current_brush());
    } else {
        chosen_brush.set_owner(Brush_Owner::pen);
    }
}

bool Tool_State::use_as_brush(const Tile& picture, const Tile& mask) {
    if (!brush_pad.make_temporary(picture, mask)) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Tool_State::move_to_pad() {
    if (!brush_pad.move_to_pad()) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Tool_State::delete_brush() {
    if (!brush_pad.delete_current()) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Tool_State::choose_from_pad(Tile_Point cell) {
    if (!brush_pad.click(cell)) {
        return false;
    }
    take_pad_brush();
    return true;
}

bool Tool_State::bring_stamp_back() {
    if (!brush_pad.has_current() || chosen_brush.is_stamp()) {
        return false;
    }
    take_pad_brush();
    return true;
}

Canvas_Action Tool_State::canvas_action() const {
    return canvas_action_of(command_in_use(), shape_type());
}

Shape_Type Tool_State::shape_type() const {
    return tool == Tool::ellipse ? options.ellipse_type : options.rectangle_type;
}

Pen_Mode Tool_State::pen_mode() const {
    switch (tool) {
    case Tool::pen: return options.pen_mode;
    case Tool::stamp_brush: return options.stamp_mode;
    default: return Pen_Mode::brush;
    }
}

bool Tool_State::uses_brush() const {
    return !is_picking && row_of(row_of(tool).command).has(Command_Trait::brush);
}

bool Tool_State::is_in_selection_group() const {
    switch (tool) {
    case Tool::rectangle_selector:
    case Tool::circle_selector:
    case Tool::brush_selector:
    case Tool::wand_selector:
    case Tool::selection: return true;
    default: return false;
    }
}

bool Tool_State::shows_floating_paste() const {
    return tool == Tool::selection || tool == Tool::rotate || options.selection_mode == Selection_Mode::fixed;
}

std::optional<Color> Tool_State::brush_color(Mouse_Button button) const {
    if (is_erasing) {
        return Color(0, 0, 0, 0);
    }
    if (brush().owner() == Brush_Owner::stamp_brush) {
        return std::nullopt;
    }
    const bool follows_button = tool != Tool::stamp_brush && button != Mouse_Button::none;
    return follows_button ? colors.of(button) : colors.current();
}

Tile_Point Tool_State::brush_corner(Tile_Point position) const {
    return pen_mode() == Pen_Mode::offset ? snapped_to_grid(position, brush().size()) : position;
}

std::optional<Pixel_Operation> Tool_State::lightness_step(std::int64_t now, Mouse_Button button) const {
    return quadrelle::lightness_step(now, last_lightness_step,
                                     {options.speed, options.size_compensation, options.button_order},
                                     brush().size().width, button);
}

} // namespace quadrelle
