#include "ui/dialogs.h"

#include "base/debug_monitor.h"
#include "base/platform_files.h"
#include "ui/button_dialog_item.h"
#include "ui/dialog_container.h"
#include "ui/shown_text.h"

#include <string>

namespace quadrelle {

std::unique_ptr<Dialogs> dialogs;

void Dialogs::message(std::string_view title, std::string_view text) const {
    trace(std::string(title) + ": " + std::string(text));
    run_message(title, text);
}

void Dialogs::file_message(std::string_view text, std::string_view path) const {
    constexpr int widest = 1000;
    std::string whole(text);
    for (const std::string& line : {std::string(path), last_file_fault()}) {
        whole += line.empty() ? "" : "\r" + fitted_text(Font::regular, line, widest, Left_Out::middle);
    }
    message("Note", whole);
}

bool Dialogs::ask(std::string_view title, std::string_view question) const {
    return ask(title, question, Button_Type::ok);
}

bool Dialogs::ask(std::string_view title, std::string_view question, Button_Type yes) const {
    Dialog_Container dialog(title);
    dialog.add_message(question);
    dialog.finish_ok_cancel(yes);
    return dialog.run();
}

} // namespace quadrelle
