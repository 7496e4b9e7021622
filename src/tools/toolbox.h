#pragma once

// The tool that is in use, and the panes in which tools and their options are chosen.

#include "app/command.h"
#include "app/geometry.h"
#include "app/input.h"
#include "tools/brush_selector.h"
#include "tools/canvas_action.h"
#include "tools/tool_catalogue.h"

#include <memory>

namespace quadrelle {

class Toolbox {
public:
    // The top-left corner of the tool list.
    explicit Toolbox(Point position);
    ~Toolbox();

    // Any command may come here; one that selects a tool makes it the current one.
    void select(Command command);
    [[nodiscard]] Command current_command() const { return current_command_; }
    [[nodiscard]] Command previous_command() const { return previous_command_; }
    [[nodiscard]] Tool current_tool() const { return current_tool_; }
    // What a stroke on the canvas does now.
    [[nodiscard]] Canvas_Action canvas_action() const;
    [[nodiscard]] const Brush& brush() const { return brush_selector_.brush(); }
    // From the brush's corner to the pointer in window pixels: half the brush while it is centred on the
    // pointer.
    [[nodiscard]] Point pointer_offset(int pixel_size) const;

    // 0 to 5.
    void select_brush_size(int size_index) { brush_selector_.select_size(size_index); }

    void draw() const;
    // True when something was chosen.
    bool click(const Pointer_State& pointer);

private:
    void lay_out();

    Point position_;
    Command current_command_ = Command::pen;
    Command previous_command_ = Command::pen;
    Tool current_tool_ = Tool::pen;
    Brush_Selector brush_selector_;
};

// Built at start-up inside the data directory, destroyed there too.
extern std::unique_ptr<Toolbox> toolbox;

} // namespace quadrelle
