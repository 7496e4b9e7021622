#pragma once

// Which tool is in use, and all that it works with. What shows it, and who owns it, is not known here.

#include "base/input.h"
#include "commands/command.h"
#include "tools/brush_pad.h"
#include "tools/chosen_brush.h"
#include "tools/shapes.h"
#include "tools/tool_catalogue.h"
#include "tools/tool_options.h"

#include <cstdint>
#include <optional>

namespace quadrelle {

// The colours of the two mouse buttons. Any button but the left one stands for the right one.
struct Tool_Colors {
    Color left{255, 255, 255};
    Color right{0, 0, 0};
    Mouse_Button active_side = Mouse_Button::left;

    [[nodiscard]] Color of(Mouse_Button button) const { return button == Mouse_Button::left ? left : right; }
    [[nodiscard]] Color current() const { return of(active_side); }
    void set(Mouse_Button button, Color color) { (button == Mouse_Button::left ? left : right) = color; }
};

// What the tools show while they work.
struct Tool_Figures {
    Tile_Point location;
    Size size;
    Radii radii;
    Tile_Point offset;
    int length = 0;
    int degrees = 0;
    Color dropper_color;
};

struct Picked_Color {
    Mouse_Button side = Mouse_Button::left;
    Color color;
};

// What a stroke changes in the state of the tools: the figures that show from then on, and the rest where it
// is there.
struct Stroke_Findings {
    Tool_Figures figures;
    std::optional<Picked_Color> picked = {};
    std::optional<std::int64_t> lightness_step = {}; // when it was made, in milliseconds
};

// What a step of the history gives back.
struct Tool_In_Hand {
    Tool tool = Tool::pen;
    bool is_erasing = false;
};

struct Tool_State {
    Command command = Command::pen;
    Command previous_command = Command::pen;
    Tool tool = Tool::pen;
    // The pen makes pixels transparent with either button, until a tool is selected.
    bool is_erasing = false;
    // The dropper takes the place of the tool for a while.
    bool is_picking = false;
    Tool_Options options;
    Tool_Colors colors;
    Chosen_Brush chosen_brush;
    Brush_Pad brush_pad;
    Tool_Figures figures;
    std::int64_t last_lightness_step = -1000; // milliseconds; the first step is never too early

    // Any command may come here; one that selects a tool makes it the current one.
    void select(Command command);
    void take(const Stroke_Findings& found);

    // The operations of the brush pad. What is its current brush then becomes the one that the stamp brush
    // paints with, or a built-in one without.
    bool use_as_brush(const Tile& picture, const Tile& mask);
    bool move_to_pad();
    bool delete_brush();
    bool choose_from_pad(Tile_Point cell);
    // After a built-in brush took its place; false where there is no brush to bring back, or it is in use.
    bool bring_stamp_back();

    [[nodiscard]] Tool_In_Hand in_hand() const { return {tool, is_erasing}; }
    [[nodiscard]] const Brush& brush() const { return chosen_brush.brush(); }
    // The command of the tool, or of the one that takes its place.
    [[nodiscard]] Command command_in_use() const { return is_picking ? Command::dropper : command; }
    // What a stroke on the canvas does now.
    [[nodiscard]] Canvas_Action canvas_action() const;
    // Of the tool in use, for rectangles and ellipses.
    [[nodiscard]] Shape_Type shape_type() const;
    // Of rectangles, or of ellipses.
    [[nodiscard]] Shape_Type& shape_type_of(Tool shape) {
        return shape == Tool::ellipse ? options.ellipse_type : options.rectangle_type;
    }
    // How the brush is laid by the pen, or by the stamp brush.
    [[nodiscard]] Pen_Mode pen_mode() const;
    // Also for the stamp brush, which has no brush rows.
    [[nodiscard]] bool uses_brush() const;
    // The flood fill lays the brush side by side.
    [[nodiscard]] bool fills_with_brush() const {
        return tool == Tool::flood_fill && options.fill_mode == Fill_Mode::stamp;
    }
    // The four selectors, and the tool that moves what they selected.
    [[nodiscard]] bool is_in_selection_group() const;
    // Whether a paste that floats over the canvas is to be seen.
    [[nodiscard]] bool shows_floating_paste() const;
    // The colour that the brush paints in while that button is held or none is; none for its own colours.
    [[nodiscard]] std::optional<Color> brush_color(Mouse_Button button) const;
    // The brush's corner when it is applied at the position.
    [[nodiscard]] Tile_Point brush_corner(Tile_Point position) const;
    // What the lightness pen does at `now`, in milliseconds, while that button is held; none while it is too
    // early.
    [[nodiscard]] std::optional<Pixel_Operation> lightness_step(std::int64_t now, Mouse_Button button) const;

private:
    void take_pad_brush();
};

} // namespace quadrelle
