#include "ui/dialogs.h"

#include "screen/screen.h"
#include "ui/dialog_container.h"
#include "ui/number_prompt.h"

#include <algorithm>

namespace quadrelle {

std::unique_ptr<Dialogs> dialogs;

namespace {

// The text leaves a margin above the buttons, and is wide enough for the title.
void add_text(Dialog_Container& dialog, std::string_view text) {
    Dialog_Item& item = *dialog.add_text_row(text).items().front();
    item.area.width = std::max(item.area.width, dialog.frame().title_width());
    item.area.height += dialog_margin;
}

} // namespace

Dialogs::Dialogs() = default;

Dialogs::~Dialogs() = default;

void Dialogs::message(std::string_view title, std::string_view text) {
    Dialog_Container dialog(title);
    add_text(dialog, text);
    dialog.finish_ok();
    dialog.run();
}

bool Dialogs::ask(std::string_view title, std::string_view question) {
    Dialog_Container dialog(title);
    add_text(dialog, question);
    dialog.finish_ok_cancel();
    return dialog.run();
}

int Dialogs::ask_number(Point position, int value, int low, int high) {
    return ask_signed_number(position, value, low, high).value_or(no_number);
}

std::optional<int> Dialogs::ask_signed_number(Point position, int value, int low, int high) {
    return Number_Prompt(position, value, low, high).run();
}

void Dialogs::draw_backdrop() const {
    if (backdrop_) {
        backdrop_();
    } else {
        screen->clear();
    }
    for (const Draw_Function& draw_layer : layers_) {
        draw_layer();
    }
}

void Dialogs::show_backdrop() const {
    draw_backdrop();
    screen->present();
}

Dialog_Layer::Dialog_Layer(Draw_Function draw) {
    dialogs->layers_.push_back(std::move(draw));
}

Dialog_Layer::~Dialog_Layer() {
    dialogs->layers_.pop_back();
}

} // namespace quadrelle
