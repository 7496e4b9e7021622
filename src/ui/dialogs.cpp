#include "ui/dialogs.h"

#include "base/debug_monitor.h"
#include "ui/dialog_container.h"

#include <string>

namespace quadrelle {

std::unique_ptr<Dialogs> dialogs;

void Dialogs::message(std::string_view title, std::string_view text) const {
    trace(std::string(title) + ": " + std::string(text));
    run_message(title, text);
}

bool Dialogs::ask(std::string_view title, std::string_view question) const {
    Dialog_Container dialog(title);
    dialog.add_message(question);
    dialog.finish_ok_cancel();
    return dialog.run();
}

} // namespace quadrelle
