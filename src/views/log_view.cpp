#include "views/log_view.h"

#include "base/debug_monitor.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "screen/sprite_sheet.h"
#include "screen/text_input.h"
#include "ui/dialog_frame.h"
#include "ui/modal_dialog.h"
#include "ui/scroll_bar.h"
#include "ui/shown_text.h"
#include "ui/text_button.h"
#include "ui/wrapped_text.h"

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace quadrelle {

namespace {

constexpr Font font = Font::pane;
constexpr int row_height = line_height(font);
constexpr int rows_in_box = 24;
constexpr int border = 1;
constexpr int text_inset = 6;
constexpr Size box_size{760, rows_in_box* row_height + 2 * border};
constexpr int ok_width = 70;
constexpr int copy_width = 120;
constexpr int text_drop = 3;
constexpr int all_rows = std::numeric_limits<int>::max();

struct Layout {
    explicit Layout(const Rectangle& frame)
        : box{frame.x + dialog_margin, frame.y + dialog_title_height + dialog_margin, box_size.width,
              box_size.height},
          bar{box.right() - border - Scroll_Bar::width, box.y + border, Scroll_Bar::width,
              box.height - 2 * border},
          ok{box.x, box.bottom() + dialog_margin, ok_width, text_button_height}, copy{box.right() -
                                                                                          copy_width,
                                                                                      ok.y, copy_width,
                                                                                      text_button_height} {}

    Rectangle box, bar, ok, copy;
};

Dialog_Frame sized_frame() {
    Dialog_Frame frame("Debug monitor");
    frame.set_size(
        {box_size.width + 2 * dialog_margin, box_size.height + text_button_height + 3 * dialog_margin});
    return frame;
}

class Log_View {
public:
    Log_View();
    void run();

private:
    void draw() const;
    Loop_Step handle(const Input_Event& event);
    void handle_key(const Key_Chord& chord);
    Loop_Step press(Point point);
    void copy();

    Dialog_Frame frame_ = sized_frame();
    Layout layout_{frame_.area()};
    Scroll_Bar bar_{layout_.bar, rows_in_box};
    Text_Button ok_{"Ok", layout_.ok};
    Text_Button copy_{"Copy all", layout_.copy};
    std::vector<std::string> rows_;
    std::string_view answer_ = "Wheel and arrow keys scroll, Ctrl+c copies all.";
};

// The newest line is the one that is looked for.
Log_View::Log_View() {
    const int width = layout_.bar.x - layout_.box.x - 2 * text_inset;
    for (const std::string& line : message_log->lines()) {
        for (std::string& row : wrapped_text(font, shown_text(line), width)) {
            rows_.push_back(std::move(row));
        }
    }
    if (rows_.empty()) {
        rows_.emplace_back("No messages.");
    }
    bar_.set_count(static_cast<int>(rows_.size()));
    bar_.scroll(all_rows);
}

void Log_View::run() {
    run_dialog({"dialog \"Debug monitor\"", [this] { draw(); },
                [this](const Input_Event& event) { return handle(event); }, [] { return Loop_Step::end; }});
}

void Log_View::draw() const {
    frame_.draw();
    screen->fill_rect(layout_.box, standard_color(Standard_Color::dark_frame));
    Point position{layout_.box.x + text_inset, layout_.box.y + border};
    for (int row = bar_.first(); row < bar_.end(); ++row) {
        screen->draw_text(font, position, rows_[static_cast<std::size_t>(row)]);
        position.y += row_height;
    }
    bar_.draw();
    screen->draw_outline(layout_.box, standard_color(Standard_Color::frame));
    ok_.draw(Button_Look::by_default);
    screen->draw_text(font, {layout_.ok.right() + 2 * dialog_margin, layout_.ok.y + text_drop}, answer_);
    copy_.draw(Button_Look::plain);
}

Loop_Step Log_View::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::key_press: handle_key(event.chord); break;
    case Input_Kind::wheel: bar_.scroll_by_wheel(event.moved.y); break;
    case Input_Kind::pointer_motion: bar_.drag(event.pointer.point()); break;
    case Input_Kind::button_release: bar_.release(); break;
    case Input_Kind::button_press: return press(event.pointer.point());
    default: break;
    }
    return Loop_Step::go_on;
}

void Log_View::handle_key(const Key_Chord& chord) {
    if (chord == Key_Chord{'c', Modifier::control}) {
        copy();
        return;
    }
    switch (chord.key) {
    case key::up: bar_.scroll(-1); break;
    case key::down: bar_.scroll(1); break;
    case key::page_up: bar_.scroll(-bar_.page()); break;
    case key::page_down: bar_.scroll(bar_.page()); break;
    case key::home: bar_.scroll(-all_rows); break;
    case key::end: bar_.scroll(all_rows); break;
    default: break;
    }
}

Loop_Step Log_View::press(Point point) {
    if (copy_.contains(point)) {
        copy();
    }
    return bar_.press(point) || !ok_.contains(point) ? Loop_Step::go_on : Loop_Step::end;
}

void Log_View::copy() {
    std::string text;
    for (const std::string& line : message_log->lines()) {
        text.append(line).append("\n");
    }
    set_clipboard_text(text);
    answer_ = "All lines lie on the clipboard.";
}

} // namespace

void show_log() {
    Log_View().run();
}

} // namespace quadrelle
