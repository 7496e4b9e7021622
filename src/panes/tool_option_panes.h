#pragma once

// The option rows of the tools: they show what each tool was told, take the clicks that tell it otherwise,
// and show its figures. They keep nothing of it themselves.

#include "panes/tool_color.h"
#include "tools/tool_state.h"
#include "ui/dialog_pane.h"
#include "ui/location_info.h"
#include "ui/number_info.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace quadrelle {

class Tool_Option_Panes {
public:
    Tool_Option_Panes();
    ~Tool_Option_Panes();

    // Shows the tool's rows from `position` downwards and returns the y for what comes below.
    int place(Tool tool, Point position);
    void draw(const Tool_State& state);
    // Returns true when a visible row took the click.
    bool click(Point point, Tool_Options& options);

private:
    [[nodiscard]] std::vector<Pane*> figures_of(Tool tool);
    void show(const Tool_Figures& figures);

    std::vector<std::unique_ptr<Dialog_Pane>> options_; // in the order of the table
    Location_Info location_;
    Location_Info size_;
    Location_Info radius_;
    Location_Info offset_;
    Number_Info length_;
    Number_Info degrees_;
    Tool_Color dropper_color_;
    std::vector<std::size_t> visible_options_;
    std::vector<Pane*> visible_figures_;
};

} // namespace quadrelle
