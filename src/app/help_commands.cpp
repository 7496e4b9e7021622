#include "app/help_commands.h"

#include "app/editor_parts.h"
#include "ui/dialogs.h"
#include "views/about.h"
#include "views/help_lists.h"
#include "views/log_view.h"
#include "views/self_check.h"

#include <variant>

namespace quadrelle::help_commands {

Outcome context_info(Editor_Parts& editor) {
    Pointed thing = editor.panes.pointed(editor.pointer.point());
    if (std::holds_alternative<Pointed_Pixel>(thing)) {
        thing = Window_Panes::tool_in_use();
    }
    const auto* const place = std::get_if<Place>(&thing);
    const Hint help = place != nullptr ? help_of(*place) : help_of(std::get<Command>(thing));
    dialogs->message(help.title, help.text);
    return Outcome::done;
}

Outcome keyboard_commands(Editor_Parts& /*editor*/) {
    make_keyboard_dialog().run();
    return Outcome::done;
}

Outcome mouse_commands(Editor_Parts& /*editor*/) {
    make_mouse_dialog().run();
    return Outcome::done;
}

Outcome about(Editor_Parts& /*editor*/) {
    show_about();
    return Outcome::done;
}

Outcome debug_monitor(Editor_Parts& /*editor*/) {
    show_log();
    return Outcome::done;
}

// What is to be looked at first when something is wrong on another machine.
Outcome test(Editor_Parts& editor) {
    check_installation();
    return debug_monitor(editor);
}

} // namespace quadrelle::help_commands
