#include "views/color_editor.h"

#include "color/color_edit.h"
#include "color/standard_colors.h"
#include "screen/events.h"
#include "screen/screen.h"
#include "screen/text_input.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/text_button.h"
#include "ui/window_layout.h"
#include "views/color_data_view.h"
#include "views/color_database_view.h"

namespace quadrelle {

namespace {

constexpr int tab_height = 24;
constexpr int gap = 10;
constexpr int content_height = 340;
constexpr Rectangle frame_area{
    window_layout::beside_canvas.x, window_layout::beside_canvas.y, window_layout::beside_canvas.width,
    dialog_title_height + tab_height + content_height + text_button_height + 4 * gap};
constexpr Rectangle inside{frame_area.x + gap, frame_area.y + dialog_title_height + gap,
                           frame_area.width - 2 * gap, frame_area.height - dialog_title_height - 2 * gap};
constexpr Rectangle content{inside.x, inside.y + tab_height + gap, inside.width, content_height};
constexpr int buttons_y = inside.bottom() - text_button_height;

enum class View { data, database };

void draw_right_aligned(std::string_view text, int y) {
    screen->draw_text(Font::pane, {inside.right() - screen->text_width(Font::pane, text), y}, text);
}

class Color_Editor {
public:
    Color_Editor(std::string_view what, Color color);
    std::optional<Color> run();

private:
    void draw() const;
    Loop_Step handle(const Input_Event& event);
    Loop_Step press(const Input_Event& event);
    Loop_Step hand_on(const Input_Event& event);
    Loop_Step accept();
    void show(View view);

    std::string_view what_;
    Color_Edit edit_;
    View view_ = View::data;
    Dialog_Frame frame_{"Color editor"};
    Text_Button data_tab_{"Data", {inside.x, inside.y, 90, tab_height}};
    Text_Button database_tab_{"Database", {inside.x + 94, inside.y, 110, tab_height}};
    Text_Button ok_{"Ok", {inside.x, buttons_y, 70, text_button_height}};
    Text_Button cancel_{"Cancel", {inside.right() - 85, buttons_y, 85, text_button_height}};
    Color_Data_View data_;
    Color_Database_View database_;
    bool is_accepted_ = false;
};

Color_Editor::Color_Editor(std::string_view what, Color color)
    : what_(what), edit_(color), data_(edit_, content), database_(edit_, content) {
    frame_.set_area(frame_area);
}

std::optional<Color> Color_Editor::run() {
    const Text_Input text_input;
    run_dialog({"dialog \"Color editor\"", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [this] { return accept(); }});
    return is_accepted_ ? std::optional(edit_.color()) : std::nullopt;
}

void Color_Editor::draw() const {
    frame_.draw();
    draw_right_aligned(what_, frame_area.y + 2);
    data_tab_.draw(view_ == View::data ? Button_Look::chosen : Button_Look::plain);
    database_tab_.draw(view_ == View::database ? Button_Look::chosen : Button_Look::plain);
    draw_right_aligned("Tab switches", inside.y + 1);
    if (view_ == View::data) {
        data_.draw();
    } else {
        database_.draw();
    }
    ok_.draw(Button_Look::by_default);
    cancel_.draw(Button_Look::plain);
}

Loop_Step Color_Editor::handle(const Input_Event& event) {
    if (event.kind == Input_Kind::button_press) {
        return press(event);
    }
    if (event.kind == Input_Kind::key_press && event.chord.key == key::tab) {
        show(view_ == View::data ? View::database : View::data);
    }
    return hand_on(event);
}

Loop_Step Color_Editor::press(const Input_Event& event) {
    const Point point = event.pointer.point();
    if (event.pointer.button == Mouse_Button::none) {
        return Loop_Step::go_on;
    }
    if (cancel_.contains(point)) {
        return Loop_Step::end;
    }
    if (ok_.contains(point)) {
        return accept();
    }
    if (data_tab_.contains(point) || database_tab_.contains(point)) {
        show(data_tab_.contains(point) ? View::data : View::database);
        return Loop_Step::go_on;
    }
    return hand_on(event);
}

Loop_Step Color_Editor::hand_on(const Input_Event& event) {
    if (view_ == View::data) {
        data_.handle(event);
        return Loop_Step::go_on;
    }
    return database_.handle(event) == List_Answer::accepted ? accept() : Loop_Step::go_on;
}

// An unfinished text stays where the reason is seen.
Loop_Step Color_Editor::accept() {
    if (view_ == View::data && !data_.is_complete()) {
        return Loop_Step::go_on;
    }
    is_accepted_ = true;
    return Loop_Step::end;
}

void Color_Editor::show(View view) {
    view_ = view;
    data_.refresh();
}

} // namespace

std::optional<Color> edit_color(std::string_view what, Color color) {
    return Color_Editor(what, color).run();
}

} // namespace quadrelle
