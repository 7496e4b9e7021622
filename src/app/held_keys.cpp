#include "app/held_keys.h"

#include "app/editor_parts.h"
#include "panes/toolbox.h"
#include "screen/events.h"

namespace quadrelle {

namespace {

bool is_over_selection(const Editor_Parts& editor) {
    const Point point = editor.pointer.point();
    return toolbox->state().is_in_selection_group() && window_layout::canvas.contains(point) &&
           editor.canvas.work_area().selection().contains(editor.canvas.cell_at(point));
}

bool is_over_paste(const Editor_Parts& editor) {
    const Point point = editor.pointer.point();
    const bool is_in_hand = toolbox->current_tool() == Tool::selection && editor.desk.shows_paste();
    return is_in_hand && editor.canvas.handle_at(point, toolbox->state()) == Paste_Handle::none &&
           editor.canvas.work_area().paste()->contains(editor.canvas.cell_at(point));
}

} // namespace

Press_Meaning meaning_of_press(const Editor_Parts& editor) {
    const Held_Modifiers held = held_modifiers();
    if (held.control) {
        const bool is_over_something = is_over_selection(editor) || is_over_paste(editor);
        return is_over_something ? Press_Meaning::moves_copy : Press_Meaning::uses_tool;
    }
    if (!held.alt || held.shift) {
        return Press_Meaning::uses_tool;
    }
    const bool moves_outline = is_over_selection(editor) && toolbox->current_tool() != Tool::selection;
    return moves_outline ? Press_Meaning::moves_outline : Press_Meaning::picks_color;
}

void follow_held_keys(const Editor_Parts& editor) {
    toolbox->state().is_picking = meaning_of_press(editor) == Press_Meaning::picks_color;
}

} // namespace quadrelle
