#include "app/view_commands.h"

#include "app/editor_parts.h"
#include "panes/toolbox.h"
#include "views/real_size.h"

namespace quadrelle::view_commands {

Outcome zoom(Editor_Parts& editor, Zoom_Step step) {
    return editor.canvas.zoom(step) ? Outcome::done : Outcome::refused;
}

Outcome centre(Editor_Parts& editor) {
    editor.canvas.centre();
    return Outcome::done;
}

Outcome view_in_real_size(Editor_Parts& editor) {
    show_real_size(editor.canvas.shown_tile(toolbox->state()));
    return Outcome::done;
}

} // namespace quadrelle::view_commands
