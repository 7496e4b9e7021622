#include "ui/modal_dialog.h"

#include "screen/screen.h"
#include "ui/control.h"

#include <utility>
#include <vector>

namespace quadrelle {

namespace {

struct Shown {
    Draw_Function window;
    std::vector<Draw_Function> dialogs; // the latest one on top
    // The y that accepted one is not to be typed into the one below: its text comes next.
    bool has_taken_letter = false;
};

Shown& shown() {
    static Shown what_is_shown;
    return what_is_shown;
}

class Dialog_Layer {
public:
    explicit Dialog_Layer(Draw_Function draw) {
        shown().dialogs.push_back(std::move(draw));
        forget_press();
    }
    ~Dialog_Layer() {
        shown().dialogs.pop_back();
        forget_press();
    }
    Dialog_Layer(const Dialog_Layer&) = delete;
    Dialog_Layer& operator=(const Dialog_Layer&) = delete;
};

bool accepts(Dialog_Keys keys, const Key_Chord& chord) {
    const bool is_enter = chord.key == key::enter || chord.key == key::keypad_enter;
    return is_enter || (chord == Key_Chord{'y', Modifier::none} && keys == Dialog_Keys::enter_or_y);
}

Loop_Step answer(const Modal_Dialog& dialog, const Input_Event& event) {
    const Key_Chord chord = event.kind == Input_Kind::key_press ? event.chord : Key_Chord{};
    const bool ends = chord.key == key::escape || accepts(dialog.keys, chord);
    // It was meant for what was there when it went down, maybe a dialog that is gone.
    if (ends && event.is_repeat) {
        return Loop_Step::go_on;
    }
    if (event.kind == Input_Kind::quit || chord.key == key::escape) {
        return Loop_Step::end;
    }
    if (event.kind == Input_Kind::typed_text && std::exchange(shown().has_taken_letter, false)) {
        return Loop_Step::go_on;
    }
    const bool is_accepted = accepts(dialog.keys, chord);
    if (event.kind == Input_Kind::key_press) {
        shown().has_taken_letter = is_accepted && chord.key == 'y';
    }
    return is_accepted ? dialog.accept() : dialog.handle(event);
}

} // namespace

void set_backdrop(Draw_Function draw) {
    shown().window = std::move(draw);
}

namespace {

void draw_behind_dialog() {
    const Behind all_of_it;
    if (shown().window) {
        shown().window();
    } else {
        screen->clear();
    }
    for (std::size_t i = 0; i + 1 < shown().dialogs.size(); ++i) {
        shown().dialogs[i]();
    }
}

} // namespace

void show_backdrop() {
    show_over_backdrop({});
}

void show_over_backdrop(const Draw_Function& draw) {
    draw_behind_dialog();
    if (!shown().dialogs.empty()) {
        shown().dialogs.back()();
    }
    if (draw) {
        draw();
    }
    screen->present();
}

void run_dialog(const Modal_Dialog& dialog) {
    if (shown().dialogs.empty()) {
        shown().has_taken_letter = false;
    }
    const Dialog_Layer layer(dialog.draw);
    run_modal(
        {dialog.name, show_backdrop, [&dialog](const Input_Event& event) { return answer(dialog, event); }});
}

} // namespace quadrelle
