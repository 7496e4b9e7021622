#include "ui/dialog_event.h"

#include "screen/screen.h"

namespace quadrelle {

// The blanks at the end wipe out the rest of a longer text before it.
std::string trace_text(const Dialog_Event& event) {
    return "Type: " + std::string(row_of(event.kind).name) + ", target: " + std::to_string(event.target) +
           "       ";
}

void draw_trace(const Dialog_Event& event) {
    screen->draw_text(Font::regular, {2, 2}, trace_text(event));
}

} // namespace quadrelle
