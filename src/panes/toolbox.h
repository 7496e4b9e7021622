#pragma once

// The tool that is in use, and the panes in which tools and their options are chosen.

#include "base/geometry.h"
#include "base/input.h"
#include "commands/command.h"
#include "panes/brush_pad_panes.h"
#include "panes/brush_selector.h"
#include "panes/hint.h"
#include "panes/tool_options.h"
#include "tools/brush_pad.h"
#include "tools/canvas_action.h"
#include "tools/pens.h"
#include "tools/tool_catalogue.h"

#include <functional>
#include <memory>
#include <optional>

namespace quadrelle {

// What becomes of a floating paste when it is plotted: it is gone, it floats on, or it stays in its place and
// shows whatever tool is in use.
enum class Selection_Mode : std::int32_t { standard, persistent, fixed };
enum class Wand_Mode : std::int32_t { normal, quick_copy, quick_cut };
enum class Scroll_Move : std::int32_t { both, pixels, selection };

class Toolbox {
public:
    // The top-left corner of the tool list. Reads the brush pad from the data directory; a file that is
    // shorter than it says is fatal.
    explicit Toolbox(Point position);
    // Writes the brush pad when it was changed; says nothing when it cannot.
    ~Toolbox();

    // Any command may come here; one that selects a tool makes it the current one.
    void select(Command command);
    [[nodiscard]] Command current_command() const { return current_command_; }
    [[nodiscard]] Command previous_command() const { return previous_command_; }
    [[nodiscard]] Tool current_tool() const { return current_tool_; }
    // The rows of the tools' options and figures.
    [[nodiscard]] Tool_Options& options() { return options_; }
    [[nodiscard]] int value(Tool_Option option) const { return options_.value(option); }
    [[nodiscard]] Selection_Mode selection_mode() const {
        return static_cast<Selection_Mode>(value(Tool_Option::selection_mode));
    }
    // Of the tool in use, for rectangles and ellipses.
    [[nodiscard]] Shape_Type shape_type() const;
    // What the lightness pen does at `now`, in milliseconds, while that button is held; none while it is too
    // early. A step is the last one from then on.
    [[nodiscard]] std::optional<Pixel_Operation> lightness_step(std::int64_t now, Mouse_Button button);

    // What a stroke on the canvas does now.
    [[nodiscard]] Canvas_Action canvas_action() const;
    [[nodiscard]] const Brush& brush() const { return brush_selector_.brush(); }
    // Also for the stamp brush, which has no brush rows.
    [[nodiscard]] bool uses_brush() const;
    // The four selectors, and the tool that moves what they selected.
    [[nodiscard]] bool is_in_selection_group() const;
    // Where the column beside the chosen tool's entry begins.
    [[nodiscard]] Point beside_entry() const;
    // Whether a paste that floats over the canvas is to be seen.
    [[nodiscard]] bool shows_floating_paste() const;
    // What shows of the brush on the canvas, while that button is held or none is.
    [[nodiscard]] bool shows_brush_outline() const;
    [[nodiscard]] bool shows_brush_preview(Mouse_Button button = Mouse_Button::none) const;
    // The colour that the brush paints in then; none for its own colours.
    [[nodiscard]] std::optional<Color> brush_color(Mouse_Button button) const;
    // The brush's corner when it is applied at the position.
    [[nodiscard]] Tile_Point brush_corner(Tile_Point position) const;
    // How the brush is laid by the pen, or by the stamp brush.
    [[nodiscard]] Pen_Mode pen_mode() const;
    // From the brush's corner to the pointer in window pixels: half the brush while it is centred on the
    // pointer.
    [[nodiscard]] Point pointer_offset(int pixel_size) const;

    // 0 to 5.
    void select_brush_size(int size_index) { brush_selector_.select_size(size_index); }

    [[nodiscard]] const Brush_Pad& brush_pad() const { return brush_pad_; }
    // The operations of the brush pad. What is its current brush then becomes the one that the stamp brush
    // paints with, or a built-in one without.
    bool use_as_brush(const Tile& picture, const Tile& mask);
    bool move_to_pad();
    bool delete_brush();

    // What lies under the pointer may show it.
    void draw(Point pointer);
    // The tool whose entry in the list is there and not covered, or none.
    [[nodiscard]] Command command_at(Point point) const;
    // The pane beside the list that is there, if any.
    [[nodiscard]] std::optional<Place> place_at(Point point) const;
    // True when an option, a brush, one of the pad too, or a colour was chosen. `redraw` draws and presents
    // the window, while the pointer is followed.
    bool click(const Pointer_State& pointer, const std::function<void()>& redraw);

private:
    void lay_out();
    void take_pad_brush();
    [[nodiscard]] bool has_brush_pad_at(Point point) const;
    [[nodiscard]] bool click_brush_pad(Point point);
    [[nodiscard]] Rectangle entry_area(std::size_t index) const;

    Point position_;
    int rows_top_ = 0; // of the chosen tool's rows, which cover entries below them
    int rows_bottom_ = 0;
    Command current_command_ = Command::pen;
    Command previous_command_ = Command::pen;
    Tool current_tool_ = Tool::pen;
    std::int64_t last_step_time_ = -1000; // so that the first step is never too early
    Brush_Selector brush_selector_;
    Tool_Options options_;
    Brush_Pad brush_pad_;
    Brush_Pad_Panes brush_pad_panes_;
};

// Built at start-up inside the data directory, destroyed there too.
extern std::unique_ptr<Toolbox> toolbox;

} // namespace quadrelle
