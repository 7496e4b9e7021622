#pragma once

// Owns the state of the tools, and the panes that show it and in which tools and their options are chosen.

#include "base/geometry.h"
#include "base/input.h"
#include "commands/command.h"
#include "panes/brush_pad_panes.h"
#include "panes/brush_selector.h"
#include "panes/hint.h"
#include "panes/tool_option_panes.h"
#include "tools/tool_state.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace quadrelle {

class Toolbox {
public:
    // `position` is the top-left corner of the tool list. Reads the brush pad from the data directory; a file
    // that is shorter than it says is fatal.
    explicit Toolbox(Point position);
    // Writes the brush pad when it was changed; says nothing when it cannot.
    ~Toolbox();
    // Writes the brush pad where it was changed since it was written, or tried to. Answers false when it
    // cannot.
    bool keep_brush_pad();

    [[nodiscard]] const Tool_State& state() const { return state_; }
    // It may be changed at any time: the panes read it anew whenever they are shown.
    [[nodiscard]] Tool_State& state() { return state_; }
    [[nodiscard]] Command current_command() const { return state_.command; }
    [[nodiscard]] Command previous_command() const { return state_.previous_command; }
    [[nodiscard]] Tool current_tool() const { return state_.tool; }
    [[nodiscard]] const Brush& brush() const { return state_.brush(); }
    [[nodiscard]] const Brush_Pad& brush_pad() const { return state_.brush_pad; }
    [[nodiscard]] Tool_Options& options() { return state_.options; }
    [[nodiscard]] Tool_Figures& figures() { return state_.figures; }

    // Any command may come here; one that selects a tool makes it the current one.
    void select(Command command);
    // The index goes from 0 to 5.
    void select_brush_size(int size_index) { state_.chosen_brush.select_size(size_index); }
    // These are the operations of the brush pad; they return false when there is nothing to do.
    bool use_as_brush(const Tile& picture, const Tile& mask) { return state_.use_as_brush(picture, mask); }
    bool move_to_pad() { return state_.move_to_pad(); }
    bool delete_brush() { return state_.delete_brush(); }
    void take(const Stroke_Findings& found) { state_.take(found); }

    // Returns the y of the chosen tool's entry in the list.
    [[nodiscard]] int entry_top() const;

    // What lies under the pointer may show it.
    void draw(Point pointer);
    // Returns the tool whose entry in the list is at `point` and not covered, or none.
    [[nodiscard]] Command command_at(Point point) const;
    // Returns the pane beside the list that is at `point`, if any.
    [[nodiscard]] std::optional<Place> place_at(Point point) const;
    // Returns the button whose colour the tool shows in the pane at `point`, if any.
    [[nodiscard]] std::optional<Mouse_Button> button_color_at(Point point) const;
    // Returns true when an option, a brush, one of the pad too, or a colour was chosen. `redraw` draws and
    // presents the window, while the pointer is followed.
    bool click(const Pointer_State& pointer, const std::function<void()>& redraw);

private:
    void lay_out();
    // With the tools that lay it, for those whose rows do not show it.
    [[nodiscard]] bool shows_selected_brush() const;
    [[nodiscard]] bool click_options(Point point);
    [[nodiscard]] bool click_selected_brush(Point point);
    [[nodiscard]] bool click_brush_pad(Point point);
    [[nodiscard]] Rectangle entry_area(std::size_t index) const;

    Point position_;
    int rows_top_ = 0; // of the chosen tool's rows, which cover entries below them
    int rows_bottom_ = 0;
    Tool_State state_;
    Brush_Selector brush_selector_;
    Tool_Option_Panes option_panes_;
    int tried_revision_ = 0; // of the brush pad, when it was to be written last
    Brush_Pad_Panes brush_pad_panes_;
};

// Built at start-up inside the data directory, destroyed there too.
extern std::unique_ptr<Toolbox> toolbox;

} // namespace quadrelle
