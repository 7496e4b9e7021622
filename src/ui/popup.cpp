#include "ui/popup.h"

#include "base/wheel_steps.h"
#include "color/standard_colors.h"
#include "screen/screen.h"
#include "ui/modal_dialog.h"
#include "ui/window_layout.h"

#include <algorithm>

namespace quadrelle {

namespace {

constexpr Font font = Font::pane;
constexpr int row_height = 19;
constexpr int separator_height = 9;
constexpr int text_rise = 1;
constexpr int margin = 3;
constexpr int text_inset = 10;
constexpr int widest = 400;
constexpr int mark_edge = 4;
// Below it stands what explains the rows.
constexpr int lowest = window_layout::hint_lines.y;

class Open_Popup {
public:
    Open_Popup(Point corner, const Popup& popup);
    std::optional<std::size_t> run();

private:
    [[nodiscard]] int count() const { return static_cast<int>(popup_.rows.size()); }
    [[nodiscard]] const Popup_Row& row(int index) const {
        return popup_.rows.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] bool can_choose(int index) const {
        return index >= 0 && index < count() && row(index).is_usable && !row(index).text.empty();
    }
    [[nodiscard]] int height_of(int index) const {
        return row(index).text.empty() ? separator_height : row_height;
    }
    // Returns the last row that has room when the list begins there, and the first one it has to begin with
    // so that the last one has.
    [[nodiscard]] int last_shown(int first) const;
    [[nodiscard]] int first_for(int last) const;
    [[nodiscard]] Rectangle area_of(int index) const;
    [[nodiscard]] int row_at(Point point) const;
    void draw() const;
    void draw_row(int index) const;
    Loop_Step handle(const Input_Event& event);
    void handle_key(Keycode pressed);
    Loop_Step press(Point point);
    Loop_Step accept();
    void light(int index);
    void scroll_to(int first);

    const Popup& popup_;
    int first_ = 0;
    Wheel_Steps wheel_;
    int lit_ = -1;
    Rectangle box_;
    std::optional<std::size_t> chosen_;
};

Open_Popup::Open_Popup(Point corner, const Popup& popup) : popup_(popup) {
    for (const Popup_Row& each : popup.rows) {
        box_.width = std::clamp(screen->text_width(font, each.text) + 2 * text_inset, box_.width, widest);
    }
    for (int i = 0; i < count(); ++i) {
        box_.height += height_of(i);
    }
    box_.height = std::min(box_.height + 2 * margin, lowest);
    box_.x = std::clamp(corner.x, 0, screen->size().width - box_.width);
    box_.y = std::clamp(corner.y, 0, lowest - box_.height);
    const auto marked = std::ranges::find(popup.rows, true, &Popup_Row::is_marked);
    if (marked != popup.rows.end()) {
        scroll_to(first_for(static_cast<int>(marked - popup.rows.begin())));
    }
}

std::optional<std::size_t> Open_Popup::run() {
    run_dialog({"popup", [this] { draw(); }, [this](const Input_Event& event) { return handle(event); },
                [this] { return accept(); }, Dialog_Keys::enter});
    return chosen_;
}

int Open_Popup::last_shown(int first) const {
    int room = box_.height - 2 * margin - height_of(first);
    int last = first;
    while (last + 1 < count() && room >= height_of(last + 1)) {
        room -= height_of(++last);
    }
    return last;
}

int Open_Popup::first_for(int last) const {
    int first = 0;
    while (last_shown(first) < last) {
        ++first;
    }
    return first;
}

Rectangle Open_Popup::area_of(int index) const {
    int y = box_.y + margin;
    for (int i = first_; i < index; ++i) {
        y += height_of(i);
    }
    return {box_.x + 1, y, box_.width - 2, height_of(index)};
}

int Open_Popup::row_at(Point point) const {
    for (int i = first_; i <= last_shown(first_); ++i) {
        if (area_of(i).contains(point)) {
            return i;
        }
    }
    return -1;
}

void Open_Popup::draw() const {
    screen->draw_panel(box_, standard_color(Standard_Color::pane_frame));
    for (int i = first_; i <= last_shown(first_); ++i) {
        draw_row(i);
    }
}

void Open_Popup::draw_row(int index) const {
    const Rectangle area = area_of(index);
    const int middle = area.y + area.height / 2;
    if (row(index).text.empty()) {
        screen->fill_rect({area.x + margin, middle, area.width - 2 * margin, 1},
                          standard_color(Standard_Color::pane_background));
        return;
    }
    if (index == lit_ && can_choose(index)) {
        screen->fill_rect(area, standard_color(Standard_Color::highlight_deep));
    }
    if (row(index).is_marked) {
        screen->fill_rect({area.x + margin, middle - mark_edge / 2, mark_edge, mark_edge},
                          standard_color(Standard_Color::highlight));
    }
    screen->draw_text(font, {area.x + text_inset, area.y - text_rise}, row(index).text);
    if (!row(index).is_usable) {
        Color veil = standard_color(Standard_Color::pane_frame);
        veil.a = 160;
        screen->fill_rect(area, veil);
    }
}

Loop_Step Open_Popup::handle(const Input_Event& event) {
    switch (event.kind) {
    case Input_Kind::pointer_motion: light(row_at(event.pointer.point())); break;
    case Input_Kind::button_press: return press(event.pointer.point());
    case Input_Kind::wheel:
        scroll_to(first_ - wheel_.take(event.moved.y));
        light(row_at(event.pointer.point()));
        break;
    case Input_Kind::key_press: handle_key(event.chord.key); break;
    default: break;
    }
    return Loop_Step::go_on;
}

// To the next row that can be chosen.
void Open_Popup::handle_key(Keycode pressed) {
    const int step = pressed == key::down ? 1 : pressed == key::up ? -1 : 0;
    int next = lit_ < 0 && step < 0 ? count() : lit_;
    do {
        next += step;
    } while (step != 0 && next >= 0 && next < count() && !can_choose(next));
    if (can_choose(next)) {
        light(next);
        scroll_to(std::clamp(first_, first_for(next), next));
    }
}

Loop_Step Open_Popup::press(Point point) {
    if (!box_.contains(point)) {
        return Loop_Step::end;
    }
    light(row_at(point));
    return accept();
}

Loop_Step Open_Popup::accept() {
    if (!can_choose(lit_)) {
        return Loop_Step::go_on;
    }
    chosen_ = static_cast<std::size_t>(lit_);
    return Loop_Step::end;
}

void Open_Popup::light(int index) {
    const bool is_other = index != lit_;
    lit_ = index;
    if (is_other && index >= 0 && popup_.explain) {
        popup_.explain(static_cast<std::size_t>(index));
    }
}

void Open_Popup::scroll_to(int first) {
    first_ = std::clamp(first, 0, first_for(count() - 1));
}

} // namespace

std::optional<std::size_t> choose_row(Point corner, const Popup& popup) {
    return popup.rows.empty() ? std::nullopt : Open_Popup(corner, popup).run();
}

} // namespace quadrelle
