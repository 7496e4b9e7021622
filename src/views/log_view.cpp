#include "views/log_view.h"

#include "base/debug_monitor.h"
#include "screen/screen.h"
#include "ui/dialogs.h"

#include <algorithm>
#include <string>

namespace quadrelle {

namespace {

// What the dialog's title, its margins and its button leave free.
constexpr int lines_around_text = 4;

} // namespace

void show_log() {
    const int rows = std::max(screen->text_rows() - lines_around_text, 1);
    const std::string text = debug_monitor->newest_lines(static_cast<std::size_t>(rows));
    dialogs->message("Debug monitor", text.empty() ? "No messages." : text);
}

} // namespace quadrelle
